#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

class StoreError;

/**
 * The one connection to the data store file. Every statement goes through here with its values
 * bound, and every failure comes out as a StoreError; nothing is swallowed.
 */
class DataStore
{
public:
    /// The file's name beside the program.
    static inline const QString fileName = QStringLiteral("Kelvora.db");

    /// What a save says when the store was opened for viewing only.
    static inline const QString viewOnlyText =
        QStringLiteral("The data store is open for viewing only: nothing can be saved.");

    /// How long a statement waits for another program's write to the file to end before it
    /// fails as locked.
    static constexpr int busyTimeoutMs = 20000;

    /// ReadOnly opens the file so that SQLite itself never writes to it, for a look at a file
    /// that may not be a store of this program.
    enum class OpenMode { ExistingFile, CreateFile, ReadOnly };

    /// Opens the file; an absent file (with ExistingFile), an unreadable one or one that is not
    /// an SQLite store throws StoreError with a description the user can act on.
    explicit DataStore(const QString &path, OpenMode mode = OpenMode::ExistingFile);
    /// The refusal of a store file that is not there.
    static StoreError missingFile(const QString &path);
    ~DataStore();
    DataStore(const DataStore &) = delete;
    DataStore &operator=(const DataStore &) = delete;

    QString path() const { return m_path; }
    /// The folder that holds the file: eReturns and the programs beside the store live there.
    QString folder() const;
    QSqlDatabase database() const;

    /// From now on every write is refused with viewOnlyText, by SQLite as well as by
    /// Transaction, so that a screen that saves shows why nothing was kept.
    void setViewOnly();
    bool isViewOnly() const { return m_viewOnly; }

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
    bool m_viewOnly = false;
};
