#include "statements/challangridmodel.h"

namespace {

const char *const headers[] = {"Challan ID", "Section", "Date", "Bank Code", "Challan No",
                               "Trans Vou. No", "Cheque No.", "Total", "Tax Deposited"};
static_assert(std::size(headers) == ChallanGridModel::ColumnCount);

} // namespace

ChallanGridModel::ChallanGridModel(QObject *parent) : RowListModel(headers, parent)
{
}

QString ChallanGridModel::cell(const ChallanEntry &row, int column) const
{
    switch (column) {
    case IdColumn: return row.challanId;
    case SectionColumn: return row.section;
    case DateColumn: return row.date.toString(QStringLiteral("dd/MM/yyyy"));
    case BankColumn: return row.bankCode;
    case ChallanNoColumn: return row.challanNo;
    case VoucherNoColumn: return row.voucherNo;
    case ChequeColumn: return row.cheque;
    case TotalColumn: return row.total;
    case DepositedColumn: return row.totTax;
    default: return {};
    }
}

bool ChallanGridModel::isNumber(int column) const
{
    return column == IdColumn || column == TotalColumn || column == DepositedColumn;
}

void ChallanGridModel::sort(int column, Qt::SortOrder)
{
    // The grid has only ever sorted upwards, whichever way the head is clicked.
    const auto less = [this, column](const ChallanEntry &a, const ChallanEntry &b) {
        if (column == DateColumn)
            return a.date < b.date;
        if (isNumber(column))
            return numbers::val(cell(a, column)) < numbers::val(cell(b, column));
        return cell(a, column) < cell(b, column);
    };
    beginResetModel();
    std::stable_sort(m_rows.begin(), m_rows.end(), less);
    endResetModel();
}
