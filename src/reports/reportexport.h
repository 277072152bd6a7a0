#pragma once

#include "reports/reportfile.h"

#include <span>

class MessageBoxes;
class QWidget;

/// Exporting a built report to a file that the user names, in a format that the name's ending
/// or the chosen filter asks for.
namespace reportexport {

/// A filter of the file dialog and the format it stands for.
struct Filter
{
    const char *text; ///< as the dialog shows it: "Excel File (*.xlsx)"
    reportfile::Format format;
};

/// Asked before an export replaces a file that the dialog did not show: one at the name that
/// the export's format gave the chosen name.
inline const QString replaceQuestion =
    QStringLiteral("%1 already exists.\nDo you want to replace it?");

/// Asks for a file under the filters (the first one chosen to begin with) and writes the report
/// as saveAs() does, the chosen filter's format for a name that asks for none. Returns whether
/// a file was written.
bool exportReport(QWidget *parent, const QString &caption, const Report &report,
                  MessageBoxes &boxes, std::span<const Filter> filters);

/// Writes the report in the format that the ending of @p fileName asks for, else in
/// @p fallback, under the name that says what it holds (reportfile::nameForFormat); a file that
/// the name was changed onto is replaced only on the user's word. Returns whether the file was
/// written; every failure has been shown.
bool saveAs(const Report &report, MessageBoxes &boxes, const QString &fileName,
            reportfile::Format fallback);

} // namespace reportexport
