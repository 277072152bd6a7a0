#pragma once

#include <QString>
#include <QVariantList>
#include <functional>

class DataStore;
class ImportSource;
class StoreError;

/**
 * The copy of one master table from an attached source into the current store. The target's
 * columns are filled by name, each value by the program's text rules, and the rows go in runs
 * so that the caller can show progress between them.
 */
class TableCopy
{
public:
    static inline const QString rowFailureText =
        QStringLiteral("Row %1 of %2%3 could not be imported: %4.");
    static inline const QString tableFailureText =
        QStringLiteral("%1 could not be imported: %2.");
    static inline const QString missingColumnText = QStringLiteral("%1 has no column %2");

    /// Rows copied by one statement, between two reports of progress.
    static constexpr int rowsPerRun = 500;

    /// Reads the columns of both sides. A column of the target that the source lacks is filled
    /// as the start-up upgrade fills it when it adds the column; any other column missing
    /// refuses the source (ImportError).
    TableCopy(const DataStore &store, const ImportSource &source, const QString &table);

    QString table() const { return m_table; }
    qint64 rowCount() const { return m_rowCount; }

    /// Empties the table and copies every row of the source into it, inside the caller's
    /// transaction; copied is told the number of rows copied so far after each run. Returns the
    /// rows copied. A row that the store refuses throws ImportError naming it.
    qint64 run(const std::function<void(qint64 copied)> &copied) const;

private:
    void addColumn(const ImportSource &source, const QString &column, const QString &type);
    qint64 copyRange(qint64 after, qint64 upTo, qint64 copiedBefore) const;
    QVariantList bindings(qint64 after, qint64 upTo) const;
    QString keyOf(qint64 rowid) const;

    const DataStore &m_store;
    QString m_table;
    QString m_sourceTable;
    QStringList m_columns;
    QStringList m_values;
    QVariantList m_constants; ///< bound to the placeholders of m_values, in order
    QString m_insert; ///< the values of m_constants, then the rowids after and up to
    QString m_key;
    qint64 m_rowCount = 0;
};
