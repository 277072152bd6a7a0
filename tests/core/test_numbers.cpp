#include "core/money.h"
#include "core/numbers.h"
#include "core/wholerupeesum.h"
#include "support/testsuite.h"


#include <cmath>
#include <limits>
#include <stdexcept>

// Money in paise, the reading of typed numbers and the rounding rules.
class TestNumbers : public QObject
{
    Q_OBJECT

private slots:
    void roundedToRupees_data()
    {
        testsuite::columns<qint64, qint64>("paise", "rupees");
        const qint64 rows[][2] = {{250, 2},   {350, 4},   {50, 0},    {251, 3},
                                  {249, 2},   {-250, -2}, {-350, -4}, {-50, 0},
                                  {-251, -3}, {-249, -2}, {1234567890150, 12345678902}};
        for (const auto &row : rows)
            QTest::addRow("%lld", row[0]) << row[0] << row[1];
    }
    void roundedToRupees()
    {
        QFETCH(qint64, paise);
        QFETCH(qint64, rupees);
        QCOMPARE(Money::fromPaise(paise).roundedToRupees(), Money::fromRupees(rupees));
    }

    // A stored number to paise, and to whole rupees decided on all of its decimals.
    void fromStored_data()
    {
        testsuite::columns<QVariant, qint64, qint64>("stored", "paise", "rupees");
        QTest::newRow("null") << QVariant() << 0ll << 0ll;
        QTest::newRow("whole") << QVariant(qlonglong(1500)) << 150000ll << 1500ll;
        QTest::newRow("2.675") << QVariant(2.675) << 268ll << 3ll;
        QTest::newRow("-2.675") << QVariant(-2.675) << -268ll << -3ll;
        QTest::newRow("0.1 + 0.2") << QVariant(0.1 + 0.2) << 30ll << 0ll;
        QTest::newRow("2.5 to even") << QVariant(2.5) << 250ll << 2ll;
        QTest::newRow("3.5 to even") << QVariant(3.5) << 350ll << 4ll;
        QTest::newRow("2.5001") << QVariant(2.5001) << 250ll << 3ll;
        QTest::newRow("-2.5001") << QVariant(-2.5001) << -250ll << -3ll;
        QTest::newRow("2.495") << QVariant(2.495) << 250ll << 2ll;
        QTest::newRow("crores") << QVariant(123456789.12) << 12345678912ll << 123456789ll;
        QTest::newRow("text") << QVariant(QStringLiteral("7.5")) << 750ll << 8ll;
        QTest::newRow("text, number first") << QVariant(QStringLiteral("12abc")) << 1200ll
                                            << 12ll;
    }
    void fromStored()
    {
        QFETCH(QVariant, stored);
        QFETCH(qint64, paise);
        QFETCH(qint64, rupees);
        QCOMPARE(Money::fromStored(stored).paise(), paise);
        QCOMPARE(Money::roundedFromStored(stored), Money::fromRupees(rupees));
    }

    void text_data()
    {
        testsuite::columns<qint64, QString, QString>("paise", "text", "padded");
        QTest::newRow("zero") << 0ll << "0.00" << "00.00";
        QTest::newRow("five paise") << 5ll << "0.05" << "00.05";
        QTest::newRow("no separators") << 123456789ll << "1234567.89" << "1234567.89";
        QTest::newRow("minus five paise") << -5ll << "-0.05" << "-00.05";
    }
    void text()
    {
        QFETCH(qint64, paise);
        QTEST(Money::fromPaise(paise).toText(), "text");
        QTEST(Money::fromPaise(paise).toPaddedText(), "padded");
    }

    void sums()
    {
        // Ten rows of 0.10 make exactly one rupee, which a sum of doubles does not.
        Money sum;
        for (int i = 0; i < 10; ++i)
            sum += Money::fromStored(0.1);
        QCOMPARE(sum, Money::fromRupees(1));
        QCOMPARE(Money::fromText(QStringLiteral("1,000")), Money::fromRupees(1));
        QCOMPARE(Money::fromText(QStringLiteral(" 12.345")).toText(), QStringLiteral("12.35"));
    }

    void val_data()
    {
        testsuite::columns<QString, double>("text", "value");
        const QList<std::pair<const char *, double>> rows = {
            {"", 0},         {"abc", 0},         {"1500.75", 1500.75}, {"-7.25", -7.25},
            {"+3", 3},       {"12abc", 12},      {"1,000", 1},         {"1.2.3", 1.2},
            {" 1 2 . 5 ", 12.5}, {"- 5", -5},    {"1e3", 1000},        {"1D2", 100},
            {"2.5e-1", 0.25}, {"12e", 12},       {"e5", 0},            {"+-5", 0},
            {"1e2.5", 100}};
        for (const auto &[text, value] : rows)
            QTest::newRow(text) << QString::fromLatin1(text) << value;
    }
    void val()
    {
        QFETCH(QString, text);
        QTEST(numbers::val(text), "value");
    }

    void roundAmount_data()
    {
        testsuite::columns<double, int, double>("amount", "digits", "rounded");
        // .05 to .09 are a single digit; .995 reads "1.00", which is 100 cut to 10.
        const QList<std::tuple<double, int, double>> rows = {
            {10.49, 0, 10}, {10.5, 0, 11},  {10.495, 0, 11}, {10.4949, 0, 10}, {10.05, 0, 10},
            {10.995, 0, 10}, {2.995, 0, 2}, {-10.7, 0, -10}, {-0.7, 0, 0},     {10.5, 1, 10},
            {10.995, 3, 11}, {123456789012.5, 0, 123456789013}};
        for (const auto &[amount, digits, rounded] : rows)
            QTest::addRow("%g, %d", amount, digits) << amount << digits << rounded;
    }
    void roundAmount()
    {
        QFETCH(double, amount);
        QFETCH(int, digits);
        QFETCH(double, rounded);
        const double result = numbers::roundAmount(amount, digits);
        QCOMPARE(result, rounded);
        QVERIFY(!std::signbit(result) || rounded < 0); // never a negative zero on screen
    }

    // Form 24Q's sums: each row is added and the sum brought to whole rupees, half to even, in
    // 32 bits.
    void addWholeRupees_data()
    {
        testsuite::columns<qint32, double, qint32>("sum", "amount", "result");
        const QList<std::tuple<qint32, double, qint32>> rows = {
            {0, 10.4, 10}, {10, 0.5, 10}, {11, 0.5, 12}, {1, 2.5, 4}, {7, 0.49, 7},
            {7, 0.51, 8}, {0, 2.495, 2}, {0, -1.5, -2}, {3, -0.5, 2},
            {2147483646, 1.4, 2147483647}, {2147483645, 1.5, 2147483646},
            {-2147483647, -1.5, -2147483648}, {-2147483648, 4294967295.0, 2147483647}};
        for (const auto &[sum, amount, result] : rows)
            QTest::addRow("%d + %g", sum, amount) << sum << amount << result;
    }
    void addWholeRupees()
    {
        QFETCH(qint32, sum);
        QFETCH(double, amount);
        QTEST(numbers::addWholeRupees(sum, amount), "result");
    }

    void wholeRupeeSumRefuses_data()
    {
        testsuite::columns<qint32, double>("sum", "amount");
        QTest::newRow("infinity") << 0 << std::numeric_limits<double>::infinity();
        QTest::newRow("not a number") << 0 << std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("typed 1e300") << 0 << 1e300;
        QTest::newRow("past 2147483647") << 2147483647 << 1.0;
        QTest::newRow("a half that rounds past it") << 2147483646 << 1.5;
        QTest::newRow("below -2147483648") << -2147483647 << -1.6;
    }
    void wholeRupeeSumRefuses()
    {
        QFETCH(qint32, sum);
        QFETCH(double, amount);
        QVERIFY_THROWS_EXCEPTION(std::range_error, numbers::addWholeRupees(sum, amount));
    }
};

KELVORA_TEST_OBJECT(TestNumbers);
#include "test_numbers.moc"
