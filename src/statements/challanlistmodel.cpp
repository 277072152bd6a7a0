#include "statements/challanlistmodel.h"

#include "core/numbers.h"

#include <algorithm>

namespace {

const char *const headers[ChallanListModel::ColumnCount] = {
    "Sl. No.", "Section", "Tds", "Challan No", "Trans Vou. No", "Date", "Bank-Branch Code",
    "Date", "Challan ID", "Surcharge", "Education cess", "Interest", "Others", "Total tax",
    "Cheque No.", "Book Entry", "Total Tax Deposited", "Tds / Tcs - Income Tax",
    "Tds / Tcs - Surcharge", "Tds / Tcs - Cess", "Tds / Tcs - Total", "Interest (entered)",
    "Others (entered)", "Remarks"};

QString cell(const ChallanEntry &row, int column)
{
    switch (column) {
    case ChallanListModel::SerialColumn: return row.slNo;
    case ChallanListModel::SectionColumn: return row.section;
    case ChallanListModel::AmountColumn: return row.tds;
    case ChallanListModel::ChallanNoColumn: return row.challanNo;
    case ChallanListModel::VoucherNoColumn: return row.voucherNo;
    case ChallanListModel::DateColumn: return row.date.toString(QStringLiteral("dd/MM/yyyy"));
    case ChallanListModel::BankColumn: return row.bankCode;
    case ChallanListModel::RawDateColumn: return row.date.toString(Qt::ISODate);
    case ChallanListModel::IdColumn: return row.challanId;
    case ChallanListModel::SurchargeColumn: return row.surcharge;
    case ChallanListModel::CessColumn: return row.cess;
    case ChallanListModel::InterestColumn: return row.interest;
    case ChallanListModel::OthersColumn: return row.others;
    case ChallanListModel::TotalColumn: return row.total;
    case ChallanListModel::ChequeColumn: return row.cheque;
    case ChallanListModel::BookEntryColumn: return row.bookEntry;
    case ChallanListModel::TotTaxColumn: return row.totTax;
    case ChallanListModel::TotIncomeTaxColumn: return row.totIncomeTax;
    case ChallanListModel::TotSurchargeColumn: return row.totSurcharge;
    case ChallanListModel::TotCessColumn: return row.totCess;
    case ChallanListModel::CtrlTotColumn: return row.ctrlTot;
    case ChallanListModel::ExInterestColumn: return row.exInterest;
    case ChallanListModel::ExOthersColumn: return row.exOthers;
    case ChallanListModel::RemarksColumn: return row.remarks;
    default: return {};
    }
}

bool isAmount(int column)
{
    return column == ChallanListModel::AmountColumn
           || (column >= ChallanListModel::SurchargeColumn
               && column <= ChallanListModel::TotalColumn)
           || (column >= ChallanListModel::TotTaxColumn
               && column <= ChallanListModel::ExOthersColumn);
}

} // namespace

void ChallanListModel::setRows(QList<ChallanEntry> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int ChallanListModel::findSerial(int serial) const
{
    for (int index = 0; index < m_rows.size(); ++index) {
        if (int(numbers::val(m_rows.at(index).slNo)) == serial)
            return index;
    }
    return -1;
}

int ChallanListModel::nextSerial() const
{
    int highest = 0;
    for (const ChallanEntry &row : m_rows)
        highest = std::max(highest, int(numbers::val(row.slNo)));
    return highest + 1;
}

int ChallanListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int ChallanListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ChallanListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    if (role == Qt::DisplayRole)
        return cell(m_rows.at(index.row()), index.column());
    if (role == Qt::TextAlignmentRole && (isAmount(index.column()) || index.column() == 0))
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant ChallanListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0
        || section >= ColumnCount)
        return {};
    return QLatin1String(headers[section]);
}
