#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

/**
 * The one connection to the data store file. Every statement goes through here with its values
 * bound, and every failure comes out as a StoreError; nothing is swallowed.
 */
class DataStore
{
public:
    /// The file's name beside the program.
    static inline const QString fileName = QStringLiteral("Kelvora.db");

    enum class OpenMode { ExistingFile, CreateFile };

    /// Opens the file; an absent file (with ExistingFile), an unreadable one or one that is not
    /// an SQLite store throws StoreError with a description the user can act on.
    explicit DataStore(const QString &path, OpenMode mode = OpenMode::ExistingFile);
    ~DataStore();
    DataStore(const DataStore &) = delete;
    DataStore &operator=(const DataStore &) = delete;

    QString path() const { return m_path; }
    /// The folder that holds the file: eReturns and the programs beside the store live there.
    QString folder() const;
    QSqlDatabase database() const;

    /// Runs a statement with positional values bound in order; returns the query positioned
    /// before its first row.
    QSqlQuery exec(const QString &sql, const QVariantList &values = {}) const;
    /// First column of the first row, or an invalid QVariant when there is no row.
    QVariant scalar(const QString &sql, const QVariantList &values = {}) const;
    bool hasRows(const QString &sql, const QVariantList &values = {}) const;

    /// Existence tests on SQLite's own catalogue; names are compared without regard to case.
    bool tableExists(const QString &table) const;
    bool columnExists(const QString &table, const QString &column) const;

private:
    QString m_path;
    QString m_connectionName;
};
