#include "core/numbers.h"

#include <QLocale>
#include <QVariant>

#include <cmath>

namespace numbers {

namespace {

/// A plain decimal ("-1234.50", "7") read at once: the amounts of the lists and the stored
/// values shown as text are all of this form, and a screen reads many thousands of them. Up to
/// fifteen digits are a whole number that one division by a power of ten rounds correctly.
bool readPlainDecimal(const QString &text, double &value)
{
    static constexpr double powers[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const qsizetype size = text.size();
    if (size == 0 || size > 17)
        return false;
    qint64 digits = 0;
    int count = 0;
    int decimals = -1;
    for (qsizetype i = text.at(0) == u'-' ? 1 : 0; i < size; ++i) {
        const char16_t ch = text.at(i).unicode();
        if (ch >= u'0' && ch <= u'9') {
            digits = digits * 10 + (ch - u'0');
            ++count;
            if (decimals >= 0)
                ++decimals;
        } else if (ch == u'.' && decimals < 0) {
            decimals = 0;
        } else {
            return false;
        }
    }
    if (count == 0 || count > 15)
        return false;
    value = static_cast<double>(digits) / powers[decimals < 0 ? 0 : decimals];
    if (text.at(0) == u'-')
        value = -value;
    return true;
}

} // namespace

double val(const QString &text)
{
    if (double plain = 0; readPlainDecimal(text, plain))
        return plain;
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

QString decimalText(const QVariant &value)
{
    bool ok = false;
    double number = value.toDouble(&ok);
    if (!ok)
        number = val(value.toString());
    // 'f' with the shortest precision never falls into exponent notation.
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

qint64 rateTenThousandths(const QVariant &stored)
{
    // Most rates are whole percents and need no reading of decimal digits.
    if (stored.typeId() == QMetaType::Double || stored.typeId() == QMetaType::LongLong
        || stored.typeId() == QMetaType::Int) {
        const double rate = stored.toDouble();
        if (std::trunc(rate) == rate && std::abs(rate) < 1e12)
            return static_cast<qint64>(rate) * 10000;
    }
    QString digits = decimalText(stored);
    const bool negative = digits.startsWith(u'-');
    if (negative)
        digits.remove(0, 1);
    const qsizetype point = digits.indexOf(u'.');
    const QString fraction =
        (point < 0 ? QString() : digits.mid(point + 1)) + QStringLiteral("00000");
    qint64 tenThousandths = (point < 0 ? digits : digits.left(point)).toLongLong() * 10000
                            + fraction.left(4).toLongLong();
    if (fraction.at(4) >= u'5')
        ++tenThousandths;
    return negative ? -tenThousandths : tenThousandths;
}

QString rateText(qint64 tenThousandths)
{
    const qint64 magnitude = tenThousandths < 0 ? -tenThousandths : tenThousandths;
    return QStringLiteral("%1%2.%3")
        .arg(tenThousandths < 0 ? QStringLiteral("-") : QString())
        .arg(magnitude / 10000)
        .arg(magnitude % 10000, 4, 10, QLatin1Char('0'));
}

} // namespace numbers
