#include "core/datastore.h"

#include "core/storeerror.h"

#include <QAtomicInt>
#include <QFileInfo>
#include <QSqlError>

namespace {

QAtomicInt connectionCounter;

StoreError errorOf(const QSqlError &error)
{
    QString text = error.databaseText().trimmed();
    if (text.isEmpty())
        text = error.text().trimmed();
    return StoreError(error.nativeErrorCode(), text);
}

} // namespace

DataStore::DataStore(const QString &path, OpenMode mode)
    : m_path(path),
      m_connectionName(QStringLiteral("kelvora-%1").arg(connectionCounter.fetchAndAddRelaxed(1)))
{
    if (mode != OpenMode::CreateFile && !QFileInfo::exists(path))
        throw missingFile(path);

    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    db.setDatabaseName(path);
    QString options = QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeoutMs);
    if (mode == OpenMode::ReadOnly)
        options += QStringLiteral(";QSQLITE_OPEN_READONLY");
    db.setConnectOptions(options);
    if (!db.open()) {
        const StoreError error = errorOf(db.lastError());
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_connectionName);
        throw error;
    }
    try {
        // SQLite opens any file lazily: reading the catalogue is what tells a store from a
        // file of another kind.
        scalar(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    } catch (...) {
        db.close();
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_connectionName);
        throw;
    }
}

StoreError DataStore::missingFile(const QString &path)
{
    return StoreError(QStringLiteral("14"), QStringLiteral("Could not find file '%1'.")
                                                .arg(QFileInfo(path).absoluteFilePath()));
}

DataStore::~DataStore()
{
    {
        QSqlDatabase db = QSqlDatabase::database(m_connectionName, false);
        db.close();
    }
    QSqlDatabase::removeDatabase(m_connectionName);
}

QString DataStore::folder() const
{
    return QFileInfo(m_path).absolutePath();
}

QSqlDatabase DataStore::database() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

void DataStore::setViewOnly()
{
    exec(QStringLiteral("PRAGMA query_only = ON"));
    m_viewOnly = true;
}

QSqlQuery DataStore::exec(const QString &sql, const QVariantList &values) const
{
    QSqlQuery query(database());
    query.setForwardOnly(true);
    const auto fail = [this](const QSqlError &error) {
        // SQLITE_READONLY: a write that the view-only switch stopped.
        if (m_viewOnly && error.nativeErrorCode() == u"8")
            return StoreError({}, viewOnlyText);
        return errorOf(error);
    };
    if (!query.prepare(sql))
        throw fail(query.lastError());
    for (const QVariant &value : values)
        query.addBindValue(value);
    if (!query.exec())
        throw fail(query.lastError());
    return query;
}

QVariant DataStore::scalar(const QString &sql, const QVariantList &values) const
{
    QSqlQuery query = exec(sql, values);
    if (!query.next())
        return {};
    return query.value(0);
}

bool DataStore::hasRows(const QString &sql, const QVariantList &values) const
{
    QSqlQuery query = exec(sql, values);
    return query.next();
}

bool DataStore::tableExists(const QString &table) const
{
    return hasRows(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'table' "
                                  "AND lower(name) = lower(?)"),
                   {table});
}

bool DataStore::columnExists(const QString &table, const QString &column) const
{
    return hasRows(QStringLiteral("SELECT 1 FROM sqlite_master AS t, "
                                  "pragma_table_info(t.name) AS c "
                                  "WHERE t.type = 'table' AND lower(t.name) = lower(?) "
                                  "AND lower(c.name) = lower(?)"),
                   {table, column});
}
