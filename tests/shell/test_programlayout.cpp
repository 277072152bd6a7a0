#include "core/programlayout.h"
#include "support/testsuite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

class TestProgramLayout : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // Only the installed layout moves the store to the user's data folder; a build tree keeps it
    // beside the program.
    void storeFolder_data()
    {
        testsuite::columns<QString, QString, bool>("programFolder", "share", "installed");
        QTest::newRow("build tree") << "build/bin" << "" << false;
        QTest::newRow("installed") << "usr/lib/kelvora" << "usr/share/kelvora" << true;
        QTest::newRow("no shared data") << "usr/lib/kelvora" << "" << false;
        QTest::newRow("other folder name") << "usr/lib/other" << "usr/share/kelvora" << false;
    }
    void storeFolder()
    {
        QFETCH(QString, programFolder);
        QFETCH(QString, share);
        QFETCH(bool, installed);
        const QTemporaryDir root;
        const QString program = QDir(root.path()).filePath(programFolder);
        QVERIFY(QDir().mkpath(program));
        if (!share.isEmpty())
            QVERIFY(QDir(root.path()).mkpath(share));
        QCOMPARE(programlayout::isInstalled(program), installed);
        QCOMPARE(programlayout::storeFolder(program),
                 installed ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)
                           : program);
    }

    // The store tool makes the first store; a second start leaves it as it is.
    void firstStartMakesTheStoreOnce()
    {
        const QTemporaryDir data;
        const QString folder = QDir(data.path()).filePath(QStringLiteral("Kelvora"));
        const QString store = QDir(folder).filePath(QStringLiteral("Kelvora.db"));
        QCOMPARE(programlayout::makeStoreIfMissing(KELVORA_TOOLS_FOLDER, folder), QString());
        QVERIFY(QFileInfo(store).size() > 0);
        QFile written(store);
        QVERIFY(written.open(QIODevice::Append));
        written.write("kept");
        written.close();
        const qint64 size = QFileInfo(store).size();
        QCOMPARE(programlayout::makeStoreIfMissing(KELVORA_TOOLS_FOLDER, folder), QString());
        QCOMPARE(QFileInfo(store).size(), size);
        QVERIFY(!programlayout::makeStoreIfMissing(data.path(), data.filePath("x")).isEmpty());
    }
};

KELVORA_TEST_OBJECT(TestProgramLayout);
#include "test_programlayout.moc"
