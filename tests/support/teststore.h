#pragma once

#include "core/datastore.h"

#include <QList>
#include <QPair>
#include <QTemporaryDir>
#include <memory>

/// A data store of the current layout in a temporary folder, with the reference data of the
/// financial year 2026-27, upgraded as the program's start would leave it.
class TestStore
{
public:
    /// Columns and their values, as a screen or the import leaves them; QVariant() is Null.
    using Row = QList<QPair<QString, QVariant>>;

    TestStore();
    /// A copy of @p source in a folder of its own, for a test that writes to a shared store.
    explicit TestStore(const TestStore &source);

    DataStore &store() const { return *m_store; }
    QString folder() const { return m_dir.path(); }

    void insert(const QString &table, const Row &row) const;
    /// Rows of the same columns.
    void insert(const QString &table, const QStringList &columns,
                const QList<QVariantList> &rows) const;
    /// The first value of the statement's first row as text, empty when there is no row.
    QString text(const QString &sql, const QVariantList &values = {}) const;
    int count(const QString &table) const;

private:
    void open(const QByteArray &bytes);

    QTemporaryDir m_dir;
    std::unique_ptr<DataStore> m_store;
};

/// @p base with the values of @p changes put in (columns matched without regard to case).
TestStore::Row merged(TestStore::Row base, const TestStore::Row &changes);
