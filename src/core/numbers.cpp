#include "core/numbers.h"

#include <QLocale>

#include <cmath>

namespace numbers {

double val(const QString &text)
{
    QString number;
    bool seenDigit = false;
    bool seenPoint = false;
    bool seenExponent = false;
    for (const QChar ch : text) {
        if (ch == u' ' || ch == u'\t' || ch == u'\n' || ch == u'\r')
            continue;
        const QChar last = number.isEmpty() ? QChar() : number.back();
        if (ch.isDigit() && ch.unicode() < 128) {
            seenDigit = true;
        } else if ((ch == u'+' || ch == u'-') && (number.isEmpty() || last == u'e')) {
        } else if (ch == u'.' && !seenPoint && !seenExponent) {
            seenPoint = true;
        } else if ((ch == u'e' || ch == u'E' || ch == u'd' || ch == u'D') && seenDigit
                   && !seenExponent) {
            seenExponent = true;
            number += u'e';
            continue;
        } else {
            break;
        }
        number += ch;
    }
    // A dangling exponent or sign adds nothing to the value read so far.
    while (!number.isEmpty() && (number.back() == u'e' || number.back() == u'+'
                                 || number.back() == u'-'))
        number.chop(1);
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok ? value : 0.0;
}

double roundAmount(double amount, int digits)
{
    if (digits == 0)
        digits = 2;
    if (!std::isfinite(amount))
        return amount;
    const double whole = std::trunc(amount) + 0.0; // + 0.0 turns -0 into 0
    // A negative rest formats as "-0.xx", whose number is never 50 or more.
    if (amount < 0)
        return whole;

    const QString text = QString::number(amount, 'f', QLocale::FloatingPointShortest);
    const qsizetype point = text.indexOf(u'.');
    const QString fraction =
        (point < 0 ? QString() : text.mid(point + 1)) + QStringLiteral("000");
    // "0.00" of the rest, rounded half away from zero on the decimal digits; 100 is "1.00".
    int hundredths = fraction.left(2).toInt();
    if (fraction.at(2) >= u'5')
        ++hundredths;
    const int decider = QString::number(hundredths).left(digits).toInt();
    return decider >= 50 ? whole + 1 : whole;
}

} // namespace numbers
