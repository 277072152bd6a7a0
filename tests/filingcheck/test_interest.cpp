#include "checkstore.h"
#include "filingcheck/duedates.h"
#include "filingcheck/filingcheck.h"
#include "filingcheck/interest.h"
#include "filingcheck/latefee.h"
#include "filingcheck/ratetables.h"
#include "support/testsuite.h"

using namespace filingcheck;

Q_DECLARE_METATYPE(FormKind)
Q_DECLARE_METATYPE(std::optional<qint64>)

namespace {

QDate on(int day, int month, int year)
{
    return QDate(year, month, day);
}

} // namespace

// Interest under section 201(1A), the late fee under section 234E and the dated tables behind
// them, with the worked examples of the authority's rules.
class TestInterest : public QObject
{
    Q_OBJECT

private slots:
    void months_data()
    {
        testsuite::columns<QDate, QDate, int>("from", "to", "months");
        QTest::newRow("deducted 31 May, deposited 8 June") << on(31, 5, 2026) << on(8, 6, 2026)
                                                           << 2;
        QTest::newRow("within one month") << on(5, 5, 2026) << on(20, 5, 2026) << 1;
        QTest::newRow("a day across a month end") << on(30, 6, 2026) << on(1, 7, 2026) << 2;
        QTest::newRow("across the year end") << on(15, 12, 2026) << on(10, 1, 2027) << 2;
        QTest::newRow("across a year and more") << on(31, 3, 2026) << on(1, 4, 2027) << 14;
        QTest::newRow("the same day") << on(5, 5, 2026) << on(5, 5, 2026) << 0;
        QTest::newRow("earlier") << on(5, 5, 2026) << on(4, 5, 2026) << 0;
        QTest::newRow("no date") << QDate() << on(4, 5, 2026) << 0;
    }
    void months()
    {
        QFETCH(QDate, from);
        QFETCH(QDate, to);
        QFETCH(int, months);
        QCOMPARE(interest::monthsOrPart(from, to), months);
    }

    void depositDue_data()
    {
        testsuite::columns<QDate, bool, QDate>("deducted", "bookEntry", "due");
        QTest::newRow("the 7th of the next month") << on(31, 5, 2026) << false << on(7, 6, 2026);
        QTest::newRow("across the year end") << on(15, 12, 2026) << false << on(7, 1, 2027);
        QTest::newRow("deducted in March") << on(1, 3, 2027) << false << on(30, 4, 2027);
        QTest::newRow("deducted on 31 March") << on(31, 3, 2027) << false << on(30, 4, 2027);
        QTest::newRow("deducted in February") << on(28, 2, 2027) << false << on(7, 3, 2027);
        QTest::newRow("book entry") << on(31, 5, 2026) << true << on(31, 5, 2026);
        QTest::newRow("book entry in March") << on(10, 3, 2027) << true << on(10, 3, 2027);
    }
    void depositDue()
    {
        QFETCH(QDate, deducted);
        QFETCH(bool, bookEntry);
        QFETCH(QDate, due);
        QCOMPARE(duedates::depositDue(deducted, bookEntry), due);
    }

    void statementDue_data()
    {
        testsuite::columns<FormKind, int, int, QDate>("form", "quarter", "year", "due");
        QTest::newRow("26Q Q1") << FormKind::Form26Q << 0 << 2026 << on(31, 7, 2026);
        QTest::newRow("24Q Q2") << FormKind::Form24Q << 1 << 2026 << on(31, 10, 2026);
        QTest::newRow("27Q Q3") << FormKind::Form27Q << 2 << 2026 << on(31, 1, 2027);
        QTest::newRow("24Q Q4") << FormKind::Form24Q << 3 << 2026 << on(31, 5, 2027);
        QTest::newRow("27EQ Q1") << FormKind::Form27EQ << 0 << 2026 << on(15, 7, 2026);
        QTest::newRow("27EQ Q3") << FormKind::Form27EQ << 2 << 2026 << on(15, 1, 2027);
        QTest::newRow("27EQ Q4") << FormKind::Form27EQ << 3 << 2026 << on(15, 5, 2027);
        QTest::newRow("the first year of the table") << FormKind::Form26Q << 3 << 2016
                                                     << on(31, 5, 2017);
        QTest::newRow("before the table") << FormKind::Form26Q << 0 << 2015 << QDate();
        QTest::newRow("no quarter") << FormKind::Form26Q << -1 << 2026 << QDate();
    }
    void statementDue()
    {
        QFETCH(FormKind, form);
        QFETCH(int, quarter);
        QFETCH(int, year);
        QFETCH(QDate, due);
        QCOMPARE(duedates::statementDue(form, quarter, year), due);
    }

    void lateFee_data()
    {
        testsuite::columns<QDate, qint64, int, qint64, QString>("filedOn", "capRupees", "days",
                                                                "dueRupees", "working");
        // Due on 31 July 2026, the first quarter's date of 26Q.
        QTest::newRow("worked example: 159 days late, capped at the tax")
            << on(6, 1, 2027) << qint64(8500) << 159 << qint64(8500)
            << "Due on 31/07/2026 and filed on 06/01/2027: 159 days late at 200.00 a day make "
               "31800.00, never more than the tax deducted or collected in the Statement, "
               "8500.00: 8500.00";
        QTest::newRow("worked example: filed on 17 November")
            << on(17, 11, 2026) << qint64(10000) << 109 << qint64(10000)
            << "Due on 31/07/2026 and filed on 17/11/2026: 109 days late at 200.00 a day make "
               "21800.00, never more than the tax deducted or collected in the Statement, "
               "10000.00: 10000.00";
        QTest::newRow("a day late") << on(1, 8, 2026) << qint64(10000) << 1 << qint64(200)
                                    << "Due on 31/07/2026 and filed on 01/08/2026: 1 day late "
                                       "at 200.00 a day make 200.00, never more than the tax "
                                       "deducted or collected in the Statement, 10000.00: "
                                       "200.00";
        QTest::newRow("on the due date") << on(31, 7, 2026) << qint64(10000) << 0 << qint64(0)
                                         << "Due on 31/07/2026 and filed on 31/07/2026: on "
                                            "time, no fee.";
        QTest::newRow("no tax") << on(1, 8, 2026) << qint64(0) << 1 << qint64(0)
                                << "Due on 31/07/2026 and filed on 01/08/2026: 1 day late at "
                                   "200.00 a day make 200.00, never more than the tax deducted "
                                   "or collected in the Statement, 0.00: 0.00";
    }
    void lateFee()
    {
        QFETCH(QDate, filedOn);
        QFETCH(qint64, capRupees);
        QFETCH(int, days);
        QFETCH(qint64, dueRupees);
        QFETCH(QString, working);
        const LateFee fee = filingcheck::lateFee(FormKind::Form26Q, 0, 2026, filedOn,
                                                 Money::fromRupees(capRupees), Money());
        QCOMPARE(fee.dueDate, on(31, 7, 2026));
        QCOMPARE(fee.daysLate, days);
        QCOMPARE(fee.due, Money::fromRupees(dueRupees));
        QCOMPARE(fee.working, working);
    }

    void challanInterest_data()
    {
        // One row of a challan; amounts in paise.
        testsuite::columns<QDate, QDate, QDate, bool, qint64, qint64, qint64, qint64>(
            "paid", "deducted", "deposited", "bookEntry", "tax", "lateDeduction", "lateDeposit",
            "due");
        QTest::newRow("worked example: deducted 31 May, deposited 8 June")
            << on(31, 5, 2026) << on(31, 5, 2026) << on(8, 6, 2026) << false << 1000000ll
            << 0ll << 30000ll << 30000ll;
        QTest::newRow("deposited on the due date")
            << on(31, 5, 2026) << on(31, 5, 2026) << on(7, 6, 2026) << false << 1000000ll
            << 0ll << 0ll << 0ll;
        QTest::newRow("deducted in March, deposited on 30 April")
            << on(10, 3, 2027) << on(10, 3, 2027) << on(30, 4, 2027) << false << 1000000ll
            << 0ll << 0ll << 0ll;
        QTest::newRow("deducted in March, deposited on 1 May")
            << on(10, 3, 2027) << on(10, 3, 2027) << on(1, 5, 2027) << false << 1000000ll
            << 0ll << 45000ll << 45000ll;
        QTest::newRow("deducted in December, deposited in January")
            << on(15, 12, 2026) << on(15, 12, 2026) << on(8, 1, 2027) << false << 1000000ll
            << 0ll << 30000ll << 30000ll;
        QTest::newRow("book entry the day after deduction")
            << on(31, 5, 2026) << on(31, 5, 2026) << on(1, 6, 2026) << true << 1000000ll << 0ll
            << 30000ll << 30000ll;
        QTest::newRow("deducted a day after the payment, across a month end")
            << on(30, 4, 2026) << on(1, 5, 2026) << on(7, 6, 2026) << false << 1000000ll
            << 20000ll << 0ll << 20000ll;
        QTest::newRow("deducted late and deposited late")
            << on(30, 4, 2026) << on(1, 5, 2026) << on(8, 6, 2026) << false << 1000000ll
            << 20000ll << 30000ll << 50000ll;
        // 1% of 1250.00 is 12.50, which goes to the even rupee; 13.50 goes up.
        QTest::newRow("half a rupee to the even rupee")
            << on(5, 5, 2026) << on(20, 5, 2026) << on(7, 6, 2026) << false << 125000ll
            << 1250ll << 0ll << 1200ll;
        QTest::newRow("half a rupee to the even rupee, upward")
            << on(5, 5, 2026) << on(20, 5, 2026) << on(7, 6, 2026) << false << 135000ll
            << 1350ll << 0ll << 1400ll;
        // 1.5% of 416.67 for two months is 12.5001: rounded once, it is 13, though its part
        // to the paisa is 12.50.
        QTest::newRow("rounded once from the exact sum")
            << on(31, 5, 2026) << on(31, 5, 2026) << on(8, 6, 2026) << false << 41667ll << 0ll
            << 1250ll << 1300ll;
    }
    void challanInterest()
    {
        QFETCH(QDate, paid);
        QFETCH(QDate, deducted);
        QFETCH(QDate, deposited);
        QFETCH(bool, bookEntry);
        QFETCH(qint64, tax);
        QFETCH(qint64, lateDeduction);
        QFETCH(qint64, lateDeposit);
        QFETCH(qint64, due);
        interest::ChallanInterestWork work(4, deposited, bookEntry, Money());
        work.addRow(7, Money::fromPaise(tax), paid, deducted, Money::fromPaise(tax));
        const ChallanInterest result = work.result();
        QCOMPARE(result.challan, 4);
        QCOMPARE(result.lateDeduction, Money::fromPaise(lateDeduction));
        QCOMPARE(result.lateDeposit, Money::fromPaise(lateDeposit));
        QCOMPARE(result.due, Money::fromPaise(due));
    }

    // Tax collected at source owes 1% a month under section 206C(7), for late collection and
    // late deposit alike, where tax deducted owes 1% and 1.5% under section 201(1A).
    void collectedTaxInterest()
    {
        interest::ChallanInterestWork work(2, on(8, 6, 2026), false, Money(), true);
        work.addRow(1, Money::fromRupees(10000), on(30, 4, 2026), on(31, 5, 2026),
                    Money::fromRupees(10000));
        const ChallanInterest result = work.result();
        QCOMPARE(result.lateDeduction, Money::fromRupees(200));
        QCOMPARE(result.lateDeposit, Money::fromRupees(200));
        QCOMPARE(result.due, Money::fromRupees(400));
    }

    void sectionFloor_data()
    {
        testsuite::columns<QString, QDate, std::optional<qint64>>("section", "paid", "floor");
        QTest::newRow("94D before 1 April 2025") << "94D" << on(31, 3, 2025)
                                                 << std::optional<qint64>(50000);
        QTest::newRow("94D from 1 April 2025") << "94D" << on(1, 4, 2025)
                                               << std::optional<qint64>(20000);
        QTest::newRow("94G before 1 October 2024") << "94G" << on(30, 9, 2024)
                                                   << std::optional<qint64>(50000);
        QTest::newRow("94G from 1 October 2024") << "94G" << on(1, 10, 2024)
                                                 << std::optional<qint64>(20000);
        QTest::newRow("94H from 1 October 2024") << "94H" << on(1, 10, 2024)
                                                 << std::optional<qint64>(20000);
        QTest::newRow("94F until its omission") << "94F" << on(30, 9, 2024)
                                                << std::optional<qint64>(200000);
        QTest::newRow("94F after its omission") << "94F" << on(1, 10, 2024)
                                                << std::optional<qint64>();
        QTest::newRow("94C, the lower of two rates") << "94C" << on(20, 7, 2026)
                                                     << std::optional<qint64>(10000);
        QTest::newRow("a section of 27Q") << "195" << on(20, 7, 2026) << std::optional<qint64>();
    }
    void sectionFloor()
    {
        QFETCH(QString, section);
        QFETCH(QDate, paid);
        QFETCH(std::optional<qint64>, floor);
        QCOMPARE(ratetables::sectionFloor(section, paid), floor);
    }

    // The worked example through the whole check: tax of 10,000.00 deducted on 31 May and
    // deposited on 8 June, in a Statement of the first quarter due on 31 July and filed on 17
    // November, with the working told to the practitioner.
    void workedExampleOfAStatement_data()
    {
        testsuite::columns<int>("form");
        for (const FormTraits &form : allForms())
            QTest::newRow(qPrintable(form.formType)) << int(form.kind);
    }
    void workedExampleOfAStatement()
    {
        QFETCH(int, form);
        const FormTraits &traits = formTraits(FormKind(form));
        const TestStore data(checkstore::cleanStore());
        const QList<std::array<const char *, 3>> changes = {
            {"basic", "Quarter", "Q1"},           {"challan", "DtTrVoucher", "2026-06-08"},
            {"challan", "AmountDeducted", "10000"}, {"challan", "Total", "10000"},
            {"row", "AmtOfPayment", "100000"},    {"row", "PaymentDt", "2026-05-31"},
            {"row", "TaxDeductDt", "2026-05-31"}, {"row", "Tax", "10000"},
            {"row", "Total", "10000"},            {"row", "TaxAmount", "10000"}};
        for (const auto &[target, column, value] : changes)
            checkstore::change(data, traits, target, column, value);

        const CheckResult result =
            FilingCheck(data.store(), traits).run(checkstore::basicInfoId, on(17, 11, 2026));
        // Tax collected at source owes 1% a month (section 206C(7)), tax deducted 1.5%.
        const bool collection = traits.kind == FormKind::Form27EQ;
        const QString rate = collection ? QStringLiteral("1%") : QStringLiteral("1.5%");
        const QString amount = collection ? QStringLiteral("200.00") : QStringLiteral("300.00");
        QCOMPARE(result.interest.size(), 1);
        const ChallanInterest &interest = result.interest.first();
        QCOMPARE(interest.challan, 1);
        QCOMPARE(interest.lateDeduction, Money());
        QCOMPARE(interest.lateDeposit, Money::fromText(amount));
        QCOMPARE(interest.due, Money::fromText(amount));
        QCOMPARE(interest.paid, Money());
        QCOMPARE(interest.working,
                 QStringList({"Row 1: tax 10000.00 deducted on 31/05/2026, due by 07/06/2026, "
                              "deposited on 08/06/2026: 2 months at " + rate + " = " + amount,
                              "Months are calendar months, a part of a month counting whole. "
                              "Late deduction and late deposit make " + amount
                                  + ", rounded once to the nearest rupee (half a rupee to the "
                                    "even rupee, as the return file rounds the challan's "
                                    "interest): " + amount}));

        const LateFee &fee = result.lateFee;
        QCOMPARE(fee.dueDate, collection ? on(15, 7, 2026) : on(31, 7, 2026));
        QCOMPARE(fee.daysLate, collection ? 125 : 109);
        QCOMPARE(fee.perDay, Money::fromRupees(200));
        QCOMPARE(fee.cap, Money::fromRupees(10000));
        QCOMPARE(fee.due, Money::fromRupees(10000));
        QCOMPARE(fee.paid, Money());
        QCOMPARE(result.errors(), 0);
        QCOMPARE(result.warnings(), 2);
    }

    // The store gives a challan's rows in the order of their keys; the check tells them in the
    // order of their serial numbers, as the file carries them.
    void rowsInTheOrderOfTheirSerialNumbers()
    {
        const FormTraits &form = formTraits(FormKind::Form26Q);
        const TestStore data(checkstore::cleanStore());
        const DataStore &store = data.store();
        store.exec("UPDATE TranDeducteeE26 SET SrlNo = 2, Cess = 'abc'");
        store.exec("CREATE TEMP TABLE later AS SELECT * FROM TranDeducteeE26");
        store.exec("UPDATE later SET DeducteeID = 101, SrlNo = 1, Cess = 0, PAN = 'AAAPZ0000Z'");
        store.exec("INSERT INTO TranDeducteeE26 SELECT * FROM later");
        store.exec("UPDATE TranBasicInfoE26 SET NoDeductee = 2");
        store.exec("UPDATE TranChallanE26 SET AmountDeducted = 2000, Total = 2000, "
                   "DtTrVoucher = '2026-07-19'");
        const FilingCheck check(store, form);

        // Both deducted on the day after the deposit: the first by its serial number is named.
        const CheckResult early = check.run(checkstore::basicInfoId, checkstore::filedOn);
        QStringList found;
        for (const Finding &finding : early.findings)
            found << finding.where() + u' ' + finding.column;
        QCOMPARE(found, QStringList({"challan 1 row 1 PAN", "challan 1 row 2 Cess",
                                     "challan 1 DtTrVoucher"}));
        QVERIFY(early.findings.last().message.contains("of row 1;"));

        store.exec("UPDATE TranChallanE26 SET DtTrVoucher = '2026-08-08'");
        const CheckResult late = check.run(checkstore::basicInfoId, checkstore::filedOn);
        const QString owed = "tax 1000.00 deducted on 20/07/2026, due by 07/08/2026, deposited "
                             "on 08/08/2026: 2 months at 1.5% = 30.00";
        QCOMPARE(late.interest.value(0).working.mid(0, 2),
                 QStringList({"Row 1: " + owed, "Row 2: " + owed}));
    }

    void statementNotSaved()
    {
        const FormTraits &form = formTraits(FormKind::Form26Q);
        const CheckResult result =
            FilingCheck(checkstore::cleanStore().store(), form).run(99, checkstore::filedOn);
        QCOMPARE(result.findings.size(), 1);
        QCOMPARE(result.findings.first().where(), "statement");
        QCOMPARE(result.findings.first().message,
                 "There is no saved Statement 99 of Form 26Q; save the Statement before "
                 "checking it.");
        QCOMPARE(result.errors(), 1);
    }
};

KELVORA_TEST_OBJECT(TestInterest);
#include "test_interest.moc"
