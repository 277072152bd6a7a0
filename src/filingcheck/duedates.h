#pragma once

#include "core/formtraits.h"

#include <QDate>

/// When a Statement is due, and when the tax deducted is due to be deposited.
namespace filingcheck::duedates {

/// The due date of the Statement of a form for a quarter (0 to 3) of the financial year that
/// starts in @p financialYear; invalid for a year that the table does not reach.
QDate statementDue(FormKind form, int quarterIndex, int financialYear);

/// The day by which tax deducted on @p deducted is deposited: the 7th of the next month, 30
/// April for tax deducted in March, and the same day for a government deductor's book entry.
QDate depositDue(QDate deducted, bool bookEntry);

} // namespace filingcheck::duedates
