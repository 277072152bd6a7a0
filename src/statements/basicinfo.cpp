#include "statements/basicinfo.h"

#include <array>

namespace {

using B = BasicInfo;
using Field = BasicInfo::Field;
using Kind = BasicInfo::Kind;

const std::array fieldTable = {
    Field{"txtBasicIfoID", "BasicIfoID", &B::basicInfoId, 0, Kind::Hidden},
    Field{"txtCompId", "CompID", &B::compId, 0, Kind::Hidden},
    Field{"txtQuarter", "Quarter", &B::quarter, 6, Kind::Shown},
    Field{"TxtAssesment", "AsstYear", &B::asstYear, 6, Kind::Shown},
    Field{"txtFAYear", "FAYear", &B::faYear, 6, Kind::Shown},
    Field{"txtTan", "TanNO", &B::tan, 10, Kind::Shown},
    Field{"txtPAN", "PanNo", &B::pan, 10, Kind::Shown},
    Field{"txtBranch", "BranchDiv", &B::branch, 25, Kind::Editable},
    Field{"txtCompName", "CompName", &B::compName, 75, Kind::Shown},
    Field{"txtAddress1", "Address1", &B::address1, 25, Kind::Shown},
    Field{"txtAddress2", "Address2", &B::address2, 25, Kind::Shown},
    Field{"txtAddress3", "Address3", &B::address3, 25, Kind::Shown},
    Field{"txtAddress4", "Address4", &B::address4, 25, Kind::Shown},
    Field{"txtAddress5", "Address5", &B::address5, 25, Kind::Shown},
    Field{"cmbState", nullptr, &B::state, 0, Kind::Editable},
    Field{"txtStID", nullptr, &B::stateId, 0, Kind::Hidden},
    Field{"txtStateCode", "StateCode", &B::stateCode, 0, Kind::Hidden},
    Field{"txtPincode", "Pincode", &B::pincode, 6, Kind::Shown},
    Field{"txtPhone", "phone", &B::phone, 15, Kind::Shown},
    Field{"txtEmail", "email", &B::email, 75, Kind::Shown},
    Field{"txtstdCode", "Std", &B::stdCode, 5, Kind::Shown},
    Field{"txtPersonName", "PersonName", &B::personName, 75, Kind::Shown},
    Field{"txtDesignation", "Designation", &B::designation, 20, Kind::Shown},
    Field{"txtPAddress1", "pAddress1", &B::pAddress1, 25, Kind::Shown},
    Field{"txtPAddress2", "pAddress2", &B::pAddress2, 25, Kind::Shown},
    Field{"txtPAddress3", "pAddress3", &B::pAddress3, 25, Kind::Shown},
    Field{"txtPAddress4", "pAddress4", &B::pAddress4, 25, Kind::Shown},
    Field{"txtPAddress5", "pAddress5", &B::pAddress5, 25, Kind::Shown},
    Field{"cmbPState", nullptr, &B::pState, 0, Kind::Editable},
    Field{"txtPStId", nullptr, &B::pStateId, 0, Kind::Hidden},
    Field{"txtPstateCode", "pStateCode", &B::pStateCode, 0, Kind::Hidden},
    Field{"txtPpincode", "pPincode", &B::pPincode, 6, Kind::Shown},
    Field{"txtPPhone", "pPhone", &B::pPhone, 15, Kind::Shown},
    Field{"txtPemail", "pEmail", &B::pEmail, 75, Kind::Shown},
    Field{"txtpStdCode", "pStd", &B::pStdCode, 5, Kind::Shown},
    Field{"txtNoChallan", "NoChallan", &B::noChallan, 5, Kind::Count},
    Field{"txtNoDeductee", "NoDeductee", &B::noDeductee, 5, Kind::Count},
    Field{"txttanReceiptNo", "AppRcptNo", &B::tanReceiptNo, 14, Kind::Receipt},
    Field{"txtRevisedReceiptNo", "RevisedRcptNo", &B::revisedReceiptNo, 14, Kind::Receipt},
    Field{"txtDetype", nullptr, &B::deductorStatus, 0, Kind::Shown},
    Field{"txtDeTypeDesc", nullptr, &B::deductorStatusText, 0, Kind::Shown},
};

} // namespace

std::span<const BasicInfo::Field> BasicInfo::fields()
{
    return fieldTable;
}

const BasicInfo::Field *BasicInfo::field(const QString &control)
{
    for (const Field &candidate : fieldTable) {
        if (control == QLatin1String(candidate.control))
            return &candidate;
    }
    return nullptr;
}
