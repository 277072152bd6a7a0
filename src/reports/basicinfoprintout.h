#pragma once

#include "reports/printoutheading.h"
#include "reports/report.h"

#include <optional>

class DataStore;
struct FormTraits;

/// The basic information of a Statement as the form prints it. Throws StoreError.
namespace basicinfoprintout {

/// The Statement of the company, id and quarter; none when there is no such row.
std::optional<Report> build(const DataStore &store, const FormTraits &form, int compId,
                            int basicInfoId, const QString &quarter,
                            const PrintoutHeading &heading);

} // namespace basicinfoprintout
