#include "filingcheck/identitynumbers.h"
#include "filingcheck/rulechecks.h"
#include "filingcheck/statementreader.h"

namespace filingcheck::checks {

namespace {

void pin(const QString &pin, Hits &hits)
{
    if (!identity::hasShape(pin, identity::pinShape))
        hits.append({{shown(pin)}});
}

void nameTooLong(const QString &name, Hits &hits)
{
    if (name.size() > longestName)
        hits.append({{QString::number(name.size())}});
}

void count(const QString &declared, int held, QStringList values, Hits &hits)
{
    if (declared == QString::number(held))
        return;
    values << (declared.isEmpty() ? QStringLiteral("empty") : declared) << QString::number(held);
    hits.append(Hit(values));
}

} // namespace

void tan(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    if (!identity::hasShape(facts.statement.tan, identity::tanShape))
        hits.append({{shown(facts.statement.tan)}});
}

void deductorPan(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    const QString &pan = facts.statement.pan;
    if (pan != identity::panNotRequired
        && (!identity::hasShape(pan, identity::panShape) || identity::hasZeroDigits(pan)))
        hits.append({{shown(pan)}});
}

void deductorPin(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    pin(facts.statement.pincode, hits);
}

void responsiblePin(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    pin(facts.statement.personPincode, hits);
}

void deductorName(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    nameTooLong(facts.statement.name, hits);
}

void responsibleName(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    nameTooLong(facts.statement.personName, hits);
}

void financialYear(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    const QString &year = facts.statement.faYear;
    const bool digits = identity::hasShape(year, "999999");
    if (!digits || (year.left(4).toInt() + 1) % 100 != year.mid(4).toInt())
        hits.append({{shown(year)}});
}

void challanCount(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    count(facts.statement.declaredChallans, facts.challans, {}, hits);
}

void rowCount(const StatementFacts &facts, const CheckContext &context, Hits &hits)
{
    count(facts.statement.declaredRows, facts.rows, {context.form.partyWord.toLower()}, hits);
}

void lateFeeUnpaid(const StatementFacts &facts, const CheckContext &, Hits &hits)
{
    const LateFee &fee = facts.lateFee;
    if (fee.due > Money() && fee.paid < fee.due)
        hits.append({{fee.due.toText(), dateText(fee.filedOn), fee.paid.toText()}});
}

} // namespace filingcheck::checks
