#pragma once

#include <QString>
#include <QtGlobal>

class DataStore;

/// Telling a data store of this program from any other file, before anything is written to it.
namespace storecheck {

/// SQLite's application id of every store that the store tool makes or the upgrade brings up
/// to date ("KLVR").
constexpr qint32 applicationId = 0x4B4C5652;

/**
 * Whether the file at @p path is a data store of this program: an SQLite file with this
 * program's application id, or, for a store made before the id was written, one with no id
 * that holds every table of the older layout. An empty file, a file of another kind and the
 * store of another application are not. The file is only read, never written. Throws
 * StoreError when it cannot be read at all.
 */
bool isOwnStore(const QString &path);

/// The refusal of a file that is not one, as the start and the front ends give it.
QString notOwnStoreText(const QString &path);

/// Whether SQLite's check of the store's pages finds them whole. A store too damaged for the
/// check to run throws StoreError, with the engine's code.
bool isSound(const DataStore &store);

/// Whether the open store already carries this program's application id.
bool isMarked(const DataStore &store);
/// Writes the application id into the store.
void mark(const DataStore &store);

} // namespace storecheck
