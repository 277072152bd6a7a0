#include "backup/onlinecopy.h"

#include "backup/backuperror.h"
#include "core/datastore.h"
#include "core/storeerror.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QStringList>

#include <sqlite3.h>

namespace onlinecopy {

namespace {

// A megabyte or so at a time with the usual page size: the progress bar moves, and a writer
// elsewhere is never kept waiting long.
constexpr int pagesPerStep = 256;
constexpr int busyPauseMs = 50;

sqlite3 *handleOf(const DataStore &store)
{
    const QVariant handle = store.database().driver()->handle();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0)
        throw BackupError(BackupError::Refused,
                          QStringLiteral("The data store is not open through SQLite."));
    return *static_cast<sqlite3 *const *>(handle.constData());
}

/// The target's own connection, closed on every way out.
class TargetFile
{
public:
    explicit TargetFile(const QString &path)
    {
        const int rc = sqlite3_open_v2(QDir::toNativeSeparators(path).toUtf8().constData(),
                                       &m_db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                                       nullptr);
        if (rc != SQLITE_OK) {
            const QString reason = QString::fromUtf8(sqlite3_errmsg(m_db));
            sqlite3_close_v2(m_db);
            throw BackupError(BackupError::FileSystem,
                              QStringLiteral("%1 cannot be written: %2")
                                  .arg(QDir::toNativeSeparators(path), reason));
        }
    }
    ~TargetFile() { sqlite3_close_v2(m_db); }
    TargetFile(const TargetFile &) = delete;
    TargetFile &operator=(const TargetFile &) = delete;

    sqlite3 *handle() const { return m_db; }

private:
    sqlite3 *m_db = nullptr;
};

bool isBusy(int rc)
{
    return rc == SQLITE_BUSY || rc == SQLITE_LOCKED;
}

BackupError failure(int rc, const QString &target)
{
    const QString reason = QString::fromUtf8(sqlite3_errstr(rc));
    if (isBusy(rc)) {
        return BackupError(BackupError::Refused,
                           QStringLiteral("The data store stayed busy with another program's "
                                          "write: %1").arg(reason));
    }
    if (rc == SQLITE_CORRUPT || rc == SQLITE_NOTADB) {
        return BackupError(BackupError::Refused,
                           QStringLiteral("The data store cannot be read whole: %1").arg(reason));
    }
    return BackupError(BackupError::FileSystem, QStringLiteral("%1 cannot be written: %2")
                                                    .arg(QDir::toNativeSeparators(target),
                                                         reason));
}

} // namespace

void copy(const DataStore &source, const QString &target, const Progress &progress)
{
    const TargetFile file(target);
    sqlite3_backup *backup =
        sqlite3_backup_init(file.handle(), "main", handleOf(source), "main");
    if (!backup)
        throw failure(sqlite3_errcode(file.handle()), target);

    QElapsedTimer busySince;
    int rc = SQLITE_OK;
    do {
        rc = sqlite3_backup_step(backup, pagesPerStep);
        if (progress) {
            const int total = sqlite3_backup_pagecount(backup);
            progress(total - sqlite3_backup_remaining(backup), total);
        }
        if (!isBusy(rc)) {
            busySince.invalidate();
        } else {
            if (!busySince.isValid())
                busySince.start();
            else if (busySince.hasExpired(DataStore::busyTimeoutMs))
                break;
            sqlite3_sleep(busyPauseMs);
        }
    } while (rc == SQLITE_OK || isBusy(rc));
    sqlite3_backup_finish(backup);
    if (rc != SQLITE_DONE)
        throw failure(rc, target);
}

QString integrityProblems(const QString &path)
{
    try {
        const DataStore store(path, DataStore::OpenMode::ReadOnly);
        QSqlQuery query = store.exec(QStringLiteral("PRAGMA integrity_check(20)"));
        QStringList findings;
        while (query.next())
            findings << query.value(0).toString();
        if (findings == QStringList{QStringLiteral("ok")})
            return {};
        return findings.join(u'\n');
    } catch (const StoreError &error) {
        return error.description();
    }
}

} // namespace onlinecopy
