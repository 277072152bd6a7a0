#include "returnfile/frmshowforms.h"
#include "support/scriptedmessageboxes.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Viewer
{
    Viewer() : screen(QString(), boxes)
    {
        path = screen.findChild<QLineEdit *>(QStringLiteral("txtPath"));
        text = screen.findChild<QPlainTextEdit *>(QStringLiteral("rtxt"));
        screen.show();
    }

    void click(const char *button)
    {
        QTest::mouseClick(screen.findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
    }

    ScriptedMessageBoxes boxes;
    FrmShowForms screen;
    QLineEdit *path;
    QPlainTextEdit *text;
};

} // namespace

class TestFrmShowForms : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showsTheFileAsWritten();
    void changingThePathClearsTheView();
    void pathWithoutAFile_data();
    void pathWithoutAFile();
    void vanishedFileEmptiesTheView();

private:
    QTemporaryDir m_dir;
    QString m_file;
};

void TestFrmShowForms::initTestCase()
{
    // A return file: single-byte text with CR LF ends; 0xA3 is a byte above ASCII.
    m_file = m_dir.filePath(QStringLiteral("ACME26QQ1.txt"));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("1^FH^NS1^R^\r\n2^BH^1^\xA3^\r\n");
}

void TestFrmShowForms::showsTheFileAsWritten()
{
    Viewer v;
    v.path->setText(QStringLiteral("   ") + m_file + QStringLiteral("  "));
    v.click("cmdShow");
    QVERIFY(v.boxes.shown.isEmpty());
    QCOMPARE(v.text->toPlainText(), QStringLiteral("1^FH^NS1^R^\n2^BH^1^\u00A3^\n"));
}

void TestFrmShowForms::changingThePathClearsTheView()
{
    Viewer v;
    v.path->setText(m_file);
    v.click("cmdShow");
    QVERIFY(!v.text->toPlainText().isEmpty());

    QTest::keyClick(v.path, Qt::Key_X);
    QVERIFY(v.text->toPlainText().isEmpty());

    v.click("cmdRefresh");
    QVERIFY(v.path->text().isEmpty());
}

void TestFrmShowForms::pathWithoutAFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("says");
    QTest::newRow("empty") << "" << "select the file";
    QTest::newRow("missing") << m_dir.filePath(QStringLiteral("none.txt")) << "was not found";
    QTest::newRow("folder") << m_dir.path() << "is a folder";
}

void TestFrmShowForms::pathWithoutAFile()
{
    QFETCH(QString, path);
    QFETCH(QString, says);
    Viewer v;
    v.path->setText(path);
    v.click("cmdShow");

    QCOMPARE(v.boxes.shown.size(), 1);
    QCOMPARE(v.boxes.shown.first().icon, MessageIcon::Critical);
    QVERIFY2(v.boxes.shown.first().text.contains(says), qPrintable(v.boxes.shown.first().text));
    QVERIFY(v.text->toPlainText().isEmpty());
}

void TestFrmShowForms::vanishedFileEmptiesTheView()
{
    const QString copy = m_dir.filePath(QStringLiteral("copy.txt"));
    QVERIFY(QFile::copy(m_file, copy));
    Viewer v;
    v.path->setText(copy);
    v.click("cmdShow");
    QVERIFY(!v.text->toPlainText().isEmpty());
    QVERIFY(QFile::remove(copy));

    v.click("cmdShow");
    QCOMPARE(v.boxes.shown.size(), 1);
    QVERIFY(v.text->toPlainText().isEmpty());
}

QTEST_MAIN(TestFrmShowForms)
#include "test_frmshowforms.moc"
