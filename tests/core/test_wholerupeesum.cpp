#include "core/wholerupeesum.h"

#include <QTest>

#include <limits>
#include <stdexcept>

class TestWholeRupeeSum : public QObject
{
    Q_OBJECT

private slots:
    void addWholeRupees_data();
    void addWholeRupees();
    void runningSum();
    void refusesWhatCannotBeSummed_data();
    void refusesWhatCannotBeSummed();
};

void TestWholeRupeeSum::addWholeRupees_data()
{
    QTest::addColumn<qint64>("sum");
    QTest::addColumn<double>("amount");
    QTest::addColumn<qint64>("result");

    QTest::newRow("first row rounds down") << qint64(0) << 10.4 << qint64(10);
    QTest::newRow("second row rounds down") << qint64(10) << 10.4 << qint64(20);
    QTest::newRow("half to even, down") << qint64(10) << 0.5 << qint64(10);
    QTest::newRow("half to even, up") << qint64(11) << 0.5 << qint64(12);
    QTest::newRow("2.5 gives 2") << qint64(0) << 2.5 << qint64(2);
    QTest::newRow("3.5 gives 4") << qint64(0) << 3.5 << qint64(4);
    QTest::newRow("parity of the sum, not of the amount") << qint64(1) << 2.5 << qint64(4);
    QTest::newRow("just under half") << qint64(7) << 0.49 << qint64(7);
    QTest::newRow("just over half") << qint64(7) << 0.51 << qint64(8);
    QTest::newRow("typed 2.495 is under half") << qint64(0) << 2.495 << qint64(2);
    QTest::newRow("whole amount") << qint64(100) << 250.0 << qint64(350);
    QTest::newRow("negative half to even") << qint64(0) << -0.5 << qint64(0);
    QTest::newRow("negative 1.5 gives -2") << qint64(0) << -1.5 << qint64(-2);
    QTest::newRow("negative row on a sum") << qint64(3) << -0.5 << qint64(2);
    // A large employer's monthly tax passes the 32-bit range.
    QTest::newRow("beyond 32 bits") << qint64(2147483647) << 1.4 << qint64(2147483648);
    QTest::newRow("half on a large sum") << qint64(4294967296) << 0.5 << qint64(4294967296);
}

void TestWholeRupeeSum::addWholeRupees()
{
    QFETCH(qint64, sum);
    QFETCH(double, amount);
    QFETCH(qint64, result);

    QCOMPARE(numbers::addWholeRupees(sum, amount), result);
}

void TestWholeRupeeSum::runningSum()
{
    // Rounding row by row differs from rounding the exact total (2.5 + 2.5 + 2.5 = 7.5 → 8).
    qint64 sum = 0;
    for (int row = 0; row < 3; ++row)
        sum = numbers::addWholeRupees(sum, 2.5);
    QCOMPARE(sum, qint64(6)); // 2, then 4.5 → 4, then 6.5 → 6
}

void TestWholeRupeeSum::refusesWhatCannotBeSummed_data()
{
    QTest::addColumn<qint64>("sum");
    QTest::addColumn<double>("amount");

    QTest::newRow("infinity") << qint64(0) << std::numeric_limits<double>::infinity();
    QTest::newRow("not a number") << qint64(0) << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("typed 1e300") << qint64(0) << 1e300;
    QTest::newRow("sum passes 2^53") << qint64(9007199254740990) << 10.0;
}

void TestWholeRupeeSum::refusesWhatCannotBeSummed()
{
    QFETCH(qint64, sum);
    QFETCH(double, amount);

    QVERIFY_THROWS_EXCEPTION(std::range_error, numbers::addWholeRupees(sum, amount));
}

QTEST_GUILESS_MAIN(TestWholeRupeeSum)
#include "test_wholerupeesum.moc"
