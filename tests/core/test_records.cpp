#include "core/records.h"
#include "core/storeerror.h"
#include "support/teststore.h"

#include <QTest>

namespace {

void addGroup(DataStore &store, const QVariant &id, const QVariant &name)
{
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, ?)"),
               {id, name});
}

void addAnnexureRow(DataStore &store, int id, int basicInfoId, int challanId)
{
    store.exec(QStringLiteral("INSERT INTO TranDeducteeE26 (DeducteeID, BasicIfoID, ChallanId) "
                              "VALUES (?, ?, ?)"),
               {id, basicInfoId, challanId});
}

} // namespace

class TestRecords : public QObject
{
    Q_OBJECT

private slots:
    void nextId_data();
    void nextId();
    void nextChildId_data();
    void nextChildId();
    void lookupId_data();
    void lookupId();
    void lookupText_data();
    void lookupText();
    void lookupIdOfEmptyValueRunsNoStatement();
    void comboTexts_data();
    void comboTexts();
};

void TestRecords::nextId_data()
{
    QTest::addColumn<QVariantList>("ids");
    QTest::addColumn<double>("next");

    QTest::newRow("empty table") << QVariantList{} << 1.0;
    QTest::newRow("largest is 41, not the last") << QVariantList{1, 41, 7} << 42.0;
    QTest::newRow("rows with only Null keys") << QVariantList{QVariant(), QVariant()} << 1.0;
    QTest::newRow("Null beside a key") << QVariantList{QVariant(), 5} << 6.0;
    // A gap below the largest id is never filled.
    QTest::newRow("gap below the largest") << QVariantList{1, 3} << 4.0;
}

void TestRecords::nextId()
{
    QFETCH(QVariantList, ids);
    QFETCH(double, next);

    TestStore test;
    int n = 0;
    for (const QVariant &id : ids)
        addGroup(test.store(), id, QStringLiteral("GROUP %1").arg(++n));

    QCOMPARE(records::nextId(test.store(), QStringLiteral("mstGroup"), QStringLiteral("GroupID")),
             next);
}

void TestRecords::nextChildId_data()
{
    QTest::addColumn<int>("basicInfoId");
    QTest::addColumn<int>("challanId");
    QTest::addColumn<double>("next");

    QTest::newRow("challan with two rows") << 1 << 1 << 3.0;
    QTest::newRow("other challan of the Statement") << 1 << 2 << 6.0;
    QTest::newRow("same challan id, other Statement") << 2 << 1 << 10.0;
    QTest::newRow("challan without rows") << 2 << 2 << 1.0;
    QTest::newRow("Statement without rows") << 3 << 1 << 1.0;
}

void TestRecords::nextChildId()
{
    QFETCH(int, basicInfoId);
    QFETCH(int, challanId);
    QFETCH(double, next);

    TestStore test;
    addAnnexureRow(test.store(), 1, 1, 1);
    addAnnexureRow(test.store(), 2, 1, 1);
    addAnnexureRow(test.store(), 5, 1, 2);
    addAnnexureRow(test.store(), 9, 2, 1);

    QCOMPARE(records::nextChildId(test.store(), QStringLiteral("TranDeducteeE26"),
                                  QStringLiteral("DeducteeID"), basicInfoId, challanId),
             next);
}

void TestRecords::lookupId_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("id");

    QTest::newRow("name with an apostrophe") << "O'NEIL AND SONS" << 11;
    QTest::newRow("padded as typed in a combo") << "  O'NEIL AND SONS " << 11;
    QTest::newRow("name stored padded") << "SHAH TRADERS" << 12;
    QTest::newRow("apostrophe alone does not match") << "O'" << 0;
    QTest::newRow("unknown name") << "NOBODY" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("blanks only") << "   " << 0;
}

void TestRecords::lookupId()
{
    QFETCH(QString, value);
    QFETCH(int, id);

    TestStore test;
    addGroup(test.store(), 11, records::escapeText(QStringLiteral(" O'NEIL AND SONS  ")));
    addGroup(test.store(), 12, records::escapeText(QStringLiteral("SHAH TRADERS   ")));

    QCOMPARE(records::lookupId(test.store(), QStringLiteral("GroupID"), QStringLiteral("mstGroup"),
                               QStringLiteral("GroupName"), value),
             id);
}

void TestRecords::lookupText_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");

    QTest::newRow("name with an apostrophe") << 11 << "O'NEIL AND SONS";
    QTest::newRow("stored with blanks, given trimmed") << 12 << "SHAH TRADERS";
    QTest::newRow("Null name") << 13 << "";
    QTest::newRow("no such id") << 99 << "";
}

void TestRecords::lookupText()
{
    QFETCH(int, id);
    QFETCH(QString, text);

    TestStore test;
    addGroup(test.store(), 11, QStringLiteral("O'NEIL AND SONS"));
    // Rows written by an older program or the import may not be trimmed.
    addGroup(test.store(), 12, QStringLiteral("  SHAH TRADERS "));
    addGroup(test.store(), 13, QVariant());

    QCOMPARE(records::lookupText(test.store(), QStringLiteral("mstGroup"),
                                 QStringLiteral("GroupID"), QStringLiteral("GroupName"), id),
             text);
}

void TestRecords::lookupIdOfEmptyValueRunsNoStatement()
{
    TestStore test;
    const QString table = QStringLiteral("mstNoSuchTable");
    QCOMPARE(records::lookupId(test.store(), QStringLiteral("GroupID"), table,
                               QStringLiteral("GroupName"), QStringLiteral("  ")),
             0);
    // Whereas a value does reach the store, and its failure reaches the caller.
    QVERIFY_THROWS_EXCEPTION(StoreError,
                             records::lookupId(test.store(), QStringLiteral("GroupID"), table,
                                               QStringLiteral("GroupName"),
                                               QStringLiteral("X")));
}

void TestRecords::comboTexts_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<bool>("sorted");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<bool>("descending");
    QTest::addColumn<QVariantList>("values");
    QTest::addColumn<QStringList>("texts");

    const QString groups = QStringLiteral("mstGroup");
    QTest::newRow("sorted") << groups << true << "" << false << QVariantList{}
                            << QStringList{"APPLE", "KIWI", "MANGO"};
    QTest::newRow("sorted descending") << groups << true << "" << true << QVariantList{}
                                       << QStringList{"MANGO", "KIWI", "APPLE"};
    QTest::newRow("statement in the order it gives")
        << groups << true << "SELECT GroupName FROM mstGroup ORDER BY GroupID DESC" << false
        << QVariantList{} << QStringList{"KIWI", "APPLE", "MANGO"};
    QTest::newRow("statement with a value")
        << groups << false
        << "  SELECT GroupName FROM mstGroup WHERE GroupID > ? ORDER BY GroupID "
        << false << QVariantList{1} << QStringList{"APPLE", "KIWI"};
    QTest::newRow("statement wins over the table")
        << "mstNoSuchTable" << true << "SELECT GroupName FROM mstGroup WHERE GroupID = 3" << false
        << QVariantList{} << QStringList{"KIWI"};
    QTest::newRow("statement without rows")
        << groups << false << "SELECT GroupName FROM mstGroup WHERE GroupID = ?" << false
        << QVariantList{99} << QStringList{};
    QTest::newRow("first column only")
        << groups << false << "SELECT GroupName, GroupID FROM mstGroup WHERE GroupID = 1" << false
        << QVariantList{} << QStringList{"MANGO"};
}

void TestRecords::comboTexts()
{
    QFETCH(QString, table);
    QFETCH(bool, sorted);
    QFETCH(QString, statement);
    QFETCH(bool, descending);
    QFETCH(QVariantList, values);
    QFETCH(QStringList, texts);

    TestStore test;
    addGroup(test.store(), 1, QStringLiteral("MANGO"));
    addGroup(test.store(), 2, QStringLiteral("APPLE"));
    addGroup(test.store(), 3, QStringLiteral("KIWI   "));

    QCOMPARE(records::comboTexts(test.store(), table, QStringLiteral("GroupName"), sorted,
                                 statement, descending, values),
             texts);
}

QTEST_GUILESS_MAIN(TestRecords)

#include "test_records.moc"
