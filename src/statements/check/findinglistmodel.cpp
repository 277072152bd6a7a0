#include "statements/check/findinglistmodel.h"

namespace {

const char *const findingHeaders[] = {"Kind", "Challan", "Row", "Field", "What is wrong"};
static_assert(std::size(findingHeaders) == FindingListModel::ColumnCount);

const char *const dueHeaders[] = {"Due", "Where", "Amount", "Paid"};
static_assert(std::size(dueHeaders) == DueListModel::ColumnCount);

QString serial(int number)
{
    return number > 0 ? QString::number(number) : QString();
}

} // namespace

FindingListModel::FindingListModel(QObject *parent) : RowListModel(findingHeaders, parent)
{
}

void FindingListModel::setFindings(
    const QList<filingcheck::Finding> &findings,
    const std::function<QString(const filingcheck::Finding &)> &label)
{
    QList<FindingEntry> entries;
    entries.reserve(findings.size());
    for (const filingcheck::Finding &finding : findings) {
        const bool error = finding.severity == filingcheck::Severity::Error;
        entries.append({error ? QStringLiteral("Error") : QStringLiteral("Warning"),
                        serial(finding.challan), serial(finding.row), label(finding),
                        finding.message, finding});
    }
    setRows(std::move(entries));
}

QVariant FindingListModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::ToolTipRole && index.isValid() && index.column() == MessageColumn)
        return RowListModel::data(index, Qt::DisplayRole);
    return RowListModel::data(index, role);
}

QString FindingListModel::cell(const FindingEntry &row, int column) const
{
    switch (column) {
    case KindColumn: return row.kind;
    case ChallanColumn: return row.challan;
    case RowColumn: return row.row;
    case FieldColumn: return row.field;
    case MessageColumn: return row.message;
    }
    return {};
}

bool FindingListModel::isNumber(int column) const
{
    return column == ChallanColumn || column == RowColumn;
}

DueListModel::DueListModel(QObject *parent) : RowListModel(dueHeaders, parent)
{
}

void DueListModel::setResult(const filingcheck::CheckResult &result,
                             const QString &interestName)
{
    QList<DueEntry> entries;
    for (const filingcheck::ChallanInterest &interest : result.interest) {
        entries.append({interestName,
                        QStringLiteral("challan %1").arg(interest.challan),
                        interest.due.toText(), interest.paid.toText(),
                        interest.working.join(u'\n')});
    }
    const filingcheck::LateFee &fee = result.lateFee;
    entries.append({QStringLiteral("Late fee 234E"), QStringLiteral("statement"),
                    fee.due.toText(), fee.paid.toText(), fee.working});
    setRows(std::move(entries));
}

QString DueListModel::cell(const DueEntry &row, int column) const
{
    switch (column) {
    case WhatColumn: return row.what;
    case WhereColumn: return row.where;
    case DueColumn: return row.due;
    case PaidColumn: return row.paid;
    }
    return {};
}

bool DueListModel::isNumber(int column) const
{
    return column == DueColumn || column == PaidColumn;
}
