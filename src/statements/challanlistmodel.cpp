#include "statements/challanlistmodel.h"

namespace {

const char *const headers[] = {
    "Sl. No.", "Section", "Tds", "Challan No", "Trans Vou. No", "Date", "Bank-Branch Code",
    "Date", "Challan ID", "Surcharge", "Education cess", "Interest", "Others", "Total tax",
    "Cheque No.", "Book Entry", "Total Tax Deposited", "Tds / Tcs - Income Tax",
    "Tds / Tcs - Surcharge", "Tds / Tcs - Cess", "Tds / Tcs - Total", "Interest (entered)",
    "Others (entered)", "Remarks"};
static_assert(std::size(headers) == ChallanListModel::ColumnCount);

} // namespace

ChallanListModel::ChallanListModel(QObject *parent) : RowListModel(headers, parent)
{
}

QString ChallanListModel::cell(const ChallanEntry &row, int column) const
{
    switch (column) {
    case SerialColumn: return row.slNo;
    case SectionColumn: return row.section;
    case AmountColumn: return row.tds;
    case ChallanNoColumn: return row.challanNo;
    case VoucherNoColumn: return row.voucherNo;
    case DateColumn: return row.date.toString(QStringLiteral("dd/MM/yyyy"));
    case BankColumn: return row.bankCode;
    case RawDateColumn: return row.date.toString(Qt::ISODate);
    case IdColumn: return row.challanId;
    case SurchargeColumn: return row.surcharge;
    case CessColumn: return row.cess;
    case InterestColumn: return row.interest;
    case OthersColumn: return row.others;
    case TotalColumn: return row.total;
    case ChequeColumn: return row.cheque;
    case BookEntryColumn: return row.bookEntry;
    case TotTaxColumn: return row.totTax;
    case TotIncomeTaxColumn: return row.totIncomeTax;
    case TotSurchargeColumn: return row.totSurcharge;
    case TotCessColumn: return row.totCess;
    case CtrlTotColumn: return row.ctrlTot;
    case ExInterestColumn: return row.exInterest;
    case ExOthersColumn: return row.exOthers;
    case RemarksColumn: return row.remarks;
    default: return {};
    }
}

bool ChallanListModel::isNumber(int column) const
{
    return column == SerialColumn || column == AmountColumn
           || (column >= SurchargeColumn && column <= TotalColumn)
           || (column >= TotTaxColumn && column <= ExOthersColumn);
}
