#pragma once

#include <QString>

class Report;

/// Writes the report as a workbook at a path: one row for each band, one cell for each of the
/// band's cells from the left, amounts as numbers in their format. False with the reason when
/// the workbook cannot be written.
bool writeReportWorkbook(const Report &report, const QString &path, QString *reason);
