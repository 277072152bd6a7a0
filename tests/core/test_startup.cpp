#include "core/freshstore.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"
#include "core/transaction.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <unistd.h>

Q_DECLARE_METATYPE(Answer)

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Read-only for this process while it lives: permissions do not stop root, a read-only bind
/// mount does.
class ReadOnlyPath
{
public:
    explicit ReadOnlyPath(const QString &path) : m_path(path), m_native(path.toLocal8Bit())
    {
        if (geteuid() == 0) {
            m_mounted = mount(m_native, m_native, nullptr, MS_BIND, nullptr) == 0;
            if (m_mounted)
                mount(nullptr, m_native, nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr);
            return;
        }
        m_permissions = QFile::permissions(path);
        QFile::setPermissions(path, m_permissions & ~(QFile::WriteOwner | QFile::WriteUser
                                                      | QFile::WriteGroup | QFile::WriteOther));
    }
    ~ReadOnlyPath()
    {
        if (m_mounted)
            umount2(m_native, MNT_DETACH);
        else
            QFile::setPermissions(m_path, m_permissions);
    }

private:
    QString m_path;
    QByteArray m_native;
    bool m_mounted = false;
    QFile::Permissions m_permissions;
};

} // namespace

// Each store that the start meets: refused, offered for viewing only, or opened with its lock;
// and whatever happens, nothing written to the store or beside it that should not be.
class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void badStores_data()
    {
        // opened: "refused" (text in the refusal), "none" or "view only" (text in the
        // question), "locked" (opened for writing)
        testsuite::columns<QString, QString, Answer, QString, QString>("store", "condition",
                                                                       "answer", "text",
                                                                       "opened");
        const auto row = [](const char *name, const char *store, const char *condition,
                            Answer answer, const QString &text, const char *opened) {
            QTest::newRow(name) << store << condition << answer << text << opened;
        };
        const QString foreign = QStringLiteral("is not a Kelvora data store");
        const QString inUse = QStringLiteral("is in use by %1 (process %2)")
                                  .arg(QCoreApplication::applicationName())
                                  .arg(QCoreApplication::applicationPid());
        row("missing", "missing", "", Answer::None, "Could not find file", "refused");
        row("empty file", "empty", "", Answer::None, foreign, "refused");
        row("foreign SQLite file", "foreign", "", Answer::None, foreign, "refused");
        row("another application's id", "other id", "", Answer::None, foreign, "refused");
        row("made before the id", "unmarked", "", Answer::None, "", "locked");
        row("up to date", "current", "", Answer::None, "", "locked");
        row("read-only file, viewed", "current", "file", Answer::Yes, "the file is read-only",
            "view only");
        row("read-only file, declined", "current", "file", Answer::No, "the file is read-only",
            "none");
        row("read-only folder, viewed", "current", "folder", Answer::Yes,
            "its folder is read-only", "view only");
        row("read-only, upgrade due", "older", "file", Answer::None,
            "the file is read-only, and it must first be brought up to date", "refused");
        row("in use, viewed", "current", "locked", Answer::Yes, inUse, "view only");
        row("in use, declined", "current", "locked", Answer::No, inUse, "none");
        row("in use, upgrade due", "older", "locked", Answer::None, inUse, "refused");
        row("left locked by a crash", "current", "stale", Answer::None, "", "locked");
    }
    void badStores()
    {
        QFETCH(QString, store);
        QFETCH(QString, condition);
        QFETCH(Answer, answer);
        QFETCH(QString, text);
        QFETCH(QString, opened);
        QTemporaryDir dir;
        const QString path = dir.filePath(DataStore::fileName);
        if (store != u"missing" && store != u"empty" && store != u"foreign")
            freshstore::create(path, 2026);
        QFile file(path);
        if (store == u"empty" && file.open(QIODevice::WriteOnly))
            file.close();
        if (store != u"older" && store != u"missing" && store != u"empty") {
            const DataStore made(path, DataStore::OpenMode::CreateFile);
            if (store == u"foreign")
                made.exec("CREATE TABLE notes (said TEXT)");
            else
                storeupgrade::run(made);
            if (store == u"unmarked" || store == u"other id")
                made.exec(store == u"unmarked" ? "PRAGMA application_id = 0"
                                               : "PRAGMA application_id = 1234");
        }
        StoreLock other(path);
        if (condition == u"locked")
            QVERIFY(other.take());
        if (condition == u"stale") {
            // The lock of a process that no longer runs, as a killed program leaves it.
            QByteArray lock;
            {
                StoreLock crashed(path);
                QVERIFY(crashed.take());
                lock = bytesOf(crashed.lockPath());
            }
            QFile left(other.lockPath());
            QVERIFY(left.open(QIODevice::WriteOnly));
            left.write("2147483647" + lock.mid(lock.indexOf('\n')));
            left.close();
        }
        std::optional<ReadOnlyPath> readOnly;
        if (condition == u"file" || condition == u"folder")
            readOnly.emplace(condition == u"file" ? path : dir.path());
        const QByteArray bytes = bytesOf(path);
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        const QStringList listing = QDir(dir.path()).entryList(all);

        ScriptedMessageBoxes boxes;
        boxes.answerNext(answer);
        std::optional<OpenedStore> result;
        try {
            result = startup::openStore(dir.path(), boxes);
            QVERIFY2(opened != u"refused", "the store was opened");
            if (!text.isEmpty())
                QVERIFY2(boxes.texts().value(0).contains(text), qPrintable(boxes.texts().join("|")));
        } catch (const StoreError &error) {
            QVERIFY2(opened == u"refused" && error.description().contains(text),
                     qPrintable(error.description()));
        }
        QCOMPARE(result.has_value(), opened == u"view only" || opened == u"locked");
        if (result) {
            QCOMPARE(result->store->isViewOnly(), opened == u"view only");
            QCOMPARE(result->lock != nullptr, opened == u"locked");
            // The main window's load writes only what is due: the mark of an unmarked store.
            Session session(*result->store);
            startup::prepareStore(session);
            QCOMPARE(bytesOf(path) == bytes, store != u"unmarked");
            if (result->store->isViewOnly()) {
                QVERIFY_THROWS_EXCEPTION(StoreError, Transaction(*result->store));
                try {
                    result->store->exec("INSERT INTO mstGroup (GroupID) VALUES (1)");
                    QFAIL("a view-only store was written");
                } catch (const StoreError &error) {
                    QCOMPARE(error.description(), DataStore::viewOnlyText);
                }
            }
            result.reset();
        }
        if (store != u"unmarked")
            QCOMPARE(bytesOf(path), bytes);
        // A lock taken over from a crashed program is let go like any other.
        QCOMPARE(QDir(dir.path()).entryList(all),
                 (condition == u"stale" ? QStringList{DataStore::fileName} : listing));
    }
};

KELVORA_TEST_OBJECT(TestStartup);
#include "test_startup.moc"
