#pragma once

#include <QString>

class QVariant;

/// The number rules of the program: how typed text is read as a number, and how amounts round.
namespace numbers {

/// Reads the number at the start of a text the way the program has always read typed amounts:
/// blanks anywhere are skipped, reading stops at the first character that cannot continue the
/// number, and a text without a leading number is 0 ("12abc" is 12, "1,000" is 1, "" is 0).
double val(const QString &text);

/**
 * Rounds a rupee amount to a whole number the way the statement screens always have. The rest
 * after the whole part (cut towards zero) is formatted "0.00", read without its point, and the
 * first @p digits characters of that number decide: 50 or more adds one. So .49 stays, .50 adds
 * one, .05 to .09 stay (a single digit), .995 and above stay ("1.00" reads 100, cut to 10), and a
 * negative amount always stays at its whole part. The rest is taken from the amount's shortest
 * decimal text, so a typed 2.995 behaves as .995 whatever its binary value. @p digits 0 means 2.
 */
double roundAmount(double amount, int digits = 0);

/// The shortest decimal text of a stored number ("2.675", "-12", never an exponent), which is
/// the text it was typed as; a stored text that is not a number is read as val() reads it.
QString decimalText(const QVariant &value);

/// A stored rate in ten-thousandths of a percent, read from its shortest decimal text and rounded
/// half away from zero at the fifth decimal, so that a typed 10.12345 is 101235 whatever its
/// binary value; a stored text is read as val() reads it.
qint64 rateTenThousandths(const QVariant &stored);

/// A rate in ten-thousandths of a percent with exactly four decimals: 101235 is "10.1235".
QString rateText(qint64 tenThousandths);

/// What a whole number that leaves its range stops with, as the platform has always said it.
inline constexpr char overflowMessage[] = "Overflow";

} // namespace numbers
