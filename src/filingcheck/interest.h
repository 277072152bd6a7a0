#pragma once

#include "filingcheck/filingcheck.h"

#include <QDate>

/// Interest on tax deducted (section 201(1A)) or collected (section 206C(7)) late or deposited
/// late: calendar months, a part of a month counting whole.
namespace filingcheck::interest {

/// The calendar months from one date to a later one, the first and the last counting whole:
/// 31 May to 1 June is two months, 5 to 20 May one. 0 when @p to is not later.
int monthsOrPart(QDate from, QDate to);

/// The interest of a month, in tenths of a percent of the tax.
struct MonthlyRates
{
    int lateDeduction; ///< payment or credit to deduction
    int lateDeposit;   ///< deduction to deposit, past the due date
};

/// The rates in force on the day the default starts, for tax deducted or for tax collected.
MonthlyRates ratesOn(QDate start, bool collected);

/// The interest on one challan's rows, added up as the rows are read.
class ChallanInterestWork
{
public:
    /// collected: tax collected at source (Form 27EQ), at the rates of section 206C(7).
    ChallanInterestWork(int slNo, QDate deposited, bool bookEntry, Money paid,
                        bool collected = false);

    /// One row: the tax deducted on a payment or credit, and the tax it deposited. Dates that
    /// are not dates owe nothing here; the rules tell of them. Rows may come in any order.
    void addRow(int srlNo, Money taxDeducted, QDate paid, QDate deducted, Money deposited);

    /// The two parts to the paisa, and the interest due: their exact sum rounded once to whole
    /// rupees, half to even as the file rounds the challan's interest; with the working.
    ChallanInterest result() const;

private:
    /// Thousandths of a paisa: a row's tax in paise times tenths of a percent times months,
    /// summed exactly and rounded once.
    using Exact = __int128;

    ChallanInterest m_result;
    QList<std::pair<int, QString>> m_rowWorking; ///< by SrlNo, put in its order at the end
    QDate m_deposited;
    bool m_bookEntry;
    bool m_collected;
    Exact m_lateDeduction = 0;
    Exact m_lateDeposit = 0;
};

} // namespace filingcheck::interest
