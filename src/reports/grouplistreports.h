#pragma once

#include "reports/report.h"

#include <QDate>
#include <optional>

class DataStore;

/**
 * The lists of the groups and of what each group holds. Each has a row for what it lists and
 * nothing when there is no group; a group without rows still prints its head. Throws
 * StoreError.
 */
namespace grouplistreports {

/// "Group Master": each group's id and name, by id.
std::optional<Report> groupMaster(const DataStore &store, const QDate &runDate);
/// "Group-wise Company List": the groups by id, each with its companies by name.
std::optional<Report> companyList(const DataStore &store, const QDate &runDate);
/// "Group-wise Deductee List": the groups by id, each with its deductees by name.
std::optional<Report> deducteeList(const DataStore &store, const QDate &runDate);
/// "Group-wise Employee List": the groups by id, each with its employees by name.
std::optional<Report> employeeList(const DataStore &store, const QDate &runDate);

} // namespace grouplistreports
