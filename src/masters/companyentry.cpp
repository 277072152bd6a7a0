#include "masters/companyentry.h"

#include <array>

namespace {

using Field = CompanyEntry::Field;
using E = CompanyEntry;

const std::array fieldTable = {
    Field{"cmbGroupName", nullptr, &E::groupName, 0, false},
    Field{"txtGrpId", "GroupID", &E::groupId, 0, true},
    Field{"txtCompId", "CompID", &E::compId, 0, true},
    Field{"txtTan", "TanNO", &E::tan, 10, false},
    Field{"txtPAN", "PanNo", &E::pan, 10, false},
    Field{"txtCompName", "CompName", &E::name, 75, false},
    Field{"txtBranch", "BranchDiv", &E::branch, 25, false},
    Field{"txtAddress1", "Address1", &E::address1, 25, false},
    Field{"txtAddress2", "Address2", &E::address2, 25, false},
    Field{"txtAddress3", "Address3", &E::address3, 25, false},
    Field{"txtAddress4", "Address4", &E::address4, 25, false},
    Field{"txtAddress5", "Address5", &E::address5, 25, false},
    Field{"cmbState", nullptr, &E::state, 0, false},
    Field{"txtStID", "StateID", &E::stateId, 0, true},
    Field{"txtStateCode", "StateCode", &E::stateCode, 2, false},
    Field{"txtPincode", "Pincode", &E::pincode, 6, false},
    Field{"txtstdCode", "STD", &E::stdCode, 5, false},
    Field{"txtPhone", "Phone", &E::phone, 15, false},
    Field{"txtEmail", "eMail", &E::email, 50, false},
    Field{"txtPersonName", "PersonName", &E::personName, 75, false},
    Field{"txtDesignation", "Designation", &E::designation, 20, false},
    Field{"txtPAddress1", "pAddress1", &E::pAddress1, 25, false},
    Field{"txtPAddress2", "pAddress2", &E::pAddress2, 25, false},
    Field{"txtPAddress3", "pAddress3", &E::pAddress3, 25, false},
    Field{"txtPAddress4", "pAddress4", &E::pAddress4, 25, false},
    Field{"txtPAddress5", "pAddress5", &E::pAddress5, 25, false},
    Field{"cmbPState", nullptr, &E::pState, 0, false},
    Field{"txtPStId", "PStateID", &E::pStateId, 0, true},
    Field{"txtPstateCode", "pStateCode", &E::pStateCode, 2, false},
    Field{"txtPpincode", "pPincode", &E::pPincode, 6, false},
    Field{"txtpStdCode", "pSTD", &E::pStdCode, 5, false},
    Field{"txtPPhone", "pPhone", &E::pPhone, 15, false},
    Field{"txtPemail", "PeMail", &E::pEmail, 50, false},
    Field{"txtAssOfficerCode", "AssessingOfficerCode", &E::assessingOfficerCode, 10, false},
    Field{"txtTdsCircle", "TDSCircle", &E::tdsCircle, 50, false},
    Field{"txtPrefix", "FilePrefix", &E::filePrefix, 3, false},
    Field{"cmbStatus", nullptr, &E::status, 1, false},
    Field{"cmbDeType", "DStatus", &E::deductorType, 1, false},
    Field{"cmbDState", nullptr, &E::dState, 0, false},
    Field{"txtDStId", "DStateID", &E::dStateId, 0, true},
    Field{"txtDStateCode", "DStateCode", &E::dStateCode, 2, false},
    Field{"cmbMinistry", nullptr, &E::ministry, 0, false},
    Field{"txtMinistryID", "MinistryID", &E::ministryId, 0, true},
    Field{"txtMinistryCode", "MinistryCode", &E::ministryCode, 2, false},
    Field{"txtMinistryNameOther", "MinistryOther", &E::ministryOther, 150, false},
    Field{"txtPAOCode", "PAOCode", &E::paoCode, 20, false},
    Field{"txtPAORegNo", "PAORegNo", &E::paoRegNo, 7, false},
    Field{"txtDDOCode", "DDOCode", &E::ddoCode, 20, false},
    Field{"txtDDORegNo", "DDORegNo", &E::ddoRegNo, 10, false},
};

} // namespace

std::span<const CompanyEntry::Field> CompanyEntry::fields()
{
    return fieldTable;
}

const CompanyEntry::Field *CompanyEntry::field(const QString &control)
{
    for (const Field &field : fieldTable) {
        if (control == QLatin1String(field.control))
            return &field;
    }
    return nullptr;
}

QString CompanyEntry::value(const QString &control) const
{
    const Field *entryField = field(control);
    return entryField ? this->*(entryField->member) : QString();
}

void CompanyEntry::setValue(const QString &control, const QString &text)
{
    if (const Field *entryField = field(control))
        this->*(entryField->member) = text;
}
