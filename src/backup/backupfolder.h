#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

/// The folder of backups: their names, which carry the time each was taken, and the pruning of
/// the oldest.
namespace backupfolder {

/// Where backups go unless the user says otherwise: a folder Backups beside the store.
QString defaultFor(const QString &storePath);

/// The name of a backup taken at @p taken: Kelvora-YYYYMMDD-HHMMSS.db, and for the second and
/// later backups of one second Kelvora-YYYYMMDD-HHMMSS-2.db and so on.
QString fileNameFor(const QDateTime &taken, int copy = 1);

/// The time that a backup's file name carries; an invalid time for any other name.
QDateTime takenOf(const QString &fileName);

/// The paths of the backups in @p folder, by the time their names carry, newest first. Files
/// of any other name are not backups and are never listed, pruned or touched.
QStringList backupsIn(const QString &folder);

/// The plain files of @p folder that a backup leaves while it is written: the copy under its
/// backup's name with ".part" added, and SQLite's journal of it ".part-journal".
QStringList unfinishedIn(const QString &folder);

/**
 * Removes every backup of @p folder but the newest @p keep and returns the paths removed,
 * oldest first. Throws BackupError (FileSystem) when one cannot be removed; those before it
 * are gone.
 */
QStringList prune(const QString &folder, int keep);

} // namespace backupfolder
