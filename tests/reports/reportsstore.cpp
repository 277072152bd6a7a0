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

    const char *deductee =
        "INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, DeducteeName) VALUES (?, ?, ?, ?)";
    exec(deductee, {1, 1, "AAAPZ1111Z", "ZUBIN MEHTA"});
    exec(deductee, {1, 2, "AAAPA2222A", trickyName});
    exec(deductee, {2, 3, "AAAPB3333B", "BHARAT RAO"});
    const char *employee =
        "INSERT INTO mstEmployee (GroupId, EmpID, PAN, EmpName) VALUES (?, ?, ?, ?)";
    exec(employee, {1, 1, "AAAPE4444E", "ESHA DEOL"});
    exec(employee, {2, 2, "AAAPF5555F", trickyName});

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
