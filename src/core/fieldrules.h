#pragma once

#include "core/fieldfailure.h"

#include <QDate>
#include <QString>

#include <optional>

/**
 * The field rules that the screens share: key filters that work on the key code of a key press
 * (the character typed; 8 Backspace, 9 Tab, 13 Enter) and the checks made when a field is left
 * or a record is saved. A key filter's result of 0 means the key is swallowed.
 */
namespace fieldrules {

/// The key code in upper case: 97 to 123 lose 32 (so "{" turns into "["), others stay.
int toUpperKey(int key);

/// Letters (upper-cased), digits, "-", "[", "{" (as "["), Backspace, Tab and Enter; 0 for any
/// other key. Used on codes such as TAN, PAN and the file prefix.
int alnumKeyFilter(int key);

/// Whether a key may go into a PAN at the caret position (counted from 0): codes 65 to 122 at 0 to
/// 4 and at 9, digits at 5 to 8, nothing beyond; Backspace anywhere. Expects an upper-cased key.
bool panKeyFilter(int caretPos, int key);

/// The same for a TAN: letters at 0 to 3 and at 9, digits at 4 to 8.
bool tanKeyFilter(int caretPos, int key);

/// What the numeric filter makes of a key.
struct NumericKey
{
    int key = 0;               ///< the key to use; 0 swallows it
    bool onlyNumerics = false; ///< the "Only numerics is to be entered" box is due

    bool operator==(const NumericKey &) const = default;
};

/**
 * The filter of amount and count fields: digits, Backspace, Tab, Enter, "&" and "(" pass; "-"
 * passes unless @p noMinus; one point passes unless @p noPoint. A second point and any other
 * character are swallowed with the "Only numerics" box; a refused sign or point is swallowed
 * silently. @p text is the field's text before the key.
 */
NumericKey numericKeyFilter(const QString &text, int key, bool noMinus, bool noPoint);

/// True for a blank text or one whose first ten characters are five capitals, four digits and a
/// capital. The characters are tested on the text as given, the length on the trimmed text.
bool isValidPan(const QString &text);

/**
 * The test of an e-mail address. The first rule that fails sets the result to false and appends
 * its complaint, each beginning with "<BR>", to @p emailError, which starts empty. A second "@" is
 * accepted, and forbidden characters are refused only as the whole run of them.
 */
bool isValidEmail(const QString &address, QString &emailError);

/// Whether the last dot segment of an address, with a point put in front, is found anywhere in
/// the list of domain and country endings (a plain search, case-insensitive).
bool hasValidEnding(const QString &segment);

/// The complaint of isBlank() when the caller gives none.
inline const QString cannotTakeBlank = QStringLiteral("Cannot take blank value");

/// A failure when @p text, trimmed, is empty: @p message with the information icon, or with no
/// message "Cannot take blank value" with the critical icon; both under "Invalid Entry".
std::optional<FieldFailure> isBlank(const QString &text, const QString &message,
                                    const QString &field);

/// A warning when @p text without its points is longer than @p maximum. It never stops anything:
/// the caller shows it, puts the focus on the field and goes on.
std::optional<FieldFailure> checkMaxDigits(const QString &text, int maximum,
                                           const QString &field);

/// A date check's refusal and the date the control is set back to.
struct DateFailure
{
    FieldFailure failure;
    QDate correctedDate;

    bool operator==(const DateFailure &) const = default;
};

/// The refusal of a date box left empty or holding what is not a date.
inline const QString enterDateText = QStringLiteral("Please enter a valid date as dd/mm/yyyy");

/// A date as typed into a date box: day, month and year apart by "/", "-" or "." (one or two
/// digits for the day and month, four for the year, or two for a year of this century), or the
/// eight digits ddmmyyyy. An invalid date for anything else, an empty text included.
QDate typedDate(const QString &text);

/// Refuses a date that is not one (an empty or mistyped box); the box keeps what was typed, so
/// the corrected date is invalid.
std::optional<DateFailure> checkDateGiven(QDate date, const QString &field);

/// Refuses a date before the first day of the quarter; the day itself is accepted. In this and
/// the next check a bound that is not a valid date (no quarter chosen) is not checked.
std::optional<DateFailure> checkNotBeforeQuarter(QDate date, QDate quarterFrom,
                                                 const QString &field);

/// Refuses a deposit or payment date later than the challan date or outside the quarter, in
/// that order; the corrected date is the bound that was crossed.
std::optional<DateFailure> checkDepositDate(QDate date, QDate challanDate, QDate quarterFrom,
                                            QDate quarterTo, const QString &field);

/// A session date kept as dd/mm/yyyy text; an invalid date when the text is not one.
QDate sessionDate(const QString &text);

} // namespace fieldrules
