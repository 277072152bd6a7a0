#include "core/storeaccess.h"

#include "core/messageboxes.h"
#include "core/storecheck.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"

#include <QDir>
#include <QFileInfo>

#include <functional>

namespace storeaccess {

namespace {

const QString viewOnlyQuestion =
    QStringLiteral("\n\nOpen it for viewing only, with saving refused?");

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

QString readOnlyReason(const QString &path)
{
    // SQLite writes its journal beside the store, and the lock file goes there too.
    const QFileInfo file(path);
    if (!QFileInfo(file.absolutePath()).isWritable())
        return QStringLiteral("its folder is read-only");
    if (!file.isWritable())
        return QStringLiteral("the file is read-only");
    return {};
}

StoreError refusal(const QString &path, const QString &why)
{
    return StoreError({}, QStringLiteral("The data store %1 cannot be opened: %2.")
                              .arg(shown(path), why));
}

StoreError upgradeRefusal(const QString &path, const QString &reason)
{
    return refusal(path, reason
                             + QStringLiteral(", and it must first be brought up to date, "
                                              "which writes to it"));
}

QString inUseText(const QString &path, const StoreLock &lock)
{
    return QStringLiteral("The data store %1 is in use by %2.").arg(shown(path), lock.holder());
}

/// Runs @p step on the store at @p path, so that the engine's failures in it come out in words
/// with the file named; a refusal of this program's own, which carries no engine code, passes
/// as it is.
void inWords(const QString &path, const std::function<void()> &step)
{
    try {
        step();
    } catch (const StoreError &error) {
        const int code = error.primaryCode();
        if (error.code().isEmpty())
            throw;
        if (code == StoreError::corruptCode || code == StoreError::notADatabaseCode)
            throw StoreError({}, damagedText.arg(shown(path)));
        throw refusal(path, error.reason());
    }
}

} // namespace

Inspection inspect(const QString &path)
{
    if (!QFileInfo::exists(path))
        throw DataStore::missingFile(path);
    Inspection found;
    found.readOnlyReason = readOnlyReason(path);
    inWords(path, [&] {
        if (!storecheck::isOwnStore(path))
            throw StoreError({}, storecheck::notOwnStoreText(shown(path)));
        // Opened for writing where it can be, so that SQLite first puts back the last saved
        // state of a store that a crash left in the middle of a save; nothing else is written.
        const DataStore store(path, found.readOnlyReason.isEmpty()
                                        ? DataStore::OpenMode::ExistingFile
                                        : DataStore::OpenMode::ReadOnly);
        const int version = storeupgrade::version(store);
        if (version > storeupgrade::currentVersion) {
            throw StoreError({}, newerText.arg(shown(path))
                                     .arg(version)
                                     .arg(storeupgrade::currentVersion));
        }
        if (!storecheck::isSound(store))
            throw StoreError({}, damagedText.arg(shown(path)));
        found.upgradeDue = storeupgrade::isDue(store);
    });
    return found;
}

std::optional<OpenedStore> openForProgram(const QString &path, MessageBoxes &boxes)
{
    const Inspection found = inspect(path);
    OpenedStore opened;
    QString question;
    if (!found.readOnlyReason.isEmpty()) {
        if (found.upgradeDue)
            throw upgradeRefusal(path, found.readOnlyReason);
        question = QStringLiteral("The data store %1 cannot be written: %2.")
                       .arg(shown(path), found.readOnlyReason);
    } else {
        auto lock = std::make_unique<StoreLock>(path);
        if (lock->take())
            opened.lock = std::move(lock);
        else if (!lock->heldByAnother())
            throw refusal(path, lock->failureText());
        else if (found.upgradeDue)
            throw StoreError({}, inUseText(path, *lock));
        else
            question = inUseText(path, *lock);
    }
    if (!question.isEmpty()
        && boxes.show({question + viewOnlyQuestion, appTitle, MessageIcon::Question,
                       MessageButtons::YesNo})
               != Answer::Yes)
        return std::nullopt;
    inWords(path, [&] {
        opened.store = std::make_unique<DataStore>(path);
        if (!opened.lock)
            opened.store->setViewOnly();
    });
    return opened;
}

OpenedStore openForBatch(const QString &path, Access access, std::chrono::milliseconds wait)
{
    const Inspection found = inspect(path);
    if (!found.readOnlyReason.isEmpty()) {
        if (found.upgradeDue)
            throw upgradeRefusal(path, found.readOnlyReason);
        if (access == Access::Write)
            throw refusal(path, found.readOnlyReason);
    }
    OpenedStore opened;
    if (found.readOnlyReason.isEmpty()) {
        auto lock = std::make_unique<StoreLock>(path);
        if (!lock->take(wait)) {
            if (lock->heldByAnother())
                throw StoreError({}, inUseText(path, *lock));
            throw refusal(path, lock->failureText());
        }
        opened.lock = std::move(lock);
    }
    inWords(path, [&] {
        opened.store = std::make_unique<DataStore>(path);
        if (opened.lock)
            storeupgrade::run(*opened.store);
        else
            opened.store->setViewOnly();
    });
    return opened;
}

} // namespace storeaccess
