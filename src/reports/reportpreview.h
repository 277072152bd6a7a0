#pragma once

#include <QWidget>
#include <memory>

class MessageBoxes;
class QComboBox;
class QLabel;
class QSpinBox;
class Report;
class ReportPageView;

/// The viewer of a built report: its pages at a chosen zoom, page by page, printed or saved
/// as a PDF. It draws the report it was given and never builds it again.
class ReportPreview : public QWidget
{
    Q_OBJECT

public:
    /// name: the screen's objectName, as the menu knows the report.
    ReportPreview(std::shared_ptr<const Report> report, MessageBoxes &boxes, const QString &name,
                  QWidget *parent = nullptr);
    ~ReportPreview() override;

    /// Shows a report beside a screen: in the main window's area when the screen stands in
    /// it, otherwise in a window of its own. The viewer closes itself when done with, and the
    /// screen comes to the front again.
    static ReportPreview *open(QWidget *beside, std::shared_ptr<const Report> report,
                               MessageBoxes &boxes, const QString &name);

    const Report &report() const { return *m_report; }

    /// Prints on a printer that the user chooses; without any printer, says so.
    void print();
    /// Saves the report as a PDF; a failure is shown. Returns whether the file was written.
    bool savePdf(const QString &fileName);

private:
    void askPdfName();
    void zoomChosen(int index);
    void pageShown(int page);

    std::shared_ptr<const Report> m_report;
    MessageBoxes &m_boxes;
    ReportPageView *m_view;
    QSpinBox *m_page;
    QLabel *m_pages;
    QComboBox *m_zoom;
};
