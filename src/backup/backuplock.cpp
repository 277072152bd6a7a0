#include "backup/backuplock.h"

#include "backup/backuperror.h"

std::unique_ptr<StoreLock> takeBackupLock(const QString &path, const QString &what,
                                          std::chrono::milliseconds wait, LockNotMade notMade)
{
    auto lock = std::make_unique<StoreLock>(path);
    if (lock->take(wait))
        return lock;
    if (lock->heldByAnother()) {
        throw BackupError(BackupError::Refused,
                          QStringLiteral("%1 is in use by %2. Close that program, then try "
                                         "again.").arg(what, lock->holder()));
    }
    if (notMade == LockNotMade::GoWithout)
        return nullptr;
    throw BackupError(BackupError::Refused, QStringLiteral("%1 cannot be used: %2.")
                                                .arg(what, lock->failureText()));
}
