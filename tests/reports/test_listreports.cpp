#include "reportsstore.h"

#include "reports/companydetails.h"
#include "reports/generationlogreport.h"
#include "reports/grouplistreports.h"
#include "support/testsuite.h"

#include <QtTest>

#include <functional>

namespace {

using Build = std::function<std::optional<Report>(const DataStore &, const QDate &)>;

const QMap<QString, Build> &builders()
{
    using generationlogreport::Order;
    static const QMap<QString, Build> all = {
        {"group master", grouplistreports::groupMaster},
        {"companies", grouplistreports::companyList},
        {"deductees", grouplistreports::deducteeList},
        {"employees", grouplistreports::employeeList},
        {"log by date",
         [](const DataStore &store, const QDate &runDate) {
             return generationlogreport::build(store, Order::ByDate, runDate);
         }},
        {"log by company",
         [](const DataStore &store, const QDate &runDate) {
             return generationlogreport::build(store, Order::ByCompany, runDate);
         }},
    };
    return all;
}


} // namespace

class TestListReports : public QObject
{
    Q_OBJECT

private slots:
    void inOrder_data();
    void inOrder();
    void emptyStoreShowsNothing();
    void companyDetails_data();
    void companyDetails();
};

void TestListReports::inOrder_data()
{
    QTest::addColumn<QString>("report");
    QTest::addColumn<QStringList>("expected");
    const QString zetaLog = "ZETA TRADERS\t202728\tForm -26Q\t1234567.50\t12345.75\t12\t30.07.26"
                            "\t4:05:09 PM";
    const QString trickyLog = trickyName + "\t202728\tForm -27EQ\t500000.00\t5000.00\t3\t15.08.26"
                                           "\t9:30:00 AM";
    const QString laterLog = "ZETA TRADERS\t202728\tForm -26Q\t700.00\t70.50\t1\t31.10.26";
    QTest::newRow("group master")
        << "group master"
        << QStringList{"Group Master", "GroupID\tGroupName", "1\tALPHA GROUP", "2\tBETA GROUP",
                       "3\tEMPTY GROUP"};
    QTest::newRow("companies by name within groups, an empty group's head")
        << "companies"
        << QStringList{"Group-wise Company List", "ALPHA GROUP", " Company Name\t TAN\t PAN",
                       trickyName + "\tCALO12345B\tAAACO1234B",
                       "ZETA TRADERS\tCALZ12345A\tAAACZ1234A", "BETA GROUP",
                       "BETA MILLS\tCALB12345C", "EMPTY GROUP\n Company Name"};
    QTest::newRow("deductees")
        << "deductees"
        << QStringList{"Group-wise Deductee List", " Group Name\tALPHA GROUP",
                       " Deductee Name\t PAN", trickyName + "\tAAAPA2222A",
                       "ZUBIN MEHTA\tAAAPZ1111Z", " Group Name\tBETA GROUP",
                       "BHARAT RAO\tAAAPB3333B", " Group Name\tEMPTY GROUP"};
    QTest::newRow("employees")
        << "employees"
        << QStringList{"Group-wise Employee List", " Group Name\tALPHA GROUP",
                       " Employee Name\t PAN", "ESHA DEOL\tAAAPE4444E",
                       " Group Name\tBETA GROUP", trickyName + "\tAAAPF5555F"};
    const QStringList heads{"Kelvora File ", " Company Name\tAsst Yr\tForm Details\tTotal Amount"
                                             "\tTotal TDS\tNo.of Deductees\tDate\tTime"};
    QTest::newRow("log by date, then time")
        << "log by date"
        << QStringList{"Date-wise File Generation Log"} + heads
               + QStringList{zetaLog, trickyLog, laterLog};
    QTest::newRow("log by company, then date")
        << "log by company"
        << QStringList{"Company-wise File Generation Log"} + heads
               + QStringList{trickyLog, zetaLog, laterLog};
}

void TestListReports::inOrder()
{
    QFETCH(QString, report);
    QFETCH(QStringList, expected);
    const std::optional<Report> built =
        builders().value(report)(reportsStore().store(), QDate(2026, 11, 2));
    QVERIFY(built);
    expectInOrder(built->text(), expected);
}

void TestListReports::emptyStoreShowsNothing()
{
    const TestStore empty;
    for (auto report = builders().begin(); report != builders().end(); ++report)
        QVERIFY2(!report.value()(empty.store(), QDate(2026, 11, 2)), qPrintable(report.key()));
    QVERIFY(!CompanyDetails(empty.store()).report("ALPHA GROUP", {"CALZ12345A"}, false, {}));
}

void TestListReports::companyDetails_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QStringList>("tans");
    QTest::addColumn<bool>("pageBreak");
    QTest::addColumn<int>("pageBreaks"); // -1: no report
    QTest::addColumn<QStringList>("expected");
    const QStringList both{
        "Group-wise Company Details", "GroupName:\tALPHA GROUP", "CompName:\tZETA TRADERS",
        "TanNO:\tCALZ12345A", "PanNo:\tAAACZ1234A", "Flat/Door/Block:\t1 ZETA HOUSE",
        "Road/Street/Lane:\tMG ROAD", "Town/District/City:\tKOLKATA",
        "StateName:\tMAHARASHTRA", "Pincode:\t700001", "Phone:\t03322223333",
        "AssessingOfficerCode:\tWB-12", "FilePrefix:\tZETA", "PersonName:\tRAVI KUMAR",
        "Designation:\tDIRECTOR", "Person Responsible for Tds.", "Flat/Door/Block:\t9 LAKE VIEW",
        "Road/Street/Lane:\tPARK STREET", "StateName:\tMAHARASHTRA", "PPincode:\t700016",
        "PPhone:\t03344445555", "CompName:\t" + trickyName};
    QTest::newRow("two companies") << "ALPHA GROUP" << QStringList{"CALO12345B", "CALZ12345A"}
                                   << false << 0 << both;
    QTest::newRow("a page each") << "ALPHA GROUP" << QStringList{"CALO12345B", "CALZ12345A"}
                                 << true << 1 << both;
    QTest::newRow("one chosen") << "ALPHA GROUP" << QStringList{"CALO12345B"} << true << 0
                                << QStringList{"CompName:\t" + trickyName};
    QTest::newRow("states differ: dropped") << "BETA GROUP" << QStringList{"CALB12345C"}
                                            << false << -1 << QStringList();
    QTest::newRow("TAN of another group") << "BETA GROUP" << QStringList{"CALZ12345A"}
                                          << false << -1 << QStringList();
}

void TestListReports::companyDetails()
{
    QFETCH(QString, group);
    QFETCH(QStringList, tans);
    QFETCH(bool, pageBreak);
    QFETCH(int, pageBreaks);
    QFETCH(QStringList, expected);
    const CompanyDetails details(reportsStore().store());
    const std::optional<Report> report = details.report(group, tans, pageBreak, {});
    QCOMPARE(report.has_value(), pageBreaks >= 0);
    if (!report)
        return;
    expectInOrder(report->text(), expected);
    QCOMPARE(report->text().count("CompName:"), tans.size());
    const auto breaks = std::count_if(report->bands().begin(), report->bands().end(),
                                      [](const ReportBand &band) { return band.pageBreakBefore; });
    QCOMPARE(int(breaks), pageBreaks);
}

KELVORA_TEST_OBJECT(TestListReports);

#include "test_listreports.moc"
