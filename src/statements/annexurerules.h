#pragma once

#include "core/fieldfailure.h"

#include <QList>

struct AnnexureEntry;
struct FormTraits;

/// The rules of the annexure panel's boxes as they are typed and left.
namespace annexurerules {

inline const QString codeText = QStringLiteral("Please enter 01 or 02 as Deductee Code");
inline const QString panLengthText = QStringLiteral("PAN should be 10 digit number");
inline const QString maximumRateText = QStringLiteral("Maximum Rate can be 100%");
inline const QString panNotAvailable = QStringLiteral("PANNOTAVBL");

/**
 * The tax of a row as the amount box computes it: amount times rate over 100, rounded to whole
 * rupees by the screens' own rounding routine, "0.00".
 */
QString taxFromAmount(const QString &amount, const QString &rate);

/**
 * The tax as the rate box computes it: the rate rounded to four decimals, amount times rate over
 * 100 rounded to paise half to even, "0.00". So 1,000.50 at 10 % is 100.00 from the amount box
 * and 100.05 from the rate box; both are kept, as users have always seen them.
 */
QString taxFromRate(const QString &amount, const QString &rate);

/// Tax, surcharge and cess summed as typed, "0.00".
QString total(const AnnexureEntry &entry);

/// A rate as the list shows it ("00.0000" when padded) and the rate box after leaving it.
QString rateText(double rate, bool padded);

/// Which box of a row is being left.
enum class Box { Code, Pan, Amount, Rate, Tax, Surcharge, Cess, Deposited, Purchase };

/**
 * Leaving a box: the text formatted as the box shows it, and the boxes to show in their order:
 * a warning of too many digits goes on to the box's own check. With any box the focus stays in
 * the box. A zero rate zeroes the tax.
 */
QList<FieldFailure> boxLeft(AnnexureEntry &entry, Box box, const FormTraits &form);

} // namespace annexurerules
