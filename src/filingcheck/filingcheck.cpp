#include "filingcheck/filingcheck.h"

#include "core/datastore.h"
#include "core/deductorstatus.h"
#include "core/exactamount.h"
#include "core/fieldrules.h"
#include "core/formtraits.h"
#include "core/quarter.h"
#include "filingcheck/interest.h"
#include "filingcheck/latefee.h"
#include "filingcheck/rulebook.h"
#include "filingcheck/statementreader.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace filingcheck {

namespace {

/// The rules of one level that hold for the Statement's form and year.
template<typename Facts>
std::vector<const Rule<Facts> *> holding(std::span<const Rule<Facts>> book, FormKind form,
                                         int year)
{
    std::vector<const Rule<Facts> *> rules;
    for (const Rule<Facts> &rule : book) {
        if (rule.holdsFor(form, year))
            rules.push_back(&rule);
    }
    return rules;
}

/// Runs the rules of one level on one thing and keeps what they find.
class Findings
{
public:
    explicit Findings(const CheckContext &context) : m_context(context) {}

    template<typename Facts>
    void apply(const std::vector<const Rule<Facts> *> &rules, const Facts &facts, int challan,
               int row)
    {
        for (const Rule<Facts> *rule : rules) {
            m_hits.clear();
            rule->test(facts, m_context, m_hits);
            for (const Hit &hit : std::as_const(m_hits)) {
                m_found.append({rule->severity, challan, row,
                                rule->column ? QString::fromLatin1(rule->column) : hit.column,
                                filled(rule->message, hit.values),
                                QString::fromLatin1(rule->id)});
            }
        }
    }

    /// Errors first, then warnings, each by challan and row, the Statement's own first.
    QList<Finding> ordered()
    {
        std::stable_sort(m_found.begin(), m_found.end(), [](const Finding &a, const Finding &b) {
            return std::tuple(a.severity, a.challan, a.row)
                   < std::tuple(b.severity, b.challan, b.row);
        });
        return m_found;
    }

private:
    const CheckContext &m_context;
    Hits m_hits;
    QList<Finding> m_found;
};

/// The year the Statement's financial year starts in: from its own FAYear ("202627"), else
/// from the store's assessment period, as the quarter's dates are; 0 when neither tells.
int financialYearOf(const StatementValues &statement)
{
    bool read = false;
    const int year = statement.faYear.left(4).toInt(&read);
    if (read && statement.faYear.size() == 6 && year > 0)
        return year;
    return statement.assessmentYear;
}

/// A Statement whose challans deposit nothing, in whole rupees as the file's header sums them.
bool depositsNothing(const QList<ChallanValues> &challans)
{
    try {
        ExactAmount deposited;
        for (const ChallanValues &challan : challans)
            deposited += ExactAmount::fromStored(challan.total.stored);
        return deposited.roundedToRupees() <= Money();
    } catch (const std::range_error &) {
        return false; // a sum past all reason deposits something
    }
}

CheckContext contextOf(const FormTraits &form, const StatementValues &statement,
                       const QList<ChallanValues> &challans, QDate filedOn)
{
    CheckContext context{.form = form};
    context.financialYear = financialYearOf(statement);
    context.quarterIndex = quarter::indexOf(statement.quarter);
    const quarter::Period period = quarter::forIndex(context.quarterIndex, context.financialYear);
    if (context.financialYear != 0 && period.isValid()) {
        context.quarterFrom = fieldrules::sessionDate(period.fromDate);
        context.quarterTo = fieldrules::sessionDate(period.toDate);
    }
    context.filedOn = filedOn;
    context.governmentDeductor = deductorstatus::paysByBookEntry(statement.deductorType);
    context.nilStatement = depositsNothing(challans);
    return context;
}

/// What a challan's rows add up to, as they are read.
struct ChallanTally
{
    explicit ChallanTally(interest::ChallanInterestWork work) : interest(std::move(work)) {}

    interest::ChallanInterestWork interest;
    Money rowsDeposited;
    QDate latestDeduction;
    int latestDeductionRow = 0;

    void add(const RowValues &row)
    {
        rowsDeposited += row.taxDeposited.money;
        // Of rows deducted on the same last day, the first by SrlNo is named.
        const QDate deducted = row.deductionDate.date;
        if (deducted.isValid()
            && (deducted > latestDeduction
                || (deducted == latestDeduction && row.srlNo < latestDeductionRow))) {
            latestDeduction = deducted;
            latestDeductionRow = row.srlNo;
        }
        interest.addRow(row.srlNo, row.total.money, row.paymentDate.date, deducted,
                        row.taxDeposited.money);
    }
};

const QString missingStatementText =
    QStringLiteral("There is no saved Statement %1 of Form %2; save the Statement before "
                   "checking it.");

} // namespace

QString Finding::where() const
{
    if (challan == 0)
        return QStringLiteral("statement");
    if (row == 0)
        return QStringLiteral("challan %1").arg(challan);
    return QStringLiteral("challan %1 row %2").arg(challan).arg(row);
}

int CheckResult::errors() const
{
    return int(std::count_if(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.severity == Severity::Error;
    }));
}

int CheckResult::warnings() const
{
    return int(findings.size()) - errors();
}

FilingCheck::FilingCheck(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
}

CheckResult FilingCheck::run(int basicInfoId, QDate filedOn) const
{
    CheckResult result;
    const StatementReader reader(m_store, m_form);
    const std::optional<StatementValues> statement = reader.statement(basicInfoId);
    if (!statement) {
        result.findings.append({Severity::Error, 0, 0, QStringLiteral("BasicIfoID"),
                                missingStatementText.arg(basicInfoId).arg(m_form.formType),
                                QStringLiteral("STATEMENT")});
        return result;
    }
    const QList<ChallanValues> challans = reader.challans(*statement);
    const CheckContext context = contextOf(m_form, *statement, challans, filedOn);

    const FormKind form = m_form.kind;
    const int year = context.financialYear;
    const auto rowRulesHolding = holding(rowRules(), form, year);
    Findings findings(context);
    std::vector<ChallanTally> tallies;
    tallies.reserve(challans.size());
    for (const ChallanValues &challan : challans) {
        const bool bookEntry = context.governmentDeductor && challan.transferVoucherGiven;
        tallies.emplace_back(interest::ChallanInterestWork(
            challan.slNo, challan.deposited.date, bookEntry, challan.interest.money,
            m_form.collectsTax));
    }
    int rows = 0;
    Money taxDeducted;
    reader.rows(basicInfoId, challans, [&](int index, const RowValues &row) {
        findings.apply(rowRulesHolding, row, challans.at(index).slNo, row.srlNo);
        ++rows;
        taxDeducted += row.total.money;
        tallies[index].add(row);
    });

    const auto challanRulesHolding = holding(challanRules(), form, year);
    Money othersPaid;
    for (qsizetype index = 0; index < challans.size(); ++index) {
        const ChallanValues &challan = challans.at(index);
        const ChallanTally &tally = tallies[index];
        const ChallanInterest owed = tally.interest.result();
        findings.apply(challanRulesHolding,
                       ChallanFacts{challan, tally.rowsDeposited, tally.latestDeduction,
                                    tally.latestDeductionRow, owed},
                       challan.slNo, 0);
        if (owed.due > Money())
            result.interest.append(owed);
        othersPaid += challan.others.money;
    }

    result.lateFee =
        lateFee(form, context.quarterIndex, year, filedOn, taxDeducted, othersPaid);
    findings.apply(holding(statementRules(), form, year),
                   StatementFacts{*statement, int(challans.size()), rows, result.lateFee}, 0, 0);
    result.findings = findings.ordered();
    return result;
}

} // namespace filingcheck
