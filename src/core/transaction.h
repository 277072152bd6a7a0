#pragma once

class DataStore;

/// Scoped transaction: rolls back on leaving the scope unless commit() was reached.
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
