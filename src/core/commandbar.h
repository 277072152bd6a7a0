#pragma once

#include <QString>

class ClsOperation;
class QAbstractButton;
class QWidget;

// The button bar of a record screen is the array of buttons named "cmd(0)", "cmd(1)", ...
// found anywhere on the form by objectName.
namespace commandbar {

// The button "cmd(index)" of the form, or null when the form has none.
QAbstractButton *button(QWidget *form, int index);

// Enables every button of the bar, then by the action word: "Load" and "Cancel" disable
// Edit and Cancel, "Add" disables Add and Cancel, "Edit" puts the operation in modify mode;
// any other word (the list's Delete key passes "True") leaves all of them enabled.
void enableCommands(QWidget *form, const QString &action, ClsOperation *operation);

// The two states of a master screen's bar: browsing (Add, Edit and Delete usable) or editing
// a record (Save and Cancel usable).
void setCommandButtons(QWidget *form, bool browse);

} // namespace commandbar
