#include "backup/backuptarget.h"

#include "backup/backuperror.h"
#include "backup/backupfolder.h"
#include "backup/backuplock.h"
#include "core/wholefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

bool isFree(const QString &path)
{
    const QFileInfo name(path);
    return !name.exists() && !name.isSymLink();
}

} // namespace

BackupTarget::BackupTarget(const QString &folder, std::chrono::milliseconds lockWait)
    : m_folder(QFileInfo(folder).absoluteFilePath())
{
    for (QString missing = m_folder; !QFileInfo::exists(missing) && !QDir(missing).isRoot();
         missing = QFileInfo(missing).path())
        m_made << missing;
    const QString notMade = wholefile::makeFolder(m_folder);
    if (!notMade.isEmpty()) {
        release();
        throw BackupError(BackupError::FileSystem, QStringLiteral("The folder %1 cannot be "
                                                                  "made: %2.")
                                                       .arg(shown(folder), notMade));
    }
    try {
        // The lock is a file of the folder's own, named as no backup is. A folder that cannot
        // take even that (a full disk) cannot take the copy either, which says why; without
        // the lock no unfinished copy is known to be a leftover.
        m_lock = takeBackupLock(QDir(m_folder).filePath(QStringLiteral("Kelvora-backup")),
                                QStringLiteral("The backup folder %1").arg(shown(m_folder)),
                                lockWait, LockNotMade::GoWithout);
        if (!m_lock)
            return;
        // Whoever wrote these is gone: a live run would hold the lock.
        for (const QString &unfinished : backupfolder::unfinishedIn(m_folder)) {
            QFile file(unfinished);
            if (!file.remove()) {
                throw BackupError(BackupError::FileSystem,
                                  QStringLiteral("The unfinished copy %1 of a backup that was "
                                                 "stopped cannot be removed: %2")
                                      .arg(shown(unfinished), file.errorString()));
            }
        }
    } catch (...) {
        release();
        throw;
    }
}

BackupTarget::~BackupTarget()
{
    release();
}

void BackupTarget::release()
{
    m_lock.reset();
    if (m_kept)
        return;
    // Only what was made for this, and only while it is empty.
    for (const QString &folder : std::as_const(m_made)) {
        if (QFileInfo::exists(folder) && !QDir().rmdir(folder))
            break;
    }
    m_made.clear();
}

QString BackupTarget::pathFor(const QDateTime &taken) const
{
    for (int copy = 1;; ++copy) {
        const QString path = QDir(m_folder).filePath(backupfolder::fileNameFor(taken, copy));
        if (isFree(path) && isFree(path + QStringLiteral(".part"))
            && isFree(path + QStringLiteral(".part-journal")))
            return path;
    }
}
