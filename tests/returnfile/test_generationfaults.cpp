#include "generationstore.h"
#include "support/testsuite.h"

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

/// Every entry below a folder with its kind, so that a run that wrote where it should not, or
/// put a plain file in place of something else, shows up.
QStringList contents(const QString &folder)
{
    QStringList found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System
                                     | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry = entries.nextFileInfo();
        found << entry.filePath()
                     + (entry.isFile() ? " file" : entry.isDir() ? " folder" : " other");
    }
    found.sort();
    return found;
}

/// A file system of a few pages mounted over a folder for as long as it lives.
struct SmallFileSystem
{
    explicit SmallFileSystem(const QString &folder) : path(folder.toLocal8Bit())
    {
        mounted = mount("tmpfs", path, "tmpfs", 0, "size=16k") == 0;
    }
    ~SmallFileSystem()
    {
        if (mounted)
            umount2(path, MNT_DETACH);
    }
    QByteArray path;
    bool mounted = false;
};

} // namespace

// Generation into what cannot take a return file: the batch says why on its error stream, 1 for
// a refused Statement and 3 for the file system, and nothing is written where it should not be.
class TestGenerationFaults : public QObject
{
    Q_OBJECT

private slots:
    void badTargets_data()
    {
        testsuite::columns<QString, QString, int, QString>("target", "prefix", "exitCode",
                                                           "message");
        const QString notPlain = QStringLiteral("that name is not a plain file");
        const QString prefix = QStringLiteral("File Name Prefix \"%1\" of the company "
                                              "KAVERI TEXTILES LTD may hold letters and digits");
        QTest::newRow("device") << "device" << "KAVR" << 3 << notPlain;
        QTest::newRow("FIFO") << "fifo" << "KAVR" << 3 << notPlain;
        QTest::newRow("folder") << "folder" << "KAVR" << 3 << notPlain;
        QTest::newRow("prefix of the root") << "" << "/" << 1 << prefix.arg("/");
        QTest::newRow("prefix climbing out") << "" << "../" << 1 << prefix.arg("../");
        QTest::newRow("prefix with a control character")
            << "" << "K\x1bV" << 1 << prefix.arg("K\x1bV");
        QTest::newRow("full disk") << "full" << "KAVR" << 3 << "No space left on device";
    }
    void badTargets()
    {
        QFETCH(QString, target);
        QFETCH(QString, prefix);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        const TestStore data(generationStore());
        data.store().exec("UPDATE mstCompany SET FilePrefix = ? WHERE CompID = 11", {prefix});
        QDir(data.folder()).mkdir("eReturns");
        QTemporaryDir targets;
        QString output = targets.filePath("KAV26QQ2.txt");
        const QByteArray native = output.toLocal8Bit();
        std::optional<SmallFileSystem> small;
        if (target == u"device" && geteuid() != 0)
            output = "/dev/null"; // which no one else may replace
        else if (target == u"device")
            QCOMPARE(mknod(native, S_IFCHR | 0666, makedev(1, 3)), 0);
        else if (target == u"fifo")
            QCOMPARE(mkfifo(native, 0666), 0);
        else if (target == u"folder")
            QVERIFY(QDir().mkdir(output));
        else if (target == u"full") {
            if (geteuid() != 0)
                QSKIP("a full disk needs a small file system, which only root may mount");
            small.emplace(targets.path());
            if (!small->mounted)
                QSKIP("a small file system could not be mounted here");
            QFile filler(targets.filePath("filler"));
            QVERIFY(filler.open(QIODevice::WriteOnly));
            while (filler.write(QByteArray(4096, 'x')) == 4096 && filler.flush()) {
            }
        }
        const QStringList before = contents(targets.path()) + contents(data.folder());

        QProcess batch;
        QStringList arguments{"--store", data.store().path(), "--form", "26Q", "--quarter", "Q2",
                              "--company", "11"};
        if (!target.isEmpty())
            arguments << "--output" << output;
        batch.start(QStringLiteral(KELVORA_RETURNS_PATH), arguments);
        QVERIFY(batch.waitForFinished(60000));
        const QString err = QString::fromUtf8(batch.readAllStandardError());

        QCOMPARE(batch.exitCode(), exitCode);
        QVERIFY2(err.contains(message) && (target.isEmpty() || err.contains(output)),
                 qPrintable(err));
        QVERIFY(batch.readAllStandardOutput().isEmpty());
        QCOMPARE(contents(targets.path()) + contents(data.folder()), before);
        QVERIFY(!QFileInfo::exists("/26QQ2.txt"));
    }
};

KELVORA_TEST_OBJECT(TestGenerationFaults);
#include "test_generationfaults.moc"
