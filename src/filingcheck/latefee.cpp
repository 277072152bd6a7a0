#include "filingcheck/latefee.h"

#include "filingcheck/duedates.h"
#include "filingcheck/storedvalues.h"

#include <algorithm>

namespace filingcheck {

namespace {

constexpr Money feePerDay = Money::fromRupees(200);

} // namespace

LateFee lateFee(FormKind form, int quarterIndex, int financialYear, QDate filedOn, Money cap,
                Money paid)
{
    LateFee fee;
    fee.dueDate = duedates::statementDue(form, quarterIndex, financialYear);
    fee.filedOn = filedOn;
    fee.perDay = feePerDay;
    fee.cap = std::max(cap, Money());
    fee.paid = paid;
    if (!fee.dueDate.isValid() || !filedOn.isValid()) {
        fee.working = QStringLiteral("No due date is known for this Statement: no fee is "
                                     "worked out.");
        return fee;
    }
    fee.daysLate = std::max<qint64>(0, fee.dueDate.daysTo(filedOn));
    const Money days = Money::fromPaise(fee.perDay.paise() * fee.daysLate);
    fee.due = std::min(days, fee.cap);
    if (fee.daysLate == 0) {
        fee.working = QStringLiteral("Due on %1 and filed on %2: on time, no fee.")
                          .arg(dateText(fee.dueDate), dateText(filedOn));
        return fee;
    }
    fee.working = QStringLiteral("Due on %1 and filed on %2: %3 late at %4 a day make %5, "
                                 "never more than the tax deducted or collected in the "
                                 "Statement, %6: %7")
                      .arg(dateText(fee.dueDate), dateText(filedOn),
                           counted(fee.daysLate, QStringLiteral("day")), fee.perDay.toText(),
                           days.toText(), fee.cap.toText(), fee.due.toText());
    return fee;
}

} // namespace filingcheck
