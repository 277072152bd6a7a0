#include "core/datastore.h"
#include "core/storeerror.h"
#include "returnfile/returnfileerror.h"
#include "returnfile/returnfilewriter.h"
#include "statementfixtures.h"
#include "support/teststore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

const QByteArray earlierReturn = "1^FH^NS1^R^01072026^1^D^MUMA12345B^1^Kelvora^^^^^^^^\r\n";

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ReturnFileSummary writeFixture(DataStore &store, const QString &fixture, const QString &path)
{
    return writeReturnFile(store, formTraits(statementfixtures::named(fixture).form),
                           statementfixtures::basicInfoId, path, QDate(2026, 10, 15));
}

/// The fields of line @p number (from 1) of a written file.
QList<QByteArray> fieldsOf(const QString &path, int number)
{
    const QList<QByteArray> lines = contentsOf(path).split('\n');
    return lines.value(number - 1).chopped(1).split('^'); // without its CR
}

} // namespace

class TestReturnFileWriter : public QObject
{
    Q_OBJECT

private slots:
    void refusals_data();
    void refusals();
    void missingFolder();
    void storeFailureLeavesNoFile();
    void unknownStatement();
    void onlyWhatGoesOutIsChecked();
    void salaryChallanSection_data();
    void salaryChallanSection();

private:
    std::unique_ptr<TestStore> m_salaryStore; ///< shared by the rows of salaryChallanSection
};

void TestReturnFileWriter::refusals_data()
{
    QTest::addColumn<QString>("fixture");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("named");   // column, table and row as the message gives them
    QTest::addColumn<QString>("because");

    QTest::newRow("caret in a deductee's name")
        << "26q_positive"
        << "UPDATE TranDeducteeE26 SET DeducteeName = 'KRISHNA^CONSULTANTS' WHERE DeducteeID = 21"
        << "DeducteeName of TranDeducteeE26 (DeducteeID 21)" << "\"^\"";
    QTest::newRow("rupee sign in the deductor's name")
        << "26q_positive"
        << QStringLiteral("UPDATE TranBasicInfoE26 SET CompName = 'ACME ₹ TRADERS'")
        << "CompName of TranBasicInfoE26 (BasicIfoID 1)" << QStringLiteral("\"₹\"");
    QTest::newRow("euro sign, which Latin-1 has not")
        << "24q_salary"
        << QStringLiteral("UPDATE TranSalaryE24 SET EmpName = 'LATA €' WHERE SalaryId = 2")
        << "EmpName of TranSalaryE24 (SalaryId 2)" << QStringLiteral("\"€\"");
    QTest::newRow("character beyond two bytes")
        << "27q_grossing_up"
        << QStringLiteral("UPDATE TranDeducteeE27 SET PANRef = 'R😀' WHERE DeducteeID = 23")
        << "PANRef of TranDeducteeE27 (DeducteeID 23)" << QStringLiteral("\"😀\"");
    QTest::newRow("line break in the remarks")
        << "26q_positive"
        << "UPDATE TranChallanE26 SET Remarks = 'SECOND' || char(13, 10) || 'QUARTER' "
           "WHERE ChallnID = 12"
        << "Remarks of TranChallanE26 (ChallnID 12)" << "line break";
    QTest::newRow("caret in the company's ministry")
        << "27eq_purchase" << "UPDATE mstCompany SET MinistryOther = 'PORT^TRUST'"
        << "MinistryOther of mstCompany (CompID 1)" << "\"^\"";
    QTest::newRow("caret in the last line of the file")
        << "24q_salary" << "UPDATE TranSec16E24 SET SectionId = '16^(iii)' WHERE Secid = 5"
        << "SectionId of TranSec16E24 (Secid 5)" << "\"^\"";
    QTest::newRow("date that is not one")
        << "27eq_purchase"
        << "UPDATE TranChallanE27E SET DtTrVoucher = '07/11/2026' WHERE ChallnID = 11"
        << "DtTrVoucher of TranChallanE27E (ChallnID 11)" << "not a date";
}

void TestReturnFileWriter::refusals()
{
    QFETCH(QString, fixture);
    QFETCH(QString, change);
    QFETCH(QString, named);
    QFETCH(QString, because);

    TestStore testStore;
    statementfixtures::named(fixture).build(testStore.store());
    testStore.store().exec(change);
    QTemporaryDir output;
    const QString fresh = output.filePath(QStringLiteral("fresh.txt"));
    const QString existing = output.filePath(QStringLiteral("existing.txt"));
    writeFile(existing, earlierReturn);

    for (const QString &path : {fresh, existing}) {
        try {
            writeFixture(testStore.store(), fixture, path);
            QFAIL("the return file was written");
        } catch (const ReturnFileError &error) {
            QVERIFY2(error.message().contains(named), qPrintable(error.message()));
            QVERIFY2(error.message().contains(because), qPrintable(error.message()));
        }
    }
    QVERIFY(!QFile::exists(fresh));
    QCOMPARE(contentsOf(existing), earlierReturn);
    // No temporary file is left beside them either.
    QCOMPARE(QDir(output.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("existing.txt")});
}

void TestReturnFileWriter::missingFolder()
{
    TestStore testStore;
    statementfixtures::named("26q_positive").build(testStore.store());
    QTemporaryDir output;
    const QString path = output.filePath(QStringLiteral("eReturns/ACM26QQ2.txt"));

    try {
        writeFixture(testStore.store(), "26q_positive", path);
        QFAIL("the return file was written");
    } catch (const ReturnFileError &error) {
        QVERIFY2(error.message().contains(path), qPrintable(error.message()));
    }
    QVERIFY(!QFileInfo::exists(output.filePath(QStringLiteral("eReturns"))));
}

void TestReturnFileWriter::storeFailureLeavesNoFile()
{
    TestStore testStore;
    statementfixtures::named("26q_positive").build(testStore.store());
    // The header lines are written by the time the challans' rows are asked for.
    testStore.store().exec(QStringLiteral("DROP TABLE TranDeducteeE26"));
    QTemporaryDir output;
    const QString path = output.filePath(QStringLiteral("ACM26QQ2.txt"));
    writeFile(path, earlierReturn);

    QVERIFY_THROWS_EXCEPTION(StoreError, writeFixture(testStore.store(), "26q_positive", path));
    QCOMPARE(contentsOf(path), earlierReturn);
    QCOMPARE(QDir(output.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("ACM26QQ2.txt")});
}

void TestReturnFileWriter::unknownStatement()
{
    TestStore testStore;
    statementfixtures::named("26q_positive").build(testStore.store());
    QTemporaryDir output;
    const QString path = output.filePath(QStringLiteral("ACM26QQ2.txt"));

    try {
        writeReturnFile(testStore.store(), formTraits(FormKind::Form26Q), 7, path, {});
        QFAIL("the return file was written");
    } catch (const ReturnFileError &error) {
        QVERIFY2(error.message().contains(QStringLiteral("7 in TranBasicInfoE26")),
                 qPrintable(error.message()));
    }
    QVERIFY(!QFile::exists(path));
}

void TestReturnFileWriter::onlyWhatGoesOutIsChecked()
{
    // A caret past the width that the file keeps of a challan's codes never reaches the file.
    TestStore testStore;
    statementfixtures::named("26q_positive").build(testStore.store());
    testStore.store().exec(QStringLiteral("UPDATE TranChallanE26 SET TrVoucherNo = '12345^6', "
                                          "BankCode = '0510002^', ChqDDNo = '445566' || "
                                          "char(8377) WHERE ChallnID = 11"));
    QTemporaryDir output;
    const QString path = output.filePath(QStringLiteral("ACM26QQ2.txt"));

    writeFixture(testStore.store(), "26q_positive", path);

    const QList<QByteArray> challan = fieldsOf(path, 3);
    QCOMPARE(challan.value(11), QByteArray("12345"));
    QCOMPARE(challan.value(15), QByteArray("0510002"));
    QCOMPARE(challan.value(35), QByteArray()); // a book entry has no cheque
}

void TestReturnFileWriter::salaryChallanSection_data()
{
    QTest::addColumn<QVariant>("deductorType");
    QTest::addColumn<QByteArray>("section");

    for (const char *government : {"A", "S", "D", "E", "G", "H", "L", "N"})
        QTest::newRow(government) << QVariant(government) << QByteArray("92A");
    for (const char *other : {"K", "M", "P", "T", "J", "B", "Q", "F"})
        QTest::newRow(other) << QVariant(other) << QByteArray("92B");
    QTest::newRow("lower case a") << QVariant("a") << QByteArray("92B");
    QTest::newRow("empty") << QVariant("") << QByteArray("92B");
    QTest::newRow("null") << QVariant() << QByteArray("92B");
}

void TestReturnFileWriter::salaryChallanSection()
{
    QFETCH(QVariant, deductorType);
    QFETCH(QByteArray, section);

    if (!m_salaryStore) {
        m_salaryStore = std::make_unique<TestStore>();
        statementfixtures::named("24q_salary").build(m_salaryStore->store());
    }
    DataStore &store = m_salaryStore->store();
    store.exec(QStringLiteral("UPDATE mstCompany SET DStatus = ?"), {deductorType});
    QTemporaryDir output;
    const QString path = output.filePath(QStringLiteral("ACM24QQ4.txt"));

    writeFixture(store, "24q_salary", path);

    QCOMPARE(fieldsOf(path, 2).value(31), deductorType.toByteArray());
    QCOMPARE(fieldsOf(path, 3).value(20), section);
    QCOMPARE(fieldsOf(path, 6).value(20), section);
}

QTEST_GUILESS_MAIN(TestReturnFileWriter)
#include "test_returnfilewriter.moc"
