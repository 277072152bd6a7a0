#pragma once

#include <QtGlobal>

namespace numbers {

/**
 * One step of Form 24Q's control-total sums: the amount is added to a running whole-rupee sum
 * and the result is brought back to whole rupees at once, half to even, so fractions are rounded
 * away row by row (10 + 10.4 gives 20, 10 + 0.5 gives 10, 11 + 0.5 gives 12). The sum is a
 * 32-bit whole number, as it has always been in this form: a result beyond its range throws
 * std::range_error with numbers::overflowMessage, as does an amount that is not finite.
 */
qint32 addWholeRupees(qint32 sum, double amount);

} // namespace numbers
