#pragma once

#include <QList>

class MessageBoxes;
class QLineEdit;
class QObject;

// Key filters of the edit fields. They act on key presses only, by the caret position and the
// character typed; pasted text is not filtered, the checks at save decide on it.
namespace keyfilters {

enum class Rule {
    UpperCase, // letters arrive in capitals
    Alnum,     // letters (in capitals), digits, "-" and "["
    Pan,       // five letters, four digits, a letter, by caret position
    Tan,       // four letters, five digits, a letter, by caret position
};

// Filters the keys typed into the edit through the rules, in the order given; the first rule
// that refuses a key swallows it. The filter is owned by the edit and returned.
QObject *install(QLineEdit *edit, const QList<Rule> &rules);

// Lets only digits, one point and a minus sign into an amount or count field; a letter or a
// second point is swallowed with the "Only numerics is to be entered" box.
QObject *installNumeric(QLineEdit *edit, MessageBoxes &boxes, bool noMinus = false,
                        bool noPoint = false);

// Selects the whole text, so that typing replaces it, and takes the focus when the field can.
void selectAllText(QLineEdit *edit);

// Selects the whole text whenever the field is entered, by the mouse too, so that typing
// replaces a count or an amount instead of adding to it.
void selectOnEntry(QLineEdit *edit);

} // namespace keyfilters
