#include "reports/reportpageview.h"

#include "reports/report.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace {

constexpr int gap = 12;        // around and between pages, in pixels
constexpr int keptPages = 8;   // drawn pages kept for scrolling back
constexpr double smallest = 0.1;
constexpr double largest = 5;

} // namespace

ReportPageView::ReportPageView(const Report &report, QWidget *parent)
    : QAbstractScrollArea(parent), m_report(report)
{
    viewport()->setBackgroundRole(QPalette::Dark);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(20);
    horizontalScrollBar()->setSingleStep(20);
    updateScrollBars();
}

void ReportPageView::setZoom(double zoom)
{
    zoom = std::clamp(zoom, smallest, largest);
    if (zoom == m_zoom)
        return;
    const int page = currentPage();
    m_zoom = zoom;
    m_drawn.clear();
    updateScrollBars();
    setCurrentPage(page);
    viewport()->update();
}

void ReportPageView::fitToWidth()
{
    const QSizeF paper = m_report.pageLayout().fullRect(QPageLayout::Point).size();
    setZoom((viewport()->width() - 2 * gap) / (paper.width() * pixelsPerPoint(1)));
}

void ReportPageView::fitToPage()
{
    const QSizeF paper = m_report.pageLayout().fullRect(QPageLayout::Point).size();
    setZoom(std::min((viewport()->width() - 2 * gap) / (paper.width() * pixelsPerPoint(1)),
                     (viewport()->height() - 2 * gap) / (paper.height() * pixelsPerPoint(1))));
}

int ReportPageView::currentPage() const
{
    const int step = pageSize().height() + gap;
    return std::clamp(1 + (verticalScrollBar()->value() + step / 2) / step, 1,
                      m_report.pageCount());
}

void ReportPageView::setCurrentPage(int page)
{
    page = std::clamp(page, 1, m_report.pageCount());
    verticalScrollBar()->setValue(pageTop(page) - gap);
}

QSize ReportPageView::sizeHint() const
{
    // The page with the gaps around it, beside the vertical scroll bar that a page taller than
    // the screen brings.
    const int frame = 2 * frameWidth();
    return pageSize() + QSize(2 * gap + frame + verticalScrollBar()->sizeHint().width(),
                              2 * gap + frame);
}

void ReportPageView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const QSize size = pageSize();
    const int left = std::max(gap, (viewport()->width() - size.width()) / 2)
                     - horizontalScrollBar()->value();
    const int scrolled = verticalScrollBar()->value();
    const int step = size.height() + gap;
    const int first = std::max(1, (scrolled + event->rect().top() - gap) / step + 1);
    for (int page = first; page <= m_report.pageCount(); ++page) {
        const int top = pageTop(page) - scrolled;
        if (top > event->rect().bottom())
            break;
        const QRect sheet(QPoint(left, top), size);
        painter.fillRect(sheet.translated(3, 3), palette().shadow());
        painter.drawImage(sheet.topLeft(), pageImage(page));
    }
}

void ReportPageView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void ReportPageView::scrollContentsBy(int dx, int dy)
{
    QAbstractScrollArea::scrollContentsBy(dx, dy);
    const int page = currentPage();
    if (page != m_shownPage) {
        m_shownPage = page;
        emit currentPageChanged(page);
    }
}

double ReportPageView::pixelsPerPoint(double zoom) const
{
    return logicalDpiX() / 72.0 * zoom;
}

QSize ReportPageView::pageSize() const
{
    const QSizeF paper = m_report.pageLayout().fullRect(QPageLayout::Point).size();
    return (paper * pixelsPerPoint(m_zoom)).toSize();
}

int ReportPageView::pageTop(int page) const
{
    return gap + (page - 1) * (pageSize().height() + gap);
}

const QImage &ReportPageView::pageImage(int page)
{
    auto drawn = m_drawn.constFind(page);
    if (drawn != m_drawn.constEnd())
        return *drawn;
    if (m_drawn.size() >= keptPages)
        m_drawn.clear();
    const double ratio = devicePixelRatioF();
    QImage image(pageSize() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerPoint(m_zoom), pixelsPerPoint(m_zoom));
    m_report.paintPage(painter, page - 1);
    painter.end();
    return *m_drawn.insert(page, image);
}

void ReportPageView::updateScrollBars()
{
    const QSize size = pageSize();
    const int height = gap + m_report.pageCount() * (size.height() + gap);
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    horizontalScrollBar()->setRange(0, std::max(0, size.width() + 2 * gap
                                                       - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
}
