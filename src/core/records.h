#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariant>

class DataStore;

/**
 * Shared record routines. Table and column names are the program's own constants, never typed
 * values; values are always bound.
 */
namespace records {

/// Key of a new row: the largest value of the column plus 1, or 1 when there is none.
double nextId(const DataStore &store, const QString &table, const QString &column);

/// The same among the children of one challan of one Statement.
double nextChildId(const DataStore &store, const QString &table, const QString &column,
                   double basicInfoId, double challanId);

/// A text value as it goes into the store: trimmed, and empty rather than Null. Quotes need no
/// doubling, values are bound.
QString escapeText(const QString &value);

/// Empty for a Null, otherwise the value's text trimmed.
QString nullToText(const QVariant &value);

/// A date as the store keeps it: ISO text (so that text order is date order), Null for none.
QVariant storedDate(const QDate &date);

/// A stored date; an invalid date for a Null or a text that is not one.
QDate dateOf(const QVariant &value);

/// The rows that fill a combo: the first column of the statement, trimmed, in the order returned.
/// With an empty statement it is built from the table and the column, sorted when asked.
QStringList comboTexts(const DataStore &store, const QString &table, const QString &column,
                       bool sorted, const QString &statement = {},
                       bool descending = false, const QVariantList &values = {});

/// The id of a row found by its text (a name chosen in a combo); 0 for an empty value or no row.
int lookupId(const DataStore &store, const QString &idColumn, const QString &table,
             const QString &textColumn, const QString &value);

/// The text of a row found by its id, trimmed; empty when there is no row or it is Null.
QString lookupText(const DataStore &store, const QString &table, const QString &idColumn,
                   const QString &textColumn, int id);

} // namespace records
