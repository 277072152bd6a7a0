#include "core/money.h"
#include "returnfile/deducteerecord.h"
#include "returnfile/recordline.h"
#include "returnfile/salaryrecord.h"

#include <QDate>
#include <QTest>

class TestRecordLine : public QObject
{
    Q_OBJECT

private slots:
    void fields();
    void amounts_data();
    void amounts();
    void rateText_data();
    void rateText();
    void deducteeCodeText_data();
    void deducteeCodeText();
    void employeeCategoryCode_data();
    void employeeCategoryCode();
};

void TestRecordLine::fields()
{
    RecordLine line(12, QStringLiteral("DD"));
    line.addText(QStringLiteral("  S. NARAYAN & SONS  "))
        .addText(QStringLiteral("\tTAB\t"))
        .addBlank(2)
        .addDate(QDate(2026, 7, 5))
        .addDate(QDate())
        .addFlag(true)
        .addNumber(0);

    QCOMPARE(line.text(), QStringLiteral("12^DD^S. NARAYAN & SONS^\tTAB\t^^^05072026^^Y^0^"));
    QCOMPARE(line.fieldCount(), 10);
    QCOMPARE(line.toLatin1(), QByteArray("12^DD^S. NARAYAN & SONS^\tTAB\t^^^05072026^^Y^0^"));
}

void TestRecordLine::amounts_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("rounded");

    QTest::newRow("null") << QVariant() << "" << "";
    QTest::newRow("zero") << QVariant(0) << "0.00" << "0.00";
    QTest::newRow("2.5") << QVariant(2.5) << "2.50" << "2.00";
    QTest::newRow("3.5") << QVariant(3.5) << "3.50" << "4.00";
    QTest::newRow("three decimals") << QVariant(3.456) << "3.46" << "3.00";
    QTest::newRow("just past half") << QVariant(2.501) << "2.50" << "3.00";
    QTest::newRow("whole number column") << QVariant(qlonglong(26000)) << "26000.00"
                                         << "26000.00";
    QTest::newRow("negative") << QVariant(-12.5) << "-12.50" << "-12.00";
}

void TestRecordLine::amounts()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, amount);
    QFETCH(QString, rounded);

    RecordLine line(1, QStringLiteral("CD"));
    line.addAmount(stored).addRoundedAmount(stored);
    QCOMPARE(line.text(), QStringLiteral("1^CD^%1^%2^").arg(amount, rounded));
}

void TestRecordLine::rateText_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("text");

    QTest::newRow("null") << QVariant() << "";
    QTest::newRow("zero") << QVariant(0.0) << "0.0000";
    QTest::newRow("whole") << QVariant(10) << "10.0000";
    QTest::newRow("one decimal") << QVariant(20.8) << "20.8000";
    QTest::newRow("tenth") << QVariant(0.1) << "0.1000";
    QTest::newRow("three decimals") << QVariant(1.125) << "1.1250";
    QTest::newRow("four decimals") << QVariant(2.0004) << "2.0004";
    QTest::newRow("fifth rounds up") << QVariant(10.12345) << "10.1235";
    QTest::newRow("fifth rounds down") << QVariant(10.12344) << "10.1234";
    QTest::newRow("carry into the whole") << QVariant(0.99995) << "1.0000";
    QTest::newRow("sum of doubles") << QVariant(0.1 + 0.2) << "0.3000";
    QTest::newRow("negative") << QVariant(-1.5) << "-1.5000";
    QTest::newRow("text") << QVariant(QStringLiteral("7.5")) << "7.5000";
}

void TestRecordLine::rateText()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, text);

    QCOMPARE(RecordLine::rateText(stored), text);
}

void TestRecordLine::deducteeCodeText_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("text");

    QTest::newRow("company") << "01" << "1";
    QTest::newRow("other than company") << "02" << "2";
    QTest::newRow("no leading zero") << "2" << "2";
    QTest::newRow("blank first") << " 1" << "1";
    QTest::newRow("empty") << "" << "0";
    QTest::newRow("letters") << "AB" << "0";
    QTest::newRow("digit then letter") << "1A" << "1";
}

void TestRecordLine::deducteeCodeText()
{
    QFETCH(QString, code);
    QFETCH(QString, text);

    QCOMPARE(::deducteeCodeText(code), text);
}

void TestRecordLine::employeeCategoryCode_data()
{
    QTest::addColumn<QVariant>("index");
    QTest::addColumn<QString>("code");

    QTest::newRow("woman") << QVariant(0) << "W";
    QTest::newRow("senior citizen") << QVariant(1) << "S";
    QTest::newRow("others") << QVariant(2) << "G";
    QTest::newRow("stored as a real") << QVariant(2.0) << "G";
    QTest::newRow("past the list") << QVariant(3) << "";
    QTest::newRow("negative") << QVariant(-1) << "";
    QTest::newRow("beyond 16 bits") << QVariant(70000) << "";
    QTest::newRow("fraction") << QVariant(1.5) << "";
    QTest::newRow("null") << QVariant() << "";
}

void TestRecordLine::employeeCategoryCode()
{
    QFETCH(QVariant, index);
    QFETCH(QString, code);

    QCOMPARE(::employeeCategoryCode(index), code);
}

QTEST_APPLESS_MAIN(TestRecordLine)
#include "test_recordline.moc"
