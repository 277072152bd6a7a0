#include "core/quarter.h"

#include <QtTest>

class TestQuarter : public QObject
{
    Q_OBJECT

private slots:
    void forIndex_data();
    void forIndex();
};

void TestQuarter::forIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("startYear");
    QTest::addColumn<QString>("sessionCode");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("label");

    QTest::newRow("first") << 0 << 2026 << "Q1" << "01/04/2026" << "30/06/2026"
                           << "From:01/04/2026 To:30/06/2026";
    QTest::newRow("second") << 1 << 2026 << "Q2" << "01/07/2026" << "30/09/2026"
                            << "From:01/07/2026 To:30/09/2026";
    QTest::newRow("third") << 2 << 2026 << "Q3" << "01/10/2026" << "31/12/2026"
                           << "From:01/10/2026 To:31/12/2026";
    QTest::newRow("fourth in the next year") << 3 << 2026 << "Q4" << "01/01/2027" << "31/03/2027"
                                             << "From:01/01/2027 To:31/03/2027";
    QTest::newRow("no assessment row, first") << 0 << 0 << "Q1" << "01/04/0" << "30/06/0"
                                              << "From:01/04/0 To:30/06/0";
    QTest::newRow("no assessment row, fourth") << 3 << 0 << "Q4" << "01/01/1" << "31/03/1"
                                               << "From:01/01/1 To:31/03/1";
    QTest::newRow("nothing chosen") << -1 << 2026 << "  " << "" << "" << "";
    QTest::newRow("past the list") << 4 << 2026 << "  " << "" << "" << "";
}

void TestQuarter::forIndex()
{
    QFETCH(int, index);
    QFETCH(int, startYear);
    QFETCH(QString, sessionCode);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, label);

    const quarter::Period period = quarter::forIndex(index, startYear);
    QCOMPARE(period.isValid(), !from.isEmpty());
    QCOMPARE(quarter::sessionCode(period.code), sessionCode);
    QCOMPARE(period.fromDate, from);
    QCOMPARE(period.toDate, to);
    QCOMPARE(quarter::labelText(period), label);
}

QTEST_GUILESS_MAIN(TestQuarter)
#include "test_quarter.moc"
