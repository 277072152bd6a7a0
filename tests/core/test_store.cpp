#include "core/datastore.h"
#include "core/freshstore.h"
#include "core/schema.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// Every table's columns with their declarations, and every index, as one comparable text.
QStringList schemaOf(const DataStore &store)
{
    QStringList lines;
    QSqlQuery tables = store.exec(QStringLiteral(
        "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY lower(name)"));
    while (tables.next()) {
        const QString table = tables.value(0).toString();
        QSqlQuery columns = store.exec(
            QStringLiteral("SELECT name, type, dflt_value FROM pragma_table_info(?)"), {table});
        while (columns.next()) {
            lines << QStringLiteral("%1.%2 %3 default %4")
                         .arg(table, columns.value(0).toString(), columns.value(1).toString(),
                              columns.value(2).toString());
        }
    }
    QSqlQuery indexes = store.exec(QStringLiteral(
        "SELECT sql FROM sqlite_master WHERE type = 'index' ORDER BY name"));
    while (indexes.next())
        lines << indexes.value(0).toString();
    return lines;
}

/// Every row of every table, so that a second run can be shown to change nothing.
QStringList contentOf(const DataStore &store)
{
    QStringList lines;
    QSqlQuery tables = store.exec(QStringLiteral(
        "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"));
    while (tables.next()) {
        QSqlQuery rows = store.exec(QStringLiteral("SELECT * FROM \"%1\" ORDER BY rowid")
                                        .arg(tables.value(0).toString()));
        while (rows.next()) {
            QStringList values;
            for (int i = 0; i < rows.record().count(); ++i)
                values << rows.value(i).toString();
            lines << tables.value(0).toString() + u':' + values.join(u'|');
        }
    }
    return lines;
}

QString olderStore(const QTemporaryDir &dir)
{
    const QString path = dir.filePath(DataStore::fileName);
    freshstore::create(path, 2026);
    return path;
}

} // namespace

class TestDataStore : public QObject
{
    Q_OBJECT

private slots:
    void upgradedStoreEqualsCurrentLayout()
    {
        QTemporaryDir dir;
        DataStore upgraded(olderStore(dir));
        QVERIFY(!upgraded.tableExists(QStringLiteral("mstMinistry")));
        QVERIFY(!upgraded.columnExists(QStringLiteral("mstCompany"), QStringLiteral("DStatus")));
        storeupgrade::run(upgraded);

        DataStore current(dir.filePath(QStringLiteral("current.db")),
                          DataStore::OpenMode::CreateFile);
        schema::createAll(current, schema::Layout::Current);
        QCOMPARE(schemaOf(upgraded), schemaOf(current));
        QCOMPARE(upgraded.scalar(QStringLiteral("PRAGMA user_version")).toInt(),
                 storeupgrade::currentVersion);
    }

    void upgradeSeedsTheListsOnce()
    {
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        storeupgrade::run(store);
        storeupgrade::run(store);
        QCOMPARE(store.scalar(QStringLiteral("SELECT count(*) FROM mstMinistry")).toInt(), 58);
        QCOMPARE(store.scalar(QStringLiteral("SELECT count(*) FROM mstCategory")).toInt(), 16);
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT MinistryName FROM mstMinistry WHERE MinistryID = 41")).toString(),
                 QStringLiteral("President's Secretariat"));
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT MinistryCode FROM mstMinistry WHERE MinistryID = 7")).toString(),
                 QStringLiteral("07"));
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT MinistryName FROM mstMinistry WHERE MinistryCode = '99'")).toString(),
                 QStringLiteral("Others"));
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT CategoryDescription FROM mstCategory WHERE CategoryCode = 'k'"))
                     .toString(),
                 QStringLiteral("Company"));
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT count(*) FROM mstSections24 WHERE SectionType = 'CHAPVIAU'")).toInt(),
                 2);
    }

    void rowsSavedBeforeTheUpgradeGetTheirNewValues()
    {
        QTemporaryDir dir;
        {
            DataStore old(olderStore(dir));
            old.exec(QStringLiteral("INSERT INTO mstCompany (AsstID, GroupID, CompID, CompName) "
                                    "VALUES (1, 1, 1, 'O''NEIL AND SONS')"));
            for (const char *table : {"TranChallanE24", "TranChallanE26", "TranChallanE27",
                                      "TranChallanE27E"}) {
                old.exec(QStringLiteral("INSERT INTO %1 (ChallnID, BasicIfoID) VALUES (7, 1)")
                             .arg(QLatin1String(table)));
            }
        }
        DataStore store(dir.filePath(DataStore::fileName));
        storeupgrade::run(store);
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT DStateID || '/' || MinistryID || '/' || ifnull(DStatus, 'null') "
                     "FROM mstCompany")).toString(),
                 QStringLiteral("0/0/null"));
        for (const char *table : {"TranChallanE24", "TranChallanE26", "TranChallanE27",
                                  "TranChallanE27E"}) {
            const QVariant voucher = store.scalar(
                QStringLiteral("SELECT TransferVoucherNo FROM %1").arg(QLatin1String(table)));
            QCOMPARE(voucher.toString(), QStringLiteral("0"));
            QCOMPARE(store.scalar(QStringLiteral("SELECT typeof(TransferVoucherNo) FROM %1")
                                      .arg(QLatin1String(table))).toString(),
                     QStringLiteral("text"));
        }
    }

    void secondRunChangesNothing()
    {
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        storeupgrade::run(store);
        const QStringList schemaBefore = schemaOf(store);
        const QStringList contentBefore = contentOf(store);
        storeupgrade::run(store);
        QCOMPARE(schemaOf(store), schemaBefore);
        QCOMPARE(contentOf(store), contentBefore);
    }

    void interruptedUpgradeIsFinishedByTheNextRun()
    {
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        // As if a start had stopped after the first added column.
        store.exec(QStringLiteral("ALTER TABLE mstCompany ADD COLUMN %1")
                       .arg(schema::columnDefinition(QStringLiteral("mstCompany"),
                                                     QStringLiteral("DStatus"))));
        storeupgrade::run(store);
        DataStore current(dir.filePath(QStringLiteral("current.db")),
                          DataStore::OpenMode::CreateFile);
        schema::createAll(current, schema::Layout::Current);
        QCOMPARE(schemaOf(store), schemaOf(current));
    }

    void indexesMissingFromAnOlderStoreAreMade()
    {
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        store.exec(QStringLiteral("DROP INDEX \"TranDeducteeE26_DeducteeNo\""));
        store.exec(QStringLiteral("DROP INDEX \"mstGroup_GroupID\""));
        storeupgrade::run(store);
        DataStore current(dir.filePath(QStringLiteral("current.db")),
                          DataStore::OpenMode::CreateFile);
        schema::createAll(current, schema::Layout::Current);
        QCOMPARE(schemaOf(store), schemaOf(current));
    }

    void chapterViaSectionsAreSeededOnlyIntoAnEmptyList()
    {
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        store.exec(QStringLiteral("INSERT INTO mstSections24 VALUES ('chapviau', '80C', 'X')"));
        storeupgrade::run(store);
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT count(*) FROM mstSections24 WHERE SectionType = 'CHAPVIAU'")).toInt(),
                 1);
    }

    void namesAreFoundWithoutRegardToCase()
    {
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        QVERIFY(store.tableExists(QStringLiteral("MSTGROUP")));
        QVERIFY(store.columnExists(QStringLiteral("mstcompany"), QStringLiteral("TANNO")));
        QVERIFY(!store.columnExists(QStringLiteral("mstGroup"), QStringLiteral("CompID")));
        QVERIFY(!store.tableExists(QStringLiteral("mstGroupX")));
    }

    void freshStoreHoldsTheYearAndTheReferenceLists()
    {
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        QSqlQuery year = store.exec(QStringLiteral("SELECT AsstID, FAYear, AsstYear, StartDt, "
                                                   "EndDt, LastDtOfPayment FROM mstAssessment"));
        QVERIFY(year.next());
        QCOMPARE(year.value(0).toInt(), 1);
        QCOMPARE(year.value(1).toString(), QStringLiteral("202627"));
        QCOMPARE(year.value(2).toString(), QStringLiteral("202728"));
        QCOMPARE(year.value(3).toString(), QStringLiteral("2026-04-01"));
        QCOMPARE(year.value(4).toString(), QStringLiteral("2027-03-31"));
        QCOMPARE(year.value(5).toString(), QStringLiteral("2027-05-31"));
        QVERIFY(!year.next());
        QCOMPARE(store.scalar(QStringLiteral("SELECT count(*) FROM mstState")).toInt(), 38);
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT StateCode || ' ' || StateName FROM mstState WHERE StateID = 36"))
                     .toString(),
                 QStringLiteral("99 FOREIGN"));
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT StateCode FROM mstState WHERE StateName = 'telangana'")).toString(),
                 QStringLiteral("36"));
        const auto count = [&store](const char *sql) {
            return store.scalar(QString::fromLatin1(sql)).toInt();
        };
        QCOMPARE(count("SELECT count(*) FROM mstSections24 WHERE SectionType = 'SEC16'"), 3);
        QCOMPARE(count("SELECT count(*) FROM mstSections26"), 14);
        QCOMPARE(count("SELECT count(*) FROM mstSections27"), 6);
        QCOMPARE(count("SELECT count(*) FROM mstCollectionCode"), 9);
        QCOMPARE(store.scalar(QStringLiteral(
                     "SELECT count(*) FROM mstSections26 WHERE ifnull(Description, '') = ''"))
                     .toInt(),
                 0);
    }

    void freshStoreNeverOverwritesAFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(DataStore::fileName);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("an office's own data");
        file.close();
        QVERIFY_THROWS_EXCEPTION(StoreError, freshstore::create(path, 2026));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("an office's own data"));
    }

    void financialYear_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<int>("year");
        QTest::newRow("last day of March") << QDate(2027, 3, 31) << 2026;
        QTest::newRow("first of April") << QDate(2026, 4, 1) << 2026;
        QTest::newRow("January") << QDate(2027, 1, 15) << 2026;
        QTest::newRow("December") << QDate(2026, 12, 31) << 2026;
    }

    void financialYear()
    {
        QFETCH(QDate, date);
        QFETCH(int, year);
        QCOMPARE(freshstore::financialYearOf(date), year);
    }

    void startRefusesAStoreItCannotUse_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("description");
        QTest::newRow("missing") << QByteArray() << QStringLiteral("Could not find file");
        QTest::newRow("not a store") << QByteArray(4096, 'x')
                                     << QStringLiteral("file is not a database");
    }

    void startRefusesAStoreItCannotUse()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, description);
        QTemporaryDir dir;
        if (!content.isEmpty()) {
            QFile file(dir.filePath(DataStore::fileName));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        try {
            startup::openStore(dir.path());
            QFAIL("the store was opened");
        } catch (const StoreError &error) {
            QVERIFY2(error.description().contains(description), qPrintable(error.description()));
        }
        QCOMPARE(QFile::exists(dir.filePath(DataStore::fileName)), !content.isEmpty());
    }

    void startReadsTheAssessmentPeriod()
    {
        QTemporaryDir dir;
        olderStore(dir);
        auto store = startup::openStore(dir.path());
        Session session(*store);
        startup::prepareStore(session);
        startup::readAssessmentPeriod(session);
        QCOMPARE(session.asstFaYearStart, QStringLiteral("2026"));
        QCOMPARE(session.asstStartYear, 2026);
        QCOMPARE(session.asstStartDt, QDate(2026, 4, 1));
        QCOMPARE(session.asstEndDt, QDate(2027, 3, 31));
        QCOMPARE(session.asstLastDtOfPayment, QDate(2027, 5, 31));
    }

    void startWithoutAnAssessmentLeavesThePeriodEmpty()
    {
        QTemporaryDir dir;
        olderStore(dir);
        auto store = startup::openStore(dir.path());
        store->exec(QStringLiteral("DELETE FROM mstAssessment"));
        Session session(*store);
        startup::prepareStore(session);
        startup::readAssessmentPeriod(session);
        QCOMPARE(session.asstFaYearStart, QString());
        QCOMPARE(session.asstStartYear, 0);
        QVERIFY(session.asstStartDt.isNull());
    }

    void returnsFolderIsMadeOnceAndKept()
    {
        QTemporaryDir dir;
        QVERIFY(!startup::returnsFolderExists(dir.path()));
        QVERIFY(startup::createReturnsFolder(dir.path()));
        QVERIFY(startup::createReturnsFolder(dir.path()));
        QVERIFY(QDir(dir.filePath(QStringLiteral("eReturns"))).exists());
    }
};

QTEST_GUILESS_MAIN(TestDataStore)
#include "test_store.moc"
