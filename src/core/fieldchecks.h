#pragma once

#include <QString>

class MessageBoxes;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QWidget;
struct FieldFailure;
struct Session;

// The field checks of the screens on their widgets: each runs the rule, shows its box, puts the
// focus on the field and, for dates, sets the date back to the bound that was crossed.
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

// False, after the box and with the date set to the quarter's first day, for a date before it.
bool checkNotBeforeQuarter(MessageBoxes &boxes, QDateEdit *date, const Session &session);

// False, after the box and with the date set back, for a date after the challan date or outside
// the session's quarter.
bool checkDepositDate(MessageBoxes &boxes, QDateEdit *date, const QDateEdit *challanDate,
                      const Session &session);

} // namespace fieldchecks
