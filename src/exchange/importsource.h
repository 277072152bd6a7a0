#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

class DataStore;

/**
 * The data store of an earlier year, attached read-only to the current store's connection for
 * the time of an import, so that whole tables are copied by the engine itself. Nothing is ever
 * written to it.
 *
 * A file that is the current store, that cannot be read, that is damaged or that is not a store
 * of the program is refused (ImportError) before anything is written.
 */
class ImportSource
{
public:
    /// The name under which the source is attached; statements name its tables with it.
    static inline const QString schemaName = QStringLiteral("importsource");

    static inline const QString currentStoreText =
        QStringLiteral("The selected file is the current database. Select the database of the "
                       "previous year.");
    static inline const QString unreadableText =
        QStringLiteral("The selected file cannot be opened (%1).");
    static inline const QString damagedText =
        QStringLiteral("The selected database is damaged (%1).");
    static inline const QString foreignText =
        QStringLiteral("The selected file is not a database of Kelvora (%1).");

    /// Attaches the file and checks that it holds the tables named.
    ImportSource(const DataStore &store, const QString &path, const QStringList &tables);
    ~ImportSource();
    ImportSource(const ImportSource &) = delete;
    ImportSource &operator=(const ImportSource &) = delete;

    /// Whether the source's table has the column; names are compared without regard to case.
    bool hasColumn(const QString &table, const QString &column) const;

    /// A refusal of the file as not being a store of the program, for the reason given.
    static QString foreign(const QString &reason);

private:
    void check(const QStringList &tables);

    const DataStore &m_store;
    QHash<QString, QSet<QString>> m_columns; ///< lower-case names, by lower-case table
};
