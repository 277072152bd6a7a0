#pragma once

#include <QString>

class DataStore;
struct BasicInfo;
struct FormTraits;

/**
 * A Statement in the data store: the one row of the form's basic information table for a
 * company and quarter, found, loaded, copied from the company master, written and deleted with
 * its challans and annexure rows (and, on Form 24Q, its salary detail). Every write throws
 * StoreError and leaves the caller's transaction to roll it back.
 */
class StatementRecord
{
public:
    StatementRecord(const DataStore &store, const FormTraits &form, int asstId);

    /// BasicIfoID of the company's Statement for the quarter in this assessment year; 0 for none.
    int find(int compId, const QString &quarter) const;

    /// The company's particulars into the fields (by info.compId), with the state codes turned
    /// into their names, and the assessment and financial years.
    void copyCompany(BasicInfo &info) const;

    /// The stored Statement into the fields (by info.basicInfoId and info.quarter); false when
    /// there is no such row.
    bool load(BasicInfo &info) const;

    /// The company's deductor status and its category's description, as the panel shows them.
    void readDeductorStatus(BasicInfo &info) const;

    /// Writes the Statement's header back into the company master.
    void updateCompany(const BasicInfo &info) const;
    /// A new row, with the status 1 that marks a Statement never saved over.
    void insert(const BasicInfo &info) const;
    /// Rewrites the row; its status becomes 0.
    void update(const BasicInfo &info) const;

    /// The Statement with all that hangs from it.
    void remove(int basicInfoId) const;

private:
    void readStates(BasicInfo &info) const;

    const DataStore &m_store;
    const FormTraits &m_form;
    int m_asstId;
};
