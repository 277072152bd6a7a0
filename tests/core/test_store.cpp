#include "core/datastore.h"
#include "core/freshstore.h"
#include "core/records.h"
#include "core/schema.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"
#include "core/transaction.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QDir>
#include <QFile>
#include <QMutex>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QThread>

namespace {

/// Every table's columns with their declarations, every index, and with @p rows every row.
QStringList dump(const DataStore &store, bool rows = false)
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
        if (!rows)
            continue;
        QSqlQuery content =
            store.exec(QStringLiteral("SELECT * FROM \"%1\" ORDER BY rowid").arg(table));
        while (content.next()) {
            QStringList values;
            for (int i = 0; i < content.record().count(); ++i)
                values << content.value(i).toString();
            lines << table + u':' + values.join(u'|');
        }
    }
    QSqlQuery indexes = store.exec(QStringLiteral(
        "SELECT sql FROM sqlite_master WHERE type = 'index' ORDER BY name"));
    while (indexes.next())
        lines << indexes.value(0).toString();
    return lines;
}

QString olderStore(const QTemporaryDir &dir)
{
    const QString path = dir.filePath(DataStore::fileName);
    freshstore::create(path, 2026);
    return path;
}

const char *const challanTables[] = {"TranChallanE24", "TranChallanE26", "TranChallanE27",
                                     "TranChallanE27E"};

} // namespace

class TestDataStore : public QObject
{
    Q_OBJECT

private slots:
    // Whatever state an older store is in, the start leaves it in the current layout, and a
    // second start changes nothing.
    void upgrade_data()
    {
        testsuite::columns<QStringList, int>("before", "chapterViaRows");
        QTest::newRow("as the store tool makes it") << QStringList() << 2;
        QTest::newRow("stopped after the first added column")
            << QStringList{"ALTER TABLE mstCompany ADD COLUMN "
                           + schema::columnDefinition("mstCompany", "DStatus")}
            << 2;
        QTest::newRow("indexes missing")
            << QStringList{"DROP INDEX \"TranDeducteeE26_DeducteeNo\"",
                           "DROP INDEX \"mstGroup_GroupID\""}
            << 2;
        QTest::newRow("chapter VI-A list already kept")
            << QStringList{"INSERT INTO mstSections24 VALUES ('chapviau', '80C', 'X')"} << 1;
    }
    void upgrade()
    {
        QFETCH(QStringList, before);
        QTemporaryDir dir;
        DataStore store(olderStore(dir));
        for (const QString &sql : before)
            store.exec(sql);
        storeupgrade::run(store);

        DataStore current(dir.filePath("current.db"), DataStore::OpenMode::CreateFile);
        schema::createAll(current, schema::Layout::Current);
        QCOMPARE(dump(store), dump(current));
        QCOMPARE(store.scalar("PRAGMA user_version").toInt(), storeupgrade::currentVersion);
        QTEST(store.scalar("SELECT count(*) FROM mstSections24 WHERE SectionType = 'CHAPVIAU'")
                  .toInt(),
              "chapterViaRows");
        const QStringList whole = dump(store, true);
        storeupgrade::run(store);
        QCOMPARE(dump(store, true), whole);
    }

    // What a fresh store holds once the start has upgraded it, rows saved before included.
    void content_data()
    {
        testsuite::columns<QString, QString>("sql", "value");
        const auto row = [](const char *sql, const char *value) {
            QTest::newRow(sql) << QString::fromLatin1(sql) << QString::fromLatin1(value);
        };
        row("SELECT AsstID||' '||FAYear||' '||AsstYear||' '||StartDt||' '||EndDt||' '"
            "||LastDtOfPayment FROM mstAssessment",
            "1 202627 202728 2026-04-01 2027-03-31 2027-05-31");
        row("SELECT StateCode||' '||StateName FROM mstState WHERE StateID = 36", "99 FOREIGN");
        row("SELECT (SELECT count(*) FROM mstState)||' '||(SELECT count(*) FROM mstSections26)"
            "||' '||(SELECT count(*) FROM mstSections27)||' '||(SELECT count(*) FROM "
            "mstCollectionCode)||' '||(SELECT count(*) FROM mstSections24 WHERE "
            "SectionType = 'SEC16')||' '||(SELECT count(*) FROM mstMinistry)||' '||"
            "(SELECT count(*) FROM mstCategory)",
            "38 14 6 9 3 58 16");
        row("SELECT MinistryName FROM mstMinistry WHERE MinistryID = 41",
            "President's Secretariat");
        row("SELECT MinistryCode FROM mstMinistry WHERE MinistryID = 7", "07");
        row("SELECT MinistryName FROM mstMinistry WHERE MinistryCode = '99'", "Others");
        row("SELECT CategoryDescription FROM mstCategory WHERE CategoryCode = 'k'", "Company");
        row("SELECT DStateID||'/'||MinistryID||'/'||ifnull(DStatus, 'null') FROM mstCompany",
            "0/0/null");
        row("SELECT group_concat(typeof(v)||' '||v) FROM (SELECT TransferVoucherNo AS v FROM "
            "TranChallanE24 UNION ALL SELECT TransferVoucherNo FROM TranChallanE26 UNION ALL "
            "SELECT TransferVoucherNo FROM TranChallanE27 UNION ALL SELECT TransferVoucherNo "
            "FROM TranChallanE27E)",
            "text 0,text 0,text 0,text 0");
    }
    void content()
    {
        QFETCH(QString, sql);
        static QTemporaryDir dir;
        static const std::unique_ptr<DataStore> store = [] {
            auto made = std::make_unique<DataStore>(olderStore(dir));
            made->exec("INSERT INTO mstCompany (AsstID, GroupID, CompID, CompName) "
                       "VALUES (1, 1, 1, 'O''NEIL AND SONS')");
            for (const char *table : challanTables) {
                made->exec(QStringLiteral("INSERT INTO %1 (ChallnID, BasicIfoID) VALUES (7, 1)")
                               .arg(QLatin1String(table)));
            }
            storeupgrade::run(*made);
            return made;
        }();
        QTEST(store->scalar(sql).toString(), "value");
    }

    void freshStoreNeverOverwritesAFile()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath(DataStore::fileName));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("an office's own data");
        file.close();
        QVERIFY_THROWS_EXCEPTION(StoreError, freshstore::create(file.fileName(), 2026));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("an office's own data"));
        QCOMPARE(freshstore::financialYearOf(QDate(2027, 3, 31)), 2026);
        QCOMPARE(freshstore::financialYearOf(QDate(2026, 4, 1)), 2026);
    }

    // Two programs saving at once: each waits for the other instead of failing, and the id that
    // a save reads is still free when its row goes in.
    void concurrentSavesWait()
    {
        QTemporaryDir dir;
        const QString path = olderStore(dir);
        constexpr int saves = 40;
        QMutex mutex;
        QStringList failures;
        const auto saver = [&] {
            const DataStore store(path);
            for (int i = 0; i < saves; ++i) {
                try {
                    Transaction transaction(store);
                    const double id = records::nextId(store, "mstGroup", "GroupID");
                    QThread::yieldCurrentThread();
                    store.exec("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, 'G')", {id});
                    transaction.commit();
                } catch (const StoreError &error) {
                    const QMutexLocker locked(&mutex);
                    failures << error.description();
                }
            }
        };
        const std::unique_ptr<QThread> first(QThread::create(saver));
        const std::unique_ptr<QThread> second(QThread::create(saver));
        first->start();
        second->start();
        // Bounded, so that a writer that never gets its turn fails the test instead of hanging.
        QVERIFY(first->wait(QDeadlineTimer(120000)) && second->wait(QDeadlineTimer(120000)));
        QCOMPARE(failures, QStringList());
        QCOMPARE(DataStore(path).scalar("SELECT count(DISTINCT GroupID)||' '||max(GroupID) "
                                        "FROM mstGroup").toString(),
                 QStringLiteral("%1 %1").arg(2 * saves));
    }

    void startReadsTheAssessmentPeriod()
    {
        QTemporaryDir dir;
        olderStore(dir);
        ScriptedMessageBoxes boxes;
        const std::optional<OpenedStore> opened = startup::openStore(dir.path(), boxes);
        DataStore *store = opened->store.get();
        QVERIFY(store->tableExists("MSTGROUP"));
        QVERIFY(store->columnExists("mstcompany", "TANNO"));
        QVERIFY(!store->columnExists("mstGroup", "CompID"));
        Session session(*store);
        startup::prepareStore(session);
        startup::readAssessmentPeriod(session);
        QCOMPARE(session.asstFaYearStart, QStringLiteral("2026"));
        QCOMPARE(session.asstStartYear, 2026);
        QCOMPARE(session.asstStartDt, QDate(2026, 4, 1));
        QCOMPARE(session.asstEndDt, QDate(2027, 3, 31));
        QCOMPARE(session.asstLastDtOfPayment, QDate(2027, 5, 31));

        store->exec("DELETE FROM mstAssessment");
        Session empty(*store);
        startup::prepareStore(empty);
        startup::readAssessmentPeriod(empty);
        QCOMPARE(empty.asstFaYearStart, QString());
        QCOMPARE(empty.asstStartYear, 0);
        QVERIFY(empty.asstStartDt.isNull());

        QVERIFY(!startup::returnsFolderExists(dir.path()));
        QVERIFY(startup::createReturnsFolder(dir.path()));
        QVERIFY(startup::createReturnsFolder(dir.path()));
        QVERIFY(QDir(dir.filePath("eReturns")).exists());
    }
};

KELVORA_TEST_OBJECT(TestDataStore);
#include "test_store.moc"
