#include "reports/pdfbatch.h"

#include "reports/report.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <exception>

namespace pdfbatch {

namespace {

/// The reports' pages in one PDF, and the index of each report's first page (with the count
/// of all pages last).
std::optional<QByteArray> drawnTogether(const QList<std::shared_ptr<const Report>> &reports,
                                        QList<int> &firstPages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageLayout(reports.first()->pageLayout());
        writer.setResolution(1200);
        writer.setTitle(reports.first()->caption());
        writer.setCreator(QStringLiteral("Kelvora"));
        QPainter painter;
        if (!painter.begin(&writer))
            return std::nullopt;
        int pages = 0;
        for (const std::shared_ptr<const Report> &report : reports) {
            firstPages.append(pages);
            for (int page = 0; page < report->pageCount(); ++page) {
                if (pages++ > 0) {
                    writer.setPageLayout(report->pageLayout());
                    writer.newPage();
                }
                // As Report::render draws: in points from the paper's corner.
                painter.save();
                painter.scale(writer.logicalDpiX() / 72.0, writer.logicalDpiY() / 72.0);
                painter.translate(-writer.pageLayout().paintRect(QPageLayout::Point).topLeft());
                report->paintPage(painter, page);
                painter.restore();
            }
        }
        firstPages.append(pages);
        if (!painter.end())
            return std::nullopt;
    }
    return buffer.data();
}

QByteArray pagesOf(QPDF &source, const std::vector<QPDFPageObjectHelper> &pages, int from,
                   int to)
{
    QPDF part;
    part.emptyPDF();
    QPDFPageDocumentHelper partPages(part);
    for (int page = from; page < to; ++page)
        partPages.addPage(pages[std::size_t(page)], false);
    // The title and the creator go with every part.
    QPDFObjectHandle info = source.getTrailer().getKey("/Info");
    if (info.isDictionary())
        part.getTrailer().replaceKey("/Info", part.copyForeignObject(info));
    QPDFWriter writer(part);
    writer.setOutputMemory();
    writer.write();
    const std::shared_ptr<Buffer> bytes = writer.getBufferSharedPointer();
    return QByteArray(reinterpret_cast<const char *>(bytes->getBuffer()),
                      qsizetype(bytes->getSize()));
}

} // namespace

std::optional<QList<QByteArray>> separatePdfs(const QList<std::shared_ptr<const Report>> &reports,
                                              QString *error)
{
    QList<QByteArray> files;
    if (reports.isEmpty())
        return files;
    QList<int> firstPages;
    const std::optional<QByteArray> together = drawnTogether(reports, firstPages);
    if (!together) {
        *error = QStringLiteral("The PDF could not be drawn.");
        return std::nullopt;
    }
    try {
        QPDF source;
        source.processMemoryFile("reports", together->constData(), std::size_t(together->size()));
        const std::vector<QPDFPageObjectHelper> pages =
            QPDFPageDocumentHelper(source).getAllPages();
        for (qsizetype report = 0; report < reports.size(); ++report)
            files.append(pagesOf(source, pages, firstPages[report], firstPages[report + 1]));
    } catch (const std::exception &failure) {
        *error = QStringLiteral("The PDF could not be cut into its reports: %1")
                     .arg(QString::fromLocal8Bit(failure.what()));
        return std::nullopt;
    }
    return files;
}

} // namespace pdfbatch
