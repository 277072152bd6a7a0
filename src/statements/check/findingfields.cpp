#include "statements/check/findingfields.h"

#include "core/formtraits.h"
#include "filingcheck/filingcheck.h"

namespace findingfields {

namespace {

struct Field
{
    const char *column;
    const char *control;
};

// The Statement's own values, on the basic information panel.
constexpr Field statementFields[] = {
    {"TanNO", "txtTan"},          {"PanNo", "txtPAN"},           {"CompName", "txtCompName"},
    {"Address1", "txtAddress1"},  {"Address2", "txtAddress2"},   {"Address3", "txtAddress3"},
    {"Address4", "txtAddress4"},  {"Address5", "txtAddress5"},   {"StateCode", "cmbState"},
    {"Pincode", "txtPincode"},    {"phone", "txtPhone"},         {"email", "txtEmail"},
    {"PersonName", "txtPersonName"}, {"Designation", "txtDesignation"},
    {"pAddress1", "txtPAddress1"}, {"pAddress2", "txtPAddress2"}, {"pAddress3", "txtPAddress3"},
    {"pAddress4", "txtPAddress4"}, {"pAddress5", "txtPAddress5"}, {"pPhone", "txtPPhone"},
    {"pPincode", "txtPpincode"},  {"pStateCode", "cmbPState"},   {"pEmail", "txtPemail"},
    {"NoChallan", "txtNoChallan"}, {"NoDeductee", "txtNoDeductee"},
    {"AppRcptNo", "txttanReceiptNo"}, {"RevisedRcptNo", "txtRevisedReceiptNo"},
};

// A challan's values, on the challan panel.
constexpr Field challanFields[] = {
    {"SlNo", "txtCh(115)"},       {"Section", "cmb116"},          {"AmountDeducted", "txtCh(117)"},
    {"Surcharge", "txtCh(118)"},  {"EduCess", "txtCh(119)"},      {"Interest", "txtCh(120)"},
    {"Others", "txtCh(121)"},     {"Total", "txtCh(122)"},        {"ChqDDNo", "txtCh(123)"},
    {"BankCode", "txtCh(124)"},   {"DtTrVoucher", "dtp119"},      {"TrVoucherNo", "txtCh(125)"},
    {"TransferVoucherNo", "txtCh(126)"}, {"TotTax", "txtTotTaxDeposited"},
    {"ExInterest", "txtExInterest"}, {"ExtOthers", "txtExOther"}, {"Remarks", "txtRemarks"},
};

// An annexure row's values, on the annexure panel; the deductee's and the employee's names are
// the same combo.
constexpr Field rowFields[] = {
    {"PAN", "txtPANDeductee"},     {"PANRef", "txtPanRefDeductee"},
    {"DeducteeName", "cmbDeductee"}, {"EmpName", "cmbDeductee"},
    {"DeducteeCode", "txtDeducteeCode"}, {"Address1", "txtAdd1"}, {"Address2", "txtAdd2"},
    {"Address3", "txtAdd3"},       {"Address4", "txtAdd4"},      {"Address5", "txtAdd5"},
    {"StateCode", "cmbDState"},    {"State", "cmbDState"},       {"PIN", "txtDPin"},
    {"AmtOfPayment", "txt104"},    {"PaymentDt", "dtp105"},      {"TaxDeductDt", "dtp105"},
    {"Rate", "txt106"},            {"Tax", "txtdedTax"},         {"Surcharge", "txtdedSurcharge"},
    {"Cess", "txtdedCess"},        {"Total", "txtdedTotal"},     {"TaxAmount", "txt107"},
    {"NonDeductionflg", "optNonDeductionFlg(2)"}, {"TotvalPur", "txtValOfPurchase"},
    {"GrossingUpIndicator", "cmbGrossUpIndicator"},
    {"Designation", "txtEmpDesignation"},
};

template<std::size_t N>
QString find(const Field (&fields)[N], const QString &column)
{
    for (const Field &field : fields) {
        if (column.compare(QLatin1String(field.column), Qt::CaseInsensitive) == 0)
            return QLatin1String(field.control);
    }
    return {};
}

} // namespace

QString controlOf(const FormTraits &form, const filingcheck::Finding &finding)
{
    if (finding.row > 0)
        return find(rowFields, finding.column);
    if (finding.challan > 0) {
        // Form 24Q's challans have no section.
        if (!form.challanHasSection() && finding.column == u"Section")
            return {};
        return find(challanFields, finding.column);
    }
    return find(statementFields, finding.column);
}

} // namespace findingfields
