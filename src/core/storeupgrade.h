#pragma once

#include <QString>
#include <QVariant>
#include <optional>

class DataStore;

/// Brings a data store of any earlier layout up to the current one. Every step checks before it
/// acts, so a run that was interrupted is finished by the next start and a second run changes
/// nothing.
namespace storeupgrade {

/// The schema version (SQLite's user_version) of the older layout and of the current one.
constexpr int olderVersion = 1;
constexpr int currentVersion = 2;

/// The seed of the two CHAPVIAU sections, then the upgrade steps, in the order of every start.
void run(const DataStore &store);

/// For a column that the upgrade adds to a table of the older layout: the value it gives the
/// rows that were already there (0 or Null). Nothing for any other column.
std::optional<QVariant> addedColumnValue(const QString &table, const QString &column);

} // namespace storeupgrade
