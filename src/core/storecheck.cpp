#include "core/storecheck.h"

#include "core/datastore.h"
#include "core/schema.h"
#include "core/storeerror.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

namespace storecheck {

namespace {

const QByteArray sqliteMagic("SQLite format 3\0", 16);
constexpr int headerSize = 100;
constexpr int applicationIdOffset = 68;

bool holdsOlderLayout(const QString &path)
{
    const DataStore store(path, DataStore::OpenMode::ReadOnly);
    for (const QString &table : schema::tableNames(schema::Layout::Older)) {
        if (!store.tableExists(table))
            return false;
    }
    return true;
}

} // namespace

bool isOwnStore(const QString &path)
{
    // The header answers without SQLite, which would take an empty file for an empty store.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw StoreError({}, QStringLiteral("The data store %1 cannot be read: %2")
                                 .arg(QDir::toNativeSeparators(path), file.errorString()));
    }
    const QByteArray header = file.read(headerSize);
    file.close();
    if (header.size() < headerSize || !header.startsWith(sqliteMagic))
        return false;
    const qint32 id = qFromBigEndian<qint32>(header.constData() + applicationIdOffset);
    if (id == applicationId)
        return true;
    return id == 0 && holdsOlderLayout(path);
}

QString notOwnStoreText(const QString &path)
{
    return QStringLiteral("%1 is not a Kelvora data store. It was left as it is.")
        .arg(QDir::toNativeSeparators(path));
}

bool isSound(const DataStore &store)
{
    return store.scalar(QStringLiteral("PRAGMA integrity_check(1)")).toString() == u"ok";
}

bool isMarked(const DataStore &store)
{
    return store.scalar(QStringLiteral("PRAGMA application_id")).toInt() == applicationId;
}

void mark(const DataStore &store)
{
    store.exec(QStringLiteral("PRAGMA application_id = %1").arg(applicationId));
}

} // namespace storecheck
