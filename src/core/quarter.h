#pragma once

#include <QString>
#include <QStringList>

/// The four quarters of a financial year, which runs from April to March.
namespace quarter {

/// The box shown for a quarter index outside 0 to 3.
inline const QString invalidChoiceText = QStringLiteral("Select a valid from drop down");

/// A quarter's code and its first and last days as dd/mm/yyyy text.
struct Period
{
    QString code;     ///< "Q1" to "Q4"; empty for an invalid choice
    QString fromDate; ///< QuarterFromDt
    QString toDate;   ///< QuarterToDt

    bool isValid() const { return !code.isEmpty(); }
    bool operator==(const Period &) const = default;
};

/// Whether a text is a quarter's code as the front ends take it: "Q1" to "Q4", exactly.
bool isCode(const QString &code);

/// The list index of a quarter's code, -1 for a text that is none.
int indexOf(const QString &code);

/// The texts of the quarter list, in the order of their index.
QStringList names();

/// The quarter at a list index, for the assessment period that starts in startYear. The fourth
/// quarter falls in January to March of the next year. The year is written as the plain number,
/// so a store without an assessment row (year 0) gives "01/04/0". Any index outside 0 to 3
/// gives an invalid period.
Period forIndex(int index, int startYear);

/// "From:" + first day + " To:" + last day; empty for an invalid period.
QString labelText(const Period &period);

/// The code as the session keeps it: exactly two characters, cut or padded with blanks.
QString sessionCode(const QString &code);

} // namespace quarter
