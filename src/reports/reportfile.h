#pragma once

#include <QString>
#include <optional>

class Report;

/// Saving a report to a file: a PDF, or an export that other programs open.
namespace reportfile {

enum class Format {
    Workbook,      ///< a spreadsheet with the texts and amounts in cells
    Document,      ///< a word-processor document (OpenDocument text)
    PlainText,     ///< UTF-8 text, the cells in columns of characters
    Pdf,
};

/// The format that the ending of a file's name asks for: "xls" or "xlsx", "doc" or "odt",
/// "txt" or "pdf", compared exactly as typed, so "XLS" asks for none.
std::optional<Format> formatForName(const QString &fileName);

/// The name that says what a file of the format holds, so that other programs open it without
/// a warning: ".xlsx", ".odt", ".txt" or ".pdf" (in any case) is kept, ".xls" and ".doc" give
/// way to the ending of the format, and any other name gets the ending added.
QString nameForFormat(const QString &fileName, Format format);

/// Saves the report in the format. Returns an empty text on success, otherwise the message for
/// the user. A failed save leaves no partial file, and an earlier file of that name as it was;
/// a name held by anything but a plain file (a pipe, a device, a link) is refused.
QString save(const Report &report, Format format, const QString &fileName);

/// Writes a file's whole contents as save() does: an empty text on success, otherwise the
/// message for the user; a failure leaves an earlier file of that name as it was.
QString writeWhole(const QString &fileName, const QByteArray &bytes);

} // namespace reportfile
