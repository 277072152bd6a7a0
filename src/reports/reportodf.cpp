#include "reports/reportodf.h"

#include "reports/report.h"
#include "reports/reportfonts.h"

#include <QBuffer>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>
#include <QTextTable>
#include <cmath>

namespace {

constexpr double sameEdge = 0.001;

bool isParagraph(const ReportBand &band)
{
    return band.cells.size() == 1 && band.cells[0].left < sameEdge
           && band.cells[0].width > 1 - sameEdge;
}

bool sameCells(const ReportBand &one, const ReportBand &other)
{
    if (one.cells.size() != other.cells.size() || other.pageBreakBefore || other.spaceAbove > 0)
        return false;
    for (qsizetype cell = 0; cell < one.cells.size(); ++cell) {
        if (std::abs(one.cells[cell].left - other.cells[cell].left) > sameEdge
            || std::abs(one.cells[cell].width - other.cells[cell].width) > sameEdge)
            return false;
    }
    return true;
}

/// The lines of a text as breaks inside one paragraph, which keeps a cell one paragraph.
QString softBreaks(QString text)
{
    return text.replace(QLatin1Char('\n'), QChar::LineSeparator);
}

QTextCharFormat charFormat(ReportFont face)
{
    const QFont font = reportFont(face);
    QTextCharFormat format;
    format.setFontPointSize(font.pixelSize());
    format.setFontWeight(font.bold() ? QFont::Bold : QFont::Normal);
    return format;
}

QTextBlockFormat blockFormat(const ReportBand &band, Qt::Alignment alignment)
{
    QTextBlockFormat format;
    format.setAlignment(alignment);
    format.setTopMargin(band.spaceAbove);
    if (band.pageBreakBefore)
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    return format;
}

/// The bands first..last (excluded), all with the same cells, as one table.
void insertTable(QTextCursor &cursor, const std::vector<ReportBand> &bands, size_t first,
                 size_t last)
{
    const ReportBand &model = bands[first];
    // A first cell that does not start at the left edge keeps its place with an empty column.
    const int indent = model.cells[0].left > sameEdge ? 1 : 0;
    QList<QTextLength> widths;
    if (indent)
        widths.append(QTextLength(QTextLength::PercentageLength, model.cells[0].left * 100));
    for (const ReportCell &cell : model.cells)
        widths.append(QTextLength(QTextLength::PercentageLength, cell.width * 100));
    int heads = 0;
    while (first + heads < last && bands[first + heads].columnHead)
        ++heads;

    QTextTableFormat format;
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setColumnWidthConstraints(widths);
    format.setBorder(0);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_None);
    format.setCellSpacing(0);
    format.setCellPadding(2);
    format.setHeaderRowCount(heads);
    format.setTopMargin(model.spaceAbove);
    if (model.pageBreakBefore)
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);

    QTextTable *table = cursor.insertTable(int(last - first), int(widths.size()), format);
    for (size_t row = first; row < last; ++row) {
        const ReportBand &band = bands[row];
        for (int column = 0; column < widths.size(); ++column) {
            const ReportCell &cell = column < indent ? ReportCell() : band.cells[column - indent];
            QTextCursor inCell = table->cellAt(int(row - first), column).firstCursorPosition();
            QTextBlockFormat block;
            block.setAlignment(cell.alignment);
            inCell.setBlockFormat(block);
            // An empty paragraph would take the word processor's own size, and a plain blank is
            // dropped as leading space: a no-break space keeps the row as high as the report's.
            const QString text = softBreaks(cell.text);
            inCell.insertText(text.isEmpty() ? QString(QChar::Nbsp) : text, charFormat(band.font));
        }
    }
    cursor.movePosition(QTextCursor::End);
}

} // namespace

std::optional<QByteArray> reportOdf(const Report &report)
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    // The document starts with an empty paragraph, and a table is followed by one.
    bool atEmptyBlock = true;
    const std::vector<ReportBand> &bands = report.bands();
    for (size_t first = 0; first < bands.size();) {
        const ReportBand &band = bands[first];
        if (isParagraph(band)) {
            if (!atEmptyBlock)
                cursor.insertBlock();
            cursor.setBlockFormat(blockFormat(band, band.cells[0].alignment));
            cursor.setBlockCharFormat(charFormat(band.font));
            cursor.insertText(softBreaks(band.cells[0].text), charFormat(band.font));
            atEmptyBlock = false;
            ++first;
            continue;
        }
        size_t last = first + 1;
        while (last < bands.size() && !isParagraph(bands[last]) && sameCells(band, bands[last]))
            ++last;
        if (band.cells.isEmpty()) {
            first = last;
            continue;
        }
        insertTable(cursor, bands, first, last);
        atEmptyBlock = true;
        first = last;
    }

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextDocumentWriter writer(&buffer, "odf");
    if (!writer.write(&document))
        return std::nullopt;
    return buffer.data();
}
