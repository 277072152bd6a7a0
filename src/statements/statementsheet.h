#pragma once

#include "core/clsoperation.h"
#include "core/fieldrules.h"
#include "statements/basicinfo.h"
#include "statements/statementrecord.h"

#include <QString>

class MessageBoxes;
class StoreError;
struct FormTraits;
struct Session;

/**
 * The shell of a statement screen without its widgets: finding or starting the Statement of the
 * session's company and quarter, the basic information with its checks, the Save and Delete of
 * the whole Statement through the record operation, which panels may be reached, and the close
 * question. The screen copies its fields into info() before each action and shows them, the
 * panel states and the requested focus afterwards.
 */
class StatementSheet : public OperationHandler
{
public:
    /// The panels in the order of their buttons; Salary stands on Form 24Q only.
    enum class Panel { BasicInfo = 1, Challan = 2, Annexure = 3, Salary = 4 };

    static inline const QString savedText = QStringLiteral("Form has been saved successfully");
    static inline const QString savedTitle = QStringLiteral("Informing");
    static inline const QString unableToSaveText =
        QStringLiteral("Unable to Save the Record, Please verfy the data and try again");
    static inline const QString closeQuestion =
        QStringLiteral("Do you want to Save and Exit the Form?");
    static inline const QString decreaseText =
        QStringLiteral("You cannot decrease the value as records are already created");
    /// The state whose deductors have no PIN of their own.
    static constexpr int foreignStateId = 36;
    static inline const QString foreignPincode = QStringLiteral("999999");

    StatementSheet(Session &session, MessageBoxes &boxes, const FormTraits &form);

    const FormTraits &form() const { return m_form; }
    Session &session() const { return m_session; }
    MessageBoxes &boxes() const { return m_boxes; }
    BasicInfo &info() { return m_info; }
    const BasicInfo &info() const { return m_info; }
    ClsOperation &operation() { return m_operation; }

    /// The Statement's key once it has a row; 0 before the first save.
    int basicInfoId() const;
    int compId() const;

    /// The screen's first activation: the session's Statement loaded with its counts, or a new
    /// one begun from the company master. The session's Statement id is consumed.
    void open();

    /// cmd(1): the checks and the save of the basic information. True when saved.
    bool save();
    /// cmd(3): the question and the delete of the whole Statement. True when it is gone and
    /// the screen is to close without the close question.
    bool deleteStatement();
    /// Whether the screen may close: the close question, and the save that Yes asks for.
    bool mayClose();
    /// The screen is gone: the session forgets the Statement.
    void closed();

    /// A panel button: the basic information panel refreshes its counts and deductor status.
    void showPanel(Panel panel);
    Panel panel() const { return m_panel; }
    bool panelEnabled(Panel panel) const;
    bool deleteEnabled() const { return m_deleteEnabled; }
    /// The application's receipt field stands only while the TAN is applied for.
    bool tanReceiptShown() const;

    /// The revised-return combo's choice: "YES" asks for the revised receipt number, "NO"
    /// puts it back to 0.
    void setRevised(bool revised);
    /// A state chosen in cmbState or (personBlock) cmbPState: its id and code.
    void stateChosen(bool personBlock);
    /// Leaving a state combo; false when it refused.
    bool stateLeft(bool personBlock);
    /// Leaving the declared challan count; false when it refused and put the count back.
    bool challanCountLeft();

    /// The count of challans and annexure rows stored under the Statement.
    int storedChallans() const;
    int storedAnnexureRows() const;

    /// The objectName of the field that takes the focus after the last action, once.
    QString takeFocus();
    void requestFocus(const QString &field) { m_focus = field; }
    /// A date that its check refused: the message, the date set back as the check says and the
    /// focus on its field. True when the check passed.
    bool acceptDate(const std::optional<fieldrules::DateFailure> &failure, QDate &date);
    /// Shows a store failure with its description.
    void reportStoreError(const StoreError &error) const;

    void beforeAdd(bool &cancel) override;
    void validateData(bool &cancel) override;
    void saveProcedure(bool &cancel) override;
    void beforeDelete(bool &cancel) override;
    void deleteRecord(bool &cancel) override;

private:
    void enablePanels(bool enabled);

    Session &m_session;
    MessageBoxes &m_boxes;
    const FormTraits &m_form;
    StatementRecord m_record;
    ClsOperation m_operation;
    BasicInfo m_info;
    Panel m_panel = Panel::BasicInfo;
    bool m_panelsEnabled = false;
    bool m_deleteEnabled = false;
    QString m_focus;
};
