#pragma once

#include "statements/challanentry.h"

#include <QList>

class DataStore;
struct FormTraits;

/// Where a challan belongs: its Statement and company.
struct StatementKey
{
    int basicInfoId = 0;
    int compId = 0;
    int asstId = 1;
};

/**
 * The challans of a Statement in the data store: read for the list, inserted and updated by
 * serial number, and deleted with the serial numbers closed up behind. Writes throw StoreError
 * and are left to the caller's transaction.
 */
class ChallanRecords
{
public:
    ChallanRecords(const DataStore &store, const FormTraits &form);

    /// The challans as the list shows them: amounts "00.00", dates as dates, by serial number.
    QList<ChallanEntry> load(const StatementKey &statement) const;

    /// A new challan with a fresh ChallnID, which goes into the entry; a book entry "C". Its
    /// TotCess is written from the surcharge's control total, as the insert always has: the
    /// next recalculation of the control totals puts it right.
    void insert(ChallanEntry &entry, const StatementKey &statement) const;
    /// Rewrites the challan, and carries its section, bank code, challan number and date into
    /// every annexure row under it.
    void update(const ChallanEntry &entry, const StatementKey &statement) const;

    /// The annexure rows that hang under a challan.
    int annexureRows(int challanId, const StatementKey &statement) const;
    /// Deletes a challan and numbers the remaining ones 1, 2, ... in the order given.
    void remove(int challanId, const QList<int> &remainingIds,
                const StatementKey &statement) const;

private:
    QVariant stored(const ChallanEntry &entry, const ChallanEntry::Box &box) const;

    const DataStore &m_store;
    const FormTraits &m_form;
};
