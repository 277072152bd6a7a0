#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

/// One backup as the restore list shows it, with what was read from the file itself.
struct BackupEntry
{
    QString path;
    QDateTime taken;       ///< from the file's name
    qint64 size = 0;       ///< bytes
    QString financialYear; ///< "2026-27"
    int companies = 0;
    int statements = 0;    ///< of the four forms together
    QString problem;       ///< why the figures could not be read; empty when they were
};

/// What the backups of a folder hold, read without writing to them.
namespace backupcatalog {

/// The entry of the file at @p path; a file that cannot be read as a store of this program
/// gives an entry with its problem and no figures.
BackupEntry read(const QString &path);

/// The entries of the backups in @p folder, newest first.
QList<BackupEntry> list(const QString &folder);

} // namespace backupcatalog
