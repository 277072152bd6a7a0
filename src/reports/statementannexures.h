#pragma once

#include "reports/printoutheading.h"
#include "reports/report.h"

#include <optional>

class DataStore;
struct FormTraits;

/**
 * The challans and the employee or deductee rows of a Statement, as lists under the company's
 * name and the assessment period. Amounts are printed from the stored columns. None when the
 * Statement has no such rows. Throws StoreError.
 */
namespace statementannexures {

/// The challans by serial number, with their totals.
std::optional<Report> challans(const DataStore &store, const FormTraits &form, int basicInfoId,
                               const PrintoutHeading &heading);

/// The rows of each challan under its head, challans by serial number and rows by theirs.
std::optional<Report> annexure(const DataStore &store, const FormTraits &form, int basicInfoId,
                               const PrintoutHeading &heading);

} // namespace statementannexures
