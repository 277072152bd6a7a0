#include "reports/inwords.h"

#include "core/numbers.h"

#include <array>

namespace inwords {

namespace {

const std::array<const char *, 9> units = {"One", "Two", "Three", "Four", "Five", "Six",
                                           "Seven", "Eight", "Nine"};
const std::array<const char *, 9> teens = {"Eleven", "Twelve", "Thirteen", "Fourteen",
                                           "Fifteen", "Sixteen", "Seventeen", "Eighteen",
                                           "Nineteen"};
const std::array<const char *, 9> tens = {"Ten", "Twenty", "Thirty", "Forty", "Fifty",
                                          "Sixty", "Seventy", "Eighty", "Ninety"};

struct Group
{
    int length;
    const char *suffix;
};

// Crores, lakhs, thousands, hundreds and the rest, as they stand in "000000000.00".
constexpr std::array<Group, 5> groups = {{
    {2, " Crores "}, {2, " Lakhs "}, {2, " Thousand "}, {1, " Hundred "}, {2, " "},
}};

/// The words of 1 to 99; nothing for 0.
QString below100(int number)
{
    if (number <= 0)
        return {};
    if (number < 10)
        return QLatin1String(units[number - 1]);
    if (number > 10 && number < 20)
        return QLatin1String(teens[number - 11]);
    QString words = QLatin1String(tens[number / 10 - 1]);
    if (number % 10 != 0)
        words += QLatin1Char(' ') + QLatin1String(units[number % 10 - 1]);
    return words;
}

/// The amount as the pattern "000000000.00" writes it; a longer amount keeps all its digits.
QString patterned(Money amount)
{
    const qint64 paise = amount.paise();
    const quint64 magnitude = paise < 0 ? quint64(-(paise + 1)) + 1 : quint64(paise);
    return (paise < 0 ? QStringLiteral("-") : QString())
           + QStringLiteral("%1.%2")
                 .arg(magnitude / 100, 9, 10, QLatin1Char('0'))
                 .arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

} // namespace

QString spell(Money amount)
{
    const QString digits = patterned(amount);
    QString words;
    qsizetype at = 0;
    for (const Group &group : groups) {
        const int value = int(numbers::val(digits.mid(at, group.length)));
        at += group.length;
        if (value > 0)
            words += below100(value) + QLatin1String(group.suffix);
    }
    const int paise = int(numbers::val(digits.right(2)));
    if (paise > 0)
        words += QStringLiteral(" and ") + below100(paise) + QStringLiteral(" paise");
    return words + QStringLiteral(" only.");
}

QString certificateWords(Money total)
{
    return total == Money() ? QStringLiteral("Zero only") : spell(total);
}

} // namespace inwords
