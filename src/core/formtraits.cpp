#include "core/formtraits.h"

#include <array>

namespace {

const std::array<FormTraits, 4> forms = {{
    {FormKind::Form24Q, "24Q", "Form24", "frmForm24", "TranBasicInfoE24", "TranChallanE24",
     "TranEmployeeE24", "mstSections24", "SL1", true, "EmpID", "EmpName", true, "", "",
     "TranSalaryE24", "TranSec16E24", "TranSecViAE24", "Form 24"},
    {FormKind::Form26Q, "26Q", "Form26", "frmForm26", "TranBasicInfoE26", "TranChallanE26",
     "TranDeducteeE26", "mstSections26", "NS1", false, "DeducteeID", "DeducteeName", false, "",
     "", "", "", "", "Form 26"},
    {FormKind::Form27Q, "27Q", "Form27", "frmForm27", "TranBasicInfoE27", "TranChallanE27",
     "TranDeducteeE27", "mstSections27", "NS1", false, "DeducteeID", "DeducteeName", false,
     "GrossingUpIndicator", "", "", "", "", "Form 27"},
    {FormKind::Form27EQ, "27EQ", "Form27E", "frmForm27E", "TranBasicInfoE27E",
     "TranChallanE27E", "TranDeducteeE27E", "mstCollectionCode", "TC1", false, "DeducteeID",
     "DeducteeName", false, "", "TotvalPur", "", "", "", "Form 27E"},
}};

} // namespace

std::span<const FormTraits> allForms()
{
    return forms;
}

const FormTraits &formTraits(FormKind kind)
{
    return forms[static_cast<std::size_t>(kind)];
}

const FormTraits *findForm(const QString &formType)
{
    for (const FormTraits &form : forms) {
        if (form.formType == formType)
            return &form;
    }
    return nullptr;
}
