#include "statementfixtures.h"

#include <QStringList>
#include <stdexcept>

namespace statementfixtures {

namespace {

const QVariant null;

void insertCompany(const TestStore &store, const QString &deductorType)
{
    store.insert("mstGroup", {{"GroupID", 1}, {"GroupName", "ACME GROUP"}});
    store.insert("mstCompany",
                 {{"AsstID", 1}, {"GroupID", 1}, {"CompID", 1}, {"TanNO", "MUMA12345B"},
                  {"PanNo", "AAACA1234B"}, {"CompName", "ACME TRADERS PRIVATE LIMITED"},
                  {"FilePrefix", "ACM"}, {"DStatus", deductorType}, {"DStateCode", "27"},
                  {"PAOCode", "PAO0001"}, {"DDOCode", "DDO0001"}, {"MinistryCode", "99"},
                  {"MinistryOther", "PORT TRUST"}, {"PAORegNo", "1234567"},
                  {"DDORegNo", "DDO1234567"}});
}

TestStore::Row statementRow(const QString &quarter, int declaredChallans)
{
    return {{"BasicIfoID", basicInfoId}, {"CompID", 1}, {"AsstID", 1},
            {"TanNO", "MUMA12345B"}, {"PanNo", "AAACA1234B"}, {"BranchDiv", "  HEAD OFFICE "},
            {"CompName", "ACME TRADERS PRIVATE LIMITED"},
            {"Address1", "UNIT 12, SECOND FLOOR, BLOCK C"}, {"Address2", "HARBOUR VIEW"},
            {"Address3", "MARINE DRIVE"}, {"Address4", "COLABA"}, {"Address5", "MUMBAI"},
            {"StateCode", "27"}, {"Pincode", "400001"}, {"phone", "22041234"},
            {"email", "accounts@acme.example"}, {"Std", "022"}, {"Employer", 1},
            {"Salary", 0}, {"Status", 1}, {"PersonName", "RAVI KUMAR"},
            {"Designation", "MANAGER"}, {"pAddress1", "FLAT 4"}, {"pAddress2", "SEA BREEZE"},
            {"pAddress3", "LINK ROAD"}, {"pAddress4", "BANDRA"}, {"pAddress5", "MUMBAI"},
            {"pStateCode", "27"}, {"pPincode", "400050"}, {"pPhone", "26401234"},
            {"pEmail", "ravi@acme.example"}, {"pStd", "022"}, {"NoChallan", declaredChallans},
            {"NoDeductee", 0}, {"AsstYear", "202728"}, {"FAYear", "202627"},
            {"AppRcptNo", "0"}, {"RevisedRtn", "R"}, {"RevisedRcptNo", "0"},
            {"TDSCircle", "WARD 1(2)"}, {"Quarter", quarter}};
}

/// A challan of nothing; each fixture puts in what it deposits.
TestStore::Row challanRow(int id, int serial)
{
    return {{"ChallnID", id}, {"BasicIfoID", basicInfoId}, {"CompID", 1}, {"AsstID", 1},
            {"SlNo", serial}, {"AmountDeducted", 0}, {"TrVoucherNo", ""}, {"DtTrVoucher", null},
            {"BankCode", ""}, {"Surcharge", 0}, {"EduCess", 0}, {"Interest", 0}, {"Others", 0},
            {"Total", 0}, {"ChqDDNo", ""}, {"BookEntry", "N"}, {"TotTax", 0},
            {"TotIncomeTax", 0}, {"TotSurcharge", 0}, {"TotCess", 0}, {"CtrlTot", 0},
            {"ExInterest", 0}, {"ExtOthers", 0}, {"Remarks", ""}, {"TransferVoucherNo", null}};
}

TestStore::Row deducteeRow(int id, int challanId, int serial)
{
    return {{"DeducteeID", id}, {"BasicIfoID", basicInfoId}, {"CompID", 1}, {"AsstID", 1},
            {"ChallanId", challanId}, {"SrlNo", serial}, {"Section", ""}, {"DeducteeNo", id},
            {"DeducteeCode", "01"}, {"PAN", ""}, {"PANRef", ""}, {"DeducteeName", ""},
            {"Address1", "SHOP 3"}, {"Address2", "MAIN ROAD"}, {"Address3", ""},
            {"Address4", ""}, {"Address5", "PUNE"}, {"State", "MAHARASHTRA"},
            {"StateCode", "27"}, {"PIN", "411001"}, {"AmtOfPayment", 0}, {"PaymentDt", null},
            {"Rate", 0}, {"TaxAmount", 0}, {"TaxDeductDt", null}, {"TaxPaidToCGDt", null},
            {"BankBranchCode", " "}, {"BankChallanNo", " "}, {"NonDeductionflg", ""},
            {"BookEntry", "O"}, {"Tax", 0}, {"Surcharge", 0}, {"Cess", 0}, {"Total", 0}};
}

void build26QPositive(const TestStore &store)
{
    insertCompany(store, "K");
    // Three challans declared, two entered: the header shows what was declared.
    store.insert("TranBasicInfoE26", statementRow("Q2", 3));
    store.insert("TranChallanE26",
                 merged(challanRow(11, 1),
                        {{"Section", "194C"}, {"TrVoucherNo", "00001"},
                         {"DtTrVoucher", "2026-08-07"}, {"BankCode", "0510001"},
                         {"ChqDDNo", "445566"}, {"TransferVoucherNo", "0"}}));
    store.insert("TranChallanE26",
                 merged(challanRow(12, 2),
                        {{"Section", "194J"}, {"AmountDeducted", 1002.5},
                         {"TrVoucherNo", "123456"}, {"DtTrVoucher", "2026-10-07"},
                         {"BankCode", "05100023"},
                         {"EduCess", 40.5}, {"Interest", 3.5}, {"Others", 2.5}, {"Total", 1049},
                         {"ChqDDNo", "778899"}, {"TotTax", 1043}, {"TotIncomeTax", 1002.5},
                         {"TotCess", 40.5}, {"CtrlTot", 1043}, {"ExInterest", 3.5},
                         {"ExtOthers", 2.5}, {"Remarks", "SECOND QUARTER"}}));
    // Entered out of serial order, and with a gap in the serials.
    store.insert("TranDeducteeE26",
                 merged(deducteeRow(22, 12, 3),
                        {{"Section", "194J"}, {"DeducteeCode", "02"}, {"PAN", "PANNOTAVBL"},
                         {"PANRef", "REF0001"}, {"DeducteeName", "  S. NARAYAN & SONS "},
                         {"AmtOfPayment", 3.5}, {"Rate", 1.125}, {"TaxAmount", 43.956},
                         {"TaxDeductDt", "2026-09-30"}, {"TaxPaidToCGDt", "2026-10-07"},
                         {"NonDeductionflg", "A"}, {"Tax", 3.456}, {"Cess", 40.5},
                         {"Total", 43.956}}));
    store.insert("TranDeducteeE26",
                 merged(deducteeRow(21, 12, 1),
                        {{"Section", "194J"}, {"DeducteeCode", "01"}, {"PAN", "ABCPK1234L"},
                         {"DeducteeName", "KRISHNA CONSULTANTS"}, {"AmtOfPayment", 10025},
                         {"PaymentDt", "2026-07-15"}, {"Rate", 10}, {"TaxAmount", 1002.5},
                         {"TaxDeductDt", "2026-07-15"}, {"TaxPaidToCGDt", "2026-08-07"},
                         {"BankBranchCode", "0510002"}, {"BankChallanNo", "12345"},
                         {"Tax", 1002.5}, {"Total", 1002.5}}));
}

void build26QNil(const TestStore &store)
{
    insertCompany(store, "K");
    store.insert("TranBasicInfoE26", statementRow("Q3", 2));
    store.insert("TranChallanE26",
                 merged(challanRow(11, 1),
                        {{"Section", "194C"}, {"TrVoucherNo", "00007"},
                         {"DtTrVoucher", "2026-11-07"}, {"BankCode", "0510001"},
                         {"ChqDDNo", "123456"}, {"Remarks", "NIL"}}));
    // Forty paise of interest round to nothing: still a nil statement.
    store.insert("TranChallanE26",
                 merged(challanRow(12, 2),
                        {{"Section", "194J"}, {"TrVoucherNo", "00008"},
                         {"DtTrVoucher", "2026-12-07"}, {"BankCode", "0510001"},
                         {"Interest", 0.4}, {"Total", 0.4}, {"TransferVoucherNo", "0"}}));
    store.insert("TranDeducteeE26",
                 merged(deducteeRow(21, 11, 1),
                        {{"Section", "194C"}, {"PAN", "ABCPK1234L"},
                         {"DeducteeName", "KRISHNA CONSULTANTS"}, {"AmtOfPayment", 50000},
                         {"PaymentDt", "2026-10-20"}, {"NonDeductionflg", "Y"}}));
}

TestStore::Row employeeRow(int id, int challanId, int serial, const TestStore::Row &values)
{
    const TestStore::Row base = {{"EmpID", id}, {"BasicIfoID", basicInfoId}, {"CompID", 1},
                      {"AsstID", 1}, {"ChallanId", challanId}, {"SrlNo", serial},
                      {"Designation", "STAFF"}, {"FromDate", "2026-04-01"},
                      {"ToDate", "2027-03-31"}, {"PANRef", ""}, {"BankBranchCode", "0004329"},
                      {"BankChallanNo", "00012"}, {"NonDeductionflg", ""}, {"BookEntry", "O"},
                      {"Surcharge", 0}};
    return merged(base, values);
}

/// Every amount column of a salary row, the ones the file leaves out among them.
TestStore::Row salaryRow(int id, int serial, const TestStore::Row &values)
{
    TestStore::Row base = {{"SalaryId", id}, {"EmpID", 100 + id}, {"BasicIfoID", basicInfoId},
                {"SrlNo", serial}, {"Designation", "STAFF"}, {"PanRef", ""},
                {"FromDate", "2026-04-01"}, {"ToDate", "2027-03-31"}};
    const char *amounts[] = {"332", "333", "334Sec10Gross", "335", "336Sec16Gross", "337",
                             "338", "339", "340SecViaGross", "344", "345", "346Sec88Gross",
                             "350", "351", "352", "355", "356", "357", "358", "359", "360",
                             "361", "362", "363", "364", "365", "366", "367"};
    for (const char *column : amounts)
        base.append({column, 0});
    return merged(base, values);
}

void insertSection(const TestStore &store, const QString &table, int id, int salaryId,
                   const QString &section, const QVariant &amount)
{
    const bool chapterVIA = table == u"TranSecViAE24";
    TestStore::Row row = {{"Secid", id}, {"SalaryId", salaryId}, {"Empid", 100 + salaryId},
               {"SectionId", section}};
    if (chapterVIA)
        row << qMakePair(QString("GrossAmt"), amount) << qMakePair(QString("QfAmt"), amount)
            << qMakePair(QString("DedAmt"), amount);
    else
        row << qMakePair(QString("TotalDeduction"), amount);
    store.insert(table, row);
}

void build24QSalary(const TestStore &store)
{
    insertCompany(store, "A");
    store.insert("TranBasicInfoE24",
                 merged(statementRow("Q4", 2), {{"Employer", 0}, {"Salary", 1}}));
    // Another quarter's Statement of the same company stays out of this file.
    store.insert("TranBasicInfoE24", merged(statementRow("Q3", 1), {{"BasicIfoID", 2}}));
    store.insert("TranChallanE24",
                 merged(challanRow(9, 1), {{"BasicIfoID", 2}, {"Total", 5000}}));
    store.insert("TranSalaryE24",
                 salaryRow(9, 1, {{"BasicIfoID", 2}, {"336Sec16Gross", 99999}}));

    // The first challan entered is the second by serial.
    store.insert("TranChallanE24",
                 merged(challanRow(1, 2),
                        {{"AmountDeducted", 12000}, {"TrVoucherNo", "00031"},
                         {"DtTrVoucher", "2027-02-07"}, {"BankCode", "0004329"}, {"EduCess", 480},
                         {"Interest", 3.5}, {"Total", 12483.5}, {"TotTax", 12480},
                         {"TotIncomeTax", 12000}, {"TotCess", 480}, {"CtrlTot", 12480},
                         {"TransferVoucherNo", ""}}));
    store.insert("TranChallanE24",
                 merged(challanRow(2, 1),
                        {{"AmountDeducted", 25000}, {"TrVoucherNo", "00012"},
                         {"DtTrVoucher", "2027-01-07"}, {"BankCode", "0004329"},
                         {"EduCess", 1000}, {"Total", 26000}, {"ChqDDNo", "000123"},
                         {"TotTax", 26000}, {"TotIncomeTax", 25000}, {"TotCess", 1000},
                         {"CtrlTot", 26000}, {"Remarks", "JANUARY"}}));
    store.insert("TranEmployeeE24",
                 employeeRow(33, 1, 3,
                             {{"EmpNo", 101}, {"PAN", "AAAPL1234C"}, {"EmpName", "LATA IYER"},
                              {"AmtOfPayment", 150000}, {"PaymentDt", "2027-01-31"},
                              {"TaxAmount", 12480}, {"TaxDeductDt", "2027-01-31"},
                              {"TaxPaidToCGDt", null}, {"Tax", 12000}, {"Cess", 480},
                              {"Total", 12480}}));
    store.insert("TranEmployeeE24",
                 employeeRow(31, 2, 1,
                             {{"EmpNo", 101}, {"PAN", "AAAPL1234C"}, {"EmpName", "LATA IYER"},
                              {"AmtOfPayment", 150000}, {"PaymentDt", "2026-12-31"},
                              {"TaxAmount", 15600}, {"TaxDeductDt", "2026-12-31"},
                              {"TaxPaidToCGDt", "2027-01-07"}, {"Tax", 15000}, {"Cess", 600},
                              {"Total", 15600}}));
    store.insert("TranEmployeeE24",
                 employeeRow(32, 2, 2,
                             {{"EmpNo", 102}, {"PAN", "BBBPM2345D"}, {"EmpName", "MOHAN DAS"},
                              {"AmtOfPayment", 125000}, {"PaymentDt", "2026-12-31"},
                              {"TaxAmount", 10400}, {"TaxDeductDt", "2026-12-31"},
                              {"TaxPaidToCGDt", "2027-01-07"}, {"Tax", 10000}, {"Cess", 400},
                              {"Total", 10400}}));

    // Salary rows entered last first; the file goes by serial.
    store.insert("TranSalaryE24",
                 salaryRow(4, 5,
                           {{"EmpName", "OMKAR JOSHI"}, {"Pan", "CCCPJ3456E"}, {"331", 2},
                            {"ToDate", null}, {"332", 250000.5}, {"335", 250000.5},
                            {"336Sec16Gross", 250000.5}}));
    store.insert("TranSalaryE24",
                 salaryRow(3, 3,
                           {{"EmpName", "NEHA SHAH"}, {"Pan", "PANAPPLIED"}, {"PanRef", "APP0001"},
                            {"331", 7}, {"FromDate", "2026-06-01"}, {"332", 300000},
                            {"335", 300000}}));
    // Deducted in full: a shortfall of nothing beside the tax deducted.
    store.insert("TranSalaryE24",
                 salaryRow(2, 2,
                           {{"EmpName", "MOHAN DAS"}, {"Pan", "BBBPM2345D"}, {"331", 1},
                            {"332", 500000}, {"335", 500000}, {"336Sec16Gross", 497500},
                            {"339", 497500}, {"344", 497500}, {"345", 35000}, {"350", 35000},
                            {"351", 1400}, {"352", 36400}, {"355", 0}}));
    store.insert("TranSalaryE24",
                 salaryRow(1, 1,
                           {{"EmpName", "LATA IYER"}, {"Pan", "AAAPL1234C"}, {"331", 0},
                            {"332", 600000}, {"334Sec10Gross", 20000}, {"335", 580000},
                            {"336Sec16Gross", 577500}, {"337", 11111}, {"338", 22222},
                            {"339", 577500}, {"340SecViaGross", 155000}, {"344", 422500},
                            {"345", 40500}, {"350", 40500}, {"351", 1620}, {"352", 42120},
                            {"355", 42120}, {"356", 33333}}));

    insertSection(store, "TranSec16E24", 1, 1, "16(ii)", 2500);
    insertSection(store, "TranSec16E24", 2, 1, "16(iii)", 0);
    insertSection(store, "TranSecViAE24", 1, 1, "80C", 150000);
    insertSection(store, "TranSecViAE24", 2, 1, "80D", 5000);
    // Rows that add up to nothing are left out.
    insertSection(store, "TranSec16E24", 3, 3, "16(ii)", 0);
    insertSection(store, "TranSec16E24", 4, 3, "16(iii)", 0);
    insertSection(store, "TranSecViAE24", 3, 3, "80C", 500);
    insertSection(store, "TranSecViAE24", 4, 3, "80CCE", -500);
    insertSection(store, "TranSec16E24", 5, 4, "16(iii)", 2500);
    // Section 10 and 88 rows reach the file only through the gross columns.
    insertSection(store, "TranSecViAE24", 6, 9, "80C", 1000);
    store.insert("TranSec10E24",
                 {{"Secid", 1}, {"SalaryId", 1}, {"Empid", 101}, {"SectionId", "10(13A)"},
                  {"TotalDeduction", 20000}});
}

void build27QGrossingUp(const TestStore &store)
{
    insertCompany(store, "F");
    store.insert("TranBasicInfoE27",
                 merged(statementRow("Q1", 2), {{"Employer", 0}}));
    store.insert("TranChallanE27",
                 merged(challanRow(11, 1),
                        {{"Section", "195"}, {"AmountDeducted", 20800}, {"TrVoucherNo", "00005"},
                         {"DtTrVoucher", "2026-05-07"}, {"BankCode", "0510001"},
                         {"EduCess", 832}, {"Total", 21632}, {"ChqDDNo", "12345678901234567"},
                         {"TotTax", 21632}, {"TotIncomeTax", 20800}, {"TotCess", 832},
                         {"CtrlTot", 21632}}));
    store.insert("TranChallanE27",
                 merged(challanRow(12, 2),
                        {{"Section", "195"}, {"AmountDeducted", 5000}, {"TrVoucherNo", "00006"},
                         {"DtTrVoucher", "2026-06-07"}, {"BankCode", "0510001"},
                         {"EduCess", 200}, {"Total", 5200}, {"ChqDDNo", "654321"},
                         {"TransferVoucherNo", "TV1234567890"}, {"TotTax", 5200},
                         {"TotIncomeTax", 5000}, {"TotCess", 200}, {"CtrlTot", 5200}}));
    store.insert("TranDeducteeE27",
                 merged(deducteeRow(21, 11, 1),
                        {{"Section", "195"}, {"DeducteeCode", "02"}, {"PAN", "AAAFG1234H"},
                         {"DeducteeName", "GLOBAL SOFT LLC"}, {"AmtOfPayment", 100000},
                         {"PaymentDt", "2026-04-20"}, {"Rate", 20.8}, {"TaxAmount", 21632},
                         {"TaxDeductDt", "2026-04-20"}, {"Tax", 20800}, {"Cess", 832},
                         {"Total", 21632}, {"GrossingUpIndicator", "Y"}}));
    store.insert("TranDeducteeE27",
                 merged(deducteeRow(22, 11, 2),
                        {{"Section", "195"}, {"DeducteeCode", "02"}, {"PAN", "PANNOTAVBL"},
                         {"PANRef", "REF0002"}, {"DeducteeName", "JOHN SMITH"},
                         {"AmtOfPayment", 5000}, {"PaymentDt", "2026-05-02"},
                         {"NonDeductionflg", "B"}, {"GrossingUpIndicator", null}}));
    store.insert("TranDeducteeE27",
                 merged(deducteeRow(23, 12, 3),
                        {{"Section", "195"}, {"DeducteeCode", "01"}, {"PAN", "AABCT5678K"},
                         {"DeducteeName", "TOKYO TRADING CO"}, {"AmtOfPayment", 50000},
                         {"PaymentDt", "2026-05-15"}, {"Rate", 10}, {"TaxAmount", 5200},
                         {"TaxDeductDt", "2026-05-15"}, {"Tax", 5000}, {"Cess", 200},
                         {"Total", 5200}, {"GrossingUpIndicator", "N"}}));
}

void build27EQPurchase(const TestStore &store)
{
    insertCompany(store, "K");
    store.insert("TranBasicInfoE27E", statementRow("Q3", 2));
    store.insert("TranChallanE27E",
                 merged(challanRow(11, 1),
                        {{"Section", "6CE"}, {"AmountDeducted", 1000}, {"TrVoucherNo", "00101"},
                         {"DtTrVoucher", "2026-11-07"}, {"BankCode", "6390009"}, {"Total", 1000},
                         {"ChqDDNo", "990011"}, {"TransferVoucherNo", "0"}, {"TotTax", 1000},
                         {"TotIncomeTax", 1000}, {"CtrlTot", 1000}}));
    store.insert("TranChallanE27E",
                 merged(challanRow(12, 2),
                        {{"Section", "6CE"}, {"AmountDeducted", 500}, {"TrVoucherNo", "00102"},
                         {"DtTrVoucher", "2026-12-07"}, {"BankCode", "6390009"}, {"Total", 500},
                         {"ChqDDNo", "990012"}, {"TotTax", 500}, {"TotIncomeTax", 500},
                         {"CtrlTot", 500}, {"Remarks", "DECEMBER"}}));
    store.insert("TranDeducteeE27E",
                 merged(deducteeRow(21, 11, 1),
                        {{"Section", "6CE"}, {"DeducteeCode", "01"}, {"PAN", "AAACS9876Q"},
                         {"DeducteeName", "STEEL SCRAP DEALERS"}, {"AmtOfPayment", 100000},
                         {"PaymentDt", "2026-10-25"}, {"Rate", 1}, {"TaxAmount", 1000},
                         {"TaxDeductDt", "2026-10-25"}, {"Tax", 1000}, {"Total", 1000},
                         {"TotvalPur", 250000.75}}));
    store.insert("TranDeducteeE27E",
                 merged(deducteeRow(22, 12, 2),
                        {{"Section", "6CE"}, {"DeducteeCode", "02"}, {"PAN", "AAACT1111R"},
                         {"DeducteeName", "TIMBER MART"}, {"AmtOfPayment", 50000},
                         {"PaymentDt", "2026-11-10"}, {"Rate", 1}, {"TaxAmount", 500},
                         {"TaxDeductDt", "2026-11-10"}, {"Tax", 500}, {"Total", 500},
                         {"TotvalPur", 50000}}));
}

} // namespace

const QList<Fixture> &all()
{
    static const QList<Fixture> fixtures = {
        {"26q_positive", FormKind::Form26Q, build26QPositive, 2, 2, 0, 1049},
        {"26q_nil", FormKind::Form26Q, build26QNil, 2, 1, 0, 0},
        {"24q_salary", FormKind::Form24Q, build24QSalary, 2, 3, 4, 38484},
        {"27q_grossing_up", FormKind::Form27Q, build27QGrossingUp, 2, 3, 0, 26832},
        {"27eq_purchase", FormKind::Form27EQ, build27EQPurchase, 2, 2, 0, 1500},
    };
    return fixtures;
}

const Fixture &named(const QString &name)
{
    for (const Fixture &fixture : all()) {
        if (fixture.name == name)
            return fixture;
    }
    throw std::logic_error("no such return file fixture");
}

} // namespace statementfixtures
