#include "core/money.h"

#include "core/numbers.h"

#include <cmath>
#include <optional>

namespace {

/// Paise of a decimal text such as "-12.345", rounded half away from zero at the third decimal.
qint64 paiseOfDecimal(const QString &text)
{
    QString digits = text;
    const bool negative = digits.startsWith(u'-');
    if (negative)
        digits.remove(0, 1);
    const qsizetype point = digits.indexOf(u'.');
    const QString whole = point < 0 ? digits : digits.left(point);
    const QString fraction =
        (point < 0 ? QString() : digits.mid(point + 1)) + QStringLiteral("000");
    qint64 paise = whole.toLongLong() * 100 + fraction.left(2).toLongLong();
    if (fraction.at(2) >= u'5')
        ++paise;
    return negative ? -paise : paise;
}

/// Most stored amounts are whole rupees; they need no reading of decimal digits.
std::optional<qint64> wholeRupees(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::Double: {
        const double number = value.toDouble();
        if (std::trunc(number) == number && std::abs(number) < 1e15)
            return static_cast<qint64>(number);
        return std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

QString formatted(qint64 paise, int wholeDigits)
{
    // Built by hand rather than through a format: a return file formats millions of amounts.
    const bool negative = paise < 0;
    const qint64 magnitude = negative ? -paise : paise;
    QString text = QString::number(magnitude / 100);
    if (text.size() < wholeDigits)
        text.prepend(QString(wholeDigits - text.size(), u'0'));
    if (negative)
        text.prepend(u'-');
    const int hundredths = static_cast<int>(magnitude % 100);
    text += u'.';
    text += QChar(u'0' + hundredths / 10);
    text += QChar(u'0' + hundredths % 10);
    return text;
}

} // namespace

Money Money::fromStored(const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return {};
    if (const std::optional<qint64> rupees = wholeRupees(value))
        return fromRupees(*rupees);
    // Most amounts carry whole paise: a hundredfold that is a whole number needs no decimal
    // text. Only a rest beyond the paise (2.675) is decided on the number's decimal digits.
    if (value.typeId() == QMetaType::Double) {
        const double hundredfold = value.toDouble() * 100;
        const double nearest = std::nearbyint(hundredfold);
        if (std::abs(hundredfold - nearest) < 1e-6 && std::abs(nearest) < 1e15)
            return Money(static_cast<qint64>(nearest));
    }
    return Money(paiseOfDecimal(numbers::decimalText(value)));
}

Money Money::roundedFromStored(const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return {};
    if (const std::optional<qint64> rupees = wholeRupees(value))
        return fromRupees(*rupees);
    QString digits = numbers::decimalText(value);
    const bool negative = digits.startsWith(u'-');
    if (negative)
        digits.remove(0, 1);
    const qsizetype point = digits.indexOf(u'.');
    qint64 rupees = (point < 0 ? digits : digits.left(point)).toLongLong();
    const QString fraction = point < 0 ? QString() : digits.mid(point + 1);
    if (!fraction.isEmpty() && fraction.at(0) >= u'5') {
        bool pastHalf = fraction.at(0) > u'5';
        for (qsizetype i = 1; i < fraction.size() && !pastHalf; ++i)
            pastHalf = fraction.at(i) != u'0';
        if (pastHalf || rupees % 2 != 0)
            ++rupees;
    }
    return fromRupees(negative ? -rupees : rupees);
}

Money Money::fromText(const QString &text)
{
    return fromStored(numbers::val(text));
}

Money Money::roundedToRupees() const
{
    qint64 rupees = m_paise / 100;
    const qint64 rest = m_paise % 100; // carries the sign of m_paise
    if (rest > 50 || (rest == 50 && rupees % 2 != 0))
        ++rupees;
    else if (rest < -50 || (rest == -50 && rupees % 2 != 0))
        --rupees;
    return fromRupees(rupees);
}

QString Money::toText() const
{
    return formatted(m_paise, 1);
}

QString Money::toPaddedText() const
{
    return formatted(m_paise, 2);
}
