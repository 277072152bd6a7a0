#pragma once

#include <QString>
#include <QStringList>

class DataStore;

/**
 * The tables of the data store, their columns in stored order, and their indexes. The older
 * layout is the same without what the start-up upgrade adds; a fresh store is made in it so
 * that the upgrade runs for real on every new store.
 */
namespace schema {

enum class Layout { Older, Current };

/// The names of the tables of a layout, in the order they are created.
QStringList tableNames(Layout layout);

/// Creates one table of the current layout, with its indexes.
void createTable(const DataStore &store, const QString &table, Layout layout = Layout::Current);

/// Creates the indexes of a table that it does not have yet: a unique one on its key and an
/// ordinary one on each column that rows are joined or searched on.
void createIndexes(const DataStore &store, const QString &table);

/// Creates every table of the layout, with its indexes.
void createAll(const DataStore &store, Layout layout);

/// The declaration of a column as ALTER TABLE ... ADD COLUMN takes it ("DStatus VARCHAR(1)
/// COLLATE NOCASE").
QString columnDefinition(const QString &table, const QString &column);

/// Whether a column holds whole numbers only, so that an amount written to it loses its paise
/// as the store has always rounded them (half to even).
bool isWholeNumber(const QString &table, const QString &column);

} // namespace schema
