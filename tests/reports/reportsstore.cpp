#include "reportsstore.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

namespace {

void fill(const DataStore &store)
{
    const auto exec = [&store](const char *sql, const QVariantList &values) {
        store.exec(QString::fromUtf8(sql), values);
    };
    for (const auto &[id, name] : {std::pair{1, "ALPHA GROUP"}, std::pair{2, "BETA GROUP"},
                                   std::pair{3, "EMPTY GROUP"}})
        exec("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, ?)", {id, name});

    // Companies are in state 19, Maharashtra; company 3's responsible person is in Rajasthan.
    const char *company =
        "INSERT INTO mstCompany (AsstID, GroupID, CompID, TanNO, PanNo, CompName, Address1, "
        "Address2, Address5, StateCode, StateID, Pincode, Phone, PersonName, Designation, "
        "PAddress1, PAddress2, PAddress5, pStateCode, PStateID, pPincode, pPhone, "
        "AssessingOfficerCode, FilePrefix) VALUES (1, ?, ?, ?, ?, ?, ?, 'MG ROAD', 'KOLKATA', "
        "'19', 19, '700001', '03322223333', ?, 'DIRECTOR', ?, 'PARK STREET', 'KOLKATA', ?, ?, "
        "'700016', '03344445555', 'WB-12', ?)";
    exec(company, {1, 1, "CALZ12345A", "AAACZ1234A", "ZETA TRADERS", "1 ZETA HOUSE",
                   "RAVI KUMAR", "9 LAKE VIEW", "19", 19, "ZETA"});
    exec(company, {1, 2, "CALO12345B", "AAACO1234B", trickyName, trickyName, trickyName,
                   trickyName, "19", 19, "OBR"});
    exec(company, {2, 3, "CALB12345C", "AAACB1234C", "BETA MILLS", "3 MILL LANE", "ANIL DAS",
                   "5 MARINE DRIVE", "27", 27, "BETA"});
    exec("UPDATE mstCompany SET DStatus = 'K' WHERE CompID IN (1, 2)", {});

    const char *deductee =
        "INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, DeducteeName) VALUES (?, ?, ?, ?)";
    exec(deductee, {1, 1, "AAAPZ1111Z", "ZUBIN MEHTA"});
    exec(deductee, {1, 2, "AAAPA2222A", trickyName});
    exec(deductee, {2, 3, "AAAPB3333B", "BHARAT RAO"});
    const char *employee =
        "INSERT INTO mstEmployee (GroupId, EmpID, PAN, EmpName) VALUES (?, ?, ?, ?)";
    exec(employee, {1, 1, "AAAPE4444E", "ESHA DEOL"});
    exec(employee, {2, 2, "AAAPF5555F", trickyName});

    // 26Q Statements: company 1 in Q1 (1) and Q2 (2), company 3 in Q1 (3).
    const char *statement =
        "INSERT INTO TranBasicInfoE26 (BasicIfoID, CompID, AsstID, TanNO, PanNo, CompName, "
        "Address1, Address2, Address3, Address4, Address5, StateCode, Pincode, Employer, Status, "
        "Quarter) VALUES (?, ?, 1, 'CALZ12345A', 'AAACZ1234A', ?, '1 ZETA HOUSE', 'MG ROAD', "
        "'KOLKATA', 'ZETA TOWER', 'BOWBAZAR', '19', '700001', 1, 0, ?)";
    exec(statement, {1, 1, "ZETA TRADERS", "Q1"});
    exec(statement, {2, 1, "ZETA TRADERS", "Q2"});
    exec(statement, {3, 3, "BETA MILLS", "Q1"});
    exec(statement, {4, 2, trickyName, "Q1"});
    const char *challan =
        "INSERT INTO TranChallanE26 (ChallnID, BasicIfoID, CompID, AsstID, SlNo, Section, "
        "AmountDeducted, TrVoucherNo, DtTrVoucher, BankCode, Total, ChqDDNo, BookEntry, "
        "TransferVoucherNo) VALUES (?, ?, ?, 1, ?, ?, ?, ?, ?, ?, ?, '123456', 'N', ?)";
    exec(challan, {1, 1, 1, 1, "94C", 2700, "00011", "2026-05-07", "0510308", 2715, "0"});
    exec(challan, {2, 1, 1, 2, "94J", 5000, "", "2026-06-07", "0510309", 5000.25, "987654321"});
    exec(challan, {3, 2, 1, 1, "94C", 999, "00031", "2026-09-07", "0510308", 999, "0"});
    exec(challan, {4, 3, 3, 1, "94C", 300, "00041", "2026-05-07", "0510308", 300, "0"});
    exec(challan, {5, 4, 2, 1, "94C", 100, "00051", "2026-05-07", "0510308", 100, "0"});
    // Company 1's first quarter: ZUBIN MEHTA under 94C (two rows, the later one first) and
    // 94J, trickyName under 94C, and a row whose section is not in the list.
    const char *row =
        "INSERT INTO TranDeducteeE26 (DeducteeID, BasicIfoID, CompID, AsstID, ChallanId, SrlNo, "
        "Section, DeducteeNo, DeducteeCode, PAN, DeducteeName, Address1, State, AmtOfPayment, "
        "PaymentDt, Rate, Tax, Cess, Total, TaxAmount, TaxDeductDt) "
        "VALUES (?, ?, ?, 1, ?, ?, ?, ?, '02', ?, ?, 'BANDRA', 'MAHARASHTRA', ?, ?, 2, ?, ?, ?, "
        "?, ?)";
    const auto deducteeRow = [&](int key, int statement, int company, int challan, int serial,
                                 const char *section, int master, double paid, const char *date,
                                 double tax, double cess) {
        const QVariant name = master == 1 ? QVariant("ZUBIN MEHTA")
                                          : master == 2 ? QVariant(trickyName)
                                                        : QVariant("BHARAT RAO");
        const char *pan = master == 1 ? "AAAPZ1111Z" : master == 2 ? "AAAPA2222A" : "AAAPB3333B";
        exec(row, {key, statement, company, challan, serial, section, master, pan, name, paid,
                   date, tax, cess, tax + cess, tax + cess, date});
    };
    deducteeRow(1, 1, 1, 1, 1, "94C", 1, 100000, "2026-04-20", 2000, 0);
    deducteeRow(2, 1, 1, 1, 2, "94C", 2, 10000, "2026-04-25", 200, 0);
    deducteeRow(3, 1, 1, 1, 3, "94C", 1, 25000, "2026-04-10", 500, 15);
    deducteeRow(1, 1, 1, 2, 4, "94J", 1, 50000, "2026-05-15", 5000, 0.25);
    deducteeRow(2, 1, 1, 2, 5, "XYZ", 1, 1000, "2026-05-16", 10, 0);
    deducteeRow(1, 2, 1, 3, 1, "94C", 1, 123456789.5, "2026-08-01", 999, 0);
    deducteeRow(1, 3, 3, 4, 1, "94C", 3, 15000, "2026-04-02", 300, 0);

    const char *log =
        "INSERT INTO FileGenerationLog (FGId, GrpID, CompID, FormNo, FileName, DateOfCreation, "
        "TimeOFCreation, Periodicity, AsstYear, Media, TotNoOFMedia, TotAmtPaid, TotTDS, "
        "NoOFDeductees, ExistingAssessee, OfficerCode, CompanyName) "
        "VALUES (?, ?, ?, ?, 'F.txt', ?, ?, ?, ?, 'C', 1, ?, ?, ?, 'N', 'NA', ?)";
    exec(log, {1, 1, 1, "Form -26Q", "2026-07-30", "16:05:09", "Q1", assessmentYear, 1234567.5,
               12345.75, 12, "ZETA TRADERS"});
    exec(log, {2, 2, 3, "Form -27EQ", "2026-08-15", "09:30:00", "Q1", assessmentYear, 500000,
               5000, 3, trickyName});
    exec(log, {3, 1, 1, "Form -26Q", "2026-10-31", "10:00:00", "Q2", assessmentYear, 700,
               70.5, 1, "ZETA TRADERS"});
}

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.readAllStandardOutput();
}

} // namespace

const TestStore &reportsStore()
{
    static const struct ReportsStore : TestStore
    {
        ReportsStore() { fill(store()); }
    } store;
    return store;
}

bool canReadPdf()
{
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

QString pdfText(const QString &path)
{
    return QString::fromUtf8(output(QStringLiteral("pdftotext"),
                                    {QStringLiteral("-layout"), path, QStringLiteral("-")}));
}

QByteArray zipMember(const QString &path, const QString &member)
{
    return output(QStringLiteral("unzip"), {QStringLiteral("-p"), path, member});
}

void expectInOrder(const QString &text, const QStringList &expected)
{
    qsizetype from = 0;
    for (const QString &part : expected) {
        const qsizetype at = text.indexOf(part, from);
        QVERIFY2(at >= 0, qPrintable(QStringLiteral("missing or out of order: [%1]").arg(part)));
        from = at + part.size();
    }
}
