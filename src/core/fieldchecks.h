#pragma once

#include <QString>

class MessageBoxes;
class QComboBox;
class QLineEdit;
class QWidget;
struct FieldFailure;

// The field checks of the screens on their widgets: each runs the rule, shows its box and puts
// the focus on the field.
namespace fieldchecks {

// Gives the widget the focus when it can take it (enabled and shown).
void focusIfPossible(QWidget *widget);

// Shows the failure's box and puts the focus on the field at fault.
void report(MessageBoxes &boxes, const FieldFailure &failure, QWidget *field);

// True, after the box, when the text is blank; an empty message gives "Cannot take blank value".
bool isBlank(MessageBoxes &boxes, QLineEdit *edit, const QString &message = {});
bool isBlank(MessageBoxes &boxes, QComboBox *combo, const QString &message = {});

// Warns when the text without its points is longer than the maximum; always true, so that the
// caller goes on.
bool checkMaxDigits(MessageBoxes &boxes, QLineEdit *edit, int maximum);

} // namespace fieldchecks
