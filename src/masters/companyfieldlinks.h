#pragma once

#include "masters/companymaster.h"

#include <QObject>

class CompanyFields;
class MessageBoxes;
class QComboBox;
class QLineEdit;

/// What a choice in one of the company screen's combos fills and enables: the group's id, the
/// id and code of each state and of the ministry, the fields that the deductor type asks for
/// (emptying the others) and the caption of the status. The lists are filled once, at start.
class CompanyFieldLinks : public QObject
{
public:
    CompanyFieldLinks(const CompanyMaster &master, MessageBoxes &boxes,
                      const CompanyFields &fields);

    /// The state of that name in the list (in any case); nullptr when the list lacks it.
    const CompanyMaster::Reference *state(const QString &name) const;

private:
    void fillLists();

    void groupNameChanged();
    void stateChanged(const QString &combo);
    void ministryChanged();
    void deductorTypeChanged();
    void statusChanged();

    void reportStoreError(const QString &description);

    QLineEdit *edit(const QString &name) const;
    QComboBox *combo(const QString &name) const;

    const CompanyMaster &m_master;
    MessageBoxes &m_boxes;
    const CompanyFields &m_fields;
    QList<CompanyMaster::Reference> m_states;
    QList<CompanyMaster::Reference> m_ministries;
};
