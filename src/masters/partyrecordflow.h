#pragma once

#include "core/clsoperation.h"
#include "core/fieldfailure.h"
#include "core/formtraits.h"
#include "masters/partylistmodel.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class MessageBoxes;
struct Session;

/// The fields that the employee and the deductee screens have in common.
struct PartyFields
{
    QString groupName; ///< cmbGrp
    int groupId = 0;   ///< txtGrpId
    int id = 0;        ///< the read-only id field; 0 shows as empty
    QString name;
    QString pan;
    QString panRef;
};

/**
 * The record flow that the employee and deductee masters share: the group and its list, the
 * commands of the button bar, loading a row for editing, the delete with its guards, and the PAN
 * rules with their placeholders. The save is PartyMaster's. The screen copies its fields in
 * before each action and shows the fields and the state afterwards; the focus request names the
 * field by its objectName.
 */
class PartyRecordFlow : public OperationHandler
{
public:
    /// The two states of the button bar, and the third that the list's Delete key leaves.
    enum class Bar { Browse, Editing, AllEnabled };

    struct Group
    {
        int id = 0;
        QString name;
    };

    /// How the two masters differ in what they share.
    struct Traits
    {
        QString table;        ///< mstEmployee
        QString idColumn;     ///< EmpID
        QString nameColumn;   ///< EmpName
        QString numberColumn; ///< the party's id in the statement rows: EmpNo
        QString word;         ///< "Employee", as the messages name the party
        QString nameField;    ///< txtEmpName
        QString blankNameText;
        QList<FormKind> forms; ///< the forms whose rows name the party
        bool nameCheckInEditModesOnly = false;
        QString listStatement; ///< the group's id bound
        QStringList listHeaders;
        int listIdColumn = 0;
        int listNameColumn = 1;
        int listPanColumn = 2;
    };

    static inline const QString panNotAvailable = QStringLiteral("PANNOTAVBL");
    static inline const QString panInvalid = QStringLiteral("PANINVALID");
    static inline const QString panApplied = QStringLiteral("PANAPPLIED");

    static inline const QString groupField = QStringLiteral("cmbGrp");
    static inline const QString panField = QStringLiteral("txtPAN");
    static inline const QString panRefField = QStringLiteral("txtPanRef");
    static inline const QString listField = QStringLiteral("lstvDedt");

    static inline const QString badPanText = QStringLiteral("Please correct the Pan.");
    static inline const QString unableToDeleteText =
        QStringLiteral("Unable to Delete the Record, Please Verify the data and try again");
    static inline const QString deletedText = QStringLiteral("Deleted");
    static inline const QString noDataText = QStringLiteral("No data Found");
    static inline const QString noDataTitle = QStringLiteral("Indication");

    /// The placeholders that stand in a PAN field instead of a PAN and skip the pattern test.
    static bool isPanPlaceholder(const QString &pan);
    /// Whether the field says that the party has no PAN: blank, applied for, or not available.
    static bool isPanNotAvailable(const QString &pan);
    /// Whether leaving the field with this text asks for the PAN reference: blank or applied
    /// for, which the field turns into "PANNOTAVBL". Any other text, that word too, does not.
    static bool asksPanRef(const QString &pan);
    /// The PAN as it is written: trimmed, and "PANNOTAVBL" for a blank one.
    static QString storedPan(const QString &pan);
    /// The PAN field after it is left: "PANNOTAVBL" when the party has no PAN.
    static QString panAfterLeaving(const QString &pan);
    /// The pattern test of the save; placeholders pass.
    static std::optional<FieldFailure> checkPan(const QString &pan);

    ClsOperation &operation() { return m_operation; }
    const ClsOperation &operation() const { return m_operation; }
    PartyListModel &list() { return m_list; }
    const PartyListModel &list() const { return m_list; }

    virtual PartyFields &fields() = 0;
    virtual const PartyFields &fields() const = 0;

    /// The screen's load: the groups, the first of them chosen and its list, empty fields.
    void load();
    const QList<Group> &groups() const { return m_groups; }
    /// The group combo's choice changed: its id, and the list of its parties.
    void groupChanged();

    /// A click on cmd(index): 0 Add New, 1 Edit, 2 Save, 3 Cancel, 4 Delete; any click ends by
    /// putting "PANNOTAVBL" in the PAN field, as the screens have always done, without opening
    /// the PAN reference.
    void command(int index);
    /// Double click (or Enter) on a list row: the row into the fields, editing it.
    void loadRow(int row);
    /// The Delete key on the list.
    void deleteKey();
    /// The PAN field was left (or Enter was pressed in it).
    void panLeft();

    /// The list row that Edit and Delete work on; -1 for none.
    void setSelectedRow(int row) { m_selectedRow = row; }
    int selectedRow() const { return m_selectedRow; }

    Bar bar() const { return m_bar; }
    bool listEnabled() const { return m_listEnabled; }
    bool groupEnabled() const { return m_groupEnabled; }
    bool panRefEnabled() const { return m_panRefEnabled; }
    /// The objectName of the field that takes the focus after the last action, once.
    QString takeFocus();
    /// The list column that holds the parties' names (where type-ahead searches).
    int listNameColumn() const { return m_traits.listNameColumn; }

    void beforeAdd(bool &cancel) override;
    void afterCancel() override;
    void beforeDelete(bool &cancel) override;
    void deleteRecord(bool &cancel) override;
    void beforePrint(bool &cancel) override;

protected:
    PartyRecordFlow(Session &session, MessageBoxes &boxes, Traits traits);

    Session &session() const { return m_session; }
    const Traits &traits() const { return m_traits; }
    const QList<FormKind> &forms() const { return m_traits.forms; }
    MessageBoxes &boxes() const { return m_boxes; }
    int mode() const { return m_operation.operationMode(); }
    void requestFocus(const QString &field) { m_focus = field; }
    /// Runs a step that reads the store (a save reports its own failure); a failure shows the
    /// store's description as a read that failed.
    bool guarded(const std::function<void()> &step);
    /// Back to the list once a party is saved: empty fields showing the next id, the list
    /// read again.
    void showSaved();

    /// Empties the screen's own fields, as clearing the controls does.
    virtual void clearOwnFields() = 0;
    /// The rest of a row, read by the party's id, after the list gave id, name and PAN.
    virtual void loadOwnFields(int id) = 0;
    /// What "Add New" does before the add: the employee's default dates.
    virtual void readDefaults() {}
    /// What every click ends with beyond the PAN.
    virtual void commandTail() {}

private:
    void clearFields();
    void reloadList();

    Session &m_session;
    MessageBoxes &m_boxes;
    Traits m_traits;
    ClsOperation m_operation;
    PartyListModel m_list;
    QList<Group> m_groups;
    int m_selectedRow = -1;
    Bar m_bar = Bar::Browse;
    bool m_listEnabled = true;
    bool m_groupEnabled = true;
    bool m_panRefEnabled = false;
    QString m_focus;
};
