#pragma once

#include <QStringList>

class DataStore;
struct AnnexureEntry;
struct FormTraits;

/**
 * The parties that annexure rows are taken from: the group's deductees in the deductee master,
 * or on Form 24Q its employees in the employee master. Store failures throw StoreError.
 */
class AnnexureParties
{
public:
    AnnexureParties(const DataStore &store, const FormTraits &form);

    /// The names of the group's parties, in order, for the name's combo.
    QStringList names(int groupId) const;
    /// The group's party of the row's name into the row: its id in the master and its
    /// particulars (an employee's designation, PAN and period; a deductee's code, PAN, address,
    /// state and PIN). False, with the id 0, for a name that the group lacks.
    bool fill(AnnexureEntry &entry, int groupId) const;

private:
    QString table() const;

    const DataStore &m_store;
    const FormTraits &m_form;
};
