#include "exchange/importsource.h"

#include "core/datastore.h"
#include "core/storeerror.h"
#include "exchange/importerror.h"

#include <QFileInfo>
#include <QSqlQuery>
#include <QUrl>

namespace {

ImportError refusalOf(const StoreError &error)
{
    switch (error.primaryCode()) {
    case StoreError::corruptCode:
        return ImportError(ImportSource::damagedText.arg(error.description()));
    case StoreError::notADatabaseCode:
        return ImportError(ImportSource::foreign(error.description()));
    default:
        return ImportError(ImportSource::unreadableText.arg(error.description()));
    }
}

void detach(const DataStore &store) noexcept
{
    // Fails only while a statement on the source is still open, which no import leaves behind;
    // an attachment left over would make the next import refuse with the engine's words.
    try {
        store.exec(QStringLiteral("DETACH DATABASE %1").arg(ImportSource::schemaName));
    } catch (const StoreError &) {
    }
}

} // namespace

ImportSource::ImportSource(const DataStore &store, const QString &path, const QStringList &tables)
    : m_store(store)
{
    const QFileInfo file(path);
    if (!file.isFile())
        throw ImportError(unreadableText.arg(QStringLiteral("no such file")));
    if (file.canonicalFilePath() == QFileInfo(store.path()).canonicalFilePath())
        throw ImportError(currentStoreText);

    // Opened read-only by the engine: no statement can write to the previous year's store.
    QUrl uri = QUrl::fromLocalFile(file.absoluteFilePath());
    uri.setQuery(QStringLiteral("mode=ro"));
    try {
        store.exec(QStringLiteral("ATTACH DATABASE ? AS %1").arg(schemaName),
                   {uri.toString(QUrl::FullyEncoded)});
    } catch (const StoreError &error) {
        throw refusalOf(error);
    }
    try {
        check(tables);
    } catch (...) {
        detach(store);
        throw;
    }
}

ImportSource::~ImportSource()
{
    detach(m_store);
}

bool ImportSource::hasColumn(const QString &table, const QString &column) const
{
    return m_columns.value(table.toLower()).contains(column.toLower());
}

QString ImportSource::foreign(const QString &reason)
{
    return foreignText.arg(reason);
}

void ImportSource::check(const QStringList &tables)
{
    try {
        for (const QString &table : tables) {
            QSqlQuery query = m_store.exec(
                QStringLiteral("SELECT lower(name) FROM pragma_table_info(?, ?)"),
                {table, schemaName});
            QSet<QString> columns;
            while (query.next())
                columns.insert(query.value(0).toString());
            if (columns.isEmpty())
                throw ImportError(foreign(QStringLiteral("no table %1").arg(table)));
            // The masters only: the statements of a busy year are many times their size.
            const QString verdict = m_store.scalar(QStringLiteral("PRAGMA %1.quick_check(\"%2\")")
                                                       .arg(schemaName, table))
                                        .toString();
            if (verdict != u"ok")
                throw ImportError(damagedText.arg(verdict));
            m_columns.insert(table.toLower(), columns);
        }
    } catch (const StoreError &error) {
        throw refusalOf(error);
    }
}
