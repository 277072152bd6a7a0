#include "statements/annexurelistmodel.h"

namespace {

const char *const headers[] = {"No.", "Srl No", "Name", "Code", "PAN", "Amount", "Date",
                               "Rate", "Tax", "Surcharge", "Cess", "Total", "Tax Deposited",
                               "Deduction"};
static_assert(std::size(headers) == AnnexureListModel::ColumnCount);

} // namespace

AnnexureListModel::AnnexureListModel(QObject *parent) : RowListModel(headers, parent)
{
}

QString AnnexureListModel::cell(const AnnexureEntry &row, int column) const
{
    switch (column) {
    case IdColumn: return row.rowId;
    case SerialColumn: return row.srlNo;
    case NameColumn: return row.partyName;
    case CodeColumn: return row.deducteeCode;
    case PanColumn: return row.pan;
    case AmountColumn: return row.amount;
    case DateColumn: return row.date.toString(QStringLiteral("dd/MM/yyyy"));
    case RateColumn: return row.rate;
    case TaxColumn: return row.tax;
    case SurchargeColumn: return row.surcharge;
    case CessColumn: return row.cess;
    case TotalColumn: return row.total;
    case DepositedColumn: return row.deposited;
    case FlagColumn:
        return row.flag == u"A"   ? QStringLiteral("Lower/No Deduction")
               : row.flag == u"B" ? QStringLiteral("No Deduction")
                                  : QStringLiteral("Normal");
    default: return {};
    }
}

bool AnnexureListModel::isNumber(int column) const
{
    return column != NameColumn && column != PanColumn && column != FlagColumn;
}
