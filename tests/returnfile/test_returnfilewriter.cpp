#include "core/storeerror.h"
#include "returnfile/deducteerecord.h"
#include "returnfile/recordline.h"
#include "returnfile/returnfileerror.h"
#include "returnfile/returnfilewriter.h"
#include "returnfile/salaryrecord.h"
#include "statementfixtures.h"
#include "support/testsuite.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

const QByteArray earlierReturn = "1^FH^NS1^R^01072026^1^D^MUMA12345B^1^Kelvora^^^^^^^^\r\n";

ReturnFileSummary write(const TestStore &data, const QString &fixture, const QString &path)
{
    return writeReturnFile(data.store(), formTraits(statementfixtures::named(fixture).form),
                           statementfixtures::groupId, statementfixtures::basicInfoId, path,
                           QDate(2026, 10, 15));
}

/// The fields of line @p number (from 1) of a written file.
QList<QByteArray> fieldsOf(const QString &path, int number)
{
    return contentsOf(path).split('\n').value(number - 1).chopped(1).split('^');
}

} // namespace

class TestReturnFileWriter : public QObject
{
    Q_OBJECT

private slots:
    // What the file cannot hold refuses the file: nothing new is left, an earlier file stays.
    void refusals_data()
    {
        // named: column, table and row as the message gives them
        testsuite::columns<QString, QString, QString, QString>("fixture", "change", "named",
                                                               "because");
        const auto row = [](const char *name, const char *fixture, const QString &change,
                            const char *named, const QString &because) {
            QTest::newRow(name) << fixture << change << named << because;
        };
        row("caret in a deductee's name", "26q_positive",
            "UPDATE TranDeducteeE26 SET DeducteeName = 'A^B' WHERE DeducteeID = 21",
            "DeducteeName of TranDeducteeE26 (DeducteeID 21)", "holds \"A^B\", and \"^\"");
        row("NUL in a deductee's name", "26q_positive",
            "UPDATE TranDeducteeE26 SET DeducteeName = 'RAM' || char(0) || 'LAL' "
            "WHERE DeducteeID = 21",
            "DeducteeName of TranDeducteeE26 (DeducteeID 21)", "holds \"RAM<U+0000>LAL\"");
        row("tab in the remarks", "26q_positive",
            "UPDATE TranChallanE26 SET Remarks = 'A' || char(9) || 'B' WHERE ChallnID = 12",
            "Remarks of TranChallanE26 (ChallnID 12)", "control character <U+0009>");
        row("euro sign, which Latin-1 has not", "24q_salary",
            QStringLiteral("UPDATE TranSalaryE24 SET EmpName = 'LATA €' WHERE SalaryId = 2"),
            "EmpName of TranSalaryE24 (SalaryId 2)", QStringLiteral("\"LATA €\", and \"€\""));
        row("character beyond two bytes", "27q_grossing_up",
            QStringLiteral("UPDATE TranDeducteeE27 SET PANRef = 'R😀' WHERE DeducteeID = 23"),
            "PANRef of TranDeducteeE27 (DeducteeID 23)", QStringLiteral("\"😀\""));
        row("line break in the remarks", "26q_positive",
            "UPDATE TranChallanE26 SET Remarks = 'A' || char(13, 10) || 'B' WHERE ChallnID = 12",
            "Remarks of TranChallanE26 (ChallnID 12)", "line break");
        row("caret in the company's ministry", "27eq_purchase",
            "UPDATE mstCompany SET MinistryOther = 'PORT^TRUST'",
            "MinistryOther of mstCompany (CompID 1)", "\"^\"");
        row("caret in the last line of the file", "24q_salary",
            "UPDATE TranSec16E24 SET SectionId = '16^(iii)' WHERE Secid = 5",
            "SectionId of TranSec16E24 (Secid 5)", "\"^\"");
        row("employee category beyond 16 bits", "24q_salary",
            "UPDATE TranSalaryE24 SET \"331\" = 32768 WHERE SalaryId = 2", "", "Overflow");
        row("date that is not one", "27eq_purchase",
            "UPDATE TranChallanE27E SET DtTrVoucher = '07/11/2026' WHERE ChallnID = 11",
            "DtTrVoucher of TranChallanE27E (ChallnID 11)", "not a date");
    }
    void refusals()
    {
        QFETCH(QString, fixture);
        QFETCH(QString, change);
        QFETCH(QString, named);
        QFETCH(QString, because);
        TestStore data;
        statementfixtures::named(fixture).build(data);
        data.store().exec(change);
        QTemporaryDir output;
        const QString fresh = output.filePath("fresh.txt");
        const QString existing = output.filePath("existing.txt");
        QFile file(existing);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(earlierReturn));
        file.close();
        for (const QString &path : {fresh, existing}) {
            try {
                write(data, fixture, path);
                QFAIL("the return file was written");
            } catch (const ReturnFileError &error) {
                QVERIFY2(error.message().contains(named) && error.message().contains(because),
                         qPrintable(error.message()));
            }
        }
        QCOMPARE(contentsOf(existing), earlierReturn);
        // Neither the fresh file nor a temporary one is left.
        QCOMPARE(QDir(output.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"existing.txt"});
    }

    void failuresLeaveNoFile()
    {
        TestStore data;
        statementfixtures::named("26q_positive").build(data);
        QTemporaryDir output;
        const QString inMissingFolder = output.filePath("eReturns/ACM26QQ2.txt");
        try {
            write(data, "26q_positive", inMissingFolder);
            QFAIL("the return file was written");
        } catch (const ReturnFileError &error) {
            QVERIFY2(error.message().contains(inMissingFolder), qPrintable(error.message()));
        }
        QVERIFY(!QFileInfo::exists(output.filePath("eReturns")));
        const QString path = output.filePath("ACM26QQ2.txt");
        try {
            writeReturnFile(data.store(), formTraits(FormKind::Form26Q), 1, 7, path, {});
            QFAIL("the return file was written");
        } catch (const ReturnFileError &error) {
            QVERIFY2(error.message().contains("7 in TranBasicInfoE26"),
                     qPrintable(error.message()));
        }
        // The header lines are written by the time the challans' rows are asked for.
        data.store().exec("DROP TABLE TranDeducteeE26");
        QVERIFY_THROWS_EXCEPTION(StoreError, write(data, "26q_positive", path));
        QCOMPARE(QDir(output.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }

    void onlyWhatGoesOutIsChecked()
    {
        // A caret past the width that the file keeps of a challan's codes never reaches it.
        TestStore data;
        statementfixtures::named("26q_positive").build(data);
        data.store().exec("UPDATE TranChallanE26 SET TrVoucherNo = '12345^6', BankCode = "
                          "'0510002^', ChqDDNo = '445566' || char(8377) WHERE ChallnID = 11");
        const QString path = data.folder() + "/ACM26QQ2.txt";
        write(data, "26q_positive", path);
        const QList<QByteArray> challan = fieldsOf(path, 3);
        QCOMPARE(challan.value(11), QByteArray("12345"));
        QCOMPARE(challan.value(15), QByteArray("0510002"));
        QCOMPARE(challan.value(35), QByteArray()); // a book entry has no cheque
    }

    // A government office's salary challans are under section 92A, any other's under 92B.
    void salaryChallanSection()
    {
        TestStore data;
        statementfixtures::named("24q_salary").build(data);
        const QString path = data.folder() + "/ACM24QQ4.txt";
        const QList<std::pair<QVariant, QByteArray>> types = {
            {"S", "92A"}, {"N", "92A"}, {"K", "92B"}, {"F", "92B"}, {"a", "92B"},
            {"", "92B"},  {QVariant(), "92B"}};
        for (const auto &[type, section] : types) {
            data.store().exec("UPDATE mstCompany SET DStatus = ?", {type});
            write(data, "24q_salary", path);
            QCOMPARE(fieldsOf(path, 2).value(31), type.toByteArray());
            QCOMPARE(fieldsOf(path, 3).value(20), section);
            QCOMPARE(fieldsOf(path, 6).value(20), section);
        }
        // The company is looked up within the session's group: in another it has no codes.
        writeReturnFile(data.store(), formTraits(FormKind::Form24Q), 2,
                        statementfixtures::basicInfoId, path, {});
        const QList<QByteArray> header = fieldsOf(path, 2);
        QCOMPARE(header.mid(31, 1) + header.mid(53, 8), QList<QByteArray>(9));
        QCOMPARE(fieldsOf(path, 3).value(20), QByteArray("92B"));
    }

    // The challans' totals are summed as stored and rounded once, half to even; a sum that
    // rounds to nothing makes every challan nil.
    void depositedTotal()
    {
        TestStore data;
        statementfixtures::named("26q_nil").build(data);
        const QString path = data.folder() + "/ACM26QQ3.txt";
        const QList<std::tuple<double, double, QByteArray>> totals = {
            {0.255, 0.245, "0.00 Y"}, {0.005, 0.005, "0.00 Y"}, {0.745, 0.745, "1.00 N"},
            {2.25, 0.25, "2.00 N"}};
        for (const auto &[first, second, written] : totals) {
            data.store().exec("UPDATE TranChallanE26 SET Total = iif(ChallnID = 11, ?, ?)",
                              {first, second});
            write(data, "26q_nil", path);
            QCOMPARE(fieldsOf(path, 2).value(46) + ' ' + fieldsOf(path, 5).value(5), written);
        }
    }

    // The salary rows' section 16 gross is summed as stored and rounded once, half to even:
    // rounded to the paisa row by row, these would give the other whole rupee.
    void salaryGrossTotal()
    {
        TestStore data;
        statementfixtures::named("24q_salary").build(data);
        const QString path = data.folder() + "/ACM24QQ4.txt";
        // Beside the 577,500 of the first row, the other three rows of the Statement.
        const QList<std::pair<QVariantList, QByteArray>> grosses = {
            {{497500.004, 0.004, 250000.494}, "1325001.00"},
            {{497500.006, 0.006, 250000.486}, "1325000.00"}};
        for (const auto &[gross, written] : grosses) {
            data.store().exec("UPDATE TranSalaryE24 SET \"336Sec16Gross\" = CASE SalaryId "
                              "WHEN 2 THEN ? WHEN 3 THEN ? ELSE ? END "
                              "WHERE BasicIfoID = 1 AND SalaryId > 1",
                              gross);
            write(data, "24q_salary", path);
            QCOMPARE(fieldsOf(path, 2).value(49), written);
        }
    }

    void recordLine()
    {
        RecordLine line(12, QStringLiteral("DD"));
        line.addText(QStringLiteral("  S. NARAYAN & SONS  "))
            .addText(QStringLiteral("\tTAB\t"))
            .addBlank(2)
            .addDate(QDate(2026, 7, 5))
            .addDate(QDate())
            .addFlag(true)
            .addNumber(0)
            .addAmount(QVariant())
            .addAmount(2.5)
            .addRoundedAmount(2.5)
            .addRoundedAmount(3.5)
            .addRoundedAmount(2.501)
            .addAmount(3.456)
            .addRoundedAmount(-12.5);
        QCOMPARE(line.toLatin1(), QByteArray("12^DD^S. NARAYAN & SONS^\tTAB\t^^^05072026^^Y^0^^"
                                             "2.50^2.00^4.00^3.00^3.46^-12.00^"));
        QCOMPARE(line.fieldCount(), 17);
    }

    void codes()
    {
        const QList<std::pair<QVariant, QString>> rates = {
            {QVariant(), ""},        {10, "10.0000"},        {0.1, "0.1000"},
            {10.12345, "10.1235"},   {10.12344, "10.1234"},  {0.99995, "1.0000"},
            {0.1 + 0.2, "0.3000"},   {-1.5, "-1.5000"},      {"7.5", "7.5000"}};
        for (const auto &[stored, text] : rates)
            QCOMPARE(RecordLine::rateText(stored), text);
        const QList<std::pair<QString, QString>> deducteeCodes = {
            {"01", "1"}, {"2", "2"}, {" 1", "1"}, {"", "0"}, {"AB", "0"}, {"1A", "1"}};
        for (const auto &[code, text] : deducteeCodes)
            QCOMPARE(deducteeCodeText(code), text);
        const QList<std::pair<QVariant, QString>> categories = {
            {2.0, "G"}, {3, ""}, {-1, ""}, {32767, ""}, {-32768, ""}, {1.5, ""},
            {QVariant(), ""}};
        for (const auto &[index, code] : categories)
            QCOMPARE(employeeCategoryCode(index), code);
    }
};

KELVORA_TEST_OBJECT(TestReturnFileWriter);
#include "test_returnfilewriter.moc"
