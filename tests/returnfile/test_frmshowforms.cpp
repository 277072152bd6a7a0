#include "returnfile/frmshowforms.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>

class TestFrmShowForms : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_screen = std::make_unique<FrmShowForms>(QString(), m_boxes);
        m_path = m_screen->findChild<QLineEdit *>(QStringLiteral("txtPath"));
        m_text = m_screen->findChild<QPlainTextEdit *>(QStringLiteral("rtxt"));
        m_screen->show();
        m_boxes.shown.clear();
        // A return file: single-byte text with CR LF ends; 0xA3 is a byte above ASCII.
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("1^FH^NS1^R^\r\n2^BH^1^\xA3^\r\n"));
    }

    void showsTheFileAsWritten()
    {
        m_path->setText("   " + m_file + "  ");
        click("cmdShow");
        QCOMPARE(m_text->toPlainText(), QStringLiteral("1^FH^NS1^R^\n2^BH^1^\u00A3^\n"));
        QTest::keyClick(m_path, Qt::Key_X); // another path clears the view
        QVERIFY(m_text->toPlainText().isEmpty());
        m_path->setText(m_file);
        click("cmdShow");
        QVERIFY(QFile::remove(m_file));
        click("cmdShow"); // a file gone since empties the view
        QVERIFY(m_text->toPlainText().isEmpty());
        QCOMPARE(m_boxes.shown.size(), 1);
        click("cmdRefresh");
        QVERIFY(m_path->text().isEmpty());
    }

    void pathWithoutAFile_data()
    {
        testsuite::columns<QString, QString>("path", "says");
        QTest::newRow("empty") << "" << "select the file";
        QTest::newRow("missing") << m_dir.filePath("none.txt") << "was not found";
        QTest::newRow("folder") << m_dir.path() << "is a folder";
    }
    void pathWithoutAFile()
    {
        QFETCH(QString, path);
        QFETCH(QString, says);
        m_path->setText(path);
        click("cmdShow");
        QCOMPARE(m_boxes.shown.size(), 1);
        QCOMPARE(m_boxes.shown.first().icon, MessageIcon::Critical);
        QVERIFY2(m_boxes.shown.first().text.contains(says), qPrintable(m_boxes.texts().join("")));
        QVERIFY(m_text->toPlainText().isEmpty());
    }

private:
    void click(const char *button)
    {
        QTest::mouseClick(m_screen->findChild<QPushButton *>(QLatin1String(button)),
                          Qt::LeftButton);
    }

    QTemporaryDir m_dir;
    const QString m_file = m_dir.filePath(QStringLiteral("ACME26QQ1.txt"));
    ScriptedMessageBoxes m_boxes;
    std::unique_ptr<FrmShowForms> m_screen;
    QLineEdit *m_path = nullptr;
    QPlainTextEdit *m_text = nullptr;
};

KELVORA_TEST_OBJECT(TestFrmShowForms);
#include "test_frmshowforms.moc"
