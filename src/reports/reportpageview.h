#pragma once

#include <QAbstractScrollArea>
#include <QHash>
#include <QImage>

class Report;

/**
 * The pages of a report one under the other, at a zoom. Only the pages in sight are drawn,
 * when they come into sight, so that a list of hundreds of pages shows its first at once.
 */
class ReportPageView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit ReportPageView(const Report &report, QWidget *parent = nullptr);

    /// 1 shows the paper at its own size on the screen.
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);
    void fitToWidth();
    void fitToPage();

    /// The page at the top of the view, counted from 1.
    int currentPage() const;
    /// Scrolls the page (from 1, kept within the report) to the top of the view.
    void setCurrentPage(int page);

    /// A whole page wide and high at the present zoom.
    QSize sizeHint() const override;

signals:
    void currentPageChanged(int page);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    double pixelsPerPoint(double zoom) const;
    QSize pageSize() const;
    int pageTop(int page) const;
    const QImage &pageImage(int page);
    void updateScrollBars();

    const Report &m_report;
    double m_zoom = 1;
    QHash<int, QImage> m_drawn; ///< pages drawn at the present zoom, the latest few
    int m_shownPage = 1;
};
