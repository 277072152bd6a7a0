#include "core/exactamount.h"

#include "core/numbers.h"

#include <cmath>
#include <stdexcept>

namespace {

using Units = __int128;

constexpr Units unitsPerRupee = [] {
    Units units = 1;
    for (int i = 0; i < 18; ++i)
        units *= 10;
    return units;
}();

[[noreturn]] void overflow()
{
    throw std::range_error(numbers::overflowMessage);
}

/// units * 10 + digit, refusing what the units cannot hold.
Units shifted(Units units, int digit)
{
    Units result = 0;
    if (__builtin_mul_overflow(units, Units(10), &result)
        || __builtin_add_overflow(result, Units(digit), &result))
        overflow();
    return result;
}

QString digitsOf(Units magnitude)
{
    QString text;
    do {
        text.prepend(QChar(u'0' + int(magnitude % 10)));
        magnitude /= 10;
    } while (magnitude != 0);
    return text;
}

} // namespace

ExactAmount ExactAmount::fromRupees(qint64 rupees)
{
    return ExactAmount(Units(rupees) * unitsPerRupee);
}

ExactAmount ExactAmount::fromStored(const QVariant &value)
{
    if (!value.isValid() || value.isNull())
        return {};
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
        return fromRupees(value.toLongLong());
    case QMetaType::Double: {
        // Most amounts are whole paise, and need no decimal text: a double that is the nearest
        // one to k/100 stands for that amount, fifteen digits telling it from any other.
        const double number = value.toDouble();
        const double paise = std::nearbyint(number * 100);
        if (std::fabs(paise) < 1e15 && paise / 100 == number)
            return ExactAmount(Units(paise) * (unitsPerRupee / 100));
        return fromDecimalText(numbers::decimalText(value));
    }
    default:
        return fromDecimalText(numbers::decimalText(value));
    }
}

ExactAmount ExactAmount::fromText(const QString &text)
{
    return fromStored(numbers::val(text));
}

ExactAmount ExactAmount::fromDecimalText(const QString &text)
{
    const bool negative = text.startsWith(u'-');
    Units units = 0;
    int decimals = -1;
    bool roundUp = false;
    for (qsizetype i = negative ? 1 : 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        if (ch == u'.') {
            decimals = 0;
        } else if (decimals < places) {
            units = shifted(units, ch.digitValue());
            if (decimals >= 0)
                ++decimals;
        } else if (decimals == places) {
            // Past the eighteenth decimal: rounded, half away from zero, at the last place.
            roundUp = ch >= u'5';
            ++decimals;
        }
    }
    for (int i = decimals < 0 ? 0 : decimals; i < places; ++i)
        units = shifted(units, 0);
    if (roundUp && __builtin_add_overflow(units, Units(1), &units))
        overflow();
    return ExactAmount(negative ? -units : units);
}

ExactAmount &ExactAmount::operator+=(const ExactAmount &other)
{
    if (__builtin_add_overflow(m_units, other.m_units, &m_units))
        overflow();
    return *this;
}

Money ExactAmount::roundedToRupees() const
{
    Units rupees = m_units / unitsPerRupee;
    const Units rest = m_units % unitsPerRupee; // carries the sign of m_units
    const Units half = unitsPerRupee / 2;
    if (rest > half || (rest == half && rupees % 2 != 0))
        ++rupees;
    else if (rest < -half || (rest == -half && rupees % 2 != 0))
        --rupees;
    // Money holds paise in 64 bits.
    constexpr Units largest = 90'000'000'000'000'000;
    if (rupees > largest || rupees < -largest)
        overflow();
    return Money::fromRupees(static_cast<qint64>(rupees));
}

QString ExactAmount::toText() const
{
    const Units magnitude = m_units < 0 ? -m_units : m_units;
    QString text = digitsOf(magnitude / unitsPerRupee);
    QString fraction = digitsOf(magnitude % unitsPerRupee + unitsPerRupee).mid(1);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    if (!fraction.isEmpty())
        text += u'.' + fraction;
    return m_units < 0 ? u'-' + text : text;
}

double ExactAmount::toDouble() const
{
    return toText().toDouble();
}
