#include "screenchild.h"
#include "statementfixture.h"
#include "reports/report.h"
#include "reports/reportpreview.h"
#include "returnfile/batchgeneration.h"
#include "returnfile/generationflow.h"
#include "statements/challansheet.h"
#include "statements/frmstatement.h"
#include "statements/statementsheet.h"

#include <QDateEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

namespace {

void typeAndEnter(QWidget &screen, const QString &text)
{
    QWidget *focus = QApplication::focusWidget();
    QVERIFY2(focus && screen.isAncestorOf(focus), "the focus left the screen");
    QTest::keyClicks(focus, text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

} // namespace

class TestFrmStatement : public QObject
{
    Q_OBJECT

private slots:
    void rowsEnteredFromTheKeyboard();
    void closeQuestion();
};

void TestFrmStatement::rowsEnteredFromTheKeyboard()
{
    StatementFixture f(FormKind::Form26Q);
    FrmStatement screen(f.form, f.session, f.boxes);
    screen.show();
    QVERIFY(QTest::qWaitForWindowActive(&screen));
    auto *challans = child<QPushButton>(screen, "cmdChallan");
    QVERIFY(!challans->isEnabled());

    child<QPushButton>(screen, "cmd(1)")->click();
    QCOMPARE(f.boxes.texts().last(), StatementSheet::savedText);
    QVERIFY(challans->isEnabled());
    challans->click();
    child<QDateEdit>(screen, "dtp119")->setDate(QDate(2026, 6, 10));

    // Section, date, bank code, challan number, cheque, then the amounts down to the remarks,
    // whose Enter saves.
    for (const char *text : {"94C", "", "0510001", "11", "", "1000.5", "10", "", "", "", "",
                             "", "PAID"})
        typeAndEnter(screen, text);
    auto *list = child<QTableView>(screen, "lstvChallan");
    QCOMPARE(list->model()->rowCount(), 1);
    QCOMPARE(f.data.text("SELECT Total || '/' || BankCode || '/' || Remarks FROM "
                         + f.form.challanTable),
             "1010.5/0510001/PAID");
    QCOMPARE(child<QLineEdit>(screen, "txtCh(115)")->text(), "2");
    QCOMPARE(QApplication::focusWidget(), child(screen, "cmb116"));

    // A deductee's row under it: the name brings the particulars, Enter walks to the options
    // and saves.
    f.data.insert("mstDeductee", {{"GroupId", 1}, {"DeducteeID", 7}, {"PAN", "AAACB1234C"},
                                  {"DeducteeName", "BHARAT BUILDERS"}, {"DeducteeCode", "01"},
                                  {"State", "KARNATAKA"}, {"StateCode", "15"}});
    child<QPushButton>(screen, "cmdDeducteeDetails")->click();
    child<QDateEdit>(screen, "dtp105")->setDate(QDate(2026, 6, 1));
    for (const char *text : {"BHARAT BUILDERS", "", "", "", "", "", "", "", "", "", "", "1000",
                             "10", "", "", "", "100", ""})
        typeAndEnter(screen, text);
    QCOMPARE(f.data.text("SELECT DeducteeName || '/' || TaxAmount || '/' || Tax FROM "
                         "TranDeducteeE26"),
             "BHARAT BUILDERS/100.0/100.0");
    QCOMPARE(f.data.text("SELECT TotTax FROM TranChallanE26"), "100");

    // The file generated from the screen is the batch front end's, byte for byte.
    child<QPushButton>(screen, "CmdMakeFile")->click();
    f.boxes.answerNext(Answer::Yes);
    child<QPushButton>(screen, "cmdOK")->click();
    QCOMPARE(f.boxes.texts().last(), GenerationFlow::generatedText);
    QFile screenFile(child<QLineEdit>(screen, "txtFileNameFG")->text());
    QVERIFY(screenFile.open(QIODevice::ReadOnly));
    const QString batchPath = f.data.folder() + "/batch.txt";
    QString output, errors;
    QTextStream out(&output), err(&errors);
    BatchGeneration::Options options{f.data.store().path(), "26Q", "Q1", "1", batchPath};
    QCOMPARE(BatchGeneration(out, err).run(options, QDateTime::currentDateTime()),
             int(BatchGeneration::AllWritten));
    QFile batchFile(batchPath);
    QVERIFY(batchFile.open(QIODevice::ReadOnly));
    QCOMPARE(screenFile.readAll(), batchFile.readAll());

    // The cover form takes the screen's values as they stand.
    child<QPushButton>(screen, "cmdPrintForm27A")->click();
    ReportPreview *cover = nullptr;
    for (QWidget *window : QApplication::topLevelWidgets())
        cover = cover ? cover : qobject_cast<ReportPreview *>(window);
    QVERIFY2(cover, qPrintable(f.boxes.texts().last()));
    const QString coverText = cover->report().text();
    QVERIFY2(coverText.contains("(a) Name Of Organisation\tKAVERI TRADERS")
                 && coverText.contains("26Q\t1000.00\t100.00\t1010.50"),
             qPrintable(coverText));
    cover->close();
    child<QPushButton>(screen, "cmdHidefilegenration")->click();

    child<QPushButton>(screen, "cmdChallan")->click();

    list->setFocus();
    list->setCurrentIndex(list->model()->index(0, 0));
    f.boxes.answerNext(Answer::Yes);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(f.boxes.texts().last(), ChallanSheet::annexureRowsText(1));
    QCOMPARE(list->model()->rowCount(), 1);
}

void TestFrmStatement::closeQuestion()
{
    StatementFixture f(FormKind::Form24Q);
    f.session.curBasicInfoId = 0;
    FrmStatement screen(f.form, f.session, f.boxes);
    screen.show();
    f.boxes.answerNext(Answer::Cancel);
    QVERIFY(!screen.close());
    QCOMPARE(f.boxes.shown.last().buttons, MessageButtons::YesNoCancel);
    f.boxes.answerNext(Answer::Yes);
    QVERIFY(screen.close());
    QCOMPARE(f.data.count(f.form.basicInfoTable), 1);
}

QTEST_MAIN(TestFrmStatement)
#include "test_frmstatement.moc"
