#include "core/storelock.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

namespace {

// A program that is making its lock has it empty for an instant, before it marks the file as
// held and writes its name into it.
constexpr unsigned long makingTimeMs = 100;

} // namespace

StoreLock::StoreLock(const QString &storePath)
    : m_path(storePath + QStringLiteral(".lock")), m_file(m_path)
{
    // A session lasts hours: a lock is never taken as stale for its age, only when its process
    // has ended.
    m_file.setStaleLockTime(0);
}

bool StoreLock::take(std::chrono::milliseconds wait)
{
    clearUnreadable();
    return m_file.tryLock(wait);
}

void StoreLock::clearUnreadable()
{
    if (!isUnreadable())
        return;
    QThread::msleep(makingTimeMs);
    // QLockFile guards its own removal of a dead process's lock with this name: taking it too,
    // two programs never remove a lock at once, nor one that the other has just made instead.
    QLockFile removal(m_path + QStringLiteral(".rmlock"));
    // The removal itself fails while a running program holds the file.
    if (removal.tryLock() && isUnreadable())
        m_file.removeStaleLockFile();
}

bool StoreLock::isUnreadable() const
{
    return QFileInfo::exists(m_path) && !m_file.getLockInfo(nullptr, nullptr, nullptr);
}

bool StoreLock::heldByAnother() const
{
    return m_file.error() == QLockFile::LockFailedError;
}

QString StoreLock::holder() const
{
    qint64 pid = 0;
    QString host;
    QString application;
    if (!m_file.getLockInfo(&pid, &host, &application))
        return QStringLiteral("another program");
    QString text = application.isEmpty() ? QStringLiteral("a program") : application;
    text += QStringLiteral(" (process %1)").arg(pid);
    if (!host.isEmpty())
        text += QStringLiteral(" on the machine %1").arg(host);
    return text;
}

QString StoreLock::failureText() const
{
    switch (m_file.error()) {
    case QLockFile::NoError:
        return {};
    case QLockFile::LockFailedError:
        return QStringLiteral("it is in use by %1").arg(holder());
    case QLockFile::PermissionError:
        return QStringLiteral("the lock file %1 cannot be made in its folder")
            .arg(QDir::toNativeSeparators(m_path));
    case QLockFile::UnknownError:
        break;
    }
    return QStringLiteral("the lock file %1 cannot be made")
        .arg(QDir::toNativeSeparators(m_path));
}
