#pragma once

#include "core/datastore.h"

#include <QList>
#include <QMap>
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

    /// Writes garbage over the pages of three reference lists that neither a start nor a batch
    /// reads, as a failing disk or a stray program leaves a store.
    void overwritePages() const;
    /// Cuts the file to half its length, as a copy that stopped part-way leaves it.
    void cutShort() const;
    /// Leaves the store as a program killed in the middle of a save leaves it: some changed
    /// pages written, and beside it the journal of what they held before.
    void cutOffMidSave() const;

private:
    void open(const QByteArray &bytes);

    QTemporaryDir m_dir;
    std::unique_ptr<DataStore> m_store;
};

/// @p base with the values of @p changes put in (columns matched without regard to case).
TestStore::Row merged(TestStore::Row base, const TestStore::Row &changes);

/// Lock files as programs that ended without letting go leave them beside a store, by what left
/// them: "crashed" names a process of this machine that has ended, "power cut (empty)" and
/// "power cut (garbled)" name none, "other machine" names a process on another machine.
const QMap<QString, QByteArray> &leftLocks();

/// The bytes of the file, empty when it cannot be read.
QByteArray contentsOf(const QString &path);
