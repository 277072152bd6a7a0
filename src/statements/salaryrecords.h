#pragma once

#include "statements/salaryentry.h"

#include <QList>
#include <QString>
#include <QStringList>

class DataStore;
struct FormTraits;

/**
 * The salary rows of Form 24Q's Statements in the data store, and the employees they are
 * chosen from. A row is written by position from the boxes of the salary panel; reading gives
 * the boxes back with amounts "0.00". Writes throw StoreError and are left to the caller's
 * transaction.
 */
class SalaryRecords
{
public:
    SalaryRecords(const DataStore &store, const FormTraits &form);

    /// The Statement's salary rows in the order of their keys.
    QList<SalaryEntry> load(int basicInfoId) const;
    /// One row by its key; an entry without a key when there is none.
    SalaryEntry loadOne(int salaryId) const;
    int nextSalaryId() const;

    /// The Statement of a company and quarter that a new row goes under; the next key of the
    /// Statements when it has none yet.
    int statementId(int compId, int asstId, const QString &quarter) const;

    /// A new row under a fresh key, which goes into the entry.
    void insert(SalaryEntry &entry, int basicInfoId) const;
    void update(const SalaryEntry &entry, int basicInfoId) const;
    /// Deletes a row and numbers the remaining ones 1, 2, ... in the order given.
    void remove(int salaryId, int basicInfoId, const QList<int> &remainingIds) const;

    /// The names of the group's employees, in order.
    QStringList employeeNames(int groupId) const;
    /// Fills the employee's details from the master; false when the group has no employee of
    /// the entry's name.
    bool fillEmployee(SalaryEntry &entry, int groupId) const;

private:
    /// The stored columns of a row, but for its key and Statement, with their values.
    QList<QPair<QString, QVariant>> values(const SalaryEntry &entry) const;
    QVariant amountValue(const QString &column, const QString &text) const;

    const DataStore &m_store;
    const FormTraits &m_form;
};
