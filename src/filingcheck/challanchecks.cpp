#include "filingcheck/identitynumbers.h"
#include "filingcheck/rulechecks.h"
#include "filingcheck/statementreader.h"

namespace filingcheck::checks {

namespace {

struct ChallanAmount
{
    const char *column;
    const char *label; ///< as the challan panel labels it
    StoredAmount ChallanValues::*amount;
};

const ChallanAmount challanAmounts[] = {
    {"AmountDeducted", "Tds", &ChallanValues::tax},
    {"Surcharge", "Surcharge", &ChallanValues::surcharge},
    {"EduCess", "Education cess", &ChallanValues::cess},
    {"Interest", "Interest", &ChallanValues::interest},
    {"Others", "Others", &ChallanValues::others},
    {"Total", "Total tax", &ChallanValues::total},
    {"ExInterest", "Interest (of the control totals)", &ChallanValues::interestClaimed},
    {"ExtOthers", "Others (of the control totals)", &ChallanValues::othersClaimed},
};

} // namespace

void bankCode(const ChallanFacts &facts, const CheckContext &context, Hits &hits)
{
    // A nil statement's file leaves the bank code out.
    if (!context.nilStatement && !identity::hasShape(facts.challan.bankCode, identity::bsrShape))
        hits.append({{shown(facts.challan.bankCode)}});
}

void challanSerial(const ChallanFacts &facts, const CheckContext &context, Hits &hits)
{
    const ChallanValues &challan = facts.challan;
    const bool voucherInstead = context.governmentDeductor && challan.transferVoucherGiven;
    if (!context.nilStatement && !voucherInstead
        && !identity::hasShape(challan.serial, identity::challanSerialShape))
        hits.append({{shown(challan.serial)}});
}

void bookEntry(const ChallanFacts &facts, const CheckContext &context, Hits &hits)
{
    if (facts.challan.transferVoucherGiven && !context.governmentDeductor)
        hits.append({{shown(facts.challan.transferVoucher)}});
}

void depositDate(const ChallanFacts &facts, const CheckContext &, Hits &hits)
{
    if (!facts.challan.deposited.date.isValid())
        hits.append({{facts.challan.deposited.shown()}});
}

void depositInFuture(const ChallanFacts &facts, const CheckContext &context, Hits &hits)
{
    const QDate date = facts.challan.deposited.date;
    if (date.isValid() && date > context.filedOn)
        hits.append({{QStringLiteral("date of deposit"), dateText(date),
                      dateText(context.filedOn)}});
}

void depositTooEarly(const ChallanFacts &facts, const CheckContext &context, Hits &hits)
{
    if (context.financialYear == 0)
        return;
    const QDate earliest(context.financialYear - 1, 4, 1);
    const QDate date = facts.challan.deposited.date;
    if (date.isValid() && date < earliest)
        hits.append({{dateText(date), dateText(earliest)}});
}

void depositBeforeDeduction(const ChallanFacts &facts, const CheckContext &, Hits &hits)
{
    const QDate date = facts.challan.deposited.date;
    if (date.isValid() && facts.latestDeduction.isValid() && date < facts.latestDeduction) {
        hits.append({{dateText(date), dateText(facts.latestDeduction),
                      QString::number(facts.latestDeductionRow)}});
    }
}

void challanTotal(const ChallanFacts &facts, const CheckContext &, Hits &hits)
{
    const ChallanValues &c = facts.challan;
    const Money sum = c.tax.money + c.surcharge.money + c.cess.money + c.interest.money
                      + c.others.money;
    if (sum != c.total.money) {
        hits.append({{c.total.money.toText(), c.tax.money.toText(), c.surcharge.money.toText(),
                      c.cess.money.toText(), c.interest.money.toText(), c.others.money.toText(),
                      sum.toText()}});
    }
}

void challanCoversRows(const ChallanFacts &facts, const CheckContext &, Hits &hits)
{
    const ChallanValues &c = facts.challan;
    const Money tax = c.total.money - c.interest.money - c.others.money;
    if (tax < facts.rowsDeposited)
        hits.append({{tax.toText(), facts.rowsDeposited.toText()}});
}

void challanAmountText(const ChallanFacts &facts, const CheckContext &, Hits &hits)
{
    for (const ChallanAmount &column : challanAmounts) {
        const StoredAmount &amount = facts.challan.*column.amount;
        if (amount.isText()) {
            hits.append({{QLatin1String(column.label), amount.shownText(),
                          amount.money.toText()},
                         QLatin1String(column.column)});
        }
    }
}

void challanAmountNegative(const ChallanFacts &facts, const CheckContext &, Hits &hits)
{
    for (const ChallanAmount &column : challanAmounts) {
        const StoredAmount &amount = facts.challan.*column.amount;
        if (amount.money < Money()) {
            hits.append({{QLatin1String(column.label), amount.money.toText()},
                         QLatin1String(column.column)});
        }
    }
}

void interestUnpaid(const ChallanFacts &facts, const CheckContext &, Hits &hits)
{
    const ChallanInterest &interest = facts.interest;
    if (interest.due > Money() && interest.paid < interest.due)
        hits.append({{interest.due.toText(), interest.paid.toText()}});
}

} // namespace filingcheck::checks
