#include "backup/storebackup.h"

#include "backup/backuperror.h"
#include "backup/backupfolder.h"
#include "core/datastore.h"
#include "core/storecheck.h"
#include "core/storeerror.h"
#include "core/storelock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <memory>

namespace {

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

BackupError refused(const QString &text)
{
    return BackupError(BackupError::Refused, text);
}

BackupError fileSystem(const QString &text)
{
    return BackupError(BackupError::FileSystem, text);
}

std::unique_ptr<StoreLock> lockStore(const QString &path, std::chrono::milliseconds wait)
{
    auto lock = std::make_unique<StoreLock>(path);
    if (lock->take(wait))
        return lock;
    if (lock->heldByAnother()) {
        throw refused(QStringLiteral("The data store %1 is in use by %2. Close that program, "
                                     "then try again.").arg(shown(path), lock->holder()));
    }
    throw refused(QStringLiteral("The data store %1 cannot be used: %2.")
                      .arg(shown(path), lock->failureText()));
}

void makeFolder(const QString &folder)
{
    if (!QDir().mkpath(folder))
        throw fileSystem(QStringLiteral("The folder %1 cannot be made.").arg(shown(folder)));
}

/// Gives the whole file at @p part its name @p target, which no file may have yet.
void placeNew(const QString &part, const QString &target)
{
    if (QFileInfo::exists(target))
        throw fileSystem(QStringLiteral("%1 is already there; it was left as it is.")
                             .arg(shown(target)));
    QFile file(part);
    if (!file.rename(target)) {
        throw fileSystem(QStringLiteral("%1 cannot be written: %2")
                             .arg(shown(target), file.errorString()));
    }
}

/// Puts the file at @p from in the place of @p to in one step, whatever was there.
void replace(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(std::filesystem::path(from.toStdU16String()),
                            std::filesystem::path(to.toStdU16String()), error);
    if (error) {
        throw fileSystem(QStringLiteral("%1 cannot be replaced: %2")
                             .arg(shown(to), QString::fromStdString(error.message())));
    }
}

/// A store that SQLite cannot read whole is kept byte for byte: it is what the user had.
void copyBytes(const QString &from, const QString &target)
{
    const QString part = target + QStringLiteral(".part");
    QFile::remove(part);
    QFile source(from);
    if (!source.copy(part)) {
        QFile::remove(part);
        throw fileSystem(QStringLiteral("%1 cannot be written: %2")
                             .arg(shown(target), source.errorString()));
    }
    try {
        placeNew(part, target);
    } catch (...) {
        QFile::remove(part);
        throw;
    }
}

} // namespace

StoreBackup::StoreBackup(const QString &storePath, std::chrono::milliseconds lockWait)
    : m_storePath(storePath), m_lockWait(lockWait)
{
}

QString StoreBackup::backUp(const QString &folder, const QDateTime &now) const
{
    try {
        if (!QFileInfo::exists(m_storePath))
            throw DataStore::missingFile(m_storePath);
        if (!storecheck::isOwnStore(m_storePath))
            throw refused(storecheck::notOwnStoreText(shown(m_storePath)));
    } catch (const StoreError &error) {
        throw refused(error.description());
    }
    const auto lock = lockStore(m_storePath, m_lockWait);
    makeFolder(folder);
    const QString target = QDir(folder).filePath(backupfolder::fileNameFor(now));
    writeCopy(m_storePath, target);
    return target;
}

QString StoreBackup::restoreRefusal(const QString &backup)
{
    const auto refusal = [&backup](const QString &why) {
        return QStringLiteral("%1 cannot be restored: %2. The data store was left as it is.")
            .arg(shown(backup), why);
    };
    if (!QFileInfo(backup).isFile())
        return refusal(QStringLiteral("the file is not there"));
    try {
        if (!storecheck::isOwnStore(backup))
            return refusal(QStringLiteral("it is not a Kelvora data store"));
    } catch (const StoreError &error) {
        return refusal(error.description());
    }
    const QString problems = onlinecopy::integrityProblems(backup);
    if (!problems.isEmpty())
        return refusal(QStringLiteral("it is damaged")) + QStringLiteral("\n\n") + problems;
    return {};
}

QString StoreBackup::restore(const QString &backup, const QString &folder,
                             const QDateTime &now) const
{
    const QString refusal = restoreRefusal(backup);
    if (!refusal.isEmpty())
        throw refused(refusal);
    const auto lock = lockStore(m_storePath, m_lockWait);
    const QString safety = QFileInfo::exists(m_storePath) ? safetyCopy(folder, now) : QString();

    const QString restoring = m_storePath + QStringLiteral(".restoring");
    QFile::remove(restoring);
    try {
        try {
            const DataStore source(backup, DataStore::OpenMode::ReadOnly);
            onlinecopy::copy(source, restoring, m_progress);
        } catch (const StoreError &error) {
            throw refused(QStringLiteral("%1 cannot be read: %2")
                              .arg(shown(backup), error.description()));
        }
        const QString problems = onlinecopy::integrityProblems(restoring);
        if (!problems.isEmpty()) {
            throw fileSystem(QStringLiteral("The restored copy %1 was not written soundly; the "
                                            "data store was left as it is.\n\n%2")
                                 .arg(shown(restoring), problems));
        }
        replace(restoring, m_storePath);
    } catch (...) {
        QFile::remove(restoring);
        throw;
    }
    return safety;
}

QString StoreBackup::safetyCopy(const QString &folder, const QDateTime &now) const
{
    makeFolder(folder);
    const QString target = QDir(folder).filePath(backupfolder::fileNameFor(now));
    try {
        writeCopy(m_storePath, target);
    } catch (const BackupError &error) {
        if (error.kind() != BackupError::Refused)
            throw;
        copyBytes(m_storePath, target);
    }
    // A journal still beside the store belongs to what was just saved: it goes with the copy,
    // where SQLite finds it, and never onto the restored store.
    QFile journal(m_storePath + QStringLiteral("-journal"));
    if (journal.exists() && !journal.rename(target + QStringLiteral("-journal"))) {
        throw fileSystem(QStringLiteral("%1 cannot be moved beside the safety copy: %2")
                             .arg(shown(journal.fileName()), journal.errorString()));
    }
    return target;
}

void StoreBackup::writeCopy(const QString &source, const QString &target) const
{
    const QString part = target + QStringLiteral(".part");
    QFile::remove(part);
    try {
        try {
            const DataStore store(source);
            onlinecopy::copy(store, part, m_progress);
        } catch (const StoreError &error) {
            throw refused(QStringLiteral("The data store %1 cannot be read: %2")
                              .arg(shown(source), error.description()));
        }
        const QString problems = onlinecopy::integrityProblems(part);
        if (!problems.isEmpty()) {
            throw refused(QStringLiteral("The copy of the data store %1 did not pass SQLite's "
                                         "integrity check, so it was not kept.\n\n%2")
                              .arg(shown(source), problems));
        }
        placeNew(part, target);
    } catch (...) {
        QFile::remove(part);
        throw;
    }
}
