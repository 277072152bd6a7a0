#pragma once

#include "reports/report.h"
#include "statements/check/findinglistmodel.h"

/// The check's findings and dues on paper, and in the files that the report layer writes.
namespace findingsreport {

inline const QString title = QStringLiteral("Check before Filing");

/**
 * The Statement named in @p heading (the company, its TAN, the form and the quarter), the
 * findings in a list as the screen shows them, then each amount due with how it was worked out
 * as of @p filedOn.
 */
Report build(const QStringList &heading, const QDate &filedOn,
             const QList<FindingEntry> &findings, const QList<DueEntry> &dues,
             const QDate &runDate);

} // namespace findingsreport
