#include "returnfile/batchtotals.h"

#include "core/datastore.h"
#include "core/formtraits.h"

#include <QSqlQuery>

BatchTotals BatchTotals::read(const DataStore &store, const FormTraits &form,
                              const QVariant &basicInfoId, const QVariant &companyId)
{
    // Summed in paise row by row, then rounded once, as the total of the challans is.
    BatchTotals totals;
    QSqlQuery challans = store.exec(
        QStringLiteral("SELECT Total FROM %1 WHERE BasicIfoID = ? AND CompID = ?")
            .arg(form.challanTable),
        {basicInfoId, companyId});
    while (challans.next())
        totals.deposited += Money::fromStored(challans.value(0));
    totals.deposited = totals.deposited.roundedToRupees();

    if (form.hasSalaryDetail) {
        QSqlQuery salaries = store.exec(
            QStringLiteral("SELECT \"336Sec16Gross\" FROM %1 WHERE BasicIfoID = ?")
                .arg(form.salaryTable),
            {basicInfoId});
        while (salaries.next()) {
            ++totals.salaryRows;
            totals.salaryGross += Money::fromStored(salaries.value(0));
        }
        totals.salaryGross = totals.salaryGross.roundedToRupees();
    }
    return totals;
}
