#include "reports/report.h"

#include "reports/reportfonts.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPageSize>

namespace {

constexpr double margin = 36;     // half an inch
constexpr double headHeight = 20; // the run date and the page number

} // namespace

Report::Report(const QString &caption, const ReportPageHead &head,
               QPageLayout::Orientation orientation, std::vector<ReportBand> bands)
    : m_caption(caption),
      m_head(head),
      m_pageLayout(QPageSize(QPageSize::A4), orientation, QMarginsF(), QPageLayout::Point),
      m_bands(std::move(bands))
{
    const bool hasHead = !m_head.runDateLabel.isEmpty() || !m_head.pageLabel.isEmpty();
    const QRectF paper = m_pageLayout.fullRect(QPageLayout::Point);
    m_body = paper.adjusted(margin, margin + (hasHead ? headHeight : 0), -margin, -margin);
    reportlayout::measure(m_bands, m_body.width());
    m_pages = reportlayout::paginate(m_bands, m_body.height());
}

QString Report::caption() const
{
    return m_caption.isEmpty() ? defaultCaption : m_caption;
}

QString Report::text() const
{
    QString result;
    for (const ReportBand &band : m_bands) {
        for (qsizetype cell = 0; cell < band.cells.size(); ++cell) {
            if (cell > 0)
                result += QLatin1Char('\t');
            result += band.cells[cell].text;
        }
        result += QLatin1Char('\n');
    }
    return result;
}

void Report::paintPage(QPainter &painter, int page) const
{
    if (page < 0 || page >= pageCount())
        return;
    painter.save();
    painter.setPen(Qt::black);
    paintHead(painter, page);
    for (const ReportPlacement &placement : m_pages[page])
        paintBand(painter, m_bands[placement.band], m_body.top() + placement.top);
    painter.restore();
}

bool Report::render(QPagedPaintDevice &device, int from, int to) const
{
    if (to < 0 || to >= pageCount())
        to = pageCount() - 1;
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    // The paint rectangle starts at the paper's corner unless the device keeps margins.
    const QPointF origin = device.pageLayout().paintRect(QPageLayout::Point).topLeft();
    for (int page = from; page <= to; ++page) {
        if (page != from)
            device.newPage();
        painter.save();
        painter.scale(device.logicalDpiX() / 72.0, device.logicalDpiY() / 72.0);
        painter.translate(-origin);
        paintPage(painter, page);
        painter.restore();
    }
    return painter.end();
}

void Report::paintHead(QPainter &painter, int page) const
{
    painter.setFont(reportFont(ReportFont::Small));
    const double baseline = margin + reportlayout::firstBaseline(ReportFont::Small);
    if (!m_head.runDateLabel.isEmpty()) {
        painter.drawText(QPointF(m_body.left(), baseline),
                         m_head.runDateLabel + QLatin1Char(' ')
                             + m_head.runDate.toString(QStringLiteral("dd/MM/yyyy")));
    }
    if (!m_head.pageLabel.isEmpty()) {
        const QString text = m_head.pageLabel + QLatin1Char(' ') + QString::number(page + 1);
        const double width = QFontMetricsF(painter.font()).horizontalAdvance(text);
        painter.drawText(QPointF(m_body.right() - width, baseline), text);
    }
}

void Report::paintBand(QPainter &painter, const ReportBand &band, double top) const
{
    painter.setFont(reportFont(band.font));
    const double lineHeight = reportlayout::lineHeight(band.font);
    const double baseline = reportlayout::firstBaseline(band.font);
    for (const ReportCell &cell : band.cells) {
        const QRectF box(m_body.left() + cell.left * m_body.width(), top,
                         cell.width * m_body.width(), band.height);
        if (cell.boxed)
            painter.drawRect(box);
        const QRectF inner = box.adjusted(reportlayout::cellPaddingX, reportlayout::cellPaddingY,
                                          -reportlayout::cellPaddingX, 0);
        for (qsizetype line = 0; line < cell.lines.size(); ++line) {
            double x = inner.left();
            if (cell.alignment & Qt::AlignRight)
                x = inner.right() - cell.lineWidths[line];
            else if (cell.alignment & Qt::AlignHCenter)
                x = inner.center().x() - cell.lineWidths[line] / 2;
            painter.drawText(QPointF(x, inner.top() + baseline + double(line) * lineHeight),
                             cell.lines[line]);
        }
    }
    if (band.ruleBelow) {
        const double y = top + band.height;
        painter.drawLine(QPointF(m_body.left(), y), QPointF(m_body.right(), y));
    }
}
