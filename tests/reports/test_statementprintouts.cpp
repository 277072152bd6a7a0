#include "reportsstore.h"

#include "core/formtraits.h"
#include "reports/basicinfoprintout.h"
#include "reports/statementannexures.h"
#include "support/testsuite.h"

#include <QtTest>

class TestStatementPrintouts : public QObject
{
    Q_OBJECT

private slots:
    void inOrder_data();
    void inOrder();
};

void TestStatementPrintouts::inOrder_data()
{
    testsuite::columns<QString, int, QStringList>("printout", "statement", "expected");
    QTest::newRow("basic information")
        << "basic" << 1
        << QStringList{"FORM - 26Q", "(See sections 193,", "in respect of all payments other "
                       "than \"Salaries\"", "From : 01/04/2026 To : 31/03/2027",
                       "1. Particulars of the person making deduction of tax",
                       "(a)  Name\t : ZETA TRADERS", "Flat / Door /Block No\t : 1 ZETA HOUSE",
                       "Name of Premises / Building\t : MG ROAD",
                       "Town / District / City\t : BOWBAZAR", "State\t : MAHARASHTRA",
                       "PIN\t : 700001", "(c) Tax Deduction Account Number\t : CALZ12345A",
                       "(d) Permanent Account Number\t : AAACZ1234A",
                       "deduction of tax changed ?\t : Yes", "Central Govt.\t : No",
                       "Other.\t : Yes"};
    QTest::newRow("basic information of another company's Statement")
        << "basic" << 3 << QStringList();
    QTest::newRow("challans by serial, with totals")
        << "challans" << 1
        << QStringList{"ZETA TRADERS", "Form No. 26Q : Details of tax deposited",
                       "Sl. No.\n[401]\tSection\n[402]\tTDS\n[403]",
                       "1\t94C\t2700.00\t0.00\t0.00\t0.00\t0.00\t2715.00\t123456\t0510308\t"
                       "07/05/2026\t00011",
                       "2\t94J\t5000.00", "987654321", "Total\t\t7700.00"};
    QTest::newRow("rows under their challans, by serial")
        << "annexure" << 1
        << QStringList{"Form No. 26Q : Deductee-wise break-up of TDS", "Challan Sl. No. : 1",
                       "1\t94C\t02\tAAAPZ1111Z\tZUBIN MEHTA\t100000.00\t20/04/2026\t2\t2000.00",
                       "\n2\t94C\t02\tAAAPA2222A\t" + trickyName, "\n3\t94C",
                       "Total\t\t\t\t\t135000.00", "Challan Sl. No. : 2", "\n4\t94J",
                       "\n5\tXYZ"};
    QTest::newRow("a payment of crores")
        << "annexure" << 2 << QStringList{"1\t94C\t02\tAAAPZ1111Z\tZUBIN MEHTA\t123456789.50"};
    QTest::newRow("challans without rows") << "annexure" << 4 << QStringList();
}

void TestStatementPrintouts::inOrder()
{
    QFETCH(QString, printout);
    QFETCH(int, statement);
    QFETCH(QStringList, expected);
    const DataStore &store = reportsStore().store();
    const FormTraits &form = formTraits(FormKind::Form26Q);
    const PrintoutHeading heading{"ZETA TRADERS", QDate(2026, 4, 1), QDate(2027, 3, 31),
                                  QDate(2026, 11, 2)};
    std::optional<Report> report;
    if (printout == "basic")
        report = basicinfoprintout::build(store, form, 1, statement, "Q1", heading);
    else if (printout == "challans")
        report = statementannexures::challans(store, form, statement, heading);
    else
        report = statementannexures::annexure(store, form, statement, heading);
    QCOMPARE(report.has_value(), !expected.isEmpty());
    if (!report)
        return;
    expectInOrder(report->text(), expected);
    // Each column is as wide as its contents need: no PAN, date or amount is broken in two.
    for (const ReportBand &band : report->bands()) {
        for (const ReportCell &cell : band.cells) {
            QCOMPARE(cell.lines.join(u' ').split(u' ', Qt::SkipEmptyParts),
                     QString(cell.text).replace(u'\n', u' ').split(u' ', Qt::SkipEmptyParts));
        }
    }
}

KELVORA_TEST_OBJECT(TestStatementPrintouts);

#include "test_statementprintouts.moc"
