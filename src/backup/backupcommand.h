#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <optional>

class QTextStream;

/**
 * The arguments of the backup program, and its form without a window for scheduled backups:
 * a backup of the store into a folder, then the oldest backups of that folder beyond a number
 * removed. The command line is the confirmation; the outcome is one line on the output stream,
 * a failure one line on the error stream, and the exit status.
 */
class BackupCommand
{
public:
    enum Status { Done = 0, Refused = 1, UsageError = 2, FileSystemFailure = 3 };

    /// How long a scheduled backup waits for a store that another program holds.
    static constexpr int lockWaitSeconds = 30;

    struct Options
    {
        QString storePath;        ///< empty: the program's own store (window only)
        QString folder;           ///< --to; empty for the window
        int keep = 0;             ///< --keep; 0 keeps every backup
        bool fromKelvora = false; ///< started by the program's menu on its store; it is ending
        bool withoutWindow() const { return !folder.isEmpty(); }
    };

    /// Reads the arguments (the program's name first); on a usage error returns none and puts
    /// the reason in @p error. --help is the caller's.
    static std::optional<Options> parse(const QStringList &arguments, QString &error);

    static QString usage();

    /// The backup that @p options ask for, taken at @p now; returns the exit status.
    static Status run(const Options &options, const QDateTime &now, QTextStream &out,
                      QTextStream &err);
};
