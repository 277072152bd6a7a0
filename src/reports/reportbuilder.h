#pragma once

#include "reports/report.h"

#include <QList>
#include <QStringList>

/// A column of a report's table.
struct ReportColumn
{
    QString heading; ///< may hold line ends
    double width;    ///< as a fraction of the body's width
    Qt::Alignment alignment = Qt::AlignLeft;
};

/// A head over several neighbouring columns, above their own heads.
struct ReportSpanHead
{
    QString text;
    int firstColumn;
    int columnCount;
};

/**
 * Builds a report band by band, top to bottom, and lays it out once at the end. Texts are
 * taken as they are: nothing is read as markup.
 *
 * A table's column heads are printed where it begins and again at the top of every page that
 * it continues on.
 */
class ReportBuilder
{
public:
    explicit ReportBuilder(const QString &caption = QString());

    void setPageHead(const ReportPageHead &head) { m_head = head; }
    void setOrientation(QPageLayout::Orientation orientation) { m_orientation = orientation; }

    /// The report's title, centred in large type.
    void title(const QString &text);
    /// A text across the whole body, broken into lines as needed.
    void text(const QString &text, ReportFont font = ReportFont::Normal,
              Qt::Alignment alignment = Qt::AlignLeft);
    /// Cells placed as given.
    void band(const QList<ReportCell> &cells, ReportFont font = ReportFont::Normal);
    /// A label and its value, the label taking labelWidth of the body.
    void field(const QString &label, const QString &value, double labelWidth = 0.4);
    /// Space above the next band, in points; dropped at the top of a page.
    void space(double points);
    /// The next band starts a new page, unless it would start the report.
    void pageBreak();
    /// A line under the last band.
    void rule();
    /// The last band goes to a new page with the band after it (a group's head with its rows).
    void keepWithNext();

    /// Starts a table. grid frames every cell; spans are heads over groups of columns.
    void beginTable(const QList<ReportColumn> &columns, bool grid = false,
                    const QList<ReportSpanHead> &spans = {});
    /// Starts a list: a table whose columns are as wide as their texts need, without a word
    /// broken where the page has the room, and share out what the page has left; the widths of
    /// the columns given are not read. The lists of a report under the same heads are sized
    /// alike, so that their columns line up from one list to the next.
    void beginList(const QList<ReportColumn> &columns, bool grid = false);
    /// A row of the table, one text per column (missing ones are empty).
    void row(const QStringList &texts);
    /// A row whose cells carry more than their texts, such as the numbers behind amounts;
    /// their places come from the columns.
    void cellRow(QList<ReportCell> cells);
    void endTable();

    /// Lays the report out. The builder is left empty.
    Report finish();

private:
    ReportBand &add(QList<ReportCell> cells, ReportFont font);

    QString m_caption;
    ReportPageHead m_head;
    QPageLayout::Orientation m_orientation = QPageLayout::Portrait;
    std::vector<ReportBand> m_bands;
    double m_space = 0;
    bool m_pageBreak = false;
    // The open table: its columns and heads.
    QList<ReportColumn> m_columns;
    bool m_grid = false;
    int m_headFirst = -1;
    int m_headCount = 0;
    int m_list = -1;
    QList<QStringList> m_listHeads; ///< the heads of each list of the report, by its number
};
