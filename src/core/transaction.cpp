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
    QSqlDatabase db = m_store.database();
    if (!db.transaction())
        throw errorOf(db);
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
