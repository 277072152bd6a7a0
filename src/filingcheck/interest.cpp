#include "filingcheck/interest.h"

#include "filingcheck/duedates.h"
#include "filingcheck/storedvalues.h"

#include <algorithm>

namespace filingcheck::interest {

namespace {

struct DatedRates
{
    QDate from;
    bool collected; ///< tax collected at source
    MonthlyRates rates;
};

// Tax deducted, section 201(1A): 1% for late deduction and 1.5% for late deposit, from 1 July
// 2010. Tax collected, section 206C(7): 1% a month for either. The first line of each also
// stands for any earlier date.
const DatedRates datedRates[] = {
    {QDate(2010, 7, 1), false, {10, 15}},
    {QDate(2010, 7, 1), true, {10, 10}},
};

/// "1%" or "1.5%" of tenths of a percent.
QString percentText(int tenths)
{
    return QString::number(tenths / 10)
           + (tenths % 10 ? u'.' + QString::number(tenths % 10) : QString()) + u'%';
}

constexpr int thousandthsInPaisa = 1000;
constexpr int thousandthsInRupee = 100 * thousandthsInPaisa;

/// Thousandths of a paisa to the nearest paisa, half a paisa up.
Money toMoney(__int128 thousandths)
{
    return Money::fromPaise(
        static_cast<qint64>((thousandths + thousandthsInPaisa / 2) / thousandthsInPaisa));
}

/// Thousandths of a paisa to whole rupees, half to even.
Money toRupees(__int128 thousandths)
{
    qint64 rupees = static_cast<qint64>(thousandths / thousandthsInRupee);
    const __int128 twiceRest = thousandths % thousandthsInRupee * 2;
    if (twiceRest > thousandthsInRupee || (twiceRest == thousandthsInRupee && rupees % 2 != 0))
        ++rupees;
    return Money::fromRupees(rupees);
}

/// An exact figure with all its decimals, at least two: "300.00", "12.5001".
QString exactText(__int128 thousandths)
{
    QString text = QString::number(static_cast<qint64>(thousandths / thousandthsInRupee))
                   + QStringLiteral(".%1").arg(static_cast<qint64>(thousandths
                                                                   % thousandthsInRupee),
                                               5, 10, QLatin1Char('0'));
    while (text.endsWith(u'0') && text.size() - text.indexOf(u'.') > 3)
        text.chop(1);
    return text;
}


} // namespace

int monthsOrPart(QDate from, QDate to)
{
    if (!from.isValid() || !to.isValid() || to <= from)
        return 0;
    return (to.year() - from.year()) * 12 + to.month() - from.month() + 1;
}

MonthlyRates ratesOn(QDate start, bool collected)
{
    const DatedRates *found = nullptr;
    for (const DatedRates &dated : datedRates) {
        if (dated.collected == collected && (!found || dated.from <= start))
            found = &dated;
    }
    return found->rates;
}

ChallanInterestWork::ChallanInterestWork(int slNo, QDate deposited, bool bookEntry, Money paid,
                                         bool collected)
    : m_deposited(deposited), m_bookEntry(bookEntry), m_collected(collected)
{
    m_result.challan = slNo;
    m_result.paid = paid;
}

void ChallanInterestWork::addRow(int srlNo, Money taxDeducted, QDate paid, QDate deducted,
                                 Money deposited)
{
    if (const int months = monthsOrPart(paid, deducted); months > 0 && taxDeducted > Money()) {
        const int rate = ratesOn(paid, m_collected).lateDeduction;
        const Exact owed = Exact(taxDeducted.paise()) * rate * months;
        m_lateDeduction += owed;
        const QString line = QStringLiteral("Row %1: tax %2 on a payment or credit of %3, "
                                            "deducted on %4: %5 at %6 = %7")
                                 .arg(QString::number(srlNo), taxDeducted.toText(),
                                      dateText(paid), dateText(deducted),
                                      counted(months, QStringLiteral("month")),
                                      percentText(rate), exactText(owed));
        m_rowWorking.append({srlNo, line});
    }
    // Nothing is due before the day of deduction; most deposits are not late.
    if (!deducted.isValid() || m_deposited <= deducted || deposited <= Money())
        return;
    const QDate due = duedates::depositDue(deducted, m_bookEntry);
    if (m_deposited <= due)
        return;
    const int months = monthsOrPart(deducted, m_deposited);
    const int rate = ratesOn(deducted, m_collected).lateDeposit;
    const Exact owed = Exact(deposited.paise()) * rate * months;
    m_lateDeposit += owed;
    const QString line =
        QStringLiteral("Row %1: tax %2 deducted on %3, due by %4%5, deposited on %6: %7 at %8 "
                       "= %9")
            .arg(QString::number(srlNo), deposited.toText(), dateText(deducted), dateText(due),
                 m_bookEntry ? QStringLiteral(" (a book entry: the same day)") : QString(),
                 dateText(m_deposited), counted(months, QStringLiteral("month")),
                 percentText(rate), exactText(owed));
    m_rowWorking.append({srlNo, line});
}

ChallanInterest ChallanInterestWork::result() const
{
    ChallanInterest result = m_result;
    QList<std::pair<int, QString>> rowWorking = m_rowWorking;
    std::stable_sort(rowWorking.begin(), rowWorking.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    for (const auto &[srlNo, line] : std::as_const(rowWorking))
        result.working << line;
    result.lateDeduction = toMoney(m_lateDeduction);
    result.lateDeposit = toMoney(m_lateDeposit);
    const Exact together = m_lateDeduction + m_lateDeposit;
    result.due = toRupees(together);
    if (together > 0) {
        result.working << QStringLiteral("Months are calendar months, a part of a month "
                                         "counting whole. Late deduction and late deposit "
                                         "make %1, rounded once to the nearest rupee (half a "
                                         "rupee to the even rupee, as the return file rounds "
                                         "the challan's interest): %2")
                              .arg(exactText(together), result.due.toText());
    }
    return result;
}

} // namespace filingcheck::interest
