#include "core/wholerupeesum.h"

#include <cmath>
#include <stdexcept>

namespace numbers {

namespace {

// Beyond this a double no longer holds every whole rupee, so a sum could not be kept exact.
constexpr double largestExactWhole = 9007199254740992.0; // 2^53

} // namespace

qint64 addWholeRupees(qint64 sum, double amount)
{
    if (!std::isfinite(amount) || std::fabs(amount) > largestExactWhole)
        throw std::range_error("Overflow");
    // The whole part and the rest are taken apart exactly, so the decision between rounding up
    // and down depends on the amount alone and not on how large the sum has grown.
    const double whole = std::floor(amount);
    const double rest = amount - whole;
    qint64 result = sum + static_cast<qint64>(whole);
    if (rest > 0.5 || (rest == 0.5 && result % 2 != 0))
        ++result;
    if (std::fabs(static_cast<double>(result)) > largestExactWhole)
        throw std::range_error("Overflow");
    return result;
}

} // namespace numbers
