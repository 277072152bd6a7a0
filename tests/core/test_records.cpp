#include "corestore.h"
#include "core/records.h"
#include "core/storeerror.h"
#include "support/testsuite.h"


using namespace records;

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    // The largest key plus one, among the children of one challan for a child table.
    void nextIds_data()
    {
        // basicInfoId: 0: a key of the whole table
        testsuite::columns<QString, QString, int, int, double>("table", "column", "basicInfoId",
                                                               "challanId", "next");
        QTest::newRow("empty table") << "mstEmployee" << "EmpID" << 0 << 0 << 1.0;
        QTest::newRow("largest, not the last") << "mstGroup" << "GroupID" << 0 << 0 << 42.0;
        QTest::newRow("challan with two rows") << "TranDeducteeE26" << "DeducteeID" << 1 << 1
                                               << 3.0;
        QTest::newRow("other challan") << "TranDeducteeE26" << "DeducteeID" << 1 << 2 << 6.0;
        QTest::newRow("other Statement") << "TranDeducteeE26" << "DeducteeID" << 2 << 1 << 10.0;
        QTest::newRow("challan without rows") << "TranDeducteeE26" << "DeducteeID" << 2 << 2
                                              << 1.0;
    }
    void nextIds()
    {
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(int, basicInfoId);
        QFETCH(int, challanId);
        const DataStore &store = coreStore().store();
        QTEST(basicInfoId ? nextChildId(store, table, column, basicInfoId, challanId)
                          : nextId(store, table, column),
              "next");
    }

    void lookups()
    {
        const DataStore &store = coreStore().store();
        const auto id = [&store](const char *name) {
            return lookupId(store, "GroupID", "mstGroup", "GroupName", QLatin1String(name));
        };
        QCOMPARE(id("O'NEIL AND SONS"), 41);
        QCOMPARE(id("  O'NEIL AND SONS "), 41); // as typed in a combo
        QCOMPARE(id("O'"), 0);
        QCOMPARE(id("   "), 0);
        const auto text = [&store](int id) {
            return lookupText(store, "mstGroup", "GroupID", "GroupName", id);
        };
        QCOMPARE(text(41), QStringLiteral("O'NEIL AND SONS"));
        QCOMPARE(text(7), QStringLiteral("SHAH TRADERS")); // stored padded by an older program
        QCOMPARE(text(9), QString());
        QCOMPARE(text(99), QString());
        // An empty value runs no statement; a value does, and its failure reaches the caller.
        QCOMPARE(lookupId(store, "GroupID", "mstNoSuchTable", "GroupName", " "), 0);
        QVERIFY_THROWS_EXCEPTION(StoreError,
                                 lookupId(store, "GroupID", "mstNoSuchTable", "GroupName", "X"));
    }

    void comboTexts_data()
    {
        testsuite::columns<QString, bool, QString, QVariantList, QStringList>("table",
                                                                              "descending",
                                                                              "statement",
                                                                              "values", "texts");
        const QStringList sorted = {"", "SHAH TRADERS", "Alpha Group", "Beta Group",
                                    "O'NEIL AND SONS"};
        QTest::newRow("sorted, trimmed") << "mstGroup" << false << "" << QVariantList()
                                         << sorted;
        QStringList reversed = sorted;
        std::reverse(reversed.begin(), reversed.end());
        QTest::newRow("descending") << "mstGroup" << true << "" << QVariantList() << reversed;
        QTest::newRow("statement with a value, first column only")
            << "mstNoSuchTable" << false
            << " SELECT GroupName, GroupID FROM mstGroup WHERE GroupID > ? ORDER BY GroupID "
            << QVariantList{7} << QStringList{"", "O'NEIL AND SONS"};
    }
    void comboTexts()
    {
        QFETCH(QString, table);
        QFETCH(bool, descending);
        QFETCH(QString, statement);
        QFETCH(QVariantList, values);
        QTEST(records::comboTexts(coreStore().store(), table, "GroupName", true, statement,
                                  descending, values),
              "texts");
    }
};

KELVORA_TEST_OBJECT(TestRecords);
#include "test_records.moc"
