#include "statements/annexuresavecheck.h"

#include "core/fieldrules.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/numbers.h"
#include "statements/annexureentry.h"

namespace annexuresavecheck {

namespace {

FieldFailure failure(const QString &text, const char *field)
{
    return {{text, appTitle, MessageIcon::Critical}, QLatin1String(field)};
}

bool isNumeric(const QString &text)
{
    bool ok = false;
    text.trimmed().toDouble(&ok);
    return ok;
}

} // namespace

QString properPartyText(const FormTraits &form)
{
    return QStringLiteral("Please select proper %1 Name").arg(form.partyWord);
}

std::optional<FieldFailure> partyFailure(const AnnexureEntry &entry, const FormTraits &form,
                                         bool challanChosen, int challans)
{
    if (entry.flag == u" " && numbers::val(entry.deposited) <= 0)
        return failure(depositedNeededText, "txt107");
    // Only Form 24Q's employee rows may wait for their challans.
    if (!challanChosen && (!form.salaryLayout || challans > 0))
        return failure(chooseChallanText, "GrdChallan");
    struct Required
    {
        QString AnnexureEntry::*member;
        const char *field;
        bool deducteesOnly;
    };
    static const Required required[] = {
        {&AnnexureEntry::deducteeCode, "txtDeducteeCode", true},
        {&AnnexureEntry::partyName, "cmbDeductee", false},
        {&AnnexureEntry::stateCode, "txtDStateCode", true},
        {&AnnexureEntry::state, "cmbDState", true},
    };
    for (const Required &blank : required) {
        if (blank.deducteesOnly && form.salaryLayout)
            continue;
        if (auto refusal =
                fieldrules::isBlank(entry.*blank.member, {}, QLatin1String(blank.field)))
            return refusal;
    }
    if (numbers::val(entry.partyNo) == 0)
        return failure(properPartyText(form), "cmbDeductee");
    if (!form.salaryLayout && numbers::val(entry.stateId) == 0)
        return failure(properStateText, "cmbDState");
    return std::nullopt;
}

void zeroNonNumbers(AnnexureEntry &entry, const FormTraits &form)
{
    for (QString *amount : {&entry.amount, &entry.rate, &entry.deposited}) {
        if (!isNumeric(*amount))
            *amount = form.annexureZero;
    }
}

bool exceedsChallan(const AnnexureEntry &entry, const QList<AnnexureEntry> &rows,
                    const QString &challanTotal)
{
    Money sum = Money::fromText(entry.deposited);
    for (const AnnexureEntry &row : rows) {
        if (row.srlNo != entry.srlNo)
            sum += Money::fromText(row.deposited);
    }
    return Money::fromText(challanTotal) < sum;
}

} // namespace annexuresavecheck
