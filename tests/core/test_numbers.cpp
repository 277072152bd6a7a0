#include "core/numbers.h"

#include <QTest>

#include <cmath>

class TestNumbers : public QObject
{
    Q_OBJECT

private slots:
    void val_data();
    void val();
    void roundAmount_data();
    void roundAmount();
};

void TestNumbers::val_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("no number") << "abc" << 0.0;
    QTest::newRow("decimals") << "1500.75" << 1500.75;
    QTest::newRow("negative") << "-7.25" << -7.25;
    QTest::newRow("plus sign") << "+3" << 3.0;
    QTest::newRow("leading number") << "12abc" << 12.0;
    QTest::newRow("comma stops") << "1,000" << 1.0;
    QTest::newRow("second point stops") << "1.2.3" << 1.2;
    QTest::newRow("blanks skipped") << " 1 2 . 5 " << 12.5;
    QTest::newRow("blank after sign") << "- 5" << -5.0;
    QTest::newRow("exponent") << "1e3" << 1000.0;
    QTest::newRow("d exponent") << "1D2" << 100.0;
    QTest::newRow("negative exponent") << "2.5e-1" << 0.25;
    QTest::newRow("dangling exponent") << "12e" << 12.0;
    QTest::newRow("exponent first") << "e5" << 0.0;
    QTest::newRow("two signs") << "+-5" << 0.0;
}

void TestNumbers::val()
{
    QFETCH(QString, text);
    QFETCH(double, value);

    QCOMPARE(numbers::val(text), value);
}

void TestNumbers::roundAmount_data()
{
    QTest::addColumn<double>("amount");
    QTest::addColumn<int>("digits");
    QTest::addColumn<double>("rounded");

    QTest::newRow("whole number") << 250.0 << 0 << 250.0;
    QTest::newRow("zero") << 0.0 << 0 << 0.0;
    QTest::newRow(".49 stays") << 10.49 << 0 << 10.0;
    QTest::newRow(".50 adds one") << 10.50 << 0 << 11.0;
    QTest::newRow(".5 adds one") << 0.5 << 0 << 1.0;
    QTest::newRow(".994 formats .99") << 10.994 << 0 << 11.0;
    QTest::newRow(".995 reads 10") << 10.995 << 0 << 10.0;
    QTest::newRow("2.995 reads 10") << 2.995 << 0 << 2.0;
    QTest::newRow(".999 reads 10") << 7.999 << 0 << 7.0;
    QTest::newRow(".495 formats .50") << 10.495 << 0 << 11.0;
    QTest::newRow(".4949 formats .49") << 10.4949 << 0 << 10.0;
    QTest::newRow(".05 single digit") << 10.05 << 0 << 10.0;
    QTest::newRow(".09 single digit") << 10.09 << 0 << 10.0;
    QTest::newRow(".005 formats .01") << 10.005 << 0 << 10.0;
    QTest::newRow("large amount") << 123456789012.5 << 0 << 123456789013.0;
    QTest::newRow("negative .7") << -10.7 << 0 << -10.0;
    QTest::newRow("negative .5") << -10.5 << 0 << -10.0;
    QTest::newRow("negative below one") << -0.7 << 0 << 0.0;
    QTest::newRow("one digit cuts 50 to 5") << 10.5 << 1 << 10.0;
    QTest::newRow("three digits read 100") << 10.995 << 3 << 11.0;
}

void TestNumbers::roundAmount()
{
    QFETCH(double, amount);
    QFETCH(int, digits);
    QFETCH(double, rounded);

    const double result = numbers::roundAmount(amount, digits);
    QCOMPARE(result, rounded);
    QVERIFY(!std::signbit(result) || rounded < 0); // never a negative zero on screen
}

QTEST_APPLESS_MAIN(TestNumbers)
#include "test_numbers.moc"
