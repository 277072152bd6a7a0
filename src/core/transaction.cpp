#include "core/transaction.h"

#include "core/datastore.h"
#include "core/storeerror.h"

#include <QSqlError>

namespace {

StoreError errorOf(const QSqlDatabase &db)
{
    const QSqlError error = db.lastError();
    return StoreError(error.nativeErrorCode(), error.text().trimmed());
}

} // namespace

Transaction::Transaction(const DataStore &store) : m_store(store)
{
    if (store.isViewOnly())
        throw StoreError({}, DataStore::viewOnlyText);
    // The write lock is taken at the start, not at the first write: the ids read as the
    // largest plus one inside the transaction stay free until it commits, and a second writer
    // waits out the busy timeout here instead of failing when its read turns into a write.
    m_store.exec(QStringLiteral("BEGIN IMMEDIATE"));
}

Transaction::~Transaction()
{
    if (m_open)
        m_store.database().rollback();
}

void Transaction::commit()
{
    QSqlDatabase db = m_store.database();
    if (!db.commit())
        throw errorOf(db);
    m_open = false;
}
