#pragma once

#include "core/money.h"

#include <QString>
#include <QVariant>
#include <compare>

/**
 * An amount of rupees held exactly to eighteen decimal places, for sums of stored amounts that
 * need not be whole paise: 0.255 and 0.245 make 0.5, and two rows of 0.005 make 0.01. Such a
 * sum is rounded once, where its figure is used, never row by row as Money would round it.
 */
class ExactAmount
{
public:
    constexpr ExactAmount() = default;
    static ExactAmount fromRupees(qint64 rupees);
    /// A stored number as its shortest decimal text, which is the text it was typed as; Null
    /// is zero. Digits beyond the eighteenth decimal are rounded away.
    static ExactAmount fromStored(const QVariant &value);
    /// A typed text read the way the program reads amounts (numbers::val).
    static ExactAmount fromText(const QString &text);

    /// Throws std::range_error for a sum beyond about 10^20 rupees.
    ExactAmount &operator+=(const ExactAmount &other);
    constexpr auto operator<=>(const ExactAmount &) const = default;

    /// Whole rupees, half to even, decided on all the decimals: 0.5 is 0, 1.5 is 2, 0.50001
    /// is 1. Throws std::range_error beyond what Money holds.
    Money roundedToRupees() const;
    /// The shortest decimal text: "0.5", "20.8", "-3", "0".
    QString toText() const;
    /// The nearest double, for a column that holds a floating number.
    double toDouble() const;

private:
    // A GCC integer of 128 bits: eighteen decimals leave room for twenty digits of rupees.
    using Units = __int128;
    static constexpr int places = 18;

    constexpr explicit ExactAmount(Units units) : m_units(units) {}
    static ExactAmount fromDecimalText(const QString &text);

    Units m_units = 0;
};
