#include "reports/reportbuilder.h"

ReportBuilder::ReportBuilder(const QString &caption) : m_caption(caption) {}

void ReportBuilder::title(const QString &text)
{
    add({ReportCell{text, 0, 1, Qt::AlignHCenter}}, ReportFont::Title);
}

void ReportBuilder::text(const QString &text, ReportFont font, Qt::Alignment alignment)
{
    add({ReportCell{text, 0, 1, alignment}}, font);
}

void ReportBuilder::band(const QList<ReportCell> &cells, ReportFont font)
{
    add(cells, font);
}

void ReportBuilder::field(const QString &label, const QString &value, double labelWidth)
{
    add({ReportCell{label, 0, labelWidth}, ReportCell{value, labelWidth, 1 - labelWidth}},
        ReportFont::Normal);
}

void ReportBuilder::space(double points)
{
    m_space += points;
}

void ReportBuilder::pageBreak()
{
    m_pageBreak = true;
}

void ReportBuilder::rule()
{
    if (!m_bands.empty())
        m_bands.back().ruleBelow = true;
}

void ReportBuilder::keepWithNext()
{
    if (!m_bands.empty())
        m_bands.back().keepWithNext = true;
}

void ReportBuilder::beginTable(const QList<ReportColumn> &columns, bool grid,
                               const QList<ReportSpanHead> &spans)
{
    endTable();
    m_columns = columns;
    m_grid = grid;
    QList<double> lefts;
    double left = 0;
    for (const ReportColumn &column : columns) {
        lefts.append(left);
        left += column.width;
    }
    const int first = int(m_bands.size());
    const auto headBand = [&](QList<ReportCell> cells) {
        ReportBand &band = add(std::move(cells), ReportFont::Bold);
        band.columnHead = true;
    };
    if (!spans.isEmpty()) {
        QList<ReportCell> cells;
        for (const ReportSpanHead &span : spans) {
            double width = 0;
            for (int column = span.firstColumn;
                 column < span.firstColumn + span.columnCount && column < columns.size(); ++column)
                width += columns[column].width;
            cells.append({span.text, lefts.value(span.firstColumn), width, Qt::AlignHCenter, grid});
        }
        headBand(cells);
    }
    QList<ReportCell> heads;
    for (qsizetype column = 0; column < columns.size(); ++column) {
        heads.append({columns[column].heading, lefts[column], columns[column].width,
                      columns[column].alignment, grid});
    }
    headBand(heads);
    if (!grid)
        m_bands.back().ruleBelow = true;
    m_headFirst = first;
    m_headCount = int(m_bands.size()) - first;
    for (int head = first; head < int(m_bands.size()); ++head) {
        m_bands[head].headFirst = m_headFirst;
        m_bands[head].headCount = m_headCount;
    }
}

void ReportBuilder::beginList(const QList<ReportColumn> &columns, bool grid)
{
    QStringList heads;
    for (const ReportColumn &column : columns)
        heads.append(column.heading);
    qsizetype list = m_listHeads.indexOf(heads);
    if (list < 0) {
        list = m_listHeads.size();
        m_listHeads.append(heads);
    }
    beginTable(columns, grid);
    m_list = int(list);
    m_bands.back().list = m_list;
}

void ReportBuilder::row(const QStringList &texts)
{
    QList<ReportCell> cells;
    cells.reserve(m_columns.size());
    for (const QString &text : texts)
        cells.append(ReportCell{text});
    cellRow(std::move(cells));
}

void ReportBuilder::cellRow(QList<ReportCell> cells)
{
    cells.resize(m_columns.size());
    double left = 0;
    for (qsizetype column = 0; column < m_columns.size(); ++column) {
        ReportCell &cell = cells[column];
        cell.left = left;
        cell.width = m_columns[column].width;
        cell.alignment = m_columns[column].alignment;
        cell.boxed = m_grid;
        left += cell.width;
    }
    ReportBand &band = add(std::move(cells), ReportFont::Normal);
    band.headFirst = m_headFirst;
    band.headCount = m_headCount;
    band.list = m_list;
}

void ReportBuilder::endTable()
{
    m_columns.clear();
    m_grid = false;
    m_headFirst = -1;
    m_headCount = 0;
    m_list = -1;
}

Report ReportBuilder::finish()
{
    endTable();
    m_listHeads.clear();
    Report report(m_caption, m_head, m_orientation, std::move(m_bands));
    m_bands.clear();
    m_space = 0;
    m_pageBreak = false;
    return report;
}

ReportBand &ReportBuilder::add(QList<ReportCell> cells, ReportFont font)
{
    ReportBand band;
    band.cells = std::move(cells);
    band.font = font;
    band.spaceAbove = m_space;
    band.pageBreakBefore = m_pageBreak;
    m_space = 0;
    m_pageBreak = false;
    m_bands.push_back(std::move(band));
    return m_bands.back();
}
