#pragma once

#include "filingcheck/filingcheck.h"
#include "filingcheck/formset.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <span>

namespace filingcheck {

struct StatementValues;
struct ChallanValues;
struct RowValues;

/// What every rule's test may look at besides the values of its own level.
struct CheckContext
{
    const FormTraits &form;
    int financialYear = 0; ///< the year the Statement's financial year starts in; 0 unknown
    int quarterIndex = -1; ///< 0 to 3; -1 when the Statement's quarter is not one
    QDate quarterFrom{};   ///< invalid when the Statement's quarter or year is unknown
    QDate quarterTo{};
    QDate filedOn{};
    bool governmentDeductor = false; ///< Central or State Government, which may book entries
    bool nilStatement = false;       ///< the challans deposit nothing: the file leaves out
                                     ///< their serials and bank codes
};

/// A Statement with what its challans and rows add up to.
struct StatementFacts
{
    const StatementValues &statement;
    int challans = 0;
    int rows = 0;
    const LateFee &lateFee;
};

/// A challan with what its rows add up to.
struct ChallanFacts
{
    const ChallanValues &challan;
    Money rowsDeposited;       ///< the rows' TaxAmount together
    QDate latestDeduction;     ///< the last of the rows' dates of deduction
    int latestDeductionRow = 0;
    const ChallanInterest &interest;
};

/// What a rule's test found: the values for its message, and the column where the rule leaves
/// it to the test (a rule over every amount column).
struct Hit
{
    Hit(QStringList values, QString column = {})
        : values(std::move(values)), column(std::move(column))
    {
    }

    QStringList values;
    QString column;
};
using Hits = QList<Hit>;

/**
 * One rule of the authority's validation: which forms and financial years it holds for, how
 * grave it is, the stored column it looks at, and its message, whose %1, %2, ... take the
 * values of each hit of its test.
 */
template<typename Facts>
struct Rule
{
    const char *id;
    Severity severity;
    FormSet forms;
    int firstYear; ///< the first financial year (the year it starts in); 0 for no bound
    int lastYear;  ///< the last; 0 for no bound
    const char *column; ///< nullptr: each hit names its column
    const char *message;
    void (*test)(const Facts &, const CheckContext &, Hits &);

    /// A year of 0 is not known: only the rules without bounds hold then.
    bool holdsFor(FormKind form, int year) const
    {
        const bool bounded = firstYear != 0 || lastYear != 0;
        return (forms & formSet(form)) && (year != 0 || !bounded)
               && (firstYear == 0 || year >= firstYear) && (lastYear == 0 || year <= lastYear);
    }
};

/// The rules of the Statement itself, checked once its challans and rows are counted.
std::span<const Rule<StatementFacts>> statementRules();
/// The rules of a challan, checked once its rows are read.
std::span<const Rule<ChallanFacts>> challanRules();
std::span<const Rule<RowValues>> rowRules();

/// A rule's message with the values put in at once, so that a value holding "%1" stays as it
/// is.
QString filled(const char *message, const QStringList &values);

} // namespace filingcheck
