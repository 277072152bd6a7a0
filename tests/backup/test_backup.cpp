#include "backup/backupcatalog.h"
#include "backup/backupcommand.h"
#include "backup/backuperror.h"
#include "backup/backupfolder.h"
#include "backup/backuptarget.h"
#include "backup/onlinecopy.h"
#include "backup/storebackup.h"
#include "core/storelock.h"
#include "core/transaction.h"
#include "support/testsuite.h"
#include "support/teststore.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <optional>

#include <sys/mount.h>

using namespace std::chrono_literals;

namespace {

constexpr int baseDeductees = 3000;
const QDateTime taken(QDate(2026, 7, 31), QTime(18, 30, 5));

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

/// Bytes of a store with a run of its pages overwritten, the header left whole.
QByteArray damaged(QByteArray bytes)
{
    for (qsizetype i = 8 * 4096; i < 24 * 4096 && i < bytes.size(); ++i)
        bytes[i] = char(0x5A);
    return bytes;
}

/// Deductees with names long enough that a few thousand span many steps of a copy.
void addDeductees(const DataStore &store, int first, int count)
{
    store.exec(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT ? UNION ALL SELECT i + 1 FROM n "
                              "WHERE i < ?) INSERT INTO mstDeductee (GroupId, DeducteeID, "
                              "DeducteeName) SELECT 1, i, printf('%0500d', i) FROM n"),
               {first, first + count - 1});
}

int deductees(const QString &path)
{
    const DataStore store(path, DataStore::OpenMode::ReadOnly);
    return store.scalar(QStringLiteral("SELECT count(*) FROM mstDeductee")).toInt();
}

} // namespace

class TestBackup : public QObject
{
    Q_OBJECT

    QString path(const QString &name) const { return m_dir->filePath(name); }
    QString store() const { return path(DataStore::fileName); }
    QString folder() const { return path(QStringLiteral("Backups")); }

    /// The file offered for a restore, as the row names it.
    QString offered(const QString &kind) const
    {
        const QString file = path(QStringLiteral("offered.db"));
        if (kind == u"damaged")
            write(file, damaged(m_base));
        else if (kind == u"empty")
            write(file, {});
        else if (kind == u"foreign")
            DataStore(file, DataStore::OpenMode::CreateFile).exec(QStringLiteral(
                "CREATE TABLE notes (line TEXT)"));
        else if (kind != u"missing")
            write(file, m_base);
        return file;
    }

private slots:
    void initTestCase()
    {
        const TestStore data;
        addDeductees(data.store(), 1, baseDeductees);
        data.insert(QStringLiteral("mstCompany"), {"AsstID", "CompID", "CompName"},
                    {{1, 1, "ALPHA"}, {1, 2, "BETA"}});
        data.insert(QStringLiteral("TranBasicInfoE26"), {"BasicIfoID", "CompID"}, {{1, 1}});
        data.insert(QStringLiteral("TranBasicInfoE27E"), {"BasicIfoID", "CompID"},
                    {{1, 1}, {2, 2}});
        m_base = bytesOf(data.store().path());
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        write(store(), m_base);
    }

    void backupHoldsOneCommittedState_data()
    {
        testsuite::columns<bool, int>("commitDuringCopy", "added");
        QTest::newRow("a write left open throughout") << false << 0;
        QTest::newRow("a write committed half-way") << true << 400;
    }

    void backupHoldsOneCommittedState()
    {
        QFETCH(bool, commitDuringCopy);
        QFETCH(int, added);
        const DataStore writer(store());
        Transaction transaction(writer);
        addDeductees(writer, baseDeductees + 1, 400);

        StoreBackup backup(store(), 0ms);
        int steps = 0;
        backup.setProgress([&](int, int) {
            if (++steps == 1 && commitDuringCopy)
                transaction.commit();
        });
        const QString written = backup.backUp(folder(), taken);
        QVERIFY(steps > 1);
        QCOMPARE(written, QDir(folder()).filePath(QStringLiteral("Kelvora-20260731-183005.db")));
        QCOMPARE(onlinecopy::integrityProblems(written), QString());
        QCOMPARE(deductees(written), baseDeductees + added);
    }

    void refusedRestoreLeavesStore_data()
    {
        testsuite::columns<QString, QString>("offered", "why");
        QTest::newRow("damaged") << "damaged" << "it is damaged";
        QTest::newRow("another program's") << "foreign" << "it is not a Kelvora data store";
        QTest::newRow("empty") << "empty" << "it is not a Kelvora data store";
        QTest::newRow("missing") << "missing" << "the file is not there";
        QTest::newRow("store in use") << "sound" << "is in use by";
        QTest::newRow("a store named by a link")
            << "linked" << "cannot be replaced: that name is not a plain file";
    }

    void refusedRestoreLeavesStore()
    {
        QFETCH(QString, offered);
        QFETCH(QString, why);
        const QString backup = this->offered(offered);
        std::optional<StoreLock> program;
        if (offered == u"sound") {
            program.emplace(store());
            QVERIFY(program->take());
        } else if (offered == u"linked") {
            QVERIFY(QFile::rename(store(), path("elsewhere.db")));
            QVERIFY(QFile::link(path("elsewhere.db"), store()));
        }
        try {
            StoreBackup(store(), 0ms).restore(backup, folder(), taken);
            QFAIL("the store was replaced");
        } catch (const BackupError &error) {
            QCOMPARE(error.kind(), BackupError::Refused);
            QVERIFY2(error.text().contains(why), qPrintable(error.text()));
        }
        QVERIFY(bytesOf(store()) == m_base);
        QCOMPARE(QFileInfo(store()).isSymLink(), offered == u"linked");
        QVERIFY(!QFileInfo::exists(folder()));
    }

    void restoreKeepsSafetyCopy_data()
    {
        testsuite::columns<bool>("storeDamaged");
        QTest::newRow("a sound store") << false;
        QTest::newRow("a damaged store, kept as it was") << true;
    }

    void restoreKeepsSafetyCopy()
    {
        QFETCH(bool, storeDamaged);
        const StoreBackup backup(store(), 0ms);
        const QString older = backup.backUp(folder(), taken);
        addDeductees(DataStore(store()), baseDeductees + 1, 10);
        const QByteArray current = storeDamaged ? damaged(bytesOf(store())) : bytesOf(store());
        write(store(), current);

        const QString safety = backup.restore(older, folder(), taken.addSecs(60));
        QCOMPARE(deductees(store()), baseDeductees);
        if (storeDamaged)
            QVERIFY(bytesOf(safety) == current);
        else
            QCOMPARE(deductees(safety), baseDeductees + 10);
        QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList{DataStore::fileName});

        const QList<BackupEntry> entries = backupcatalog::list(folder());
        QCOMPARE(entries.size(), 2);
        QCOMPARE(entries.at(0).path, safety);
        QCOMPARE(entries.at(1).taken, taken);
        const BackupEntry &entry = entries.at(1);
        QCOMPARE(QStringList({entry.financialYear, QString::number(entry.companies),
                              QString::number(entry.statements), entry.problem}),
                 QStringList({"2026-27", "2", "3", ""}));
    }

    void commandLine_data()
    {
        testsuite::columns<QString, QString, QString, int, QStringList>("store", "to", "keep",
                                                                         "status", "kept");
        const QString newest = "Kelvora-20200301-090000.db";
        const QStringList old = {newest, "Kelvora-20200201-090000.db",
                                 "Kelvora-20200101-090000.db"};
        QTest::newRow("keeps the newest two") << "own" << "folder" << "2" << 0
                                              << QStringList{"<new>", newest};
        QTest::newRow("keeps every one") << "own" << "folder" << "" << 0
                                         << QStringList{"<new>"} + old;
        QTest::newRow("keeps none") << "own" << "folder" << "0" << 2 << old;
        QTest::newRow("another program's store") << "foreign" << "folder" << "1" << 1 << old;
        QTest::newRow("a file where the folder goes") << "own" << "file" << "1" << 3 << old;
        QTest::newRow("a damaged store makes no folder") << "damaged" << "new" << "" << 1 << old;
    }

    void commandLine()
    {
        QFETCH(QString, store);
        QFETCH(QString, to);
        QFETCH(QString, keep);
        QFETCH(int, status);
        QFETCH(QStringList, kept);
        QVERIFY(QDir().mkpath(folder()));
        for (const char *name : {"Kelvora-20200101-090000.db", "Kelvora-20200201-090000.db",
                                 "Kelvora-20200301-090000.db", "Kelvora-copy.db", "notes.txt",
                                 "Kelvora-copy.db.part"})
            write(QDir(folder()).filePath(name), "x");
        // What killed backups left, newer than every finished one: never counted by --keep.
        const QStringList unfinished = {"Kelvora-20200401-090000.db.part",
                                        "Kelvora-20200401-090000.db.part-journal",
                                        "Kelvora-20200402-090000-2.db.part"};
        for (const QString &name : unfinished)
            write(QDir(folder()).filePath(name), QByteArray(100000, 'x'));
        write(path("afile"), "x");
        // Named like an unfinished copy, but a link: not a backup's, and left as it is.
        const QString link = QDir(folder()).filePath("Kelvora-20200403-090000.db.part");
        QVERIFY(QFile::link(path("afile"), link));
        const QString target = to == u"folder" ? folder()
                               : to == u"new"  ? path("New/Backups")
                                               : path("afile");
        QStringList arguments{"--store", store == u"own" ? this->store() : offered(store),
                              "--to", target};
        if (!keep.isEmpty())
            arguments << "--keep" << keep;

        QProcess process;
        process.start(QStringLiteral(KELVORA_BACKUP_PATH), arguments);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), status);
        const QByteArray err = process.readAllStandardError();
        if (status != BackupCommand::UsageError)
            QCOMPARE(err.count('\n'), status == 0 ? 0 : 1);
        if (to == u"file")
            QVERIFY2(err.endsWith(" cannot be made: Not a directory.\n"), err.constData());

        QStringList names;
        for (const QString &backup : backupfolder::backupsIn(folder())) {
            const QString name = QFileInfo(backup).fileName();
            names << (name.startsWith("Kelvora-2020") ? name : QStringLiteral("<new>"));
        }
        QCOMPARE(names, kept);
        QCOMPARE(QDir(folder()).entryList({"Kelvora-copy.db*", "notes.txt"}).size(), 3);
        for (const QString &name : unfinished)
            QCOMPARE(QFile::exists(QDir(folder()).filePath(name)), status != 0);
        QVERIFY(QFileInfo(link).isSymLink() && bytesOf(path("afile")) == "x");
        QVERIFY(!QFileInfo::exists(path("New")));
    }

    // Backups of one second each get a name of their own, as does a backup whose name a link
    // holds; the newest is listed first.
    void backupsOfOneSecond()
    {
        QVERIFY(QDir().mkpath(folder()));
        const QString held = QDir(folder()).filePath("Kelvora-20260731-183006.db");
        QVERIFY(QFile::link(path("nowhere"), held));
        const StoreBackup backup(store(), 0ms);
        const QStringList written = {backup.backUp(folder(), taken),
                                     backup.backUp(folder(), taken),
                                     backup.backUp(folder(), taken.addSecs(1))};
        QCOMPARE(written, QStringList({"Kelvora-20260731-183005.db",
                                       "Kelvora-20260731-183005-2.db",
                                       "Kelvora-20260731-183006-2.db"})
                              .replaceInStrings(QRegularExpression("^"), folder() + '/'));
        QCOMPARE(backupfolder::backupsIn(folder()),
                 QStringList({written[2], written[1], written[0]}));
        for (const QString &path : written) {
            QCOMPARE(onlinecopy::integrityProblems(path), QString());
            QCOMPARE(backupcatalog::read(path).taken.date(), taken.date());
        }
        QVERIFY(QFileInfo(held).isSymLink() && !QFileInfo::exists(path("nowhere")));
    }

    // The unfinished copy of a backup that is still being written is its own: another backup
    // into the folder waits for it rather than take the copy for a leftover.
    void liveBackupKeepsItsCopy()
    {
        const QString copy = QDir(folder()).filePath("Kelvora-20260731-183004.db.part");
        {
            const BackupTarget running(folder(), 0ms);
            write(copy, "being written");
            try {
                StoreBackup(store(), 0ms).backUp(folder(), taken);
                QFAIL("a backup was written beside a running one");
            } catch (const BackupError &error) {
                QCOMPARE(error.kind(), BackupError::Refused);
                QVERIFY2(error.text().contains("The backup folder " + folder() + " is in use by"),
                         qPrintable(error.text()));
            }
            QCOMPARE(bytesOf(copy), "being written");
        }
        StoreBackup(store(), 0ms).backUp(folder(), taken);
        QVERIFY(!QFileInfo::exists(copy));
    }

    // A disk that fills up is told in words on one line naming the file, and leaves nothing
    // behind: neither a part of the copy nor its journal.
    void fullDisk_data()
    {
        testsuite::columns<bool, int, QString>("restoring", "free", "reason");
        QTest::newRow("a backup") << false << 8192 << "database or disk is full";
        QTest::newRow("a backup, not a page free") << false << 0 << "database or disk is full";
        QTest::newRow("the safety copy of a damaged store")
            << true << 8192 << "No space left on device";
    }

    void fullDisk()
    {
        QFETCH(bool, restoring);
        QFETCH(int, free);
        QFETCH(QString, reason);
        const QString backup = offered("sound");
        if (restoring)
            write(store(), damaged(m_base));
        const QByteArray before = bytesOf(store());
        // A file system of a few pages with some free, so that a write is cut short.
        QVERIFY(QDir().mkpath(folder()));
        const QByteArray native = folder().toLocal8Bit();
        if (mount("tmpfs", native, "tmpfs", 0, "size=64k") != 0)
            QSKIP("a full disk needs a small file system, which only root may mount");
        const auto unmount = qScopeGuard([&] { umount2(native, MNT_DETACH); });
        QFile filler(QDir(folder()).filePath("filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly));
        while (filler.write(QByteArray(4096, 'x')) == 4096 && filler.flush())
            ;
        filler.close();
        QVERIFY(QFile::resize(filler.fileName(), QFileInfo(filler).size() - free));

        const StoreBackup storeBackup(store(), 0ms);
        try {
            if (restoring)
                storeBackup.restore(backup, folder(), taken);
            else
                storeBackup.backUp(folder(), taken);
            QFAIL("the disk did not fill up");
        } catch (const BackupError &error) {
            QCOMPARE(error.kind(), BackupError::FileSystem);
            QVERIFY2(error.text().startsWith(folder() + "/Kelvora-20260731-183005.db")
                         && error.text().endsWith(": " + reason) && !error.text().contains('\n'),
                     qPrintable(error.text()));
        }
        QCOMPARE(QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{"filler"});
        QVERIFY(bytesOf(store()) == before);
    }

private:
    QByteArray m_base;
    std::unique_ptr<QTemporaryDir> m_dir;
};

KELVORA_TEST_OBJECT(TestBackup);
#include "test_backup.moc"
