#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <chrono>
#include <memory>

class StoreLock;

/**
 * The folder that a backup or a safety copy is written into, for as long as that lasts: made
 * when missing, and gone again when nothing was kept in it; locked, so that two runs never take
 * one name, nor one run another's unfinished copy for a leftover; and rid of the unfinished
 * copies that a killed run left. Throws BackupError.
 */
class BackupTarget
{
public:
    BackupTarget(const QString &folder, std::chrono::milliseconds lockWait);
    ~BackupTarget();
    BackupTarget(const BackupTarget &) = delete;
    BackupTarget &operator=(const BackupTarget &) = delete;

    /// The path of a backup taken at @p taken that is free, its unfinished copy's names too;
    /// a name that anything holds (even a link to nothing) is passed over.
    QString pathFor(const QDateTime &taken) const;

    /// A file was put in the folder: it stays when this ends.
    void keep() { m_kept = true; }

private:
    void release();

    QString m_folder;
    QStringList m_made; ///< the folders made for this, the deepest first
    std::unique_ptr<StoreLock> m_lock;
    bool m_kept = false;
};
