#include "backup/backupfolder.h"

#include "backup/backuperror.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>

namespace backupfolder {

namespace {

const QString stampFormat = QStringLiteral("yyyyMMdd-HHmmss");
const QString namePattern =
    QStringLiteral("Kelvora-(\\d{8}-\\d{6})(?:-([2-9]|[1-9]\\d+))?\\.db");

/// The stamp and the copy of a backup's name; an empty stamp for any other name.
std::pair<QString, int> stampOf(const QString &fileName)
{
    static const QRegularExpression name(QStringLiteral("^%1$").arg(namePattern));
    const QRegularExpressionMatch match = name.match(fileName);
    if (!match.hasMatch())
        return {};
    return {match.captured(1), match.captured(2).isEmpty() ? 1 : match.captured(2).toInt()};
}

} // namespace

QString defaultFor(const QString &storePath)
{
    return QFileInfo(storePath).absoluteDir().filePath(QStringLiteral("Backups"));
}

QString fileNameFor(const QDateTime &taken, int copy)
{
    const QString stamp = taken.toString(stampFormat);
    if (copy > 1)
        return QStringLiteral("Kelvora-%1-%2.db").arg(stamp).arg(copy);
    return QStringLiteral("Kelvora-%1.db").arg(stamp);
}

QDateTime takenOf(const QString &fileName)
{
    const QString stamp = stampOf(fileName).first;
    return stamp.isEmpty() ? QDateTime() : QDateTime::fromString(stamp, stampFormat);
}

QStringList backupsIn(const QString &folder)
{
    const QDir dir(folder);
    QStringList names;
    for (const QString &name : dir.entryList({QStringLiteral("Kelvora-*.db")}, QDir::Files)) {
        if (takenOf(name).isValid())
            names << name;
    }
    // The stamp sorts as text in the order of time; the copies of one second by their number.
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) {
        return stampOf(a) > stampOf(b);
    });
    QStringList paths;
    for (const QString &name : std::as_const(names))
        paths << dir.filePath(name);
    return paths;
}

QStringList unfinishedIn(const QString &folder)
{
    static const QRegularExpression name(
        QStringLiteral("^%1\\.part(-journal)?$").arg(namePattern));
    const QDir dir(folder);
    QStringList paths;
    for (const QString &entry : dir.entryList({QStringLiteral("Kelvora-*.db.part*")},
                                              QDir::Files | QDir::Hidden | QDir::NoSymLinks)) {
        if (name.match(entry).hasMatch())
            paths << dir.filePath(entry);
    }
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
