#pragma once

class MessageBoxes;
class QWidget;
struct FieldFailure;

// What the screens do with a field check's failure: its box, and the focus on the field.
namespace fieldchecks {

// Gives the widget the focus when it can take it (enabled and shown).
void focusIfPossible(QWidget *widget);

// Shows the failure's box and puts the focus on the field at fault.
void report(MessageBoxes &boxes, const FieldFailure &failure, QWidget *field);

} // namespace fieldchecks
