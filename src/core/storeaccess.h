#pragma once

#include "core/datastore.h"
#include "core/storelock.h"

#include <QString>
#include <chrono>
#include <memory>
#include <optional>

class MessageBoxes;

/// A data store opened for use, with the lock that keeps other programs from writing it. The
/// store is closed before the lock is let go.
struct OpenedStore
{
    std::unique_ptr<StoreLock> lock; ///< none when the store is open for viewing only
    std::unique_ptr<DataStore> store;
};

/**
 * How the program and the front ends come to a data store: the file must be a store of this
 * program, a store that cannot be written is only looked at, and a store held by another
 * program is not written. Every refusal is a StoreError whose text names the file and says why;
 * nothing is written to the file or beside it before the checks have passed.
 */
namespace storeaccess {

/// The refusal of a store whose pages SQLite finds broken (%1: the file).
inline const QString damagedText =
    QStringLiteral("The data store %1 is damaged: parts of the file are missing or overwritten. "
                   "It was left as it is; restore it from a backup.");
/// The refusal of a store that a newer program wrote (%1: the file, %2: its version, %3: the
/// newest version that this program knows).
inline const QString newerText =
    QStringLiteral("The data store %1 was written by a newer Kelvora: it is of version %2, and "
                   "this program knows the versions up to %3. It was left as it is.");

/// What is known of a store before anything is written to it.
struct Inspection
{
    bool upgradeDue = false;
    QString readOnlyReason; ///< empty when the file and its folder can be written
};

/// Refuses a missing file, one that is not a store of this program, a damaged store and one of
/// a newer version; reads the rest. Nothing is written to the store but what SQLite itself
/// restores of a save that a crash cut short.
Inspection inspect(const QString &path);

/**
 * The program's start: a store that cannot be written, or that another program holds, is
 * offered for viewing only (Yes opens it so, No gives none); one that also needs its upgrade is
 * refused. Otherwise the store is opened with its lock taken. The upgrade itself is the main
 * window's.
 */
std::optional<OpenedStore> openForProgram(const QString &path, MessageBoxes &boxes);

enum class Access { Read, Write };

/**
 * A program without a window: waits up to @p wait for the lock, brings the store up to date
 * when due, and refuses what it cannot do (a store that cannot be written when writing or
 * upgrading, one still in use after the wait). A read-only store that needs nothing is opened
 * for viewing only with Access::Read.
 */
OpenedStore openForBatch(const QString &path, Access access, std::chrono::milliseconds wait);

} // namespace storeaccess
