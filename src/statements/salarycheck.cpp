#include "statements/salarycheck.h"

#include "core/fieldrules.h"
#include "statements/salaryentry.h"

namespace salarycheck {

namespace {

FieldFailure refusal(const QString &text, const QString &field)
{
    return {{text, appTitle, MessageIcon::Information}, field};
}

} // namespace

std::optional<FieldFailure> firstFailure(const SalaryEntry &entry)
{
    using fieldrules::isBlank;
    if (auto failure = isBlank(entry.box(201), serialText, QStringLiteral("txt(201)")))
        return failure;
    if (auto failure = isBlank(entry.empName, nameText, QStringLiteral("cmbEmpname")))
        return failure;
    if (auto failure = isBlank(entry.box(202), panText, QStringLiteral("txt(202)")))
        return failure;
    if (auto failure = isBlank(entry.box(3), designationText, QStringLiteral("txt(3)")))
        return failure;
    if (entry.amount(210) > entry.amount(209))
        return refusal(section16Text, QStringLiteral("txt(210)"));
    if (entry.category < 0)
        return refusal(categoryText, QStringLiteral("cmbCat"));
    // A loss from other income may stand, so long as it leaves the total income at 0 or more.
    if (entry.amount(211) + entry.amount(212) < Money())
        return refusal(incomeText, QStringLiteral("txt(212)"));
    if (entry.amount(217) > entry.amount(213))
        return refusal(deductibleText, QStringLiteral("txt(213)"));
    return std::nullopt;
}

} // namespace salarycheck
