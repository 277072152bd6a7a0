#pragma once

#include "core/formtraits.h"

#include <QDate>
#include <QString>

#include <optional>

/// The rates that a row's rate is held against, dated by the payment or credit they apply to.
namespace filingcheck::ratetables {

/// The lowest normal rate of a 26Q section (an upper-case code) for a resident payee with a PAN
/// on the date of payment or credit, in ten-thousandths of a percent; none where the code has no
/// floor then.
std::optional<qint64> sectionFloor(const QString &section, QDate paid);

/// The least rate, in whole percents, at which tax is deducted or collected from a payee
/// without a PAN under the section or collection code (upper-case).
int withoutPanPercent(FormKind form, const QString &section);

} // namespace filingcheck::ratetables
