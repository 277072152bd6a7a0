#include "generationstore.h"
#include "returnfile/controltotals.h"
#include "returnfile/generationlog.h"
#include "support/testsuite.h"

#include <stdexcept>


Q_DECLARE_METATYPE(FormKind)

namespace {

AnnexureListRow same(const char *amount)
{
    const QString text = QLatin1String(amount);
    return {text, text, text, text, text};
}

/// The five stored totals of a challan, as text, so that 20 and 20.8 are told apart.
QString storedTotals(const TestStore &data, FormKind form, int challanId)
{
    return data.text(QStringLiteral("SELECT TotTax||' '||TotIncomeTax||' '||TotSurcharge||' '||"
                                    "TotCess||' '||CtrlTot FROM %1 WHERE ChallnID = ?")
                         .arg(formTraits(form).challanTable),
                     {challanId});
}

} // namespace

class TestControlTotals : public QObject
{
    Q_OBJECT

private slots:
    // Form 24Q rounds to whole rupees after each row, half to even, in 32 bits; the others
    // keep the exact sum, paise and beyond.
    void sumChallanRows_data()
    {
        testsuite::columns<FormKind, QList<AnnexureListRow>, QStringList>("kind", "rows", "sums");
        const QList<AnnexureListRow> twice104 = {same("10.4"), same("10.4")};
        const QList<AnnexureListRow> halves = {same("2.5"), same("2.5"), same("3.5")};
        // Each column feeds its own total; texts are read as typed amounts are.
        const QList<AnnexureListRow> typed = {{"1,000", "12abc", "", " 5 0", "101.5"},
                                              {"0.20", "", "x", "", "5"}};
        const QList<AnnexureListRow> tenths(1000, same("0.10"));
        // Rounded to the paisa row by row, each of these would sum to another figure.
        const QList<AnnexureListRow> pastPaise = {{"0.255", "0.005", "0.004", "1.333", "0.125"},
                                                  {"0.245", "0.005", "0.004", "1.333", "0.125"}};
        const QList<AnnexureListRow> past32Bits = {same("2147483647"), same("0.5")};
        const auto all = [](const char *sum) { return QStringList(5, QLatin1String(sum)); };
        QTest::newRow("24Q rows") << FormKind::Form24Q << twice104 << all("20");
        QTest::newRow("26Q rows") << FormKind::Form26Q << twice104 << all("20.8");
        QTest::newRow("24Q halves") << FormKind::Form24Q << halves << all("8");
        QTest::newRow("27EQ halves") << FormKind::Form27EQ << halves << all("8.5");
        QTest::newRow("26Q typed") << FormKind::Form26Q << typed
                                   << QStringList{"1.2", "12", "0", "50", "106.5"};
        QTest::newRow("24Q typed") << FormKind::Form24Q << typed
                                   << QStringList{"1", "12", "0", "50", "107"};
        QTest::newRow("26Q a thousand tenths") << FormKind::Form26Q << tenths << all("100");
        QTest::newRow("27Q past the paise") << FormKind::Form27Q << pastPaise
                                            << QStringList{"0.5", "0.01", "0.008", "2.666",
                                                           "0.25"};
        QTest::newRow("24Q past 32 bits") << FormKind::Form24Q << past32Bits
                                          << QStringList{"Overflow"};
        QTest::newRow("24Q no rows") << FormKind::Form24Q << QList<AnnexureListRow>() << all("0");
    }
    void sumChallanRows()
    {
        QFETCH(FormKind, kind);
        QFETCH(QList<AnnexureListRow>, rows);
        QStringList sums;
        try {
            const ChallanControlTotals totals = ::sumChallanRows(formTraits(kind), rows);
            for (const ExactAmount &sum : {totals.totTax, totals.totIncomeTax,
                                           totals.totSurcharge, totals.totCess, totals.ctrlTot})
                sums << sum.toText();
        } catch (const std::range_error &error) {
            sums << QString::fromUtf8(error.what());
        }
        QTEST(sums, "sums");
    }

    // The totals go to the challan of that Statement and company only.
    void storedTotalsOfOneChallan()
    {
        const TestStore data(generationStore());
        const QList<AnnexureListRow> rows = {same("10.4"), same("10.4")};
        calculateChallanControlTotal(data.store(), formTraits(FormKind::Form24Q), {81, 5, 11},
                                     rows);
        calculateChallanControlTotal(data.store(), formTraits(FormKind::Form26Q), {51, 5, 11},
                                     rows);
        calculateChallanControlTotal(data.store(), formTraits(FormKind::Form26Q), {52, 6, 11},
                                     rows);
        calculateChallanControlTotal(data.store(), formTraits(FormKind::Form26Q), {61, 6, 11},
                                     rows);
        QCOMPARE(storedTotals(data, FormKind::Form24Q, 81), QStringLiteral("20 20 20 20 20"));
        QCOMPARE(storedTotals(data, FormKind::Form26Q, 51),
                 QStringLiteral("20.8 20.8 20.8 20.8 20.8"));
        QCOMPARE(storedTotals(data, FormKind::Form26Q, 52), QStringLiteral("0.0 0.0 0.0 0.0 0.0"));
        QCOMPARE(storedTotals(data, FormKind::Form26Q, 61), QStringLiteral("0.0 0.0 0.0 0.0 0.0"));
        // An empty list clears them.
        QCOMPARE(calculateChallanControlTotal(data.store(), formTraits(FormKind::Form26Q),
                                              {51, 5, 11}, {}),
                 ChallanControlTotals());
        QCOMPARE(storedTotals(data, FormKind::Form26Q, 51), QStringLiteral("0.0 0.0 0.0 0.0 0.0"));
    }

    void counts()
    {
        const DataStore &store = generationStore().store();
        const FormTraits &form26 = formTraits(FormKind::Form26Q);
        QCOMPARE(totalChallan(store, form26, 5), 2);
        QCOMPARE(totalDeductee(store, form26, 5), 7); // over all its challans
        QCOMPARE(totalDeductee(store, form26, 6), 1);
        QCOMPARE(totalChallan(store, formTraits(FormKind::Form24Q), 5), 1);
        QCOMPARE(totalDeductee(store, formTraits(FormKind::Form24Q), 5), 1);
        QCOMPARE(totalChallan(store, form26, 9), 0);
    }

    void logRows()
    {
        const TestStore data;
        GenerationLogEntry entry{3, 11, "24Q", "  /home/d'souza/eReturns/DSO24QQ4.txt ",
                                 QDateTime(QDate(2026, 10, 4), QTime(9, 5, 7)), "Q4 ", "202728",
                                 Money::fromPaise(12345678), Money::fromPaise(123457), 4,
                                 " D'SOUZA & SONS "};
        QCOMPARE(insertFileGenerationData(data.store(), entry), 1);
        QCOMPARE(data.text("SELECT FGId||'|'||GrpID||'|'||CompID||'|'||FormNo||'|'||FileName||'|'"
                           "||DateOfCreation||'|'||TimeOFCreation||'|'||Periodicity||'|'||"
                           "AsstYear||'|'||Media||'|'||TotNoOFMedia||'|'||TotAmtPaid||'|'||"
                           "TotTDS||'|'||NoOFDeductees||'|'||ExistingAssessee||'|'||"
                           "OfficerCode||'|'||CompanyName FROM FileGenerationLog"),
                 QStringLiteral("1|3|11|Form -24Q|/home/d'souza/eReturns/DSO24QQ4.txt|"
                                "2026-10-04|09:05:07|Q4|202728|C|1|123456.78|1234.57|4|N|NA|"
                                "D'SOUZA & SONS"));
        // Rows brought over from another store may leave gaps; the next id follows the largest.
        data.store().exec("UPDATE FileGenerationLog SET FGId = 40");
        QCOMPARE(insertFileGenerationData(data.store(), entry), 41);
    }
};

KELVORA_TEST_OBJECT(TestControlTotals);
#include "test_controltotals.moc"
