#include "core/records.h"

#include "core/datastore.h"
#include "core/numbers.h"

#include <QSqlQuery>

namespace records {

namespace {

double oneMoreThan(const QVariant &max)
{
    if (!max.isValid() || max.isNull())
        return 1;
    return numbers::val(max.toString()) + 1;
}

} // namespace

double nextId(const DataStore &store, const QString &table, const QString &column)
{
    return oneMoreThan(
        store.scalar(QStringLiteral("SELECT max(%1) AS RecID FROM %2").arg(column, table)));
}

double nextChildId(const DataStore &store, const QString &table, const QString &column,
                   double basicInfoId, double challanId)
{
    return oneMoreThan(store.scalar(
        QStringLiteral("SELECT max(%1) AS RecID FROM %2 WHERE BasicIfoId = ? AND ChallanId = ?")
            .arg(column, table),
        {basicInfoId, challanId}));
}

QString escapeText(const QString &value)
{
    // An empty field is stored as an empty text, never as Null.
    const QString trimmed = value.trimmed();
    return trimmed.isNull() ? QStringLiteral("") : trimmed;
}

QString nullToText(const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return {};
    return value.toString().trimmed();
}

QVariant storedDate(const QDate &date)
{
    return date.isValid() ? QVariant(date.toString(Qt::ISODate)) : QVariant();
}

QDate dateOf(const QVariant &value)
{
    return QDate::fromString(nullToText(value), Qt::ISODate);
}

QStringList comboTexts(const DataStore &store, const QString &table, const QString &column,
                       bool sorted, const QString &statement, bool descending,
                       const QVariantList &values)
{
    QString sql = statement.trimmed();
    if (sql.isEmpty()) {
        sql = QStringLiteral("SELECT %1 FROM %2").arg(column, table);
        if (sorted)
            sql += QStringLiteral(" ORDER BY %1%2").arg(column, descending ? " DESC" : "");
    }
    QSqlQuery query = store.exec(sql, values);
    QStringList texts;
    while (query.next())
        texts << nullToText(query.value(0));
    return texts;
}

int lookupId(const DataStore &store, const QString &idColumn, const QString &table,
             const QString &textColumn, const QString &value)
{
    if (value.trimmed().isEmpty())
        return 0;
    const QVariant id = store.scalar(
        QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(idColumn, table, textColumn),
        {escapeText(value)});
    return id.isValid() ? id.toInt() : 0;
}

QString lookupText(const DataStore &store, const QString &table, const QString &idColumn,
                   const QString &textColumn, int id)
{
    return nullToText(store.scalar(
        QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(textColumn, table, idColumn), {id}));
}

} // namespace records
