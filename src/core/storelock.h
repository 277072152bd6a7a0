#pragma once

#include <QLockFile>
#include <QString>
#include <chrono>

/**
 * The lock that keeps two programs from writing one data store at the same time: a lock file
 * beside the store, held by the program, the batch front ends and the backup for as long as
 * they use it. A lock left by a program that ended without letting go (a crash, a kill) is
 * taken over when the lock tells a process of this machine that is no longer running, and so is
 * one that tells no process at all (empty or garbled, as a power cut leaves it). A lock of
 * another machine cannot be checked from here and is kept.
 */
class StoreLock
{
public:
    explicit StoreLock(const QString &storePath);
    StoreLock(const StoreLock &) = delete;
    StoreLock &operator=(const StoreLock &) = delete;

    /// Takes the lock, waiting up to @p wait for its holder to let go.
    bool take(std::chrono::milliseconds wait = std::chrono::milliseconds(0));
    /// After a failed take: true when another program holds the lock, false when the lock file
    /// cannot be made at all (a read-only folder, for one).
    bool heldByAnother() const;

    /// The holder as the lock tells it ("kelvora (process 4242) on the machine OFFICE-PC"),
    /// for the message of a store in use.
    QString holder() const;
    /// Why the lock file could not be made, when it could not.
    QString failureText() const;
    QString lockPath() const { return m_path; }

private:
    /// Removes a lock file that names no process, which no one can be holding.
    void clearUnreadable();
    bool isUnreadable() const;

    QString m_path;
    QLockFile m_file;
};
