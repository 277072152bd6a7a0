#pragma once

#include "core/storelock.h"

#include <chrono>
#include <memory>

/**
 * The lock of @p path (a data store, or a backup folder's lock name) taken within @p wait.
 * Throws BackupError (Refused) naming @p what ("The data store /srv/Kelvora.db") when another
 * program holds it, or when it cannot be made.
 */
std::unique_ptr<StoreLock> takeBackupLock(const QString &path, const QString &what,
                                          std::chrono::milliseconds wait);
