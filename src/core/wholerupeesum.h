#pragma once

#include <QtGlobal>

namespace numbers {

/**
 * One step of Form 24Q's control-total sums: the amount is added to a running whole-rupee sum
 * and the result is brought back to whole rupees at once, half to even, so fractions are rounded
 * away row by row (10 + 10.4 gives 20, 10 + 0.5 gives 10, 11 + 0.5 gives 12). The sum is held in
 * 64 bits, so a large employer's challan does not run out of room.
 * Throws std::range_error for an amount that is not finite or beyond 2^53 rupees.
 */
qint64 addWholeRupees(qint64 sum, double amount);

} // namespace numbers
