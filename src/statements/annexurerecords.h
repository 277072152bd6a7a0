#pragma once

#include "returnfile/controltotals.h"
#include "statements/annexureentry.h"
#include "statements/challanrecords.h"

#include <QList>

class DataStore;
struct ChallanEntry;
struct FormTraits;

/// Where an annexure row belongs: its Statement and its challan.
struct ChallanRowsKey
{
    StatementKey statement;
    int challanId = 0;
};

/**
 * The annexure rows of one challan in the data store: read for the list in the order of their
 * numbers, inserted with the next number under the challan, updated, and deleted. A row with tax
 * deposited carries the challan's date, bank code and number; one without has none. Writes throw
 * StoreError and are left to the caller's transaction.
 */
class AnnexureRecords
{
public:
    AnnexureRecords(const DataStore &store, const FormTraits &form);

    /// The rows as the list shows them: the columns it needs, in the order of their numbers.
    QList<AnnexureEntry> load(const ChallanRowsKey &key) const;
    /// One row whole, for changing it; an empty entry when it is gone.
    AnnexureEntry read(int rowId, const ChallanRowsKey &key) const;
    /// A new row under the challan; its number goes into the entry.
    void insert(AnnexureEntry &entry, const ChallanEntry &challan,
                const ChallanRowsKey &key) const;
    void update(const AnnexureEntry &entry, const ChallanEntry &challan,
                const ChallanRowsKey &key) const;
    void remove(int rowId, const ChallanRowsKey &key) const;

    /// A row's five amounts that its challan's control totals sum.
    static AnnexureListRow controlAmounts(const AnnexureEntry &row);
    /// Writes the challan's control totals from its rows' amounts; throws StoreError, or
    /// std::range_error for a sum past the totals' range.
    void writeControlTotals(const ChallanRowsKey &key,
                            const QList<AnnexureListRow> &amounts) const;

    /// A saved row as load() would read it back: amounts as the store keeps them (whole rupees
    /// in whole-number columns) and as the list shows them.
    AnnexureEntry asListed(const AnnexureEntry &entry) const;

private:
    /// An amount as the column stores it.
    QVariant amount(const QString &column, const QString &text) const;
    /// The columns a row writes besides its keys, with their values.
    QList<QPair<QString, QVariant>> values(const AnnexureEntry &entry,
                                           const ChallanEntry &challan) const;

    const DataStore &m_store;
    const FormTraits &m_form;
};
