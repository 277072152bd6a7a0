#include "screenchild.h"
#include "statementfixture.h"
#include "core/fieldpath.h"
#include "reports/report.h"
#include "reports/reportpreview.h"
#include "statements/check/frmfilingcheck.h"
#include "statements/frmstatement.h"
#include "statements/generationframe.h"
#include "support/testsuite.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

Q_DECLARE_METATYPE(Answer)

namespace {

/// A saved 26Q Statement whose one challan has a bank code of five digits and whose one row
/// has a PAN with the digits 0000: what the authority's validation rejects.
struct RejectedStatement : StatementFixture
{
    RejectedStatement() : StatementFixture(FormKind::Form26Q)
    {
        // The master has the PAN mended since; the row keeps the one it was saved with.
        data.insert("mstDeductee", {{"GroupId", 1}, {"DeducteeID", 7}, {"PAN", "AAAPZ1234Z"},
                                    {"DeducteeName", "ZUBIN MEHTA"}, {"DeducteeCode", "02"},
                                    {"State", "KARNATAKA"}, {"StateCode", "15"}});
        session.curBasicInfoId = 0;
        screen.show();
        QApplication::setActiveWindow(&screen);
        if (!QTest::qWaitForWindowActive(&screen))
            qFatal("the statement screen did not become active");
        child<QPushButton>(screen, "cmd(1)")->click();
        data.insert(form.challanTable,
                    {{"ChallnID", 1}, {"BasicIfoID", 1}, {"CompID", 1}, {"AsstID", 1},
                     {"SlNo", 1}, {"Section", "94C"}, {"AmountDeducted", 100}, {"Total", 100},
                     {"TotTax", 100}, {"BankCode", "05100"}, {"TrVoucherNo", "00011"},
                     {"DtTrVoucher", "2026-06-10"}});
        data.insert(form.annexureTable,
                    {{"DeducteeID", 1}, {"BasicIfoID", 1}, {"CompID", 1}, {"AsstID", 1},
                     {"ChallanId", 1}, {"SrlNo", 1}, {"Section", "94C"}, {"DeducteeNo", 7},
                     {"DeducteeCode", "02"}, {"PAN", "AAAPZ0000Z"},
                     {"DeducteeName", "ZUBIN MEHTA"}, {"StateCode", "15"}, {"PIN", "560001"},
                     {"AmtOfPayment", 10000}, {"PaymentDt", "2026-06-01"}, {"Rate", 1},
                     {"TaxAmount", 100}, {"TaxDeductDt", "2026-06-01"},
                     {"TaxPaidToCGDt", "2026-06-10"}, {"BankBranchCode", "05100"},
                     {"BankChallanNo", "00011"}, {"NonDeductionflg", " "}, {"Tax", 100},
                     {"Surcharge", 0}, {"Cess", 0}, {"Total", 100}});
        child<QLineEdit>(screen, "txtNoChallan")->setText("1");
        child<QLineEdit>(screen, "txtNoDeductee")->setText("1");
    }

    FrmFilingCheck *openCheck()
    {
        child<QPushButton>(screen, "cmdCheck")->click();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (auto *check = qobject_cast<FrmFilingCheck *>(window))
                return check;
        }
        return nullptr;
    }

    FrmStatement screen{form, session, boxes};
};

/// The row of the findings list whose field is @p field.
int findingRow(QTableView *list, const QString &field)
{
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        if (list->model()->index(row, 3).data().toString() == field)
            return row;
    }
    return -1;
}

} // namespace

class TestFrmFilingCheck : public QObject
{
    Q_OBJECT

private slots:
    void findingsLeadToTheirFields_data();
    void findingsLeadToTheirFields();
    void listPrintsAsShown();
    void filingDateTyped_data();
    void filingDateTyped();
    void generationAsksOverErrors_data();
    void generationAsksOverErrors();
};

void TestFrmFilingCheck::findingsLeadToTheirFields_data()
{
    testsuite::columns<QString, QString, QString, QString>("field", "panel", "control", "shown");
    QTest::newRow("a row's PAN") << "PAN  [416]" << "pctDedt" << "txtPANDeductee"
                                 << "AAAPZ0000Z";
    QTest::newRow("a challan's bank code") << "Bank-Branch Code [410]" << "pctChallan"
                                           << "txtCh(124)" << "05100";
}

// The findings are listed under the labels of the screen's fields; Enter on one brings the
// statement screen up on that challan or row with its field focused.
void TestFrmFilingCheck::findingsLeadToTheirFields()
{
    QFETCH(QString, field);
    RejectedStatement f;
    FrmFilingCheck *check = f.openCheck();
    QVERIFY(check);
    QVERIFY(check->result().errors() >= 2);
    auto *list = child<QTableView>(*check, "lstvFindings");
    QCOMPARE(list->model()->index(0, 0).data().toString(), "Error");
    const int row = findingRow(list, field);
    QVERIFY2(row >= 0, qPrintable(field));
    list->setFocus();
    list->setCurrentIndex(list->model()->index(row, 0));
    QTest::keyClick(list, Qt::Key_Return);
    QFETCH(QString, panel);
    QVERIFY(child(f.screen, panel)->isVisible());
    QFETCH(QString, control);
    QCOMPARE(QApplication::focusWidget(), child(f.screen, control));
    QTEST(child<QLineEdit>(f.screen, control)->text(), "shown");
    check->close();
}

// Print shows the findings as the list has them, labels included, and the dues with their
// working.
void TestFrmFilingCheck::listPrintsAsShown()
{
    RejectedStatement f;
    FrmFilingCheck *check = f.openCheck();
    QVERIFY(check);
    child<QPushButton>(*check, "cmdPrint")->click();
    ReportPreview *preview = nullptr;
    for (QWidget *window : QApplication::topLevelWidgets())
        preview = preview ? preview : qobject_cast<ReportPreview *>(window);
    QVERIFY(preview);
    const QString text = preview->report().text();
    QVERIFY2(text.contains("Error\t1\t1\tPAN  [416]\tThe PAN AAAPZ0000Z has 0000"),
             qPrintable(text));
    QVERIFY2(text.contains("Late fee 234E, statement"), qPrintable(text));
    preview->close();
    check->close();
}

void TestFrmFilingCheck::filingDateTyped_data()
{
    testsuite::columns<QString, int, QString>("typed", "daysLate", "fee");
    QTest::newRow("on the due date") << "31/07/2026" << 0 << "0.00";
    // The Statement deducted 100.00: a day's fee of 200.00 is already past it.
    QTest::newRow("a day late, up to the tax") << "1/8/2026" << 1 << "100.00";
    QTest::newRow("long after") << "01122026" << 123 << "100.00";
}

// The filing date typed over the box and checked again gives the late fee as of that day.
void TestFrmFilingCheck::filingDateTyped()
{
    QFETCH(QString, typed);
    RejectedStatement f;
    FrmFilingCheck *check = f.openCheck();
    QVERIFY(check);
    auto *date = child<QLineEdit>(*check, "dtpFiledOn");
    FieldPath::enter(date);
    QTest::keyClicks(date, typed);
    child<QPushButton>(*check, "cmdRecheck")->click();
    QTEST(check->result().lateFee.daysLate, "daysLate");
    QTEST(check->result().lateFee.due.toText(), "fee");
    check->close();
}

void TestFrmFilingCheck::generationAsksOverErrors_data()
{
    testsuite::columns<Answer, int>("answer", "logRows");
    QTest::newRow("No: nothing written") << Answer::No << 0;
    QTest::newRow("Yes: the file as before") << Answer::Yes << 1;
}

// Errors of the check never stop the file, but the user is asked first, No being the default.
void TestFrmFilingCheck::generationAsksOverErrors()
{
    QFETCH(Answer, answer);
    RejectedStatement f;
    child<QPushButton>(f.screen, "CmdMakeFile")->click();
    QVERIFY(child<QLabel>(f.screen, "lblCheckFG")->text().startsWith(
        GenerationFrame::checkSummaryText.arg(QString())));
    f.boxes.shown.clear();
    f.boxes.answerNext(answer);
    f.boxes.answerNext(Answer::Yes);
    child<QPushButton>(f.screen, "cmdOK")->click();
    const Message &asked = f.boxes.shown.first();
    QVERIFY(asked.text.endsWith(QStringLiteral("Generate the file anyway?")));
    QVERIFY(asked.defaultNo);
    QTEST(f.data.count("FileGenerationLog"), "logRows");
}

QTEST_MAIN(TestFrmFilingCheck)
#include "test_frmfilingcheck.moc"
