#pragma once

#include "reports/reportband.h"
#include "reports/reportlayout.h"

#include <QDate>
#include <QPageLayout>
#include <QRectF>
#include <vector>

class QPagedPaintDevice;
class QPainter;

/// What every page of a report repeats at its top.
struct ReportPageHead
{
    QString runDateLabel; ///< "Run Date :", followed by the run date; empty for none
    QDate runDate;
    QString pageLabel;    ///< "Page No :", followed by the page's number; empty for none
};

/**
 * A report, built once from its bands and laid out on A4 pages. The preview, the printer, a
 * saved PDF and the exports all take this same report; nothing is built again for them.
 * Bands are laid out in points; drawing scales them to the device.
 */
class Report
{
public:
    /// The caption that a viewer shows for a report built without one.
    static inline const QString defaultCaption = QStringLiteral("Report Preview");

    Report(const QString &caption, const ReportPageHead &head,
           QPageLayout::Orientation orientation, std::vector<ReportBand> bands);

    /// The viewer's caption: as built, or defaultCaption when built without one.
    QString caption() const;
    /// A4 in the report's orientation, without margins: the report draws its own.
    QPageLayout pageLayout() const { return m_pageLayout; }
    int pageCount() const { return int(m_pages.size()); }
    /// The bands in order, each once, their cells broken into lines.
    const std::vector<ReportBand> &bands() const { return m_bands; }
    /// What the report says, without its page heads: the bands in order, each once, their
    /// cells apart by tabs and the bands by line ends.
    QString text() const;

    /// Draws one page (counted from 0), in points from the paper's corner.
    void paintPage(QPainter &painter, int page) const;
    /**
     * Draws the pages from..to (counted from 0; to -1 for the last) on a device that carries
     * the report's page layout, one page each, scaled to the device's resolution. False when
     * the device cannot be painted on.
     */
    bool render(QPagedPaintDevice &device, int from = 0, int to = -1) const;

private:
    void paintHead(QPainter &painter, int page) const;
    void paintBand(QPainter &painter, const ReportBand &band, double top) const;

    QString m_caption;
    ReportPageHead m_head;
    QPageLayout m_pageLayout;
    QRectF m_body;
    std::vector<ReportBand> m_bands;
    ReportPages m_pages;
};
