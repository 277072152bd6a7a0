#include "statements/challanentry.h"

#include <array>

namespace {

using C = ChallanEntry;
using Box = ChallanEntry::Box;

const std::array boxTable = {
    Box{"txtCh(115)", "SlNo", &C::slNo, 5, false},
    Box{"txtCh(117)", "AmountDeducted", &C::tds, 15, true},
    Box{"txtCh(118)", "Surcharge", &C::surcharge, 15, true},
    Box{"txtCh(119)", "EduCess", &C::cess, 15, true},
    Box{"txtCh(120)", "Interest", &C::interest, 15, true},
    Box{"txtCh(121)", "Others", &C::others, 15, true},
    Box{"txtCh(122)", "Total", &C::total, 15, true},
    Box{"txtCh(123)", "ChqDDNo", &C::cheque, 14, false},
    Box{"txtCh(124)", "BankCode", &C::bankCode, 7, false},
    Box{"txtCh(125)", "TrVoucherNo", &C::challanNo, 5, false},
    Box{"txtCh(126)", "TransferVoucherNo", &C::voucherNo, 9, false},
    Box{"txtTotTaxDeposited", "TotTax", &C::totTax, 15, true},
    Box{"txtTotIncomeTax", "TotIncomeTax", &C::totIncomeTax, 15, true},
    Box{"txtTotSurcharge", "TotSurcharge", &C::totSurcharge, 15, true},
    Box{"txtTotCess", "TotCess", &C::totCess, 15, true},
    Box{"txtCtrlTot", "CtrlTot", &C::ctrlTot, 15, true},
    Box{"txtExInterest", "ExInterest", &C::exInterest, 15, true},
    Box{"txtExOther", "ExtOthers", &C::exOthers, 15, true},
    Box{"txtRemarks", "Remarks", &C::remarks, 14, false},
    Box{"txtChallanID", "ChallnID", &C::challanId, 0, false},
};

} // namespace

std::span<const ChallanEntry::Box> ChallanEntry::boxes()
{
    return boxTable;
}
