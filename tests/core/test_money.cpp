#include "core/money.h"

#include <QTest>

class TestMoney : public QObject
{
    Q_OBJECT

private slots:
    void roundedToRupees_data();
    void roundedToRupees();
    void fromStored_data();
    void fromStored();
    void roundedFromStored_data();
    void roundedFromStored();
    void text_data();
    void text();
    void sums();
};

void TestMoney::roundedToRupees_data()
{
    QTest::addColumn<qint64>("paise");
    QTest::addColumn<qint64>("rupees");

    QTest::newRow("2.50 to even 2") << qint64(250) << qint64(2);
    QTest::newRow("3.50 to even 4") << qint64(350) << qint64(4);
    QTest::newRow("0.50 to even 0") << qint64(50) << qint64(0);
    QTest::newRow("1.50 to even 2") << qint64(150) << qint64(2);
    QTest::newRow("2.51 up") << qint64(251) << qint64(3);
    QTest::newRow("2.49 down") << qint64(249) << qint64(2);
    QTest::newRow("3.99 up") << qint64(399) << qint64(4);
    QTest::newRow("whole") << qint64(700) << qint64(7);
    QTest::newRow("zero") << qint64(0) << qint64(0);
    QTest::newRow("-2.50 to even -2") << qint64(-250) << qint64(-2);
    QTest::newRow("-3.50 to even -4") << qint64(-350) << qint64(-4);
    QTest::newRow("-0.50 to even 0") << qint64(-50) << qint64(0);
    QTest::newRow("-2.51 down") << qint64(-251) << qint64(-3);
    QTest::newRow("-2.49 up") << qint64(-249) << qint64(-2);
    QTest::newRow("large half") << qint64(1234567890150) << qint64(12345678902);
}

void TestMoney::roundedToRupees()
{
    QFETCH(qint64, paise);
    QFETCH(qint64, rupees);

    QCOMPARE(Money::fromPaise(paise).roundedToRupees().paise(), rupees * 100);
}

void TestMoney::fromStored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<qint64>("paise");

    QTest::newRow("null") << QVariant() << qint64(0);
    QTest::newRow("typed null") << QVariant(QMetaType::fromType<double>()) << qint64(0);
    QTest::newRow("whole") << QVariant(qlonglong(1500)) << qint64(150000);
    QTest::newRow("2.675 is 2.68") << QVariant(2.675) << qint64(268);
    QTest::newRow("1.005 is 1.01") << QVariant(1.005) << qint64(101);
    QTest::newRow("-2.675 is -2.68") << QVariant(-2.675) << qint64(-268);
    QTest::newRow("0.1 + 0.2") << QVariant(0.1 + 0.2) << qint64(30);
    QTest::newRow("1.1 + 2.2") << QVariant(1.1 + 2.2) << qint64(330);
    QTest::newRow("0.3 - 0.1") << QVariant(0.3 - 0.1) << qint64(20);
    QTest::newRow("below half a paisa") << QVariant(0.004) << qint64(0);
    QTest::newRow("half a paisa") << QVariant(0.005) << qint64(1);
    QTest::newRow("tiny") << QVariant(1e-9) << qint64(0);
    QTest::newRow("crores") << QVariant(123456789.12) << qint64(12345678912);
    QTest::newRow("text number") << QVariant(QStringLiteral("12.5")) << qint64(1250);
    QTest::newRow("text with a number first") << QVariant(QStringLiteral("12abc"))
                                              << qint64(1200);
    QTest::newRow("text without a number") << QVariant(QStringLiteral("abc")) << qint64(0);
}

void TestMoney::fromStored()
{
    QFETCH(QVariant, stored);
    QFETCH(qint64, paise);

    QCOMPARE(Money::fromStored(stored).paise(), paise);
}

void TestMoney::roundedFromStored_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<qint64>("rupees");

    QTest::newRow("null") << QVariant() << qint64(0);
    QTest::newRow("2.5 to even") << QVariant(2.5) << qint64(2);
    QTest::newRow("3.5 to even") << QVariant(3.5) << qint64(4);
    QTest::newRow("0.5 to even") << QVariant(0.5) << qint64(0);
    QTest::newRow("just above half") << QVariant(2.5001) << qint64(3);
    QTest::newRow("above half past the paise") << QVariant(2.500001) << qint64(3);
    QTest::newRow("just below half") << QVariant(2.4999) << qint64(2);
    QTest::newRow("2.495 stays") << QVariant(2.495) << qint64(2);
    QTest::newRow("2.675") << QVariant(2.675) << qint64(3);
    QTest::newRow("0.1 + 0.2") << QVariant(0.1 + 0.2) << qint64(0);
    QTest::newRow("whole") << QVariant(qlonglong(26000)) << qint64(26000);
    QTest::newRow("-2.5 to even") << QVariant(-2.5) << qint64(-2);
    QTest::newRow("-3.5 to even") << QVariant(-3.5) << qint64(-4);
    QTest::newRow("-2.5001") << QVariant(-2.5001) << qint64(-3);
    QTest::newRow("-0.4") << QVariant(-0.4) << qint64(0);
    QTest::newRow("text") << QVariant(QStringLiteral("7.5")) << qint64(8);
}

void TestMoney::roundedFromStored()
{
    QFETCH(QVariant, stored);
    QFETCH(qint64, rupees);

    QCOMPARE(Money::roundedFromStored(stored).paise(), rupees * 100);
}

void TestMoney::text_data()
{
    QTest::addColumn<qint64>("paise");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("padded");

    QTest::newRow("zero") << qint64(0) << "0.00" << "00.00";
    QTest::newRow("five paise") << qint64(5) << "0.05" << "00.05";
    QTest::newRow("fifty paise") << qint64(50) << "0.50" << "00.50";
    QTest::newRow("five rupees") << qint64(500) << "5.00" << "05.00";
    QTest::newRow("ten rupees") << qint64(1000) << "10.00" << "10.00";
    QTest::newRow("no separators") << qint64(123456789) << "1234567.89" << "1234567.89";
    QTest::newRow("minus five paise") << qint64(-5) << "-0.05" << "-00.05";
    QTest::newRow("minus") << qint64(-123456) << "-1234.56" << "-1234.56";
}

void TestMoney::text()
{
    QFETCH(qint64, paise);
    QFETCH(QString, text);
    QFETCH(QString, padded);

    QCOMPARE(Money::fromPaise(paise).toText(), text);
    QCOMPARE(Money::fromPaise(paise).toPaddedText(), padded);
}

void TestMoney::sums()
{
    // Ten rows of 0.10 make exactly one rupee, which a sum of doubles does not.
    Money sum;
    for (int i = 0; i < 10; ++i)
        sum += Money::fromStored(0.1);
    QCOMPARE(sum, Money::fromRupees(1));
    QCOMPARE(Money::fromText(QStringLiteral("1,000")), Money::fromRupees(1));
    QCOMPARE(Money::fromText(QStringLiteral(" 12.345")).toText(), QStringLiteral("12.35"));
}

QTEST_APPLESS_MAIN(TestMoney)
#include "test_money.moc"
