#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <Qt>
#include <optional>

/// The faces of a report's text, all of one family.
enum class ReportFont { Normal, Bold, Heading, Title, Small };

/**
 * One cell of a band: a text placed across part of the body's width. The text is never read as
 * markup, so a name with an ampersand or angle brackets prints as it was stored.
 */
struct ReportCell
{
    ReportCell() = default;
    ReportCell(const QString &text, double left = 0, double width = 1,
               Qt::Alignment alignment = Qt::AlignLeft, bool boxed = false)
        : text(text), left(left), width(width), alignment(alignment), boxed(boxed)
    {
    }

    QString text;
    double left = 0;  ///< from the body's left edge, as a fraction of its width
    double width = 1; ///< as a fraction of the body's width
    Qt::Alignment alignment = Qt::AlignLeft;
    bool boxed = false; ///< framed, as the cells of a grid
    /// The value behind an amount, which a workbook keeps as a number in that format.
    std::optional<double> number;
    QString numberFormat;

    // Filled when the report is laid out: the text broken to the cell's width.
    QStringList lines;
    QList<double> lineWidths;
};

/// One horizontal strip of a report. A band is never split across two pages.
struct ReportBand
{
    QList<ReportCell> cells;
    ReportFont font = ReportFont::Normal;
    double spaceAbove = 0; ///< points
    bool pageBreakBefore = false;
    bool ruleBelow = false;
    bool keepWithNext = false; ///< a head that never stands alone at a page's foot
    bool columnHead = false;
    /// The column heads that this band stands under, repeated at the top of a new page:
    /// the index of their first band and their count; -1 and 0 outside a table.
    int headFirst = -1;
    int headCount = 0;
    /// The list whose columns are as wide as their contents, sized together with the other
    /// bands of that list: its number in the report; -1 for a band of no list.
    int list = -1;

    double height = 0; ///< points, filled when the report is laid out
};
