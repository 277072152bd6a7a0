#include "returnfile/controltotals.h"

#include "core/datastore.h"
#include "core/numbers.h"
#include "core/wholerupeesum.h"
#include "core/formtraits.h"

#include <array>

namespace {

struct WholeRupeeTotals
{
    std::array<qint32, 5> sums{};

    void add(const AnnexureListRow &row)
    {
        const std::array<const QString *, 5> texts = {&row.taxAmount, &row.tax, &row.surcharge,
                                                      &row.cess, &row.total};
        for (std::size_t i = 0; i < sums.size(); ++i)
            sums[i] = numbers::addWholeRupees(sums[i], numbers::val(*texts[i]));
    }
};

int countOf(const DataStore &store, const QString &table, int basicInfoId)
{
    return store.scalar(QStringLiteral("SELECT count(*) FROM %1 WHERE BasicIfoID = ?").arg(table),
                        {basicInfoId})
        .toInt();
}

} // namespace

ChallanControlTotals sumChallanRows(const FormTraits &form, const QList<AnnexureListRow> &rows)
{
    if (form.kind == FormKind::Form24Q) {
        WholeRupeeTotals whole;
        for (const AnnexureListRow &row : rows)
            whole.add(row);
        return {ExactAmount::fromRupees(whole.sums[0]), ExactAmount::fromRupees(whole.sums[1]),
                ExactAmount::fromRupees(whole.sums[2]), ExactAmount::fromRupees(whole.sums[3]),
                ExactAmount::fromRupees(whole.sums[4])};
    }
    // The amounts as they were typed, summed without rounding: the CD record formats the sum.
    ChallanControlTotals totals;
    for (const AnnexureListRow &row : rows) {
        totals.totTax += ExactAmount::fromText(row.taxAmount);
        totals.totIncomeTax += ExactAmount::fromText(row.tax);
        totals.totSurcharge += ExactAmount::fromText(row.surcharge);
        totals.totCess += ExactAmount::fromText(row.cess);
        totals.ctrlTot += ExactAmount::fromText(row.total);
    }
    return totals;
}

ChallanControlTotals calculateChallanControlTotal(const DataStore &store, const FormTraits &form,
                                                  const ChallanKey &challan,
                                                  const QList<AnnexureListRow> &rows)
{
    const ChallanControlTotals totals = sumChallanRows(form, rows);
    // 24Q keeps these columns as whole numbers; the other forms as amounts with their paise.
    const auto stored = [&form](const ExactAmount &amount) -> QVariant {
        if (form.kind == FormKind::Form24Q)
            return amount.roundedToRupees().paise() / 100;
        return amount.toDouble();
    };
    store.exec(QStringLiteral("UPDATE %1 SET TotTax = ?, TotIncomeTax = ?, TotSurcharge = ?, "
                              "TotCess = ?, CtrlTot = ? "
                              "WHERE ChallnID = ? AND BasicIfoID = ? AND CompID = ?")
                   .arg(form.challanTable),
               {stored(totals.totTax), stored(totals.totIncomeTax), stored(totals.totSurcharge),
                stored(totals.totCess), stored(totals.ctrlTot), challan.challanId,
                challan.basicInfoId, challan.compId});
    return totals;
}

int totalChallan(const DataStore &store, const FormTraits &form, int basicInfoId)
{
    return countOf(store, form.challanTable, basicInfoId);
}

int totalDeductee(const DataStore &store, const FormTraits &form, int basicInfoId)
{
    return countOf(store, form.annexureTable, basicInfoId);
}
