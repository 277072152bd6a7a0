#include "statements/annexureentry.h"

#include <array>

namespace {

using A = AnnexureEntry;
using Box = AnnexureEntry::Box;

const std::array boxTable = {
    Box{"txtDeducteeID", &A::rowId, 0},          Box{"txtDeducteeSrlNo", &A::srlNo, 5},
    Box{"txtDeducteeNo", &A::partyNo, 0},        Box{"txtDeducteeCode", &A::deducteeCode, 5},
    Box{"txtPANDeductee", &A::pan, 10},          Box{"txtPanRefDeductee", &A::panRef, 10},
    Box{"txtAdd1", &A::address1, 25},            Box{"txtAdd2", &A::address2, 25},
    Box{"txtAdd3", &A::address3, 25},            Box{"txtAdd4", &A::address4, 25},
    Box{"txtAdd5", &A::address5, 25},            Box{"txtDStateCode", &A::stateCode, 2},
    Box{"txtDStId", &A::stateId, 0},             Box{"txtDPin", &A::pin, 6},
    Box{"txtEmpDesignation", &A::designation, 10}, Box{"txt104", &A::amount, 15},
    Box{"txt106", &A::rate, 7},                  Box{"txtdedTax", &A::tax, 15},
    Box{"txtdedSurcharge", &A::surcharge, 15},   Box{"txtdedCess", &A::cess, 15},
    Box{"txtdedTotal", &A::total, 15},           Box{"txt107", &A::deposited, 15},
    Box{"txtValOfPurchase", &A::purchaseValue, 15},
};

} // namespace

std::span<const AnnexureEntry::Box> AnnexureEntry::boxes()
{
    return boxTable;
}
