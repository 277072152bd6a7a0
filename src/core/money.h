#pragma once

#include <QString>
#include <QVariant>
#include <compare>

/**
 * An amount of rupees held exactly, as whole paise. Amounts are stored in the data store as
 * numbers; they become Money when read and are summed and compared only as Money.
 */
class Money
{
public:
    constexpr Money() = default;
    static constexpr Money fromPaise(qint64 paise) { return Money(paise); }
    static constexpr Money fromRupees(qint64 rupees) { return Money(rupees * 100); }

    /// A stored number to the nearest paisa, read from its shortest decimal form so that
    /// 2.675 is 2.68 and not 2.67; Null is zero.
    static Money fromStored(const QVariant &value);
    /// A stored number rounded to whole rupees, half to even, decided on all of its decimals:
    /// 2.5 is 2 and 3.5 is 4, but 2.5001 is 3 (going through paise first would make it 2).
    /// Null is zero.
    static Money roundedFromStored(const QVariant &value);
    /// A typed text read the way the program reads amounts (numbers::val).
    static Money fromText(const QString &text);

    constexpr qint64 paise() const { return m_paise; }
    double toDouble() const { return static_cast<double>(m_paise) / 100.0; }

    /// Whole rupees, half to even: 2.50 is 2, 3.50 is 4.
    Money roundedToRupees() const;

    /// "0.00": at least one digit before the point, two behind, no separators.
    QString toText() const;
    /// "00.00": at least two digits before the point (5 shows as 05.00).
    QString toPaddedText() const;

    constexpr Money operator+(Money other) const { return Money(m_paise + other.m_paise); }
    constexpr Money operator-(Money other) const { return Money(m_paise - other.m_paise); }
    constexpr Money &operator+=(Money other)
    {
        m_paise += other.m_paise;
        return *this;
    }
    constexpr auto operator<=>(const Money &) const = default;

private:
    constexpr explicit Money(qint64 paise) : m_paise(paise) {}
    qint64 m_paise = 0;
};
