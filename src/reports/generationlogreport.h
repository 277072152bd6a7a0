#pragma once

#include "reports/report.h"

#include <QDate>
#include <optional>

class DataStore;

/// The log of generated return files as a report. Throws StoreError.
namespace generationlogreport {

enum class Order {
    ByDate,    ///< "Date-wise File Generation Log": by date, then time, as stored
    ByCompany, ///< "Company-wise File Generation Log": by company, then date and time
};

/// Every generation in the order asked for; nothing when the log is empty.
std::optional<Report> build(const DataStore &store, Order order, const QDate &runDate);

} // namespace generationlogreport
