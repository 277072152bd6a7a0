#include "generationstore.h"

#include <QDir>

namespace generationrows {

void addStatement(const TestStore &data, FormKind form, int basicInfoId, int compId,
                  const QString &quarter, int noChallan, int noDeductee, const QString &compName,
                  const QString &revisedRcptNo)
{
    data.insert(formTraits(form).basicInfoTable,
                {{"BasicIfoID", basicInfoId}, {"CompID", compId}, {"AsstID", 1},
                 {"TanNO", "BLRK01234E"}, {"PanNo", "AAACK1234F"}, {"CompName", compName},
                 {"Address1", "MG ROAD"}, {"StateCode", "15"}, {"Pincode", "560001"},
                 {"Employer", 0}, {"Salary", 0}, {"Status", 1}, {"PersonName", "R NAIR"},
                 {"Designation", "MANAGER"}, {"pPincode", "560001"}, {"NoChallan", noChallan},
                 {"NoDeductee", noDeductee}, {"AsstYear", "202728"}, {"FAYear", "202627"},
                 {"AppRcptNo", "0"}, {"RevisedRtn", "R"}, {"RevisedRcptNo", revisedRcptNo},
                 {"Quarter", quarter}});
}

void addChallan(const TestStore &data, FormKind form, int challanId, int basicInfoId,
                int compId, int slNo, double total)
{
    TestStore::Row row = {{"ChallnID", challanId}, {"BasicIfoID", basicInfoId},
                          {"CompID", compId},      {"AsstID", 1},
                          {"SlNo", slNo},          {"AmountDeducted", total},
                          {"Total", total},        {"TrVoucherNo", "00123"},
                          {"DtTrVoucher", "2026-07-07"}, {"BankCode", "0510308"},
                          {"ChqDDNo", "445566"},   {"TransferVoucherNo", ""},
                          {"Remarks", ""}};
    for (const char *zero : {"Surcharge", "EduCess", "Interest", "Others", "TotTax",
                             "TotIncomeTax", "TotSurcharge", "TotCess", "CtrlTot", "ExInterest",
                             "ExtOthers"})
        row.append({zero, 0});
    data.insert(formTraits(form).challanTable, row);
}

void addAnnexureRow(const TestStore &data, FormKind form, int rowId, int basicInfoId,
                    int challanId, int srlNo, double amountPaid, double taxAmount)
{
    const FormTraits &traits = formTraits(form);
    data.insert(traits.annexureTable,
                {{traits.annexureKey, rowId}, {"BasicIfoID", basicInfoId}, {"CompID", 11},
                 {"AsstID", 1}, {"ChallanId", challanId}, {"SrlNo", srlNo},
                 {"PAN", "ABCPE1234F"}, {"AmtOfPayment", amountPaid},
                 {"PaymentDt", "2026-07-05"}, {"TaxAmount", taxAmount},
                 {"TaxDeductDt", "2026-07-05"}, {"Tax", taxAmount}, {"Surcharge", 0},
                 {"Cess", 0}, {"Total", taxAmount}});
}

} // namespace generationrows

namespace {

using namespace generationrows;

struct GenerationStore : TestStore
{
    GenerationStore()
    {
        insert("mstGroup", {{"GroupID", 3}, {"GroupName", "SOUTH GROUP"}});
        insert("mstCompany", {"AsstID", "GroupID", "CompID", "CompName", "TanNO", "PanNo",
                              "FilePrefix", "DStatus"},
               {{1, 3, 11, "KAVERI TEXTILES LTD", "BLRK01234E", "AAACK1234F", "KAVR", "K"},
                {1, 3, 12, "NIL RETURNS PVT LTD", "BLRN05678E", "AAACK1234F", QVariant(), "A"}});
        const FormKind form26 = FormKind::Form26Q;
        addStatement(*this, form26, 5, 11, "Q2", 2, 7, "  KAVERI TEXTILES LTD ");
        addChallan(*this, form26, 51, 5, 11, 1, 1000.50);
        addChallan(*this, form26, 52, 5, 11, 2, 2.50);
        for (int row = 1; row <= 7; ++row)
            addAnnexureRow(*this, form26, row, 5, row <= 3 ? 51 : 52, row, 1000.10, 0.75);
        addStatement(*this, form26, 6, 12, "Q2", 1, 1, "NIL RETURNS PVT LTD", "12345678901234");
        addChallan(*this, form26, 61, 6, 12, 1, 0);
        addAnnexureRow(*this, form26, 8, 6, 61, 1, 5000, 0);
        // Another form's Statement with the same id is not this Statement.
        addStatement(*this, FormKind::Form24Q, 5, 11, "Q2", 1, 1);
        addChallan(*this, FormKind::Form24Q, 81, 5, 11, 1, 100);
        addAnnexureRow(*this, FormKind::Form24Q, 9, 5, 81, 1, 1000, 100);
        QDir(folder()).mkdir(QStringLiteral("eReturns"));
    }
};

} // namespace

const TestStore &generationStore()
{
    static const GenerationStore store;
    return store;
}
