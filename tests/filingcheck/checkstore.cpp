#include "checkstore.h"

namespace checkstore {

namespace {

void addStatement(const TestStore &data, const FormTraits &form)
{
    data.insert(form.basicInfoTable,
                {{"BasicIfoID", basicInfoId}, {"CompID", 11}, {"AsstID", 1},
                 {"TanNO", "BLRK01234E"}, {"PanNo", "AAACK1234F"},
                 {"CompName", "KAVERI TEXTILES LTD"}, {"Address1", "MG ROAD"},
                 {"StateCode", "15"}, {"Pincode", "560001"}, {"PersonName", "R NAIR"},
                 {"Designation", "MANAGER"}, {"pPincode", "560001"}, {"NoChallan", 1},
                 {"NoDeductee", 1}, {"AsstYear", "202728"}, {"FAYear", "202627"},
                 {"Quarter", "Q2"}});
    TestStore::Row challan = {
        {"ChallnID", 10},         {"BasicIfoID", basicInfoId},  {"CompID", 11},
        {"AsstID", 1},            {"SlNo", 1},                  {"AmountDeducted", 1000},
        {"Total", 1000},          {"TrVoucherNo", "00123"},     {"DtTrVoucher", "2026-08-07"},
        {"BankCode", "0510308"},  {"ChqDDNo", "445566"},        {"TransferVoucherNo", ""},
        {"BookEntry", "C"}};
    for (const char *zero : {"Surcharge", "EduCess", "Interest", "Others", "ExInterest",
                             "ExtOthers"})
        challan.append({zero, 0});
    TestStore::Row row = {
        {form.annexureKey, 100},       {"BasicIfoID", basicInfoId}, {"CompID", 11},
        {"AsstID", 1},                 {"ChallanId", 10},           {"SrlNo", 1},
        {"PAN", "ABCPE1234F"},         {"PANRef", ""},              {"AmtOfPayment", 10000},
        {"PaymentDt", "2026-07-20"},   {"TaxAmount", 1000},         {"Tax", 1000},
        {"TaxDeductDt", "2026-07-20"}, {"NonDeductionflg", " "},    {"Surcharge", 0},
        {"Cess", 0},                   {"Total", 1000},
        {form.partyNameColumn, "ZUBIN MEHTA"}};
    if (!form.salaryLayout) {
        const QString section = form.kind == FormKind::Form26Q   ? "94J"
                                : form.kind == FormKind::Form27Q ? "195"
                                                                 : "6CE";
        challan.append({"Section", section});
        row << TestStore::Row{{"Section", section}, {"DeducteeCode", "02"}, {"Rate", 10}};
    }
    if (!form.purchaseColumn.isEmpty())
        row.append({form.purchaseColumn, 10000});
    if (!form.grossingUpColumn.isEmpty())
        row.append({form.grossingUpColumn, "N"});
    data.insert(form.challanTable, challan);
    data.insert(form.annexureTable, row);
}

struct CleanStore : TestStore
{
    CleanStore()
    {
        insert("mstGroup", {{"GroupID", 3}, {"GroupName", "SOUTH GROUP"}});
        insert("mstCompany", {{"AsstID", 1}, {"GroupID", 3}, {"CompID", 11},
                              {"CompName", "KAVERI TEXTILES LTD"}, {"TanNO", "BLRK01234E"},
                              {"FilePrefix", "KAV"}, {"DStatus", "K"}});
        for (const FormTraits &form : allForms())
            addStatement(*this, form);
    }
};

} // namespace

const TestStore &cleanStore()
{
    static const CleanStore store;
    return store;
}

void change(const TestStore &store, const FormTraits &form, const QString &target,
            const QString &column, const QString &value)
{
    const QString table = target == u"basic"     ? form.basicInfoTable
                          : target == u"challan" ? form.challanTable
                          : target == u"row"     ? form.annexureTable
                                                 : QStringLiteral("mstCompany");
    // The columns of one form only (24Q's rows have no rate) are left out on the others.
    if (!store.store().columnExists(table, column))
        return;
    store.store().exec(QStringLiteral("UPDATE %1 SET \"%2\" = ?").arg(table, column),
                       {value == u"NULL" ? QVariant() : QVariant(value)});
}

} // namespace checkstore
