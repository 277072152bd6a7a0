#pragma once

#include <QString>

/// The report layer's own messages.
namespace reportmessages {

/// A report whose statement found no row is not shown.
inline const QString noRecord = QStringLiteral("No Record Found Preview Not Avilable");
/// Printing was asked for on a machine without a printer; a PDF can still be saved.
inline const QString noPrinter = QStringLiteral("Printer needs to installed for printing Reports");

} // namespace reportmessages
