#pragma once

#include "reports/printoutheading.h"
#include "reports/report.h"

class DataStore;

/// The salary annexure of Form 24Q. Throws StoreError.
namespace salaryannexure {

/**
 * Every salary row of the data store (not only those of one Statement, as the annexure has
 * always printed), each with its figures and the rows of its Section 16 and Chapter VI-A
 * tables. Shown even when there is no row.
 */
Report build(const DataStore &store, const PrintoutHeading &heading);

} // namespace salaryannexure
