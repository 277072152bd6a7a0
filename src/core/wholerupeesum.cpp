#include "core/wholerupeesum.h"

#include "core/numbers.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace numbers {

namespace {

// An amount this large leaves the 32-bit range whatever the sum; refusing it at once also keeps
// the conversion below defined.
constexpr double beyondAnySum = 4294967296.0; // 2^32

} // namespace

qint32 addWholeRupees(qint32 sum, double amount)
{
    if (!std::isfinite(amount) || std::fabs(amount) >= beyondAnySum)
        throw std::range_error(overflowMessage);
    // The whole part and the rest are taken apart exactly, so the decision between rounding up
    // and down depends on the amount alone and not on how large the sum has grown.
    const double whole = std::floor(amount);
    const double rest = amount - whole;
    qint64 result = qint64(sum) + static_cast<qint64>(whole);
    if (rest > 0.5 || (rest == 0.5 && result % 2 != 0))
        ++result;
    if (result < std::numeric_limits<qint32>::min() || result > std::numeric_limits<qint32>::max())
        throw std::range_error(overflowMessage);
    return static_cast<qint32>(result);
}

} // namespace numbers
