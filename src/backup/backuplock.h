#pragma once

#include "core/storelock.h"

#include <chrono>
#include <memory>

/// What a lock file that cannot be made at all (a full disk, a folder that cannot be written)
/// leads to.
enum class LockNotMade {
    Refuse,    ///< BackupError (Refused)
    GoWithout, ///< no lock: the writing that follows fails with the system's own reason
};

/**
 * The lock of @p path (a data store, or a backup folder's lock name) taken within @p wait.
 * Throws BackupError (Refused) naming @p what ("The data store /srv/Kelvora.db") when another
 * program holds it.
 */
std::unique_ptr<StoreLock> takeBackupLock(const QString &path, const QString &what,
                                          std::chrono::milliseconds wait, LockNotMade notMade);
