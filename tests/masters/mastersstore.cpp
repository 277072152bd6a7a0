#include "mastersstore.h"

namespace {

struct MastersStore : TestStore
{
    MastersStore()
    {
        insert("mstGroup", {"GroupID", "GroupName"},
               {{1, "ALPHA GROUP"}, {2, "BETA GROUP"}, {3, "ALPINE"}, {4, "A_B"},
                {5, "100% PURE"}, {6, "O'NEIL GROUP"}});
        insert("mstCompany",
               {"AsstID", "GroupID", "CompID", "TanNO", "PanNo", "CompName", "FilePrefix",
                "StateCode", "StateID"},
               {{1, 1, 1, "MUMA12345B", "AAACM1234C", "MEHTA TRADERS", "MTR", "19", 19},
                {1, 1, 2, "TANAPPLIED", "PANNOTREQD", "APPLIED ONE", "AP1", "19", 19},
                {1, 1, 3, "TANAPPLIED", "PANNOTREQD", "APPLIED TWO", "AP2", "19", 19},
                {1, 1, 4, "MUMB12345B", "PANNOTREQD", "O'NEIL AND SONS", "ONL", "19", 19},
                {1, 1, 5, "OLDT12345A", "PANNOTREQD", "OLD NAME", "OLD", "19", 19},
                {1, 1, 6, "OTHR12345A", "PANNOTREQD", "OTHER", "OTH", "19", 19},
                {1, 2, 20, "MUMC12345B", "PANNOTREQD", "BETA CO", "BET", "19", 19}});
        int id = 0;
        for (const QString &table : basicInfoTables) {
            const QStringList columns = {"BasicIfoID", "CompID", "AsstID", "TanNO", "CompName",
                                         "BranchDiv", "Quarter"};
            insert(table, columns,
                   {{++id, 5, 1, "OLDT12345A", "OLD NAME", "OLD BRANCH", "Q1"},
                    {++id, 6, 1, "OTHR12345A", "OTHER", "OLD BRANCH", "Q1"}});
            if (table.startsWith("TranBasicInfoE27"))
                insert(table, columns, {{++id, 20, 1, "MUMC12345B", "BETA CO", "", "Q1"}});
        }
        for (const QString &table : markedTables) {
            const QString key = table.startsWith("TranChallan") ? "ChallnID" : "DeducteeID";
            insert(table, {key, "BasicIfoID", "CompID", "AsstID", "BookEntry"},
                   {{1, 1, 5, 1, "O"}, {2, 1, 6, 1, "O"}});
        }
        insert("FileGenerationLog", {"FGId", "GrpID", "CompID", "FormNo"},
               {{1, 1, 6, "Form -26Q"}});
        insert("mstEmployee",
               {"GroupId", "EmpID", "PAN", "PanRef", "EmpName", "Designation", "FromDate",
                "Todate", "category"},
               {{1, 4, "ABCDE1234F", "", "RAVI KUMAR", "CLERK", "2026-04-01", "2027-03-31", 2},
                {2, 7, "PANNOTAVBL", "", "MEERA", "CLERK", "2026-04-01", "2027-03-31", 2},
                {5, 8, "PANNOTAVBL", "", "ANIL", "CLERK", "2026-04-01", "2027-03-31", 2}});
        insert("mstDeductee",
               {"GroupId", "DeducteeID", "PAN", "PanRef", "DeducteeName", "Address1",
                "Address2", "Address3", "Address4", "Address5", "DeducteeCode", "State",
                "StateCode", "PIN", "InWords"},
               {{1, 3, "AAACO1234Q", "", "O'NEIL AND SONS", "LINE 1", "", "", "", "", "02",
                 "KARNATAKA", "15", "560001", ""},
                {1, 9, "PANNOTAVBL", "", "SHAH TRADERS", "LINE 1", "", "", "", "", "02",
                 "KARNATAKA", "15", "560001", ""},
                {2, 20, "PANNOTAVBL", "", "BETA PARTY", "", "", "", "", "", "02", "", "", "",
                 ""},
                {4, 21, "PANNOTAVBL", "", "A_B PARTY", "", "", "", "", "", "02", "", "", "",
                 ""}});
    }
};

} // namespace

const TestStore &mastersStore()
{
    static const MastersStore store;
    return store;
}

CompanyEntry validEntry()
{
    CompanyEntry entry;
    const QList<std::pair<const char *, const char *>> values = {
        {"cmbGroupName", "ALPHA GROUP"}, {"txtGrpId", "1"},          {"txtTan", "MUMZ12345B"},
        {"txtPAN", "AAACZ1234C"},        {"txtCompName", "ZED TRADERS"}, {"txtBranch", "FORT"},
        {"txtAddress1", "12 MG ROAD"},   {"txtAddress2", "FORT"},    {"txtAddress5", "MUMBAI"},
        {"cmbState", "MAHARASHTRA"},     {"txtStID", "19"},          {"txtStateCode", "19"},
        {"txtPincode", "400001"},        {"txtstdCode", "022"},      {"txtPhone", "22001234"},
        {"txtEmail", "accounts@zed.co.in"}, {"txtPersonName", "RAJ MEHTA"},
        {"txtDesignation", "DIRECTOR"},  {"txtPAddress1", "4 HILL ROAD"},
        {"txtPAddress5", "MUMBAI"},      {"cmbPState", "MAHARASHTRA"}, {"txtPStId", "19"},
        {"txtPstateCode", "19"},         {"txtPpincode", "400050"},  {"txtpStdCode", "022"},
        {"txtPPhone", "26001234"},       {"txtPemail", "raj@zed.co.in"},
        {"txtAssOfficerCode", "MUM W 12"}, {"txtTdsCircle", "TDS WARD 1(1)"},
        {"txtPrefix", "ZED"},            {"cmbDeType", "K"},         {"cmbStatus", "O"}};
    for (const auto &[control, text] : values)
        entry.setValue(QLatin1String(control), QLatin1String(text));
    return entry;
}
