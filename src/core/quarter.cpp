#include "core/quarter.h"

#include <iterator>

namespace quarter {

namespace {

struct Bounds
{
    const char *code;
    const char *fromDayMonth;
    const char *toDayMonth;
    int yearOffset;
};

constexpr Bounds bounds[] = {
    {"Q1", "01/04/", "30/06/", 0},
    {"Q2", "01/07/", "30/09/", 0},
    {"Q3", "01/10/", "31/12/", 0},
    {"Q4", "01/01/", "31/03/", 1},
};

} // namespace

bool isCode(const QString &code)
{
    return indexOf(code) >= 0;
}

int indexOf(const QString &code)
{
    for (int index = 0; index < int(std::size(bounds)); ++index) {
        if (code == QLatin1String(bounds[index].code))
            return index;
    }
    return -1;
}

QStringList names()
{
    return {QStringLiteral("First Quarter"), QStringLiteral("Second Quarter"),
            QStringLiteral("Third Quarter"), QStringLiteral("Fourth Quarter")};
}

Period forIndex(int index, int startYear)
{
    if (index < 0 || index >= int(std::size(bounds)))
        return {};
    const Bounds &b = bounds[index];
    const QString year = QString::number(startYear + b.yearOffset);
    return {QLatin1String(b.code), QLatin1String(b.fromDayMonth) + year,
            QLatin1String(b.toDayMonth) + year};
}

QString labelText(const Period &period)
{
    if (!period.isValid())
        return {};
    return QStringLiteral("From:") + period.fromDate + QStringLiteral(" To:") + period.toDate;
}

QString sessionCode(const QString &code)
{
    return code.leftJustified(2, QLatin1Char(' '), true);
}

} // namespace quarter
