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

/// The schema version that the store carries; above currentVersion for a store written by a
/// newer program.
int version(const DataStore &store);

/// Whether a start has anything to write: a store of an older version, or one without the
/// CHAPVIAU sections that every start makes sure of.
bool isDue(const DataStore &store);

/// The seed of the two CHAPVIAU sections, then the upgrade steps, in the order of every start,
/// and the store marked as this program's. A store with nothing due is not written to, but for
/// its mark when it has none.
void run(const DataStore &store);

/// For a column that the upgrade adds to a table of the older layout: the value it gives the
/// rows that were already there (0 or Null). Nothing for any other column.
std::optional<QVariant> addedColumnValue(const QString &table, const QString &column);

} // namespace storeupgrade
