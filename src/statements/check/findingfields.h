#pragma once

#include <QString>

struct FormTraits;

namespace filingcheck {
struct Finding;
}

/// Where a finding of the check stands on the statement screen.
namespace findingfields {

/// The objectName of the statement screen's box that shows the finding's stored column, on the
/// basic information, challan or annexure panel by where the finding is; empty when the screen
/// shows that column nowhere (a value the program writes itself).
QString controlOf(const FormTraits &form, const filingcheck::Finding &finding);

} // namespace findingfields
