#pragma once

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

} // namespace storeupgrade
