#include "backup/backupfolder.h"

#include "backup/backuperror.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace backupfolder {

namespace {

const QString stampFormat = QStringLiteral("yyyyMMdd-HHmmss");

} // namespace

QString defaultFor(const QString &storePath)
{
    return QFileInfo(storePath).absoluteDir().filePath(QStringLiteral("Backups"));
}

QString fileNameFor(const QDateTime &taken)
{
    return QStringLiteral("Kelvora-%1.db").arg(taken.toString(stampFormat));
}

QDateTime takenOf(const QString &fileName)
{
    static const QRegularExpression name(QStringLiteral("^Kelvora-(\\d{8}-\\d{6})\\.db$"));
    const QRegularExpressionMatch match = name.match(fileName);
    if (!match.hasMatch())
        return {};
    return QDateTime::fromString(match.captured(1), stampFormat);
}

QStringList backupsIn(const QString &folder)
{
    const QDir dir(folder);
    QStringList names;
    for (const QString &name : dir.entryList({QStringLiteral("Kelvora-*.db")}, QDir::Files)) {
        if (takenOf(name).isValid())
            names << name;
    }
    // The stamp sorts as text in the order of time.
    std::sort(names.begin(), names.end(), std::greater<>());
    QStringList paths;
    for (const QString &name : std::as_const(names))
        paths << dir.filePath(name);
    return paths;
}

QStringList prune(const QString &folder, int keep)
{
    const QStringList backups = backupsIn(folder);
    QStringList removed;
    for (qsizetype i = backups.size() - 1; i >= keep; --i) {
        QFile file(backups.at(i));
        if (!file.remove()) {
            throw BackupError(BackupError::FileSystem,
                              QStringLiteral("The old backup %1 cannot be removed: %2")
                                  .arg(QDir::toNativeSeparators(file.fileName()),
                                       file.errorString()));
        }
        removed << backups.at(i);
    }
    return removed;
}

} // namespace backupfolder
