#include "returnfile/controltotals.h"

#include "generationdata.h"
#include "core/formtraits.h"
#include "support/teststore.h"

#include <QSqlQuery>
#include <QTest>

using namespace generationdata;

Q_DECLARE_METATYPE(FormKind)
Q_DECLARE_METATYPE(QList<AnnexureListRow>)
Q_DECLARE_METATYPE(ChallanControlTotals)

namespace {

AnnexureListRow row(const QString &taxAmount, const QString &tax, const QString &surcharge,
                    const QString &cess, const QString &total)
{
    return {taxAmount, tax, surcharge, cess, total};
}

Money paise(qint64 value)
{
    return Money::fromPaise(value);
}

/// The five stored totals of a challan, as text, so that 20 and 20.8 are told apart.
QStringList storedTotals(const DataStore &store, const FormTraits &form, int challanId)
{
    QSqlQuery query = store.exec(QStringLiteral("SELECT TotTax, TotIncomeTax, TotSurcharge, "
                                                "TotCess, CtrlTot FROM %1 WHERE ChallnID = ?")
                                     .arg(form.challanTable),
                                 {challanId});
    QStringList values;
    if (query.next()) {
        for (int column = 0; column < 5; ++column)
            values << query.value(column).toString();
    }
    return values;
}

} // namespace

class TestControlTotals : public QObject
{
    Q_OBJECT

private slots:
    void sumChallanRows_data();
    void sumChallanRows();
    void updateTouchesOnlyItsChallan_data();
    void updateTouchesOnlyItsChallan();
    void emptyListClearsTheTotals();
    void counts();
};

void TestControlTotals::sumChallanRows_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::addColumn<QList<AnnexureListRow>>("rows");
    QTest::addColumn<ChallanControlTotals>("totals");

    const auto same = [](Money amount) {
        return ChallanControlTotals{amount, amount, amount, amount, amount};
    };
    const QList<AnnexureListRow> twice104 = {row("10.4", "10.4", "10.4", "10.4", "10.4"),
                                             row("10.4", "10.4", "10.4", "10.4", "10.4")};

    QTest::newRow("24Q rounds row by row") << FormKind::Form24Q << twice104 << same(paise(2000));
    QTest::newRow("26Q keeps the paise") << FormKind::Form26Q << twice104 << same(paise(2080));
    QTest::newRow("27EQ keeps the paise") << FormKind::Form27EQ << twice104
                                          << same(paise(2080));
    QTest::newRow("24Q empty list") << FormKind::Form24Q << QList<AnnexureListRow>()
                                    << ChallanControlTotals();

    // Each column feeds its own total.
    const QList<AnnexureListRow> distinct = {row("100", "90", "7", "3", "101.5"),
                                             row("1", "2", "3", "4", "5")};
    QTest::newRow("26Q columns") << FormKind::Form26Q << distinct
                                 << ChallanControlTotals{paise(10100), paise(9200), paise(1000),
                                                         paise(700), paise(10650)};
    QTest::newRow("24Q columns") << FormKind::Form24Q << distinct
                                 << ChallanControlTotals{paise(10100), paise(9200), paise(1000),
                                                         paise(700), paise(10700)};

    // Half to even after each addition: 2.5 → 2, 2 + 2.5 = 4.5 → 4, 4 + 3.5 = 7.5 → 8.
    const QList<AnnexureListRow> halves = {row("2.5", "2.5", "2.5", "2.5", "2.5"),
                                           row("2.5", "2.5", "2.5", "2.5", "2.5"),
                                           row("3.5", "3.5", "3.5", "3.5", "3.5")};
    QTest::newRow("24Q halves") << FormKind::Form24Q << halves << same(paise(800));
    QTest::newRow("26Q halves") << FormKind::Form26Q << halves << same(paise(850));

    // Texts are read as the program reads typed amounts.
    const QList<AnnexureListRow> typed = {row("1,000", "12abc", "", " 5 0", "0.10"),
                                          row("0.20", "", "x", "", "0.20")};
    QTest::newRow("26Q typed texts") << FormKind::Form26Q << typed
                                     << ChallanControlTotals{paise(120), paise(1200), paise(0),
                                                             paise(5000), paise(30)};
    QTest::newRow("24Q typed texts") << FormKind::Form24Q << typed
                                     << ChallanControlTotals{paise(100), paise(1200), paise(0),
                                                             paise(5000), paise(0)};

    // Many small amounts stay exact in paise where a floating sum would drift.
    QList<AnnexureListRow> tenths;
    for (int i = 0; i < 1000; ++i)
        tenths << row("0.10", "0.10", "0.10", "0.10", "0.10");
    QTest::newRow("26Q a thousand tenths") << FormKind::Form26Q << tenths << same(paise(10000));
}

void TestControlTotals::sumChallanRows()
{
    QFETCH(FormKind, kind);
    QFETCH(QList<AnnexureListRow>, rows);
    QFETCH(ChallanControlTotals, totals);

    const ChallanControlTotals sums = ::sumChallanRows(formTraits(kind), rows);
    QCOMPARE(sums.totTax, totals.totTax);
    QCOMPARE(sums.totIncomeTax, totals.totIncomeTax);
    QCOMPARE(sums.totSurcharge, totals.totSurcharge);
    QCOMPARE(sums.totCess, totals.totCess);
    QCOMPARE(sums.ctrlTot, totals.ctrlTot);
}

void TestControlTotals::updateTouchesOnlyItsChallan_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::addColumn<QString>("stored");

    QTest::newRow("24Q") << FormKind::Form24Q << "20";
    QTest::newRow("26Q") << FormKind::Form26Q << "20.8";
    QTest::newRow("27EQ") << FormKind::Form27EQ << "20.8";
}

void TestControlTotals::updateTouchesOnlyItsChallan()
{
    QFETCH(FormKind, kind);
    QFETCH(QString, stored);

    TestStore data;
    const DataStore &store = data.store();
    const FormTraits &form = formTraits(kind);
    addStatement(store, form, 1, 11, QStringLiteral("Q2"), 2, 0);
    addStatement(store, form, 2, 12, QStringLiteral("Q2"), 1, 0);
    addChallan(store, form, 5, 1, 11, 1, 100);
    addChallan(store, form, 6, 1, 11, 2, 100);
    addChallan(store, form, 7, 2, 12, 1, 100);
    const QStringList zeros(5, QStringLiteral("0"));

    const QList<AnnexureListRow> rows = {row("10.4", "10.4", "10.4", "10.4", "10.4"),
                                         row("10.4", "10.4", "10.4", "10.4", "10.4")};
    calculateChallanControlTotal(store, form, {5, 1, 11}, rows);

    QCOMPARE(storedTotals(store, form, 5), QStringList(5, stored));
    QCOMPARE(storedTotals(store, form, 6), zeros);
    QCOMPARE(storedTotals(store, form, 7), zeros);

    // The challan is found by its Statement and company as well as its id.
    calculateChallanControlTotal(store, form, {6, 2, 11}, rows);
    calculateChallanControlTotal(store, form, {6, 1, 12}, rows);
    QCOMPARE(storedTotals(store, form, 6), zeros);
}

void TestControlTotals::emptyListClearsTheTotals()
{
    TestStore data;
    const DataStore &store = data.store();
    const FormTraits &form = formTraits(FormKind::Form26Q);
    addStatement(store, form, 1, 11, QStringLiteral("Q1"), 1, 0);
    addChallan(store, form, 5, 1, 11, 1, 100);
    store.exec(QStringLiteral("UPDATE TranChallanE26 SET TotTax = 9, TotIncomeTax = 9, "
                              "TotSurcharge = 9, TotCess = 9, CtrlTot = 9"));

    const ChallanControlTotals written = calculateChallanControlTotal(store, form, {5, 1, 11}, {});

    QCOMPARE(written, ChallanControlTotals());
    QCOMPARE(storedTotals(store, form, 5), QStringList(5, QStringLiteral("0")));
}

void TestControlTotals::counts()
{
    TestStore data;
    const DataStore &store = data.store();
    const FormTraits &form26 = formTraits(FormKind::Form26Q);
    const FormTraits &form24 = formTraits(FormKind::Form24Q);
    addStatement(store, form26, 1, 11, QStringLiteral("Q1"), 2, 3);
    addStatement(store, form26, 2, 11, QStringLiteral("Q2"), 1, 1);
    addChallan(store, form26, 5, 1, 11, 1, 100);
    addChallan(store, form26, 6, 1, 11, 2, 100);
    addChallan(store, form26, 7, 2, 11, 1, 100);
    addAnnexureRow(store, form26, 1, 1, 5, 1, 1000, 100);
    addAnnexureRow(store, form26, 2, 1, 6, 1, 1000, 100);
    addAnnexureRow(store, form26, 3, 1, 6, 2, 1000, 100);
    addAnnexureRow(store, form26, 4, 2, 7, 1, 1000, 100);
    // Another form's rows with the same Statement id are not this Statement's.
    addChallan(store, form24, 8, 1, 11, 1, 100);
    addAnnexureRow(store, form24, 9, 1, 8, 1, 1000, 100);

    QCOMPARE(totalChallan(store, form26, 1), 2);
    QCOMPARE(totalDeductee(store, form26, 1), 3); // over all its challans
    QCOMPARE(totalChallan(store, form26, 2), 1);
    QCOMPARE(totalDeductee(store, form26, 2), 1);
    QCOMPARE(totalChallan(store, form24, 1), 1);
    QCOMPARE(totalDeductee(store, form24, 1), 1);
    QCOMPARE(totalChallan(store, form26, 3), 0);
    QCOMPARE(totalDeductee(store, form26, 3), 0);
}

QTEST_GUILESS_MAIN(TestControlTotals)
#include "test_controltotals.moc"
