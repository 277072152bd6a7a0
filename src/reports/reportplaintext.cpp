#include "reports/reportplaintext.h"

#include "reports/report.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

/// Where a cell's text starts on a line of the given width. Text aligned to the right or the
/// centre may reach to the left of its cell rather than past the line's end.
qsizetype startColumn(const ReportCell &cell, qsizetype length, int width)
{
    const auto at = [width](double fraction) { return qsizetype(std::lround(fraction * width)); };
    if (cell.alignment & Qt::AlignRight)
        return std::max<qsizetype>(0, at(cell.left + cell.width) - length);
    if (cell.alignment & Qt::AlignHCenter)
        return std::max<qsizetype>(0, at(cell.left + cell.width / 2) - length / 2);
    return at(cell.left);
}

/// The lines of a cell's text; a line that would run past the line's end is broken at a blank.
QStringList cellLines(const ReportCell &cell, int width)
{
    const auto left = qsizetype(std::lround(cell.left * width));
    const qsizetype room = std::max(qsizetype(1), width - left);
    QStringList lines;
    for (QString rest : cell.text.split(QLatin1Char('\n'))) {
        while (rest.size() > room) {
            qsizetype cut = rest.lastIndexOf(QLatin1Char(' '), room);
            if (cut <= 0)
                cut = room;
            lines.append(rest.left(cut));
            rest.remove(0, cut);
            while (rest.startsWith(QLatin1Char(' ')))
                rest.remove(0, 1);
        }
        lines.append(rest);
    }
    return lines;
}

} // namespace

QByteArray reportPlainText(const Report &report)
{
    // The widths of a line printer's page, which any editor shows without wrapping.
    const int width = report.pageLayout().orientation() == QPageLayout::Landscape ? 132 : 80;
    QString out;
    for (const ReportBand &band : report.bands()) {
        if (!out.isEmpty() && (band.spaceAbove > 0 || band.pageBreakBefore))
            out += QLatin1Char('\n');
        QList<QStringList> paragraphs;
        qsizetype lines = 1;
        for (const ReportCell &cell : band.cells) {
            paragraphs.append(cellLines(cell, width));
            lines = std::max(lines, paragraphs.back().size());
        }
        for (qsizetype line = 0; line < lines; ++line) {
            QString text;
            for (qsizetype cell = 0; cell < band.cells.size(); ++cell) {
                const QString part = paragraphs[cell].value(line).trimmed();
                if (part.isEmpty())
                    continue;
                qsizetype start = startColumn(band.cells[cell], part.size(), width);
                // Neighbouring cells keep a blank between them, whatever their lengths.
                if (!text.isEmpty())
                    start = std::max(start, text.size() + 1);
                text = text.leftJustified(start, QLatin1Char(' ')) + part;
            }
            out += text + QLatin1Char('\n');
        }
        if (band.ruleBelow)
            out += QString(width, QLatin1Char('-')) + QLatin1Char('\n');
    }
    return QByteArrayLiteral("\xEF\xBB\xBF") + out.toUtf8();
}
