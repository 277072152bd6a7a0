#pragma once

#include "masters/partymaster.h"

#include <array>

/// The fields of the deductee screen.
struct DeducteeFields : PartyFields
{
    QString code;                   ///< cmbDeducteeCode: "01" company, "02" other
    std::array<QString, 5> address; ///< txtAdd1 to txtAdd5
    QString state;                  ///< cmbState's text
    int stateId = 0;                ///< txtStID; 0 while the text names no state
    QString stateCode;              ///< txtStateCode
    QString pin;                    ///< txtPincode
};

/**
 * The deductee master (frmDeducteeMaster): the payees of a group for Forms 26Q, 27Q and 27EQ. A
 * change to a deductee who already has rows in those forms is carried into them in the same
 * transaction.
 */
class DeducteeMaster : public PartyMaster
{
public:
    struct State
    {
        int id = 0;
        QString code;
        QString name;
    };

    /// The state whose deductees have no Indian PIN; their PIN is "999999".
    static constexpr int foreignStateId = 36;
    static inline const QString foreignPin = QStringLiteral("999999");

    static inline const QString idField = QStringLiteral("txtDeducteeID");
    static inline const QString nameField = QStringLiteral("txtDeducteeName");
    static inline const QString codeField = QStringLiteral("cmbDeducteeCode");
    static inline const QString stateField = QStringLiteral("cmbState");
    static inline const QString pinField = QStringLiteral("txtPincode");

    static inline const QString companyCode = QStringLiteral("01");
    static inline const QString nonCompanyCode = QStringLiteral("02");
    static inline const QString blankNameText = QStringLiteral("Please Enter Deduatee Name");
    static inline const QString blankCodeText = QStringLiteral("Please enter Deductee Code");
    static inline const QString badStateText = QStringLiteral("Please select proper State Name");
    static inline const QString blankPinText = QStringLiteral("Please enter Pin Code");
    static inline const QString badCodeText =
        QStringLiteral("Enter 01 for Companies / 02 for other than Companies");

    /// lbl0102's caption for a deductee code; empty for any other text.
    static QString codeCaption(const QString &code);

    DeducteeMaster(Session &session, MessageBoxes &boxes);

    DeducteeFields &fields() override { return m_fields; }
    const DeducteeFields &fields() const override { return m_fields; }

    /// The states of the state combo, by name.
    const QList<State> &states() const { return m_states; }
    /// The state named by a text, without regard to case; none when no state has that name.
    std::optional<State> findState(const QString &name) const;

    /// A state was chosen in the combo: its id and code, and the PIN of a foreign deductee.
    void stateChosen();
    /// The state combo was left; false, after the message, when its text names no state, a
    /// blank text too.
    bool stateLeft();
    /// The code combo was left; false, after the message, for a code other than 01 or 02, a
    /// blank one too.
    bool codeLeft();

    /// UpdateDeducteeInfo: the deductee's name, code, address, PAN, state and PIN into his rows
    /// of Forms 26Q, 27Q and 27EQ.
    void updateDeducteeInfo();

protected:
    std::optional<FieldFailure> checkOwnFields() const override;
    void clearOwnFields() override;
    void loadOwnFields(int id) override;
    void insertRecord() override;
    void updateRecord() override;
    void updateStatementRows() override { updateDeducteeInfo(); }

private:
    QVariantList addressValues() const;

    DeducteeFields m_fields;
    QList<State> m_states;
};
