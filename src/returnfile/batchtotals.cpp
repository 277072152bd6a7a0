#include "returnfile/batchtotals.h"

#include "core/datastore.h"
#include "core/exactamount.h"
#include "core/formtraits.h"
#include "core/numbers.h"
#include "returnfile/returnfileerror.h"

#include <QSqlQuery>

#include <stdexcept>

namespace {

BatchTotals sums(const DataStore &store, const FormTraits &form, const QVariant &basicInfoId,
                 const QVariant &companyId)
{
    // The stored amounts are summed exactly as they stand and the sum is rounded once: rows of
    // 0.255 and 0.245 deposit 0.5, which is no whole rupee and makes a nil statement.
    BatchTotals totals;
    ExactAmount deposited;
    QSqlQuery challans = store.exec(
        QStringLiteral("SELECT Total FROM %1 WHERE BasicIfoID = ? AND CompID = ?")
            .arg(form.challanTable),
        {basicInfoId, companyId});
    while (challans.next())
        deposited += ExactAmount::fromStored(challans.value(0));
    totals.deposited = deposited.roundedToRupees();

    if (form.hasSalaryDetail) {
        QSqlQuery salaries = store.exec(
            QStringLiteral("SELECT \"336Sec16Gross\" FROM %1 WHERE BasicIfoID = ?")
                .arg(form.salaryTable),
            {basicInfoId});
        ExactAmount gross;
        while (salaries.next()) {
            ++totals.salaryRows;
            gross += ExactAmount::fromStored(salaries.value(0));
        }
        totals.salaryGross = gross.roundedToRupees();
    }
    return totals;
}

} // namespace

BatchTotals BatchTotals::read(const DataStore &store, const FormTraits &form,
                              const QVariant &basicInfoId, const QVariant &companyId)
{
    try {
        return sums(store, form, basicInfoId, companyId);
    } catch (const std::range_error &) {
        // An amount past all reason in the store: the file cannot carry its sum.
        throw ReturnFileError(QString::fromLatin1(numbers::overflowMessage));
    }
}
