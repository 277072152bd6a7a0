#pragma once

#include "masters/partyformkeyboard.h"

#include <QList>
#include <QWidget>

#include <memory>

class MasterButtonBar;
class MessageBoxes;
class PartyMaster;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QTreeView;

// The screen that the employee and the deductee masters share: group combo, id, name and PAN
// fields, the list of the group's parties, the cmd bar and the close button. The decisions are
// PartyMaster's; the screen copies its fields into it before each action and shows the fields
// and the state that the action left. Enter moves along the fields (PartyFormKeyboard); every
// control can be reached from the keyboard.
class PartyMasterForm : public QWidget
{
    Q_OBJECT

public:
    // Does what "Add New" does, at once, or as soon as the screen shows when it is not shown
    // yet; an entry already under way is left alone. The statement screens open the master
    // this way to add a party.
    void startInAddMode();

protected:
    PartyMasterForm(PartyMaster &master, MessageBoxes &boxes, QWidget *parent);

    // Lays out the screen with the derived screen's own fields below the PAN, wires the controls,
    // loads the groups and the list. ownOrder is the order in which Enter moves through them;
    // Tab follows the order in which the fields were made, which must be the same.
    void finishSetUp(const QString &idCaption, const QString &nameCaption,
                     QGridLayout *ownFields, const QList<QWidget *> &ownOrder);

    // The screen's own fields into the logic, and back.
    virtual void readOwnFields() = 0;
    virtual void showOwnFields() = 0;
    // The check made when one of the screen's own fields is left; false keeps the focus there.
    virtual bool leaveOwnField(QWidget *field);

    // Copies every field into the logic, the list's selected row included.
    void readFields();
    // Shows what the logic holds: the fields, the bar, what is enabled, and the focus.
    void showAll();

    // Sets a text only when it differs, so that the caret and the selection stay.
    static void setText(QLineEdit *edit, const QString &text);
    // An editable combo whose text is upper-cased as typed and limited in length.
    static void upperCaseCombo(QComboBox *combo, int maxLength);
    // Keeps a field of a short code about as wide as the code.
    static void fitWidth(QWidget *field, int characters);

    void showEvent(QShowEvent *event) override;

    MessageBoxes &m_boxes;
    QComboBox *m_group;
    QLineEdit *m_groupId;
    QLineEdit *m_id;
    QLineEdit *m_name;
    QLineEdit *m_pan;
    QLineEdit *m_panRef;
    QTreeView *m_list = nullptr; // made by finishSetUp(), like the bar and the close button
    MasterButtonBar *m_bar = nullptr;
    QPushButton *m_close = nullptr;

private:
    void runCommand(int index);
    void loadListRow();
    void listDeleteKey();
    void groupChosen();
    void showFields();
    void showState();
    void selectListRow();
    bool leaveField(QWidget *field);

    PartyMaster &m_master;
    // Made with the list; destroyed before the widgets it watches, so that no check runs
    // while the screen is torn down.
    std::unique_ptr<PartyFormKeyboard> m_keyboard;
    bool m_addOnShow = false;
    bool m_shown = false;
};
