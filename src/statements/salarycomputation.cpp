#include "statements/salarycomputation.h"

#include "statements/salaryentry.h"

namespace salarycomputation {

namespace {

void set(SalaryEntry &entry, int index, Money value)
{
    const QString text = value.toText();
    // As with a box's Change: the same text again changes nothing further down.
    if (entry.txt.value(index) == text)
        return;
    entry.txt[index] = text;
    boxChanged(entry, index);
}

/// A tenth, to the nearest paisa, half away from zero.
Money tenPercent(Money amount)
{
    const qint64 paise = amount.paise();
    const qint64 rounded = (paise >= 0 ? paise + 5 : paise - 5) / 10;
    return Money::fromPaise(rounded);
}

} // namespace

void boxChanged(SalaryEntry &entry, int index)
{
    const auto a = [&entry](int box) { return entry.amount(box); };
    switch (index) {
    case 205:
    case 206:
    case 207:
        set(entry, 209, a(205) + a(206) + a(207));
        break;
    case 209:
    case 210:
        set(entry, 211, a(209) - a(210));
        break;
    case 211:
        set(entry, 213, a(211) + a(212));
        break;
    case 212:
        entry.flag212 = a(212) > Money() ? QStringLiteral("P") : QStringLiteral("N");
        set(entry, 213, a(211) + a(212));
        break;
    case 213:
    case 217:
        set(entry, 218, a(213) - a(217));
        break;
    case 219:
    case 224:
    case 342:
    case 343:
        set(entry, 225, a(219) + a(342) + a(343) - a(224));
        break;
    case 225:
    case 346:
        set(entry, 347, a(225) - a(346));
        break;
    default:
        break;
    }
}

void perkChanged(SalaryEntry &entry)
{
    const auto p = [&entry](int box) { return entry.perkAmount(box); };
    entry.perk[3] = tenPercent(p(2)).toText();
    entry.perk[4] = (p(1) + p(3)).toText();
    entry.perk[6] = (p(4) + p(0) - p(5)).toText();
}

Money perkTotal(const SalaryEntry &entry)
{
    Money total;
    for (int index = 6; index <= 12; ++index)
        total += entry.perkAmount(index);
    return total;
}

void restoreUnstored(SalaryEntry &entry, Money section10, Money section88)
{
    entry.perk[0] = (entry.perkAmount(6) - entry.perkAmount(4) + entry.perkAmount(5)).toText();
    entry.txt[206] = section10.toText();
    entry.txt[207] = perkTotal(entry).toText();
    entry.txt[220] = section88.toText();
    entry.txt[209] = (entry.amount(205) + entry.amount(206) + entry.amount(207)).toText();
    entry.flag212 = entry.amount(212) > Money() ? QStringLiteral("P") : QStringLiteral("N");
}

} // namespace salarycomputation
