#include "core/datastore.h"
#include "core/freshstore.h"
#include "core/records.h"
#include "core/schema.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeaccess.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"
#include "core/transaction.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"
#include "support/testsuite.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QThread>

#include <sys/mount.h>
#include <unistd.h>

Q_DECLARE_METATYPE(Answer)

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

const QString unmarked = QStringLiteral("PRAGMA application_id = 0");

/// Makes a path read-only, when wanted, until the guard ends: permissions do not stop root, a
/// read-only bind mount does.
auto readOnly(const QString &path, bool wanted)
{
    const QByteArray native = path.toLocal8Bit();
    const QFile::Permissions kept = QFile::permissions(path);
    const bool root = geteuid() == 0;
    if (wanted && !root)
        QFile::setPermissions(path, kept & ~QFile::Permissions(0x2222));
    else if (wanted && mount(native, native, nullptr, MS_BIND, nullptr) == 0)
        mount(nullptr, native, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr);
    return qScopeGuard([=] {
        if (wanted)
            root ? umount2(native, MNT_DETACH) : QFile::setPermissions(path, kept);
    });
}

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
        QStringList failures[2];
        const auto saver = [&](int writer) {
            const DataStore store(path);
            for (int i = 0; i < 40; ++i) {
                try {
                    Transaction transaction(store);
                    const double id = records::nextId(store, "mstGroup", "GroupID");
                    QThread::yieldCurrentThread();
                    store.exec("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, 'G')", {id});
                    transaction.commit();
                } catch (const StoreError &error) {
                    failures[writer] << error.description();
                }
            }
        };
        const std::unique_ptr<QThread> first(QThread::create(saver, 0));
        const std::unique_ptr<QThread> second(QThread::create(saver, 1));
        first->start();
        second->start();
        // Bounded, so that a writer that never gets its turn fails the test instead of hanging.
        QVERIFY(first->wait(QDeadlineTimer(120000)) && second->wait(QDeadlineTimer(120000)));
        QCOMPARE(failures[0] + failures[1], QStringList());
        QCOMPARE(DataStore(path).scalar("SELECT count(DISTINCT GroupID)||' '||max(GroupID) "
                                        "FROM mstGroup").toString(),
                 "80 80");
    }

    // Each store that the start meets: refused, offered for viewing only, or opened with its
    // lock; and whatever happens, nothing written to the store or beside it that should not be.
    void badStores_data()
    {
        // store: statements that make it what it is, or "empty", "missing", "overwritten",
        // "cut short" or "cut off mid-save"
        // condition: "file" or "folder" read-only, "locked" by another program, or one of
        // leftLocks()
        // opened: "refused" (text in the refusal, STORE for the store's path), "none" or
        // "view only" (text in the question), "locked" (opened for writing)
        testsuite::columns<QString, QString, Answer, QString, QString>(
            "store", "condition", "answer", "text", "opened");
        const auto row = [](const char *name, const QString &store, const char *condition,
                            Answer answer, const QString &text, const char *opened) {
            QTest::newRow(name) << store << condition << answer << text << opened;
        };
        const QString foreign = QStringLiteral("is not a Kelvora data store");
        const QString inUse = QStringLiteral("is in use by %1 (process %2)")
                                  .arg(QCoreApplication::applicationName())
                                  .arg(QCoreApplication::applicationPid());
        const QString older = QStringLiteral("PRAGMA user_version = 1");
        row("missing", "missing", "", Answer::None, "Could not find file", "refused");
        row("empty file", "empty", "", Answer::None, foreign, "refused");
        row("foreign SQLite file", "PRAGMA application_id = 0;DROP TABLE mstGroup", "",
            Answer::None, foreign, "refused");
        row("another application's id", "PRAGMA application_id = 7", "", Answer::None, foreign,
            "refused");
        row("made before the id", unmarked, "", Answer::None, "", "locked");
        row("up to date", "", "", Answer::None, "", "locked");
        row("read-only file, viewed", "", "file", Answer::Yes, "the file is read-only",
            "view only");
        row("read-only folder, viewed", "", "folder", Answer::Yes, "its folder is read-only",
            "view only");
        row("read-only, upgrade due", older, "file", Answer::None,
            "the file is read-only, and it must first be brought up to date", "refused");
        row("in use, viewed", "", "locked", Answer::Yes, inUse, "view only");
        row("in use, declined", "", "locked", Answer::No, inUse, "none");
        row("left locked by a crash", "", "crashed", Answer::None, "", "locked");
        row("cut off in the middle of a save", "cut off mid-save", "crashed", Answer::None, "",
            "locked");
        row("empty lock of a power cut", "", "power cut (empty)", Answer::None, "", "locked");
        row("garbled lock of a power cut", "", "power cut (garbled)", Answer::None, "",
            "locked");
        row("locked on another machine", "", "other machine", Answer::No,
            "is in use by kelvora (process 4242) on the machine OTHER-PC", "none");
        const QString damaged = storeaccess::damagedText.arg("STORE");
        row("pages overwritten", "overwritten", "", Answer::None, damaged, "refused");
        row("cut short", "cut short", "", Answer::None, damaged, "refused");
        row("newer version",
            QStringLiteral("PRAGMA user_version = %1").arg(storeupgrade::currentVersion + 1), "",
            Answer::None,
            storeaccess::newerText.arg("STORE")
                .arg(storeupgrade::currentVersion + 1)
                .arg(storeupgrade::currentVersion),
            "refused");
    }
    void badStores()
    {
        QFETCH(QString, store);
        QFETCH(QString, condition);
        QFETCH(Answer, answer);
        QFETCH(QString, text);
        QFETCH(QString, opened);
        const TestStore data;
        const QString path = data.store().path();
        const QByteArray saved = contentsOf(path);
        if (store == u"empty" || store == u"missing") {
            QVERIFY(store == u"empty" ? QFile::resize(path, 0) : QFile::remove(path));
        } else if (store == u"overwritten") {
            data.overwritePages();
        } else if (store == u"cut short") {
            data.cutShort();
        } else if (store == u"cut off mid-save") {
            data.cutOffMidSave();
        } else {
            for (const QString &sql : store.split(u';', Qt::SkipEmptyParts))
                data.store().exec(sql);
        }
        StoreLock other(path);
        if (condition == u"locked")
            QVERIFY(other.take());
        QFile leftLock(other.lockPath());
        if (leftLocks().contains(condition)) {
            QVERIFY(leftLock.open(QIODevice::WriteOnly));
            leftLock.write(leftLocks()[condition]);
            leftLock.close();
        }
        const auto guard = readOnly(condition == u"file" ? path : data.folder(),
                                    condition == u"file" || condition == u"folder");
        const QByteArray bytes = contentsOf(path);
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        const QStringList listing = QDir(data.folder()).entryList(all);

        ScriptedMessageBoxes boxes;
        boxes.answerNext(answer);
        std::optional<OpenedStore> result;
        QString refusal;
        try {
            result = startup::openStore(data.folder(), boxes);
        } catch (const StoreError &error) {
            refusal = error.description();
        }
        const QString told = refusal.isEmpty() ? boxes.texts().join(u'|') : refusal;
        QVERIFY2(told.contains(QString(text).replace("STORE", QDir::toNativeSeparators(path)))
                     && refusal.isEmpty() == (opened != u"refused"),
                 qPrintable(told));
        QCOMPARE(result.has_value(), opened == u"view only" || opened == u"locked");
        if (result) {
            QCOMPARE(result->lock != nullptr, opened == u"locked");
            Session session(*result->store);
            startup::prepareStore(session);
            try {
                Transaction(*result->store).commit();
            } catch (const StoreError &error) {
                refusal = error.description();
            }
            QCOMPARE(refusal, opened == u"view only" ? DataStore::viewOnlyText : QString());
            result.reset();
        }
        // The main window's load writes only what is due: here, the mark of an unmarked store.
        // What a crash cut off is undone by SQLite itself, back to the last save.
        const bool cutOff = store == u"cut off mid-save";
        const QByteArray after = contentsOf(path);
        QVERIFY(cutOff ? after == saved : (after == bytes) == (store != unmarked));
        // A lock taken over from a crashed program is let go like any other.
        const bool takenOver = leftLocks().contains(condition) && condition != u"other machine";
        QCOMPARE(QDir(data.folder()).entryList(all),
                 (takenOver || cutOff ? QStringList{DataStore::fileName} : listing));
    }
    // The store tool as an installer or an office runs it: a usage error exits 2 with the usage
    // line, a store that cannot be made 3, each saying why in words; no file is left behind.
    void newStoreTool_data()
    {
        // DIR: a folder of the test's own
        testsuite::columns<QString, int, QString>("arguments", "exitCode", "err");
        const auto row = [](const char *name, const char *arguments, int exitCode,
                            const QString &err) {
            QTest::newRow(name) << QString::fromLatin1(arguments) << exitCode << err;
        };
        const QString usage = QStringLiteral("\nusage: kelvora-newstore [--year YYYY]");
        row("made", "--year 2026 DIR/Kelvora.db", 0, "");
        row("unknown option", "--bogus DIR/Kelvora.db", 2, "Unknown option 'bogus'." + usage);
        row("year without its value", "DIR/Kelvora.db --year", 2,
            "Missing value after '--year'." + usage);
        row("year of two digits", "--year 26 DIR/Kelvora.db", 2,
            "the year must be four digits, such as 2026, not \"26\"" + usage);
        row("year out of range", "--year 1800 DIR/Kelvora.db", 2,
            "the year 1800 is out of range: give a year from 2000 to 2099" + usage);
        row("no store named", "--year 2026", 2, "the store to create is missing" + usage);
        row("folder not there", "DIR/gone/Kelvora.db", 3,
            "The data store DIR/gone/Kelvora.db cannot be made: its folder DIR/gone is not "
            "there.\n");
    }
    void newStoreTool()
    {
        QFETCH(QString, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, err);
        QTemporaryDir dir;
        QProcess tool;
        tool.start(QStringLiteral(KELVORA_NEWSTORE_PATH),
                   arguments.replace("DIR", dir.path()).split(u' '));
        QVERIFY(tool.waitForFinished(60000) && tool.exitStatus() == QProcess::NormalExit);
        QCOMPARE(tool.exitCode(), exitCode);
        const QString errors = QString::fromUtf8(tool.readAllStandardError());
        QVERIFY2(err.isEmpty() ? errors.isEmpty()
                               : errors.startsWith("kelvora-newstore: "
                                                   + err.replace("DIR", dir.path())),
                 qPrintable(errors));
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        QCOMPARE(QDir(dir.path()).entryList(all),
                 exitCode == 0 ? QStringList{DataStore::fileName} : QStringList());
    }

    void startReadsTheAssessmentPeriod()
    {
        QTemporaryDir dir;
        const auto store = std::make_unique<DataStore>(olderStore(dir));
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
