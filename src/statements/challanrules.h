#pragma once

#include "core/fieldfailure.h"

#include <optional>

struct ChallanEntry;

/// The rules of the challan panel's boxes as they are typed and left.
namespace challanrules {

inline const QString positiveOnlyText = QStringLiteral("Only Positive (>0) value is accepted");
inline const QString twelveDigitsText =
    QStringLiteral("12 digits are allowed before decimal point.");

/// Total tax: the five amounts summed as typed, "00.00". Interest and others are part of it.
QString total(const ChallanEntry &entry);

/// Which of the challan number and the transfer voucher number may be typed.
struct NumberBoxes
{
    bool challanNo = true;
    bool voucherNo = false;
    bool operator==(const NumberBoxes &) const = default;
};

/**
 * A government deductor (status "S" or "A") gives either a challan number or a transfer
 * voucher number, never both: whichever is typed empties and locks the other. Every other
 * deductor gives only a challan number. Empties what the rule locks.
 */
NumberBoxes applyNumberRule(ChallanEntry &entry, const QString &deductorStatus);

/**
 * Leaving the amount box txtCh(index), 117 to 121: the amount formatted "00.00", a negative
 * surcharge, cess, interest or others refused, and more than twelve digits before the point
 * refused. Others is looked at only when the cess box holds something, as it always has been.
 */
std::optional<FieldFailure> amountLeft(ChallanEntry &entry, int index);

} // namespace challanrules
