#pragma once

class DataStore;

/// Scoped write transaction: rolls back on leaving the scope unless commit() was reached. It
/// holds the store's write lock from the start, and on a store opened for viewing only it is
/// refused (StoreError with DataStore::viewOnlyText) before anything is read or written.
class Transaction
{
public:
    explicit Transaction(const DataStore &store);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    const DataStore &m_store;
    bool m_open = true;
};
