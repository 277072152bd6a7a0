#include "statements/challanrules.h"

#include "core/deductorstatus.h"
#include "core/money.h"
#include "core/numbers.h"
#include "statements/challanentry.h"

namespace challanrules {

namespace {

QString ChallanEntry::*amountBox(int index)
{
    switch (index) {
    case 117: return &ChallanEntry::tds;
    case 118: return &ChallanEntry::surcharge;
    case 119: return &ChallanEntry::cess;
    case 120: return &ChallanEntry::interest;
    case 121: return &ChallanEntry::others;
    default: return nullptr;
    }
}

// Twelve digits before the point: a text without one of 13 or more characters, or one whose
// point stands after the 13th character.
bool tooManyDigits(const QString &text)
{
    const qsizetype point = text.indexOf(u'.');
    return point < 0 ? text.size() >= 13 : point + 1 > 13;
}

} // namespace

QString total(const ChallanEntry &entry)
{
    return (Money::fromText(entry.tds) + Money::fromText(entry.surcharge)
            + Money::fromText(entry.cess) + Money::fromText(entry.interest)
            + Money::fromText(entry.others))
        .toPaddedText();
}

NumberBoxes applyNumberRule(ChallanEntry &entry, const QString &deductorStatus)
{
    if (!deductorstatus::paysByBookEntry(deductorStatus)) {
        entry.voucherNo.clear();
        return {true, false};
    }
    if (!entry.challanNo.isEmpty())
        entry.voucherNo.clear();
    return {entry.voucherNo.isEmpty(), entry.challanNo.isEmpty()};
}

std::optional<FieldFailure> amountLeft(ChallanEntry &entry, int index)
{
    QString ChallanEntry::*member = amountBox(index);
    if (!member)
        return std::nullopt;
    QString &text = entry.*member;
    const QString &tested = index == 121 ? entry.cess : text;
    if (tested.trimmed().isEmpty())
        return std::nullopt;

    const QString field = QStringLiteral("txtCh(%1)").arg(index);
    if (index != 117 && numbers::val(text) < 0)
        return FieldFailure{{positiveOnlyText, appTitle, MessageIcon::Critical}, field};
    text = Money::fromText(text).toPaddedText();
    if (tooManyDigits(text))
        return FieldFailure{{twelveDigitsText, appTitle, MessageIcon::Critical}, field};
    return std::nullopt;
}

} // namespace challanrules
