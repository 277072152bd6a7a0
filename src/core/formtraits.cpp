#include "core/formtraits.h"

namespace {

const std::array<FormTraits, 4> forms = {{
    {.kind = FormKind::Form24Q, .formType = "24Q", .reportForm = "Form24",
     .screenName = "frmForm24", .basicInfoTable = "TranBasicInfoE24",
     .challanTable = "TranChallanE24", .annexureTable = "TranEmployeeE24",
     .sectionTable = "mstSections24", .sectionColumn = "SectionName", .fileType = "SL1",
     .hasSalaryDetail = true, .collectsTax = false, .partyWord = "Employee",
     .partyMaster = "frmEmployeeMaster",
     .challanItems = {301, 0, 302, 303, 304, 305, 306, 307, 308, 309, 310, 311, 311},
     .annexureItems = {0, 315, 316, 318, 324, 0, 319, 320, 321, 322, 323, 0},
     .annexureZero = "00.00",
     .annexureKey = "EmpID", .partyNameColumn = "EmpName", .salaryLayout = true,
     .salaryTable = "TranSalaryE24", .section10Table = "TranSec10E24",
     .section16Table = "TranSec16E24", .section88Table = "TranSec88E24",
     .chapterVIATable = "TranSecViAE24", .messageName = "Form 24"},
    {.kind = FormKind::Form26Q, .formType = "26Q", .reportForm = "Form26",
     .screenName = "frmForm26", .basicInfoTable = "TranBasicInfoE26",
     .challanTable = "TranChallanE26", .annexureTable = "TranDeducteeE26",
     .sectionTable = "mstSections26", .sectionColumn = "SectionName", .fileType = "NS1",
     .hasSalaryDetail = false, .collectsTax = false, .partyWord = "Deductee",
     .partyMaster = "frmDeducteeMaster",
     .challanItems = {401, 402, 403, 404, 405, 406, 407, 408, 409, 410, 411, 412, 412},
     .annexureItems = {415, 416, 417, 419, 426, 427, 421, 422, 423, 424, 425, 0},
     .annexureZero = "00.00",
     .annexureKey = "DeducteeID", .partyNameColumn = "DeducteeName", .salaryLayout = false,
     .messageName = "Form 26"},
    // The cheque number of 27Q has always been labelled with 26Q's item number, and the amount,
// date and rate of 27Q's and 27EQ's rows with 26Q's.
    {.kind = FormKind::Form27Q, .formType = "27Q", .reportForm = "Form27",
     .screenName = "frmForm27", .basicInfoTable = "TranBasicInfoE27",
     .challanTable = "TranChallanE27", .annexureTable = "TranDeducteeE27",
     .sectionTable = "mstSections27", .sectionColumn = "SectionName", .fileType = "NS1",
     .hasSalaryDetail = false, .collectsTax = false, .partyWord = "Deductee",
     .partyMaster = "frmDeducteeMaster",
     .challanItems = {701, 702, 703, 704, 705, 706, 707, 708, 409, 710, 711, 712, 712},
     .annexureItems = {715, 716, 717, 419, 426, 427, 721, 722, 723, 724, 725, 728},
     .annexureZero = "0.00",
     .annexureKey = "DeducteeID", .partyNameColumn = "DeducteeName", .salaryLayout = false,
     .grossingUpColumn = "GrossingUpIndicator", .messageName = "Form 27"},
    {.kind = FormKind::Form27EQ, .formType = "27EQ", .reportForm = "Form27E",
     .screenName = "frmForm27E", .basicInfoTable = "TranBasicInfoE27E",
     .challanTable = "TranChallanE27E", .annexureTable = "TranDeducteeE27E",
     .sectionTable = "mstCollectionCode", .sectionColumn = "CollectionCode",
     .fileType = "TC1", .hasSalaryDetail = false, .collectsTax = true,
     .partyWord = "Deductee", .partyMaster = "frmDeducteeMaster",
     .challanItems = {651, 652, 653, 654, 655, 656, 657, 658, 659, 660, 661, 662, 662},
     .annexureItems = {665, 666, 667, 419, 426, 427, 672, 673, 674, 675, 676, 668},
     .annexureZero = "0.00",
     .annexureKey = "DeducteeID", .partyNameColumn = "DeducteeName", .salaryLayout = false,
     .purchaseColumn = "TotvalPur", .messageName = "Form 27E"},
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
