#include "backup/backupcommand.h"

#include "backup/backuperror.h"
#include "backup/backupfolder.h"
#include "backup/storebackup.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

std::optional<BackupCommand::Options> BackupCommand::parse(const QStringList &arguments,
                                                           QString &error)
{
    QCommandLineParser parser;
    const QCommandLineOption store(QStringLiteral("store"), {}, QStringLiteral("PATH"));
    const QCommandLineOption to(QStringLiteral("to"), {}, QStringLiteral("DIR"));
    const QCommandLineOption keep(QStringLiteral("keep"), {}, QStringLiteral("N"));
    const QCommandLineOption fromKelvora(QStringLiteral("from-kelvora"), {},
                                         QStringLiteral("STORE"));
    parser.addOptions({store, to, keep, fromKelvora});
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return std::nullopt;
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = QStringLiteral("unexpected argument %1").arg(parser.positionalArguments().first());
        return std::nullopt;
    }
    Options options;
    options.storePath = parser.value(store);
    options.folder = parser.value(to);
    options.fromKelvora = parser.isSet(fromKelvora);
    if (options.fromKelvora) {
        if (parser.isSet(store) || parser.isSet(to)) {
            error = QStringLiteral("--from-kelvora names the store and opens the window");
            return std::nullopt;
        }
        options.storePath = parser.value(fromKelvora);
    }
    if (parser.isSet(to) && (options.folder.isEmpty() || options.storePath.isEmpty())) {
        error = QStringLiteral("a backup without the window needs --store PATH and --to DIR");
        return std::nullopt;
    }
    if (parser.isSet(keep)) {
        bool ok = false;
        options.keep = parser.value(keep).toInt(&ok);
        if (!ok || options.keep < 1) {
            error = QStringLiteral("--keep takes a number of backups, 1 or more");
            return std::nullopt;
        }
        if (!options.withoutWindow()) {
            error = QStringLiteral("--keep goes with --to");
            return std::nullopt;
        }
    }
    return options;
}

QString BackupCommand::usage()
{
    return QStringLiteral(
        "usage: Backup [--store PATH]\n"
        "       Backup --store PATH --to DIR [--keep N]\n"
        "Without --to, opens the Backup & Restore window on the store (by default Kelvora.db\n"
        "beside the program). With --to, writes a checked backup of the store into DIR as\n"
        "Kelvora-YYYYMMDD-HHMMSS.db (-2, -3 and so on added for more in one second), removes\n"
        "the unfinished copies of backups that were stopped there and, with --keep, all but\n"
        "the newest N backups. Exit status: 0 done, 1 store refused or in use, 2 usage error,\n"
        "3 file-system failure.\n");
}

BackupCommand::Status BackupCommand::run(const Options &options, const QDateTime &now,
                                         QTextStream &out, QTextStream &err)
{
    try {
        const StoreBackup backup(options.storePath, std::chrono::seconds(lockWaitSeconds));
        const QString written = backup.backUp(options.folder, now);
        out << QDir::toNativeSeparators(written) << ' ' << QFileInfo(written).size()
            << " bytes\n";
        if (options.keep > 0) {
            for (const QString &removed : backupfolder::prune(options.folder, options.keep))
                out << "removed " << QDir::toNativeSeparators(removed) << '\n';
        }
    } catch (const BackupError &error) {
        // One line, as a scheduler's log reads it; the window keeps the findings' lines.
        err << "Backup: " << error.text().simplified() << '\n';
        return error.kind() == BackupError::Refused ? Refused : FileSystemFailure;
    }
    return Done;
}
