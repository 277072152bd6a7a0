#pragma once

#include "core/money.h"

#include <QDate>
#include <QString>

/// How reports show amounts and dates.
namespace reportformat {

/// An amount with its paise, the rupees grouped the Indian way: 12,34,567.00 (thousands, then
/// every two digits); -1,00,000.50 below zero.
QString indianAmount(Money amount);

/// A date as dd/mm/yyyy; empty for a null date.
QString dateText(const QDate &date);

/// A stored date (yyyy-mm-dd) as dd/mm/yyyy; a text that is no stored date stays as it is.
QString storedDateText(const QString &stored);

} // namespace reportformat
