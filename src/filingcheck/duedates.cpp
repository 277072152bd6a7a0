#include "filingcheck/duedates.h"

#include "filingcheck/formset.h"

namespace filingcheck::duedates {

namespace {

/// A Statement's due date: day and month, in the year the financial year starts or the next.
struct StatementDue
{
    FormSet forms;
    int quarterIndex;
    int day;
    int month;
    int yearOffset;
    int firstYear; ///< the first financial year the date holds for
};

// In force for the statements due from 1 June 2016.
const StatementDue statementDues[] = {
    {form24Q | form26Q | form27Q, 0, 31, 7, 0, 2016},
    {form24Q | form26Q | form27Q, 1, 31, 10, 0, 2016},
    {form24Q | form26Q | form27Q, 2, 31, 1, 1, 2016},
    {form24Q | form26Q | form27Q, 3, 31, 5, 1, 2016},
    {form27EQ, 0, 15, 7, 0, 2016},
    {form27EQ, 1, 15, 10, 0, 2016},
    {form27EQ, 2, 15, 1, 1, 2016},
    {form27EQ, 3, 15, 5, 1, 2016},
};

} // namespace

QDate statementDue(FormKind form, int quarterIndex, int financialYear)
{
    for (const StatementDue &due : statementDues) {
        if ((due.forms & formSet(form)) && due.quarterIndex == quarterIndex
            && financialYear >= due.firstYear)
            return QDate(financialYear + due.yearOffset, due.month, due.day);
    }
    return {};
}

QDate depositDue(QDate deducted, bool bookEntry)
{
    if (!deducted.isValid() || bookEntry)
        return deducted;
    if (deducted.month() == 3)
        return QDate(deducted.year(), 4, 30);
    const QDate nextMonth = deducted.addMonths(1);
    return QDate(nextMonth.year(), nextMonth.month(), 7);
}

} // namespace filingcheck::duedates
