#pragma once

#include "core/messageboxes.h"
#include "masters/companyentry.h"
#include "masters/companypropagation.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

struct Session;

/**
 * The company master's work on the store: the lists that fill the screen, the load of one
 * company, the save in one transaction with the spreading into the Statements, and the guards
 * of a delete; and the rules by deductor type that the screen applies as the user types.
 */
class CompanyMaster
{
public:
    /// One row of the company list.
    struct Row
    {
        int compId = 0;
        QString tan;
        QString pan;
        QString name;
        int groupId = 0;
        QString assessingOfficerCode;
        QString filePrefix;
        QString groupName;
    };

    /// A state or a ministry as its combo offers it.
    struct Reference
    {
        int id = 0;
        QString code;
        QString name;
    };

    /// The fields that a deductor type asks for; the others are emptied and disabled.
    struct DeductorTypeFields
    {
        bool deductorState = false; ///< cmbDState
        bool ministry = false;      ///< cmbMinistry
        bool paoDdo = false;        ///< PAO and DDO codes and registration numbers

        bool operator==(const DeductorTypeFields &) const = default;
    };

    static inline const QString noGroupText =
        QStringLiteral("Please select Group Name from drop-down list");
    static inline const QString beforeAddingTitle = QStringLiteral("Before Adding");
    static inline const QString emptyListText =
        QStringLiteral("There is no Company in this list !!");
    static inline const QString informationTitle = QStringLiteral("Information");
    static inline const QString confirmDeleteText =
        QStringLiteral("Are you sure about deleting the selected Company?");
    static inline const QString confirmationTitle = QStringLiteral("Confirmation");
    static inline const QString hasDeducteesText =
        QStringLiteral("This Company is related to existing Deductees");
    static inline const QString cannotDeleteTitle = QStringLiteral("Can not Delete");
    static inline const QString deletedText = QStringLiteral("Deleted Properly");

    /// A deductor abroad has no Indian PIN: the state "FOREIGN" takes this one.
    static constexpr int foreignStateId = 36;
    static inline const QString foreignPin = QStringLiteral("999999");

    explicit CompanyMaster(const Session &session);

    QStringList groupNames() const;
    /// The id of a group name, 0 for an empty or unknown name.
    int groupId(const QString &name) const;
    /// States by name.
    QList<Reference> states() const;
    /// Ministries in the order of their ids, "Others" last.
    QList<Reference> ministries() const;
    /// Deductor type codes in the order of mstCategory.
    QStringList deductorTypes() const;
    QString deductorTypeDescription(const QString &code) const;

    /// The companies of a group by name.
    QList<Row> companies(int groupId) const;

    /// A company of the session's assessment period, ready for an edit; none when there is no
    /// such row. State and ministry names are found from the stored ids, or from the codes
    /// where an id was never written.
    std::optional<CompanyEntry> load(int compId) const;

    /**
     * Saves a checked entry: for an edited company with Statements, asks through @p boxes
     * whether to spread the change, then writes. Returns the company's id. A failure of the
     * store rolls back everything and throws StoreError.
     */
    int save(const CompanyEntry &entry, MessageBoxes &boxes) const;

    /// Writes in one transaction: the insert, or the update with the spreading chosen.
    int write(const CompanyEntry &entry, const CompanyPropagation::Choice &choice) const;

    /// Why the company cannot be deleted (it has a Statement, or deductees), or nothing.
    std::optional<Message> deleteRefusal(int compId) const;
    void remove(int compId) const;

    /// A fresh entry for a new company of the group.
    static CompanyEntry newEntry(const QString &groupName, const QString &groupId);
    static DeductorTypeFields fieldsFor(const QString &deductorType);
    /// Where Enter in the deductor type goes: "cmbDState" or "cmbMinistry".
    static QString enterTarget(const QString &deductorType);
    /// When the person's name is left on a new company: the person's address fields still
    /// empty take the deductor's. Returns whether anything was copied.
    static bool copyAddressToPerson(CompanyEntry &entry);

private:
    const Session &m_session;
};
