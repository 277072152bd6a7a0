#include "returnfile/generationlog.h"

#include "core/storeerror.h"
#include "support/teststore.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>

namespace {

GenerationLogEntry sampleEntry()
{
    GenerationLogEntry entry;
    entry.groupId = 3;
    entry.compId = 11;
    entry.formType = QStringLiteral("26Q");
    entry.fileName = QStringLiteral("/srv/kelvora/eReturns/KAV26QQ2.txt");
    entry.created = QDateTime(QDate(2026, 10, 4), QTime(9, 5, 7));
    entry.periodicity = QStringLiteral("Q2");
    entry.asstYear = QStringLiteral("202728");
    entry.amountPaid = Money::fromPaise(12345678);
    entry.taxDeducted = Money::fromPaise(123457);
    entry.deductees = 4;
    entry.companyName = QStringLiteral("KAVERI TEXTILES LTD");
    return entry;
}

QVariantMap rowOf(const DataStore &store, int fgId)
{
    QSqlQuery query = store.exec(QStringLiteral("SELECT * FROM FileGenerationLog WHERE FGId = ?"),
                                 {fgId});
    QVariantMap row;
    if (query.next()) {
        const QSqlRecord record = query.record();
        for (int i = 0; i < record.count(); ++i)
            row.insert(record.fieldName(i), record.value(i));
    }
    return row;
}

} // namespace

class TestGenerationLog : public QObject
{
    Q_OBJECT

private slots:
    void everyValueOfTheRow();
    void textsAsTheScreenHoldsThem_data();
    void textsAsTheScreenHoldsThem();
    void idsRiseFromTheLargest();
    void failureIsReported();
};

void TestGenerationLog::everyValueOfTheRow()
{
    TestStore data;
    const int id = insertFileGenerationData(data.store(), sampleEntry());

    QCOMPARE(id, 1); // an empty log starts at 1
    const QVariantMap row = rowOf(data.store(), id);
    QCOMPARE(row.size(), 17);
    QCOMPARE(row.value("FGId").toInt(), 1);
    QCOMPARE(row.value("GrpID").toInt(), 3);
    QCOMPARE(row.value("CompID").toInt(), 11);
    QCOMPARE(row.value("FormNo").toString(), QStringLiteral("Form -26Q"));
    QCOMPARE(row.value("FileName").toString(),
             QStringLiteral("/srv/kelvora/eReturns/KAV26QQ2.txt"));
    QCOMPARE(row.value("DateOfCreation").toString(), QStringLiteral("2026-10-04"));
    QCOMPARE(row.value("TimeOFCreation").toString(), QStringLiteral("09:05:07"));
    QCOMPARE(row.value("Periodicity").toString(), QStringLiteral("Q2"));
    QCOMPARE(row.value("AsstYear").toString(), QStringLiteral("202728"));
    QCOMPARE(row.value("Media").toString(), QStringLiteral("C"));
    QCOMPARE(row.value("TotNoOFMedia").toInt(), 1);
    QCOMPARE(row.value("TotAmtPaid").toDouble(), 123456.78);
    QCOMPARE(row.value("TotTDS").toDouble(), 1234.57);
    QCOMPARE(row.value("NoOFDeductees").toInt(), 4);
    QCOMPARE(row.value("ExistingAssessee").toString(), QStringLiteral("N"));
    QCOMPARE(row.value("OfficerCode").toString(), QStringLiteral("NA"));
    QCOMPARE(row.value("CompanyName").toString(), QStringLiteral("KAVERI TEXTILES LTD"));
}

void TestGenerationLog::textsAsTheScreenHoldsThem_data()
{
    QTest::addColumn<QString>("formType");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("companyName");
    QTest::addColumn<QString>("periodicity");
    QTest::addColumn<QString>("storedFormNo");
    QTest::addColumn<QString>("storedFileName");
    QTest::addColumn<QString>("storedCompanyName");
    QTest::addColumn<QString>("storedPeriodicity");

    QTest::newRow("apostrophes kept") << "24Q" << "/home/d'souza/eReturns/DSO24QQ4.txt"
                                      << "D'SOUZA & SONS" << "Q4" << "Form -24Q"
                                      << "/home/d'souza/eReturns/DSO24QQ4.txt"
                                      << "D'SOUZA & SONS" << "Q4";
    QTest::newRow("blanks trimmed") << "27EQ" << "  /data/ABC27EQQ1.txt " << "  ABC LTD  "
                                    << "Q1 " << "Form -27EQ" << "/data/ABC27EQQ1.txt"
                                    << "ABC LTD" << "Q1";
}

void TestGenerationLog::textsAsTheScreenHoldsThem()
{
    QFETCH(QString, formType);
    QFETCH(QString, fileName);
    QFETCH(QString, companyName);
    QFETCH(QString, periodicity);

    TestStore data;
    GenerationLogEntry entry = sampleEntry();
    entry.formType = formType;
    entry.fileName = fileName;
    entry.companyName = companyName;
    entry.periodicity = periodicity;
    entry.deductees = 0;
    const QVariantMap row = rowOf(data.store(), insertFileGenerationData(data.store(), entry));

    QTEST(row.value("FormNo").toString(), "storedFormNo");
    QTEST(row.value("FileName").toString(), "storedFileName");
    QTEST(row.value("CompanyName").toString(), "storedCompanyName");
    QTEST(row.value("Periodicity").toString(), "storedPeriodicity");
    QCOMPARE(row.value("NoOFDeductees").toInt(), 0);
}

void TestGenerationLog::idsRiseFromTheLargest()
{
    TestStore data;
    const DataStore &store = data.store();

    QCOMPARE(insertFileGenerationData(store, sampleEntry()), 1);
    QCOMPARE(insertFileGenerationData(store, sampleEntry()), 2);
    // Rows brought over from another store may leave gaps; the next id follows the largest.
    store.exec(QStringLiteral("UPDATE FileGenerationLog SET FGId = 40 WHERE FGId = 2"));
    QCOMPARE(insertFileGenerationData(store, sampleEntry()), 41);
    QCOMPARE(store.scalar(QStringLiteral("SELECT count(*) FROM FileGenerationLog")).toInt(), 3);
}

void TestGenerationLog::failureIsReported()
{
    TestStore data;
    data.store().exec(QStringLiteral("DROP TABLE FileGenerationLog"));

    QVERIFY_THROWS_EXCEPTION(StoreError, insertFileGenerationData(data.store(), sampleEntry()));
}

QTEST_GUILESS_MAIN(TestGenerationLog)
#include "test_generationlog.moc"
