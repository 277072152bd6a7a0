#pragma once

#include "core/fieldfailure.h"
#include "masters/companyentry.h"

#include <optional>

class DataStore;
class MessageBoxes;

/**
 * The checks of the company screen: those made when a field is left, and the save's checks in
 * their fixed order. A check returns the refusal (message and the field that takes the focus)
 * rather than showing it; only the warning about a name and PAN already held is a question.
 */
class CompanyValidation
{
public:
    /// What the save's checks decided.
    struct Verdict
    {
        std::optional<FieldFailure> refusal; ///< to show, with the focus on its field
        bool declined = false;               ///< the user answered No to the warning
        bool passed() const { return !refusal && !declined; }
    };

    static inline const QString enterTanText = QStringLiteral("Please enter TAN");
    static inline const QString enterCompanyNameText = QStringLiteral("Please enter Company Name");
    static inline const QString enterDeductorTypeText =
        QStringLiteral("Please enter Deductor Type");
    static inline const QString enterAddressText = QStringLiteral("Please enter Address");
    static inline const QString enterStateText = QStringLiteral("Please enter State");
    static inline const QString enterPinText = QStringLiteral("Please enter PIN");
    static inline const QString enterPersonNameText = QStringLiteral("Please enter Person Name");
    static inline const QString enterDesignationText = QStringLiteral("Please enter Designation");
    static inline const QString enterPrefixText = QStringLiteral("Please enter File Name Prefix");
    static inline const QString properGroupText =
        QStringLiteral("Please select proper Group Name");
    static inline const QString stateFromListText =
        QStringLiteral("Please select State Name from drop-down list");
    static inline const QString deductorStateText =
        QStringLiteral("Please select State Name where Deductor Type 'S','E','H','N'");
    static inline const QString ministryText =
        QStringLiteral("Please select Ministry Name where Deductor Type 'A','D','G'");
    static inline const QString paoCodeText =
        QStringLiteral("Please select PAO Code For Deductor Type 'A'");
    static inline const QString ddoCodeText =
        QStringLiteral("Please select DDO Code For Deductor Type 'A'");
    static inline const QString otherMinistryText =
        QStringLiteral("Please give Ministry Name of 'Others'");
    static inline const QString tanExistsText =
        QStringLiteral("TAN already exists. Please check.");
    static inline const QString nameAndPanExistText =
        QStringLiteral("Company Name & Pan No. Already Exits.\nDo you want to Continue.");
    static inline const QString prefixExistsText =
        QStringLiteral("File Prefix already exists. Please check.");
    static inline const QString shortTanText = QStringLiteral("TAN sould be a 10 digit number");
    static inline const QString shortPanText = QStringLiteral("PAN sould be a 10 digit number");
    static inline const QString deductorTypeFromListText =
        QStringLiteral("Please select Deductor Type from the drop-down list");
    static inline const QString statusText =
        QStringLiteral("Please Enter 'C' For Central Govt. / 'O' For Others.");

    explicit CompanyValidation(const DataStore &store);

    /**
     * The save's checks in order: the required fields, the two mail addresses, the chosen group
     * and states, what the deductor type asks for, the TAN that another company holds
     * ("TANAPPLIED" excepted), the warning about a name and PAN already held, asked through
     * @p boxes, and the file prefix that another company uses. The first that fails decides.
     */
    Verdict validate(const CompanyEntry &entry, MessageBoxes &boxes) const;

    /// The checks on the fields alone, before those that read the store.
    static std::optional<FieldFailure> checkFields(const CompanyEntry &entry);
    std::optional<FieldFailure> checkTan(const CompanyEntry &entry) const;
    /// The Yes/No question when another company (the one edited excepted) has the same name
    /// and PAN; a warning only, as two such rows may be stored.
    std::optional<Message> nameAndPanWarning(const CompanyEntry &entry) const;
    std::optional<FieldFailure> checkPrefix(const CompanyEntry &entry) const;

    // Checks when a field is left.

    /// A TAN typed but shorter than ten characters.
    static std::optional<FieldFailure> leavingTan(const QString &text);
    /// What the PAN field holds after it is left: "PANNOTREQD" for a blank.
    static QString panOnLeaving(const QString &text);
    /// A PAN (after panOnLeaving) shorter than ten characters.
    static std::optional<FieldFailure> leavingPan(const QString &text);
    static std::optional<FieldFailure> leavingDeductorType(const QString &text);
    static std::optional<FieldFailure> leavingStatus(const QString &text);
    /// A state field left with a name that is not in the list.
    static FieldFailure stateNotInList(const QString &field);

private:
    const DataStore &m_store;
};
