#include "backup/storebackup.h"

#include "backup/backuperror.h"
#include "backup/backuplock.h"
#include "backup/backuptarget.h"
#include "core/datastore.h"
#include "core/storecheck.h"
#include "core/storeerror.h"
#include "core/storelock.h"
#include "core/wholefile.h"

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
    return takeBackupLock(path, QStringLiteral("The data store %1").arg(shown(path)), wait,
                          LockNotMade::Refuse);
}

/// Removes an unfinished copy and SQLite's journal of it.
void removeCopy(const QString &path)
{
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-journal"));
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
    QFile source(from);
    QFile copy(part);
    const auto cannot = [&](const QString &what, const QFile &file) {
        return fileSystem(QStringLiteral("%1 cannot be %2: %3")
                              .arg(shown(file.fileName()), what, file.errorString()));
    };
    if (!source.open(QIODevice::ReadOnly))
        throw cannot(QStringLiteral("read"), source);
    if (!copy.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw cannot(QStringLiteral("written"), copy);
    try {
        constexpr qint64 blockSize = 1 << 20;
        while (!source.atEnd()) {
            const QByteArray block = source.read(blockSize);
            if (source.error() != QFileDevice::NoError)
                throw cannot(QStringLiteral("read"), source);
            if (!wholefile::write(copy, block))
                throw cannot(QStringLiteral("written"), copy);
        }
        if (!copy.flush())
            throw cannot(QStringLiteral("written"), copy);
        copy.close();
        placeNew(part, target);
    } catch (...) {
        copy.close();
        removeCopy(part);
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
    BackupTarget target(folder, m_lockWait);
    const QString path = target.pathFor(now);
    writeCopy(m_storePath, path);
    target.keep();
    return path;
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
    // The backup is put in the store's place by a rename, which would replace a link.
    const QString notPlain = wholefile::refusal(m_storePath);
    if (!notPlain.isEmpty()) {
        throw refused(QStringLiteral("The data store %1 cannot be replaced: %2.")
                          .arg(shown(m_storePath), notPlain));
    }
    const auto lock = lockStore(m_storePath, m_lockWait);
    const QString safety = QFileInfo::exists(m_storePath) ? safetyCopy(folder, now) : QString();

    const QString restoring = m_storePath + QStringLiteral(".restoring");
    removeCopy(restoring);
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
        removeCopy(restoring);
        throw;
    }
    return safety;
}

QString StoreBackup::safetyCopy(const QString &folder, const QDateTime &now) const
{
    BackupTarget folderTarget(folder, m_lockWait);
    const QString target = folderTarget.pathFor(now);
    try {
        writeCopy(m_storePath, target);
    } catch (const BackupError &error) {
        if (error.kind() != BackupError::Refused)
            throw;
        copyBytes(m_storePath, target);
    }
    folderTarget.keep();
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
        removeCopy(part);
        throw;
    }
}
