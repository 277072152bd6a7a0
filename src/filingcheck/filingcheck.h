#pragma once

#include "core/money.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

class DataStore;
struct FormTraits;

namespace filingcheck {

/// Error: the authority's validation rejects the statement (or its processing raises a default);
/// Warning: worth the practitioner's look, never a rejection.
enum class Severity { Error, Warning };

/// One finding of the check: where it is, which stored value, what is wrong and what is wanted.
struct Finding
{
    Severity severity = Severity::Error;
    int challan = 0;   ///< SlNo of the challan; 0 for the Statement itself
    int row = 0;       ///< SrlNo of the annexure row under the challan; 0 for the challan itself
    QString column;    ///< the store's column name: "PAN", "BankCode", "PaymentDt", ...
    QString message;   ///< what is wrong and what is expected, in words
    QString rule;      ///< the rule's id in the rule book, for the record

    /// "statement", "challan N" or "challan N row M".
    QString where() const;
    bool operator==(const Finding &) const = default;
};

/// Interest under section 201(1A) on one challan's rows, with how it was worked out.
struct ChallanInterest
{
    int challan = 0;        ///< SlNo
    Money lateDeduction;    ///< 1% a month or part of one, payment or credit to deduction
    Money lateDeposit;      ///< 1.5% a month or part of one, deduction to deposit past the due date
    Money due;              ///< the two together, in whole rupees
    Money paid;             ///< what the challan's Interest column holds
    QStringList working;    ///< a line for each row that owes, in words and figures
};

/// The late fee under section 234E as of a filing date, with how it was worked out.
struct LateFee
{
    QDate dueDate;          ///< the statement's due date for its form and quarter
    QDate filedOn;
    int daysLate = 0;       ///< 0 when filed by the due date
    Money perDay;           ///< Rs 200 a day
    Money cap;              ///< the tax deductible or collectible in the statement
    Money due;              ///< min(days x per day, cap)
    Money paid;             ///< what the challans' Others columns hold together
    QString working;        ///< in words and figures
};

/// Everything the check found in one Statement.
struct CheckResult
{
    QList<Finding> findings;           ///< errors first, then by challan and row
    QList<ChallanInterest> interest;   ///< one per challan that owes interest, by SlNo
    LateFee lateFee;

    int errors() const;
    int warnings() const;
};

/**
 * The pre-filing check of one saved Statement: the authority's validation rules, kept as dated
 * tables (rule, severity, forms, financial years) so that a year's change is data, run over the
 * Statement as the store holds it, with the interest under section 201(1A) of each challan and
 * the late fee under section 234E as of the filing date. It reads and never writes.
 */
class FilingCheck
{
public:
    FilingCheck(const DataStore &store, const FormTraits &form);

    /// Throws StoreError when the store fails.
    CheckResult run(int basicInfoId, QDate filedOn) const;

private:
    const DataStore &m_store;
    const FormTraits &m_form;
};

} // namespace filingcheck
