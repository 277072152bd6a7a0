#pragma once

#include "reports/reportband.h"

#include <vector>

/// Where a band stands on its page: its index and its top in points below the body's top.
struct ReportPlacement
{
    int band;
    double top;
};

using ReportPages = std::vector<std::vector<ReportPlacement>>;

/// How a report's bands are measured and spread over pages.
namespace reportlayout {

inline constexpr double cellPaddingX = 3;
inline constexpr double cellPaddingY = 1;

/// The distance between two lines of a face, with room for scripts that reach further above
/// and below the line than Latin letters (Devanagari's vowel signs).
double lineHeight(ReportFont face);
/// The baseline of the first line below a cell's top.
double firstBaseline(ReportFont face);

/// Sizes the columns of the lists to their contents, breaks every cell's text into lines that
/// fit its width (at line ends and, when too long, at word boundaries) and sets each band's
/// height.
void measure(std::vector<ReportBand> &bands, double bodyWidth);

/**
 * Spreads measured bands over pages of the body's height. A band that does not fit starts a
 * new page; a band under column heads that starts a page gets its heads repeated above it; the
 * heads of a table never stand alone at a page's foot, nor does a band kept with the next.
 * Space above a band is dropped at the top of a page. There is always at least one page.
 */
ReportPages paginate(const std::vector<ReportBand> &bands, double bodyHeight);

} // namespace reportlayout
