#include "exchange/tablecopy.h"

#include "core/datastore.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"
#include "exchange/importerror.h"
#include "exchange/importsource.h"

#include <QSqlQuery>
#include <limits>

namespace {

QString quoted(const QString &name)
{
    return u'"' + name + u'"';
}

/// The engine's rule for a declared type that keeps values as text.
bool isTextType(const QString &type)
{
    const QString upper = type.toUpper();
    return !upper.contains(u"INT")
           && (upper.contains(u"CHAR") || upper.contains(u"CLOB") || upper.contains(u"TEXT"));
}

} // namespace

TableCopy::TableCopy(const DataStore &store, const ImportSource &source, const QString &table)
    : m_store(store),
      m_table(table),
      m_sourceTable(ImportSource::schemaName + u'.' + quoted(table))
{
    QSqlQuery columns = store.exec(
        QStringLiteral("SELECT name, type FROM pragma_table_info(?, 'main') ORDER BY cid"),
        {table});
    while (columns.next())
        addColumn(source, columns.value(0).toString(), columns.value(1).toString());
    m_key = store.scalar(QStringLiteral("SELECT c.name FROM pragma_index_list(?, 'main') AS i, "
                                        "pragma_index_info(i.name, 'main') AS c "
                                        "WHERE i.\"unique\" = 1"),
                         {table})
                .toString();
    m_rowCount = store.scalar(QStringLiteral("SELECT count(*) FROM %1").arg(m_sourceTable))
                     .toLongLong();
    m_insert = QStringLiteral("INSERT INTO main.%1 (%2) SELECT %3 FROM %4 "
                              "WHERE rowid > ? AND rowid <= ?")
                   .arg(quoted(table), m_columns.join(u','), m_values.join(u','), m_sourceTable);
}

void TableCopy::addColumn(const ImportSource &source, const QString &column, const QString &type)
{
    const bool text = isTextType(type);
    m_columns << quoted(column);
    if (!source.hasColumn(m_table, column)) {
        std::optional<QVariant> value = storeupgrade::addedColumnValue(m_table, column);
        // Stores from before the deductee's amount in words lack it; the import has always
        // brought them in with it empty.
        if (!value && m_table.compare(u"mstDeductee", Qt::CaseInsensitive) == 0
            && column.compare(u"InWords", Qt::CaseInsensitive) == 0)
            value = QVariant();
        if (!value)
            throw ImportError(ImportSource::foreign(missingColumnText.arg(m_table, column)));
        m_values << QStringLiteral("?");
        // Empty, not Null: the text rules below make a Null text empty too.
        m_constants << (text && value->isNull() ? QVariant(QStringLiteral("")) : *value);
        return;
    }
    const QString value = quoted(column);
    // Spaces at either end go, as when a value is saved; the engine's trim() takes spaces only,
    // which is all that a saved value can carry at its ends.
    const QString trimmed = QStringLiteral("trim(%1)").arg(value);
    if (column.compare(u"Status", Qt::CaseInsensitive) == 0) {
        // A company's Status is one blank after every save, which trimming would lose. The 'X'
        // that an interrupted import of earlier versions left in a source stands for it too.
        m_values << QStringLiteral("CASE WHEN %1 = ' ' OR upper(%1) = 'X' THEN ' ' "
                                   "ELSE coalesce(%2, '') END")
                        .arg(value, trimmed);
    } else if (text) {
        // A value that is Null or only blanks arrives as an empty text, as a save stores it.
        m_values << QStringLiteral("coalesce(%1, '')").arg(trimmed);
    } else {
        // Numbers and dates pass as they are; a text of blanks in them is no value.
        m_values << QStringLiteral("CASE WHEN typeof(%1) = 'text' THEN nullif(%2, '') "
                                   "ELSE %1 END")
                        .arg(value, trimmed);
    }
}

qint64 TableCopy::run(const std::function<void(qint64 copied)> &copied) const
{
    try {
        m_store.exec(QStringLiteral("DELETE FROM main.%1").arg(quoted(m_table)));
        const QString boundary =
            QStringLiteral("SELECT rowid FROM %1 WHERE rowid > ? ORDER BY rowid LIMIT 1 OFFSET ?")
                .arg(m_sourceTable);
        qint64 done = 0;
        qint64 after = std::numeric_limits<qint64>::min();
        for (;;) {
            const QVariant last = m_store.scalar(boundary, {after, rowsPerRun - 1});
            const qint64 upTo =
                last.isValid() ? last.toLongLong() : std::numeric_limits<qint64>::max();
            done += copyRange(after, upTo, done);
            if (copied)
                copied(done);
            if (!last.isValid())
                return done;
            after = upTo;
        }
    } catch (const StoreError &error) {
        throw ImportError(tableFailureText.arg(m_table, error.description()));
    }
}

qint64 TableCopy::copyRange(qint64 after, qint64 upTo, qint64 copiedBefore) const
{
    try {
        return m_store.exec(m_insert, bindings(after, upTo)).numRowsAffected();
    } catch (const StoreError &error) {
        // Any other failure may have ended the transaction; only a refused row leaves it open
        // for finding that row.
        if (error.primaryCode() != StoreError::constraintCode)
            throw;
    }
    QList<qint64> rowids;
    {
        QSqlQuery rows = m_store.exec(
            QStringLiteral("SELECT rowid FROM %1 WHERE rowid > ? AND rowid <= ? ORDER BY rowid")
                .arg(m_sourceTable),
            {after, upTo});
        while (rows.next())
            rowids << rows.value(0).toLongLong();
    }
    qint64 row = copiedBefore;
    for (const qint64 rowid : rowids) {
        ++row;
        try {
            m_store.exec(m_insert, bindings(rowid - 1, rowid));
        } catch (const StoreError &error) {
            throw ImportError(rowFailureText.arg(QString::number(row), m_table, keyOf(rowid),
                                                 error.description()));
        }
    }
    return rowids.size();
}

QVariantList TableCopy::bindings(qint64 after, qint64 upTo) const
{
    QVariantList values = m_constants;
    values << after << upTo;
    return values;
}

QString TableCopy::keyOf(qint64 rowid) const
{
    if (m_key.isEmpty())
        return {};
    const QVariant key = m_store.scalar(
        QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?").arg(quoted(m_key), m_sourceTable),
        {rowid});
    return QStringLiteral(" (%1 %2)").arg(m_key, key.toString());
}
