#include "reports/reportfile.h"

#include "core/wholefile.h"
#include "reports/report.h"
#include "reports/reportodf.h"
#include "reports/reportplaintext.h"
#include "reports/reportworkbook.h"

#include <QBuffer>
#include <QDir>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTemporaryDir>

namespace reportfile {

namespace {

/// The ending of the files of a format, and that of the older format that the same filter
/// once wrote, which the user may still type.
struct Ending
{
    Format format;
    const char *own;
    const char *older; ///< empty when there is none
};

constexpr Ending endings[] = {
    {Format::Workbook, "xlsx", "xls"},
    {Format::Document, "odt", "doc"},
    {Format::PlainText, "txt", ""},
    {Format::Pdf, "pdf", ""},
};

QString failure(const QString &fileName, const QString &reason)
{
    return QStringLiteral("The report could not be saved as %1: %2")
        .arg(QDir::toNativeSeparators(fileName), reason);
}

std::optional<QByteArray> pdfBytes(const Report &report)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageLayout(report.pageLayout());
        writer.setResolution(1200);
        writer.setTitle(report.caption());
        writer.setCreator(QStringLiteral("Kelvora"));
        if (!report.render(writer))
            return std::nullopt;
    }
    return buffer.data();
}

std::optional<QByteArray> workbookBytes(const Report &report, QString *reason)
{
    // The library writes to a named file only; it writes in a folder of its own first.
    QTemporaryDir folder;
    if (!folder.isValid()) {
        *reason = folder.errorString();
        return std::nullopt;
    }
    const QString path = folder.filePath(QStringLiteral("report.xlsx"));
    if (!writeReportWorkbook(report, path, reason))
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return std::nullopt;
    }
    return file.readAll();
}

} // namespace

std::optional<Format> formatForName(const QString &fileName)
{
    for (const Ending &ending : endings) {
        if (fileName.endsWith(QLatin1String(ending.own))
            || (*ending.older && fileName.endsWith(QLatin1String(ending.older))))
            return ending.format;
    }
    return std::nullopt;
}

QString nameForFormat(const QString &fileName, Format format)
{
    for (const Ending &ending : endings) {
        if (ending.format != format)
            continue;
        const QString own = QLatin1Char('.') + QLatin1String(ending.own);
        if (fileName.endsWith(own, Qt::CaseInsensitive))
            return fileName;
        const QString older = QLatin1Char('.') + QLatin1String(ending.older);
        if (*ending.older && fileName.endsWith(older, Qt::CaseInsensitive))
            return fileName.chopped(older.size()) + own;
        return fileName + own;
    }
    return fileName;
}

QString writeWhole(const QString &fileName, const QByteArray &bytes)
{
    const QString refusal = wholefile::refusal(fileName);
    if (!refusal.isEmpty())
        return failure(fileName, refusal);
    // The whole file is written beside its destination and moved into place only when complete.
    // It is flushed first: the commit's own failure would lose the system's reason (a full disk).
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || !wholefile::write(file, bytes) || !file.flush()
        || !file.commit())
        return failure(fileName, file.errorString());
    return {};
}

QString save(const Report &report, Format format, const QString &fileName)
{
    std::optional<QByteArray> bytes;
    QString reason;
    switch (format) {
    case Format::Workbook:
        bytes = workbookBytes(report, &reason);
        break;
    case Format::Document:
        bytes = reportOdf(report);
        reason = QStringLiteral("The document could not be written.");
        break;
    case Format::PlainText:
        bytes = reportPlainText(report);
        break;
    case Format::Pdf:
        bytes = pdfBytes(report);
        reason = QStringLiteral("The PDF could not be drawn.");
        break;
    }
    if (!bytes)
        return failure(fileName, reason);
    return writeWhole(fileName, *bytes);
}

} // namespace reportfile
