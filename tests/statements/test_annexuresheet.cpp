#include "statementfixture.h"
#include "core/numbers.h"
#include "statements/annexurerules.h"
#include "statements/annexuresavecheck.h"
#include "statements/annexuresheet.h"
#include "statements/annexuretransfer.h"
#include "statements/challansheet.h"
#include "statements/statementsheet.h"

#include <QtTest>

Q_DECLARE_METATYPE(FormKind)

namespace {

/// A saved Statement of the form with one challan of 1,001.50 dated 10/06/2026, and the
/// annexure panel open on it.
struct AnnexureFixture : StatementFixture
{
    explicit AnnexureFixture(FormKind kind, bool withChallan = true)
        : StatementFixture(kind), sheet(session, boxes, form)
    {
        data.insert("mstDeductee", {{"GroupId", 1}, {"DeducteeID", 7}, {"PAN", "AAACB1234C"},
                                    {"DeducteeName", "D'SOUZA & CO"}, {"Address1", "9"},
                                    {"DeducteeCode", "01"}, {"State", "KARNATAKA"},
                                    {"StateCode", "15"}, {"PIN", "560001"}});
        data.insert("mstEmployee", {{"GroupId", 1}, {"EmpID", 7}, {"PAN", "ABCPD2345E"},
                                    {"EmpName", "D'SOUZA & CO"}, {"Designation", "CLERK"},
                                    {"FromDate", "2026-04-01"}, {"Todate", "2027-03-31"}});
        sheet.open();
        if (!sheet.save())
            qFatal("the Statement of the fixture was not saved");
        if (withChallan) {
            challans.open();
            challans.entry().section = section();
            challans.entry().date = QDate(2026, 6, 10);
            challans.entry().tds = "1001.50";
            challans.boxChanged();
            if (!challans.save())
                qFatal("the challan of the fixture was not saved");
        }
        rows.open();
    }

    /// Enters a row for the master's party, as the panel would after the name was left.
    bool enter(const QString &deposited, const QString &flag = " ", const QString &tax = {})
    {
        AnnexureEntry &entry = rows.entry();
        entry.partyName = "D'SOUZA & CO";
        if (!rows.partyLeft())
            return false;
        entry.date = QDate(2026, 6, 1);
        entry.amount = "1000";
        entry.rate = "10";
        entry.tax = tax.isEmpty() ? deposited : tax;
        entry.deposited = deposited;
        entry.flag = flag;
        rows.taxPartChanged();
        return rows.save();
    }

    QString value(const QString &expression) const
    {
        return data.text(QStringLiteral("SELECT %1 FROM %2").arg(expression, form.challanTable));
    }

    StatementSheet sheet;
    ChallanSheet challans{sheet};
    AnnexureSheet rows{sheet};
};

} // namespace

class TestAnnexureSheet : public QObject
{
    Q_OBJECT

private slots:
    void taxByAmountOrRate_data();
    void taxByAmountOrRate();
    void rateLimit_data();
    void rateLimit();
    void rowsOfAChallan_data();
    void rowsOfAChallan();
    void refusals_data();
    void refusals();
    void noDeductionRowHasNoDeposit();
    void whatARowLeavesBehind_data();
    void whatARowLeavesBehind();
    void automaticTransfer();
    void overflowKeepsTheRows_data();
    void overflowKeepsTheRows();
};

void TestAnnexureSheet::taxByAmountOrRate_data()
{
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("byAmount");
    QTest::addColumn<QString>("byRate");
    QTest::newRow("1,000.50 at 10%") << "1000.50" << "10" << "100.00" << "100.05";
    QTest::newRow("half to even, down") << "10.05" << "10" << "1.00" << "1.00";
    QTest::newRow("half to even, up") << "10.15" << "10" << "1.00" << "1.02";
    QTest::newRow("rate of four places") << "250000" << "2.26666" << "5667.00" << "5666.75";
    QTest::newRow(".50 rounds up by amount") << "1005" << "10" << "101.00" << "100.50";
}

void TestAnnexureSheet::taxByAmountOrRate()
{
    QFETCH(QString, amount);
    QFETCH(QString, rate);
    QFETCH(QString, byAmount);
    QFETCH(QString, byRate);
    QCOMPARE(annexurerules::taxFromAmount(amount, rate), byAmount);
    QCOMPARE(annexurerules::taxFromRate(amount, rate), byRate);
}

void TestAnnexureSheet::rateLimit_data()
{
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("99.9999") << "99.9999" << "99.9999" << "";
    // Seven digits warn first, and the rate is refused as well.
    QTest::newRow("100.0000") << "100.0000" << "100.0000"
                              << "Maximum Len allowed = 6|" + annexurerules::maximumRateText;
    QTest::newRow("100") << "100" << "100" << annexurerules::maximumRateText;
    QTest::newRow("2") << "2" << "2.0000" << "";
}

void TestAnnexureSheet::rateLimit()
{
    QFETCH(QString, rate);
    QFETCH(QString, shown);
    QFETCH(QString, refusal);
    AnnexureEntry entry;
    entry.rate = rate;
    QStringList texts;
    for (const FieldFailure &shown :
         annexurerules::boxLeft(entry, annexurerules::Box::Rate, formTraits(FormKind::Form26Q)))
        texts << shown.message.text;
    QCOMPARE(texts.join(u'|'), refusal);
    QCOMPARE(entry.rate, shown);
}

void TestAnnexureSheet::rowsOfAChallan_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::addColumn<QString>("incomeTax"); // 24Q sums whole rupees row by row
    // What fills the challan of 1,001.50 to the paisa: 24Q keeps its challan in whole rupees.
    QTest::addColumn<QString>("rest");
    QTest::newRow("24Q") << FormKind::Form24Q << "20" << "2";
    QTest::newRow("26Q") << FormKind::Form26Q << "20.8" << "1.5";
    QTest::newRow("27Q") << FormKind::Form27Q << "20.8" << "1.5";
    QTest::newRow("27EQ") << FormKind::Form27EQ << "20.8" << "1.5";
}

void TestAnnexureSheet::rowsOfAChallan()
{
    QFETCH(FormKind, kind);
    QFETCH(QString, incomeTax);
    QFETCH(QString, rest);
    AnnexureFixture f(kind);
    QVERIFY(f.enter("500", " ", "10.4"));
    QVERIFY(f.enter("500", " ", "10.4"));
    QCOMPARE(f.rows.rows().rowCount(), 2);
    QCOMPARE(f.value("TotTax"), "1000");
    QCOMPARE(f.value("TotIncomeTax"), incomeTax);
    QCOMPARE(f.sheet.info().noDeductee, "2");
    QCOMPARE(f.data.text("SELECT BankBranchCode || BankChallanNo || TaxPaidToCGDt FROM "
                         + f.form.annexureTable),
             "2026-06-10");

    // The rows may deposit the challan's amount to the paisa, and not a paisa more.
    QVERIFY(f.enter(rest));
    QVERIFY(!f.enter("0.01"));
    QCOMPARE(f.boxes.shown.last().text, annexuresavecheck::tooMuchTaxText);
    QCOMPARE(f.sheet.takeFocus(), "txtdedTax");

    // A deleted row leaves the others their numbers, and the totals follow.
    f.boxes.answerNext(Answer::Yes);
    f.rows.deleteRow(1);
    QCOMPARE(f.data.text("SELECT group_concat(SrlNo) FROM " + f.form.annexureTable), "1,3");
    QCOMPARE(f.rows.entry().srlNo, "4");
    QCOMPARE(f.value("TotTax").toDouble(), 500 + rest.toDouble());

    // A row loaded from the list is saved over itself.
    f.rows.loadRow(0);
    f.rows.entry().deposited = "600";
    QVERIFY(f.rows.save());
    QCOMPARE(f.data.count(f.form.annexureTable), 2);
    QCOMPARE(f.value("TotTax").toDouble(), 600 + rest.toDouble());
}

void TestAnnexureSheet::refusals_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("focus");
    const QDate inQuarter(2026, 6, 1);
    QTest::newRow("name not in the master")
        << FormKind::Form26Q << "SOMEONE ELSE" << inQuarter << AnnexureSheet::fromListText
        << "cmbDeductee";
    QTest::newRow("employee not in the master")
        << FormKind::Form24Q << "SOMEONE ELSE" << inQuarter << AnnexureSheet::fromListText
        << "cmbDeductee";
    QTest::newRow("paid after the challan")
        << FormKind::Form27Q << "D'SOUZA & CO" << QDate(2026, 6, 11)
        << "Date should not be greater than the Challan Date" << "dtp105";
    QTest::newRow("paid before the quarter")
        << FormKind::Form27EQ << "D'SOUZA & CO" << QDate(2026, 3, 31)
        << "Date should be within the Quarter Date" << "dtp105";
}

void TestAnnexureSheet::refusals()
{
    QFETCH(FormKind, kind);
    QFETCH(QString, name);
    QFETCH(QDate, date);
    QFETCH(QString, text);
    QFETCH(QString, focus);
    AnnexureFixture f(kind);
    f.sheet.takeFocus();
    f.rows.entry().partyName = name;
    if (f.rows.partyLeft()) {
        f.rows.entry().date = date;
        f.rows.entry().deposited = "100";
        QVERIFY(!f.rows.save());
    }
    QCOMPARE(f.boxes.shown.last().text, text);
    QCOMPARE(f.sheet.takeFocus(), focus);
    QCOMPARE(f.data.count(f.form.annexureTable), 0);
}

void TestAnnexureSheet::noDeductionRowHasNoDeposit()
{
    AnnexureFixture f(FormKind::Form26Q);
    QVERIFY(!f.enter("0"));
    QCOMPARE(f.boxes.shown.last().text, annexuresavecheck::depositedNeededText);
    QVERIFY(f.enter("0", "B"));
    QCOMPARE(f.data.text("SELECT quote(TaxDeductDt) || quote(TaxPaidToCGDt) || BankBranchCode "
                         "|| BankChallanNo || NonDeductionflg || DeducteeCode || PIN FROM "
                         "TranDeducteeE26"),
             "NULLNULL  B01560001");
}

void TestAnnexureSheet::whatARowLeavesBehind_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::newRow("26Q") << FormKind::Form26Q;
    QTest::newRow("27Q") << FormKind::Form27Q;
    QTest::newRow("27EQ") << FormKind::Form27EQ;
}

void TestAnnexureSheet::whatARowLeavesBehind()
{
    QFETCH(FormKind, kind);
    AnnexureFixture f(kind);
    AnnexureEntry &entry = f.rows.entry();
    entry.partyName = "D'SOUZA & CO";
    QVERIFY(f.rows.partyLeft());
    entry.date = QDate(2026, 6, 1);
    entry.amount = "1000";
    entry.rate = "5";
    entry.tax = entry.deposited = "50";
    entry.surcharge = "2";
    entry.purchaseValue = "25000.00";
    f.rows.taxPartChanged();
    QVERIFY(f.rows.save());

    // A save empties the row's party and amounts; its date, rate and value of purchase stay.
    const AnnexureEntry &next = f.rows.entry();
    const QStringList emptied = {next.partyName, next.pan, next.deducteeCode, next.address1,
                                 next.state, next.stateCode, next.pin, next.amount,
                                 next.deposited, next.tax, next.surcharge, next.cess};
    QCOMPARE(emptied.join(QString()), QString());
    QCOMPARE(next.total, "0.00");
    QCOMPARE(next.date, QDate(2026, 6, 1));
    QCOMPARE(next.rate, "5");
    QCOMPARE(next.purchaseValue, "25000.00");

    // Every list, and a row taken from it, shows the rate with two places before the point.
    QCOMPARE(f.rows.rows().row(0).rate, "05.0000");
    f.rows.open();
    QCOMPARE(f.rows.rows().row(0).rate, "05.0000");
    f.rows.loadRow(0);
    QCOMPARE(next.rate, "05.0000");

    // Deleting the loaded row takes its particulars out of the boxes with it.
    QCOMPARE(next.pan, "AAACB1234C");
    f.boxes.answerNext(Answer::Yes);
    f.rows.deleteRow(0);
    QCOMPARE(f.data.count(f.form.annexureTable), 0);
    const QStringList left = {next.partyName, next.pan, next.deducteeCode, next.address1,
                              next.state, next.stateCode, next.pin, next.amount};
    QCOMPARE(left.join(QString()), QString());
}

void TestAnnexureSheet::automaticTransfer()
{
    // Employees' rows entered before any challan become one challan each.
    AnnexureFixture f(FormKind::Form24Q, false);
    QVERIFY(f.enter("300"));
    QVERIFY(f.enter("200"));
    QVERIFY(f.rows.transferToChallans());
    // The challans made lack what only the counterfoil gives, and the user is told so.
    QCOMPARE(f.boxes.texts().mid(f.boxes.texts().size() - 2),
             QStringList({annexuretransfer::transferredText,
                          annexuretransfer::challansIncompleteText}));
    QCOMPARE(f.data.text("SELECT group_concat(SlNo || ':' || TotTax, ' ') FROM TranChallanE24"),
             "1:300 2:200");
    QCOMPARE(f.data.text("SELECT count(DISTINCT ChallanId) FROM TranEmployeeE24 "
                         "WHERE ChallanId > 0"),
             "2");
    QCOMPARE(f.sheet.info().noChallan, "2");

    // Once a challan exists, nothing more is transferred.
    QVERIFY(!f.rows.transferToChallans());
    QCOMPARE(f.boxes.shown.last().text, annexuretransfer::refusedText);
    QCOMPARE(f.data.count("TranChallanE24"), 2);
}

QTEST_GUILESS_MAIN(TestAnnexureSheet)
void TestAnnexureSheet::overflowKeepsTheRows_data()
{
    QTest::addColumn<bool>("deleting");
    QTest::addColumn<QString>("text");
    QTest::newRow("saving a row")
        << false << AnnexureSheet::cannotSaveText + u'\n' + numbers::overflowMessage;
    QTest::newRow("deleting a row") << true << QString(numbers::overflowMessage);
}

void TestAnnexureSheet::overflowKeepsTheRows()
{
    // 24Q's totals are 32-bit whole rupees: a save or a delete that would carry them past that
    // range is refused, and the rows and the challan's totals stay as they were.
    QFETCH(bool, deleting);
    QFETCH(QString, text);
    AnnexureFixture f(FormKind::Form24Q);
    for (int row = 0; row < 3; ++row)
        QVERIFY(f.enter("100"));
    f.data.store().exec("UPDATE " + f.form.annexureTable + " SET Surcharge = 1500000000");
    f.rows.open();
    if (deleting) {
        f.boxes.answerNext(Answer::Yes);
        f.rows.deleteRow(0);
    } else {
        QVERIFY(!f.enter("100"));
    }
    QCOMPARE(f.boxes.shown.last().text, text);
    QCOMPARE(f.data.count(f.form.annexureTable), 3);
    QCOMPARE(f.rows.rows().rowCount(), 3);
    QCOMPARE(f.value("TotTax || ' ' || TotSurcharge"), "300 0");
}

#include "test_annexuresheet.moc"
