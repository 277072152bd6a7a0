#pragma once

#include "backup/onlinecopy.h"

#include <QDateTime>
#include <QString>
#include <chrono>

/**
 * Backup and restore of one data store. Both work under the store's lock, so neither runs while
 * the program or a batch front end has the store; every file is written under a temporary name
 * and put in place only when whole and checked, so a failure leaves the store and the backups as
 * they were. Failures are BackupError.
 */
class StoreBackup
{
public:
    /// @p lockWait: how long to wait for another program to let go of the store.
    StoreBackup(const QString &storePath, std::chrono::milliseconds lockWait);

    void setProgress(const onlinecopy::Progress &progress) { m_progress = progress; }

    /// Writes a checked copy of the store into @p folder (made when missing), named for
    /// @p now; returns its path.
    QString backUp(const QString &folder, const QDateTime &now) const;

    /// Why the file at @p backup cannot be restored (missing, not a store of this program,
    /// damaged); empty when it can.
    static QString restoreRefusal(const QString &backup);

    /**
     * Replaces the store with the backup at @p backup, once it has passed restoreRefusal. The
     * store as it was is first saved into @p folder, named for @p now, as a safety copy whose
     * path is returned (empty when there was no store to save).
     */
    QString restore(const QString &backup, const QString &folder, const QDateTime &now) const;

private:
    QString safetyCopy(const QString &folder, const QDateTime &now) const;
    /// The checked online copy of the store at @p source as the new file @p target.
    void writeCopy(const QString &source, const QString &target) const;

    QString m_storePath;
    std::chrono::milliseconds m_lockWait;
    onlinecopy::Progress m_progress;
};
