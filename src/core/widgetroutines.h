#pragma once

#include <QString>
#include <QVariant>

class DataStore;
class QComboBox;
class QTreeWidget;
class QWidget;

// The routines every screen shares for filling, clearing and trimming its controls.
namespace widgetroutines {

// Replaces the combo's rows with those of records::comboTexts and leaves nothing chosen.
// Refilling is not a choice of the user, so it emits no selection signal. A store failure
// passes to the caller and leaves the combo as it was.
void fillCombo(QComboBox *combo, const DataStore &store, const QString &table,
               const QString &column, bool sorted, const QString &statement = {},
               bool descending = false, const QVariantList &values = {});

// The same with an empty first row, so that the choice can be left open; a statement without
// rows leaves the combo empty, without the blank row.
void fillComboWithBlank(QComboBox *combo, const DataStore &store, const QString &table,
                        const QString &column, bool sorted, const QString &statement = {},
                        bool descending = false, const QVariantList &values = {});

// Blanks a form for a fresh entry. The dynamic property "tag" of a control, in upper case,
// decides: "PJ" keeps a text box or a combo (values carried from one entry to the next),
// "CLEAR" or "CL" marks a label that shows entered data and is emptied. Text boxes (line and
// plain-text edits) are emptied. A combo loses its choice, an editable one its text too, except
// the yes/no and book-entry combos (cmbYesNo, cmbChbookentry, cmbDedbookentry), whose default
// stays. Other labels and all other controls are left alone.
void clearControls(QWidget *form);

// Takes the selected rows out of a list, as after the rows were deleted from the store. The
// rows kept have their first column trimmed and, in a list of two columns or more, their last
// column emptied.
void removeSelectedRows(QTreeWidget *list);

} // namespace widgetroutines
