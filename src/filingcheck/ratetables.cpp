#include "filingcheck/ratetables.h"

namespace filingcheck::ratetables {

namespace {

/// A rate in force from one date to another; an open end is a date left out.
struct Floor
{
    const char *section;
    int percent;
    QDate from;
    QDate to;
};

// Where a code covers payments at two rates (94C, 94J, 94I) the floor is the lower one.
const Floor floors[] = {
    {"193", 10, {}, {}},
    {"194", 10, {}, {}},
    {"94A", 10, {}, {}},
    {"94B", 30, {}, {}},
    {"4BB", 30, {}, {}},
    {"94C", 1, {}, {}},
    {"94D", 5, {}, QDate(2025, 3, 31)},
    {"94D", 2, QDate(2025, 4, 1), {}},
    {"4EE", 10, {}, {}},
    {"94F", 20, {}, QDate(2024, 9, 30)}, // the section was omitted from 1 October 2024
    {"94G", 5, {}, QDate(2024, 9, 30)},
    {"94G", 2, QDate(2024, 10, 1), {}},
    {"94H", 5, {}, QDate(2024, 9, 30)},
    {"94H", 2, QDate(2024, 10, 1), {}},
    {"94I", 2, {}, {}},
    {"94J", 2, {}, {}},
    {"4LA", 10, {}, {}},
};

/// Section 206AA, and 206CC for collections: the first line that fits decides.
struct WithoutPan
{
    FormKind form;
    const char *section; ///< nullptr: every section of the form
    int percent;
};

const WithoutPan withoutPan[] = {
    {FormKind::Form27EQ, nullptr, 5},
    {FormKind::Form26Q, "94O", 5},
    {FormKind::Form26Q, "94Q", 5},
};
constexpr int withoutPanOtherwise = 20;

} // namespace

std::optional<qint64> sectionFloor(const QString &section, QDate paid)
{
    for (const Floor &floor : floors) {
        if (section != QLatin1String(floor.section))
            continue;
        if ((floor.from.isValid() && paid < floor.from) || (floor.to.isValid() && paid > floor.to))
            continue;
        return qint64(floor.percent) * 10000;
    }
    return std::nullopt;
}

int withoutPanPercent(FormKind form, const QString &section)
{
    for (const WithoutPan &line : withoutPan) {
        if (line.form == form && (!line.section || section == QLatin1String(line.section)))
            return line.percent;
    }
    return withoutPanOtherwise;
}

} // namespace filingcheck::ratetables
