#include "reports/reportpreview.h"

#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "reports/report.h"
#include "reports/reportfile.h"
#include "reports/reportmessages.h"
#include "reports/reportpageview.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

/// The zoom list: fitting choices first, then factors; the viewer opens at 100%.
struct ZoomChoice
{
    const char *text;
    double factor; ///< 0: fit the width, -1: fit the whole page
};

constexpr ZoomChoice zoomChoices[] = {
    {"Page Width", 0}, {"Whole Page", -1}, {"50%", 0.5}, {"75%", 0.75},
    {"100%", 1},       {"150%", 1.5},      {"200%", 2},
};
constexpr int startZoom = 4;
constexpr double zoomStep = 1.25;

QToolButton *toolButton(QWidget *parent, const QString &name, const QString &tip,
                        QStyle::StandardPixmap icon)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setIcon(parent->style()->standardIcon(icon));
    return button;
}

} // namespace

ReportPreview::ReportPreview(std::shared_ptr<const Report> report, MessageBoxes &boxes,
                             const QString &name, QWidget *parent)
    : QWidget(parent),
      m_report(std::move(report)),
      m_boxes(boxes),
      m_view(new ReportPageView(*m_report, this)),
      m_page(new QSpinBox(this)),
      m_pages(new QLabel(this)),
      m_zoom(new QComboBox(this))
{
    setObjectName(name);
    setWindowTitle(m_report->caption());

    m_view->setObjectName(QStringLiteral("crViewer"));

    auto *first = toolButton(this, QStringLiteral("cmdFirstPage"), QStringLiteral("First page"),
                             QStyle::SP_MediaSkipBackward);
    auto *previous = toolButton(this, QStringLiteral("cmdPreviousPage"),
                                QStringLiteral("Previous page"), QStyle::SP_MediaSeekBackward);
    auto *next = toolButton(this, QStringLiteral("cmdNextPage"), QStringLiteral("Next page"),
                            QStyle::SP_MediaSeekForward);
    auto *last = toolButton(this, QStringLiteral("cmdLastPage"), QStringLiteral("Last page"),
                            QStyle::SP_MediaSkipForward);
    m_page->setObjectName(QStringLiteral("txtPage"));
    m_page->setRange(1, m_report->pageCount());
    m_pages->setObjectName(QStringLiteral("lblPages"));
    m_pages->setText(QStringLiteral("of %1").arg(m_report->pageCount()));

    m_zoom->setObjectName(QStringLiteral("cmbZoom"));
    for (const ZoomChoice &choice : zoomChoices)
        m_zoom->addItem(QLatin1String(choice.text), choice.factor);
    auto *zoomOut = new QToolButton(this);
    zoomOut->setObjectName(QStringLiteral("cmdZoomOut"));
    zoomOut->setText(QStringLiteral("-"));
    zoomOut->setToolTip(QStringLiteral("Zoom out"));
    auto *zoomIn = new QToolButton(this);
    zoomIn->setObjectName(QStringLiteral("cmdZoomIn"));
    zoomIn->setText(QStringLiteral("+"));
    zoomIn->setToolTip(QStringLiteral("Zoom in"));

    auto *print = new QPushButton(QStringLiteral("&Print"), this);
    print->setObjectName(QStringLiteral("cmdPrint"));
    auto *pdf = new QPushButton(QStringLiteral("Save as P&DF"), this);
    pdf->setObjectName(QStringLiteral("cmdSavePdf"));
    auto *close = new QPushButton(QStringLiteral("&Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));

    auto *bar = new QHBoxLayout;
    for (QWidget *control : {static_cast<QWidget *>(first), static_cast<QWidget *>(previous),
                             static_cast<QWidget *>(m_page), static_cast<QWidget *>(m_pages),
                             static_cast<QWidget *>(next), static_cast<QWidget *>(last)})
        bar->addWidget(control);
    bar->addSpacing(16);
    bar->addWidget(zoomOut);
    bar->addWidget(m_zoom);
    bar->addWidget(zoomIn);
    bar->addStretch();
    bar->addWidget(print);
    bar->addWidget(pdf);
    bar->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_view, 1);

    connect(first, &QToolButton::clicked, this, [this] { m_view->setCurrentPage(1); });
    connect(previous, &QToolButton::clicked, this,
            [this] { m_view->setCurrentPage(m_view->currentPage() - 1); });
    connect(next, &QToolButton::clicked, this,
            [this] { m_view->setCurrentPage(m_view->currentPage() + 1); });
    connect(last, &QToolButton::clicked, this,
            [this] { m_view->setCurrentPage(m_report->pageCount()); });
    connect(m_page, &QSpinBox::valueChanged, m_view, &ReportPageView::setCurrentPage);
    connect(m_view, &ReportPageView::currentPageChanged, this, &ReportPreview::pageShown);
    connect(m_zoom, &QComboBox::activated, this, &ReportPreview::zoomChosen);
    connect(zoomOut, &QToolButton::clicked, this,
            [this] { m_view->setZoom(m_view->zoom() / zoomStep); });
    connect(zoomIn, &QToolButton::clicked, this,
            [this] { m_view->setZoom(m_view->zoom() * zoomStep); });
    connect(print, &QPushButton::clicked, this, &ReportPreview::print);
    connect(pdf, &QPushButton::clicked, this, &ReportPreview::askPdfName);
    connect(close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });

    m_zoom->setCurrentIndex(startZoom);
    zoomChosen(startZoom);
    // The page is read at 100% without scrolling sideways where the main window has the room;
    // every viewer stands at one place, so the eye finds it where it was last time.
    resize(sizeHint());
    screenroutines::setPlacement(this, screenroutines::Placement::TopLeft);
}

ReportPreview::~ReportPreview() = default;

ReportPreview *ReportPreview::open(QWidget *beside, std::shared_ptr<const Report> report,
                                   MessageBoxes &boxes, const QString &name)
{
    auto *preview = new ReportPreview(std::move(report), boxes, name);
    screenroutines::openBeside(beside, preview);
    return preview;
}

void ReportPreview::print()
{
    if (QPrinterInfo::availablePrinters().isEmpty()) {
        m_boxes.show({reportmessages::noPrinter, appTitle, MessageIcon::Warning});
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setPageLayout(m_report->pageLayout());
    printer.setDocName(m_report->caption());
    QPrintDialog dialog(&printer, this);
    dialog.setMinMax(1, m_report->pageCount());
    if (dialog.exec() != QDialog::Accepted)
        return;
    // Pages 0 and 0 stand for all of them.
    const int from = printer.fromPage() > 0 ? printer.fromPage() - 1 : 0;
    const int to = printer.toPage() > 0 ? printer.toPage() - 1 : -1;
    if (!m_report->render(printer, from, to)) {
        m_boxes.show({QStringLiteral("The report could not be sent to the printer %1.")
                          .arg(printer.printerName()),
                      appTitle, MessageIcon::Critical});
    }
}

bool ReportPreview::savePdf(const QString &fileName)
{
    const QString error = reportfile::save(*m_report, reportfile::Format::Pdf, fileName);
    if (!error.isEmpty())
        m_boxes.show({error, appTitle, MessageIcon::Critical});
    return error.isEmpty();
}

void ReportPreview::askPdfName()
{
    const QString name = QFileDialog::getSaveFileName(this, QStringLiteral("Save as PDF"),
                                                      QDir::homePath(),
                                                      QStringLiteral("PDF File (*.pdf)"));
    if (!name.isEmpty())
        savePdf(reportfile::nameForFormat(name, reportfile::Format::Pdf));
}

void ReportPreview::zoomChosen(int index)
{
    const double factor = m_zoom->itemData(index).toDouble();
    if (factor == 0)
        m_view->fitToWidth();
    else if (factor < 0)
        m_view->fitToPage();
    else
        m_view->setZoom(factor);
}

void ReportPreview::pageShown(int page)
{
    const QSignalBlocker blocker(m_page);
    m_page->setValue(page);
}
