#include "reports/reportlayout.h"

#include "reports/reportfonts.h"

#include <QFontMetricsF>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <array>
#include <map>
#include <optional>

namespace reportlayout {

namespace {

constexpr double lineSpacingFactor = 1.2;

void addLine(ReportCell &cell, const QString &line, const QFontMetricsF &metrics)
{
    cell.lines.append(line);
    cell.lineWidths.append(metrics.horizontalAdvance(line));
}

/// The length of the longest start of a word that fits, cut between letters as they are
/// written (a Devanagari syllable stays whole); at least one letter.
qsizetype fittingStart(const QString &word, const QFontMetricsF &metrics, double available)
{
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, word);
    qsizetype fits = letters.toNextBoundary();
    for (qsizetype next = letters.toNextBoundary(); next > 0 && next < word.size();
         next = letters.toNextBoundary()) {
        if (metrics.horizontalAdvance(word.left(next)) > available)
            break;
        fits = next;
    }
    return fits;
}

/// Breaks at blanks, and inside a word only when the word alone is too wide.
void breakParagraph(const QString &paragraph, const QFontMetricsF &metrics, double available,
                    ReportCell &cell)
{
    if (metrics.horizontalAdvance(paragraph) <= available) {
        addLine(cell, paragraph, metrics);
        return;
    }
    QString line;
    for (QString word : paragraph.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (metrics.horizontalAdvance(longer) <= available) {
            line = longer;
            continue;
        }
        if (!line.isEmpty())
            addLine(cell, line, metrics);
        while (metrics.horizontalAdvance(word) > available) {
            const qsizetype cut = fittingStart(word, metrics, available);
            addLine(cell, word.left(cut), metrics);
            word.remove(0, cut);
        }
        line = word;
    }
    if (!line.isEmpty())
        addLine(cell, line, metrics);
}

using FaceMetrics = std::array<std::optional<QFontMetricsF>, int(ReportFont::Small) + 1>;

/// What the texts of a list's column need, with the cells' padding: the width of its longest
/// line, and of its longest word, below which a word would be broken.
struct ColumnNeed
{
    double line = 2 * cellPaddingX;
    double word = 2 * cellPaddingX;
};

/// The columns' widths as parts of the body: every line whole when the body has the room for
/// them, else every word whole and the room left shared by what the longer lines lack, else
/// the words' widths shrunk alike.
QList<double> listWidths(const QList<ColumnNeed> &needs, double bodyWidth)
{
    double lines = 0;
    double words = 0;
    for (const ColumnNeed &need : needs) {
        lines += need.line;
        words += need.word;
    }
    QList<double> widths;
    for (const ColumnNeed &need : needs) {
        double width = need.word * bodyWidth / words;
        if (lines <= bodyWidth)
            width = need.line * bodyWidth / lines;
        else if (words <= bodyWidth)
            width = need.word + (need.line - need.word) * (bodyWidth - words) / (lines - words);
        widths.append(width / bodyWidth);
    }
    return widths;
}

void sizeLists(std::vector<ReportBand> &bands, double bodyWidth, const FaceMetrics &metrics)
{
    std::map<int, QList<ColumnNeed>> lists;
    for (const ReportBand &band : bands) {
        if (band.list < 0)
            continue;
        QList<ColumnNeed> &needs = lists[band.list];
        needs.resize(std::max(needs.size(), band.cells.size()));
        const QFontMetricsF &face = *metrics[int(band.font)];
        for (qsizetype column = 0; column < band.cells.size(); ++column) {
            ColumnNeed &need = needs[column];
            for (const QString &line : band.cells[column].text.split(QLatin1Char('\n'))) {
                need.line = std::max(need.line, face.horizontalAdvance(line) + 2 * cellPaddingX);
                for (const QString &word : line.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
                    need.word =
                        std::max(need.word, face.horizontalAdvance(word) + 2 * cellPaddingX);
                }
            }
        }
    }
    std::map<int, QList<double>> widths;
    for (const auto &[list, needs] : lists)
        widths[list] = listWidths(needs, bodyWidth);
    for (ReportBand &band : bands) {
        if (band.list < 0)
            continue;
        const QList<double> &columns = widths[band.list];
        double left = 0;
        for (qsizetype column = 0; column < band.cells.size(); ++column) {
            band.cells[column].left = left;
            band.cells[column].width = columns[column];
            left += columns[column];
        }
    }
}

} // namespace

double lineHeight(ReportFont face)
{
    return QFontMetricsF(reportFont(face)).height() * lineSpacingFactor;
}

double firstBaseline(ReportFont face)
{
    const QFontMetricsF metrics(reportFont(face));
    return metrics.ascent() + metrics.height() * (lineSpacingFactor - 1) / 2;
}

void measure(std::vector<ReportBand> &bands, double bodyWidth)
{
    FaceMetrics metrics;
    std::array<double, std::tuple_size_v<FaceMetrics>> heights{};
    for (int face = 0; face < int(metrics.size()); ++face) {
        metrics[face].emplace(reportFont(ReportFont(face)));
        heights[face] = lineHeight(ReportFont(face));
    }
    sizeLists(bands, bodyWidth, metrics);

    for (ReportBand &band : bands) {
        const int face = int(band.font);
        qsizetype lines = 1;
        for (ReportCell &cell : band.cells) {
            cell.lines.clear();
            cell.lineWidths.clear();
            const double available = std::max(1.0, cell.width * bodyWidth - 2 * cellPaddingX);
            if (!cell.text.isEmpty()) {
                for (const QString &paragraph : cell.text.split(QLatin1Char('\n')))
                    breakParagraph(paragraph, *metrics[face], available, cell);
            }
            lines = std::max(lines, cell.lines.size());
        }
        band.height = double(lines) * heights[face] + 2 * cellPaddingY;
    }
}

ReportPages paginate(const std::vector<ReportBand> &bands, double bodyHeight)
{
    const int count = int(bands.size());
    // The height that must fit below a band's top for it to stay on the page.
    const auto needed = [&](int index) {
        double height = bands[index].spaceAbove;
        for (int band = index; band < count; ++band) {
            height += bands[band].height;
            const ReportBand &current = bands[band];
            const bool firstHead = current.columnHead && current.headFirst == band;
            if (firstHead) {
                // The heads and the first row under them go together.
                const int next = band + current.headCount;
                for (int head = band + 1; head < std::min(next, count); ++head)
                    height += bands[head].height;
                if (next < count && bands[next].headFirst == band)
                    height += bands[next].height;
                break;
            }
            if (!current.keepWithNext)
                break;
        }
        return height;
    };

    ReportPages pages(1);
    double y = 0;
    const auto place = [&](int index) {
        if (!pages.back().empty())
            y += bands[index].spaceAbove;
        pages.back().push_back({index, y});
        y += bands[index].height;
    };
    for (int index = 0; index < count; ++index) {
        const ReportBand &band = bands[index];
        const bool breaks = band.pageBreakBefore || y + needed(index) > bodyHeight;
        if (breaks && !pages.back().empty()) {
            pages.emplace_back();
            y = 0;
        }
        if (pages.back().empty() && !band.columnHead && band.headFirst >= 0) {
            for (int head = band.headFirst; head < band.headFirst + band.headCount; ++head)
                place(head);
        }
        place(index);
    }
    return pages;
}

} // namespace reportlayout
