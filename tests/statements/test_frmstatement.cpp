#include "screenchild.h"
#include "statementfixture.h"
#include "core/fieldpath.h"
#include "core/fieldrules.h"
#include "reports/report.h"
#include "reports/reportpreview.h"
#include "returnfile/batchgeneration.h"
#include "returnfile/generationflow.h"
#include "statements/annexuretransfer.h"
#include "statements/challansheet.h"
#include "statements/frmstatement.h"
#include "statements/statementsheet.h"
#include "support/testsuite.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

Q_DECLARE_METATYPE(FormKind)

namespace {

void typeAndEnter(QWidget &screen, const QString &text)
{
    QWidget *focus = QApplication::focusWidget();
    QVERIFY2(focus && screen.isAncestorOf(focus), "the focus left the screen");
    QTest::keyClicks(focus, text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

/// A date typed key by key into the date box that Enter has reached: no box may come up while
/// it is typed, only once Enter leaves it.
void typeDateAndEnter(QWidget &screen, const ScriptedMessageBoxes &boxes, const QString &date)
{
    QWidget *focus = QApplication::focusWidget();
    QVERIFY2(focus && screen.isAncestorOf(focus) && focus->objectName().startsWith("dtp"),
             "the focus is not on a date of the screen");
    const qsizetype shown = boxes.shown.size();
    QTest::keyClicks(focus, date);
    QCOMPARE(boxes.shown.size(), shown);
    QTest::keyClick(focus, Qt::Key_Return);
}

/// A saved Statement of the fixture on its screen, with a deductee and an employee in the
/// group's masters.
void openSaved(StatementFixture &f, FrmStatement &screen)
{
    f.data.insert("mstDeductee", {{"GroupId", 1}, {"DeducteeID", 7}, {"PAN", "AAACB1234C"},
                                  {"DeducteeName", "BHARAT BUILDERS"}, {"DeducteeCode", "01"},
                                  {"State", "KARNATAKA"}, {"StateCode", "15"}});
    f.data.insert("mstEmployee", {{"GroupId", 1}, {"EmpID", 7}, {"PAN", "ABCPD2345E"},
                                  {"EmpName", "BHARAT RAO"}, {"Designation", "CLERK"},
                                  {"FromDate", "2026-04-01"}, {"Todate", "2027-03-31"}});
    screen.show();
    QApplication::setActiveWindow(&screen);
    QVERIFY(QTest::qWaitForWindowActive(&screen));
    child<QPushButton>(screen, "cmd(1)")->click();
}

/// The challan panel from its first field to the Enter of the remarks, which saves: a challan
/// of 1,000 paid on @p date.
void enterChallan(StatementFixture &f, FrmStatement &screen, const QString &date)
{
    child<QPushButton>(screen, "cmdChallan")->click();
    QCOMPARE(child<QLineEdit>(screen, "dtp119")->text(),
             QDate::currentDate().toString("dd/MM/yyyy"));
    if (f.form.challanHasSection())
        typeAndEnter(screen, f.section());
    typeDateAndEnter(screen, f.boxes, date);
    for (const char *text : {"0510001", "11", "", "1000", "", "", "", "", "", "", ""})
        typeAndEnter(screen, text);
}

/// The annexure panel's path for one row of 1,000 paid on @p date with 100 deducted and
/// deposited, up to the Enter on the deduction option that saves it.
void enterRow(StatementFixture &f, FrmStatement &screen, const QString &date)
{
    child<QPushButton>(screen, "cmdDeducteeDetails")->click();
    // Without a challan the grid has the focus: Form 24Q's rows may still be entered.
    FieldPath::enter(child(screen, "cmbDeductee"));
    const bool employees = f.form.salaryLayout;
    typeAndEnter(screen, employees ? "BHARAT RAO" : "BHARAT BUILDERS");
    // The deductee's code, PAN, address, state and PIN come from the master; the employee's PAN.
    for (int field = 0; field < (employees ? 1 : 9); ++field)
        typeAndEnter(screen, "");
    typeDateAndEnter(screen, f.boxes, date);
    QStringList amounts = {"1000", employees ? "100" : "10"};
    amounts << (employees ? QStringList{"", "", "100"} : QStringList{"", "", "", "100"});
    if (!f.form.grossingUpColumn.isEmpty() || !f.form.purchaseColumn.isEmpty())
        amounts << "";
    amounts << "";
    for (const QString &text : amounts)
        typeAndEnter(screen, text);
}

} // namespace

class TestFrmStatement : public QObject
{
    Q_OBJECT

private slots:
    void rowsEnteredFromTheKeyboard();
    void datesTypedOverTheBox_data();
    void datesTypedOverTheBox();
    void challansMadeFromRows();
    void eachMnemonicDoesOneThing_data();
    void eachMnemonicDoesOneThing();
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

    // Section, date, bank code, challan number, cheque, then the amounts down to the remarks,
    // whose Enter saves.
    typeAndEnter(screen, "94C");
    typeDateAndEnter(screen, f.boxes, "10/06/2026");
    for (const char *text : {"0510001", "00011", "", "1000.5", "10", "", "", "", "", "", "PAID"})
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
    for (const char *text : {"BHARAT BUILDERS", "", "", "", "", "", "", "", "", ""})
        typeAndEnter(screen, text);
    typeDateAndEnter(screen, f.boxes, "01/06/2026");
    for (const char *text : {"1000", "10", "", "", "", "100", ""})
        typeAndEnter(screen, text);
    QCOMPARE(f.data.text("SELECT DeducteeName || '/' || TaxAmount || '/' || Tax || '/' || "
                         "PaymentDt FROM TranDeducteeE26"),
             "BHARAT BUILDERS/100.0/100.0/2026-06-01");
    QCOMPARE(f.data.text("SELECT DtTrVoucher FROM TranChallanE26"), "2026-06-10");
    QCOMPARE(f.data.text("SELECT TotTax FROM TranChallanE26"), "100");

    // No to the question changes nothing: no log row, and nothing to print a cover form from.
    child<QPushButton>(screen, "CmdMakeFile")->click();
    f.boxes.answerNext(Answer::No);
    child<QPushButton>(screen, "cmdOK")->click();
    QCOMPARE(f.data.count("FileGenerationLog"), 0);
    QVERIFY(!child<QPushButton>(screen, "cmdPrintForm27A")->isEnabled());

    // The file generated from the screen is the batch front end's, byte for byte.
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

    // Another panel chosen while the generation frame is up hides it and gives the commands back.
    child<QPushButton>(screen, "cmdChallan")->click();
    for (int index = 0; index < 5; ++index)
        QVERIFY(child<QPushButton>(screen, QStringLiteral("cmd(%1)").arg(index))->isVisible());

    list->setFocus();
    list->setCurrentIndex(list->model()->index(0, 0));
    f.boxes.answerNext(Answer::Yes);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(f.boxes.texts().last(), ChallanSheet::annexureRowsText(1));
    QCOMPARE(list->model()->rowCount(), 1);
}

void TestFrmStatement::datesTypedOverTheBox_data()
{
    testsuite::columns<FormKind, QString, QString, QString, QString, QString>(
        "kind", "quarter", "challanDate", "refusedDate", "refusal", "rowDate");
    QTest::newRow("26Q, fourth quarter")
        << FormKind::Form26Q << "Q4" << "15/01/2027" << "" << "" << "07/01/2027";
    QTest::newRow("24Q, first quarter, today past the challan")
        << FormKind::Form24Q << "Q1" << "07/06/2026" << "" << "" << "07/05/2026";
    QTest::newRow("27EQ, second quarter's edges")
        << FormKind::Form27EQ << "Q2" << "30/09/2026" << "" << "" << "01/07/2026";
    QTest::newRow("27Q, a payment before the quarter")
        << FormKind::Form27Q << "Q3" << "5/11/2026" << "30/09/2026"
        << "Date should be within the Quarter Date" << "01/10/2026";
    QTest::newRow("26Q, a payment after the challan")
        << FormKind::Form26Q << "Q3" << "05-11-2026" << "06/11/2026"
        << "Date should not be greater than the Challan Date" << "05/11/2026";
    QTest::newRow("24Q, no such day")
        << FormKind::Form24Q << "Q2" << "01092026" << "31/09/2026" << fieldrules::enterDateText
        << "31/08/2026";
}

// A date typed over the selected date box is the date stored, on every form and in every
// quarter; it is checked once Enter leaves the box, and a refused one is set to the bound it
// crossed (or kept as typed when it is no date) with the focus still on it.
void TestFrmStatement::datesTypedOverTheBox()
{
    QFETCH(FormKind, kind);
    QFETCH(QString, quarter);
    QFETCH(QString, refusedDate);
    QFETCH(QString, rowDate);
    StatementFixture f(kind, quarter);
    FrmStatement screen(f.form, f.session, f.boxes);
    openSaved(f, screen);
    QFETCH(QString, challanDate);
    enterChallan(f, screen, challanDate);
    QCOMPARE(f.data.count(f.form.challanTable), 1);
    // A new row's date starts at today's, as the challan's did.
    child<QPushButton>(screen, "cmdDeducteeDetails")->click();
    auto *date = child<QLineEdit>(screen, "dtp105");
    QCOMPARE(date->text(), QDate::currentDate().toString("dd/MM/yyyy"));
    if (!refusedDate.isEmpty()) {
        FieldPath::enter(date);
        typeDateAndEnter(screen, f.boxes, refusedDate);
        QTEST(f.boxes.texts().last(), "refusal");
        QCOMPARE(QApplication::focusWidget(), date);
        // No date cannot be left: the box keeps what was typed until a date replaces it.
        const bool noSuchDay = f.boxes.texts().last() == fieldrules::enterDateText;
        QCOMPARE(date->text(), noSuchDay ? refusedDate : rowDate);
        if (noSuchDay)
            typeDateAndEnter(screen, f.boxes, rowDate);
    }
    enterRow(f, screen, rowDate);
    QCOMPARE(f.data.count(f.form.annexureTable), 1);
    const QString stored = QStringLiteral("SELECT (SELECT DtTrVoucher FROM %1) || ' ' || "
                                          "(SELECT PaymentDt FROM %2)")
                               .arg(f.form.challanTable, f.form.annexureTable);
    const auto iso = [](const QString &typed) {
        return fieldrules::typedDate(typed).toString(Qt::ISODate);
    };
    QCOMPARE(f.data.text(stored), iso(challanDate) + ' ' + iso(rowDate));
}

// Form 24Q's rows turned into challans: the challans stand on the Challan panel at once, their
// missing date shows as an empty box, and the file can be generated without opening the panel.
void TestFrmStatement::challansMadeFromRows()
{
    StatementFixture f(FormKind::Form24Q);
    FrmStatement screen(f.form, f.session, f.boxes);
    openSaved(f, screen);
    enterRow(f, screen, "07/05/2026");
    QCOMPARE(f.data.count("TranEmployeeE24"), 1);
    child<QPushButton>(screen, "cmdAutoTransfer")->click();
    QCOMPARE(f.boxes.texts().last(), annexuretransfer::challansIncompleteText);
    f.boxes.shown.clear();
    child<QPushButton>(screen, "CmdMakeFile")->click();
    QVERIFY2(child<QPushButton>(screen, "cmdOK")->isVisible(), qPrintable(f.boxes.texts().join('|')));

    child<QPushButton>(screen, "cmdChallan")->click();
    auto *list = child<QTableView>(screen, "lstvChallan");
    QCOMPARE(list->model()->rowCount(), 1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualRect(list->model()->index(0, 0)).center());
    QCOMPARE(child<QLineEdit>(screen, "txtCh(117)")->text(), "100.00");
    QCOMPARE(child<QLineEdit>(screen, "dtp119")->text(), QString());
    // Saved as it stands, the challan is refused for its missing date rather than given one.
    FieldPath::enter(child<QLineEdit>(screen, "txtRemarks"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(f.boxes.texts().last(), fieldrules::enterDateText);
    QCOMPARE(f.data.text("SELECT quote(DtTrVoucher) FROM TranChallanE24"), "NULL");
}

void TestFrmStatement::eachMnemonicDoesOneThing_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::newRow("24Q") << FormKind::Form24Q;
    QTest::newRow("26Q") << FormKind::Form26Q;
    QTest::newRow("27Q") << FormKind::Form27Q;
    QTest::newRow("27EQ") << FormKind::Form27EQ;
}

// On every panel of the screen, and with the generation frame up, no Alt+letter belongs to
// two controls that can be reached at once.
void TestFrmStatement::eachMnemonicDoesOneThing()
{
    QFETCH(FormKind, kind);
    StatementFixture f(kind, QStringLiteral("Q4"));
    FrmStatement screen(f.form, f.session, f.boxes);
    openSaved(f, screen);
    f.data.insert(f.form.challanTable, {{"ChallnID", 1}, {"BasicIfoID", 1}, {"CompID", 1},
                                        {"AsstID", 1}, {"SlNo", 1}, {"Total", 100}});
    f.insertAnnexureRow(1, 1, 1);
    const auto clashes = [&screen] {
        QHash<QString, QStringList> owners;
        for (QWidget *widget : screen.findChildren<QWidget *>()) {
            if (!widget->isVisible() || !widget->isEnabled())
                continue;
            QString text;
            if (auto *button = qobject_cast<QAbstractButton *>(widget))
                text = button->text();
            else if (auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
                text = label->text();
            const QKeySequence mnemonic = QKeySequence::mnemonic(text);
            if (!mnemonic.isEmpty())
                owners[mnemonic.toString()] << text;
        }
        QStringList found;
        for (auto owner = owners.cbegin(); owner != owners.cend(); ++owner) {
            if (owner.value().size() > 1)
                found << owner.key() + ": " + owner.value().join(", ");
        }
        return found;
    };
    for (const char *panel : {"cmdBasicInfo", "cmdChallan", "cmdDeducteeDetails",
                              "cmdEmplyeeDetails", "CmdMakeFile"}) {
        auto *button = child<QPushButton>(screen, panel);
        if (!button->isVisible())
            continue;
        button->click();
        QVERIFY2(clashes().isEmpty(), qPrintable(panel + (": " + clashes().join("; "))));
    }
    QVERIFY(child<QPushButton>(screen, "cmdOK")->isVisible());
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
