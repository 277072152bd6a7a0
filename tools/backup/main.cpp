// The backup program beside Kelvora: the Backup & Restore window, or, with --to, a backup
// without a window for the office's scheduled jobs.

#include "backupwindow.h"

#include "backup/backupcommand.h"
#include "core/datastore.h"
#include "core/programicon.h"
#include "core/programlayout.h"
#include "core/qtmessageboxes.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTextStream>

namespace {

// Time enough for the program that started us to end and let go of the store.
constexpr std::chrono::seconds launcherWait(15);

QString kelvoraProgram()
{
#ifdef Q_OS_WIN
    const QString name = QStringLiteral("kelvora.exe");
#else
    const QString name = QStringLiteral("kelvora");
#endif
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

/// The store that the program opens: beside it, or, installed, in the user's data folder, which
/// is named after the program rather than after this one.
QString programStore()
{
    QCoreApplication::setApplicationName(appTitle);
    const QString folder = programlayout::storeFolder(QCoreApplication::applicationDirPath());
    QCoreApplication::setApplicationName(QStringLiteral("Backup"));
    return QDir(folder).filePath(DataStore::fileName);
}

int runWindow(int argc, char *argv[], BackupCommand::Options options)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Backup"));
    QApplication::setWindowIcon(programIcon());
    if (options.storePath.isEmpty())
        options.storePath = programStore();
    QtMessageBoxes boxes;
    std::function<void()> onClose;
    if (options.fromKelvora) {
        // The program's menu promised the user a way back.
        onClose = [&boxes] {
            const QString program = kelvoraProgram();
            if (!QProcess::startDetached(program, {}, QFileInfo(program).absolutePath())) {
                boxes.show({QStringLiteral("Kelvora could not be started again:\n%1")
                                .arg(QDir::toNativeSeparators(program)),
                            BackupWindow::title, MessageIcon::Critical});
            }
        };
    }
    BackupWindow window(options.storePath,
                        options.fromKelvora ? launcherWait : std::chrono::seconds(0), boxes,
                        onClose);
    boxes.setParent(&window);
    window.show();
    return app.exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h"))) {
        QTextStream(stdout) << BackupCommand::usage();
        return BackupCommand::Done;
    }
    QString error;
    const std::optional<BackupCommand::Options> options = BackupCommand::parse(arguments, error);
    if (!options) {
        QTextStream(stderr) << "Backup: " << error << '\n' << BackupCommand::usage();
        return BackupCommand::UsageError;
    }
    if (!options->withoutWindow())
        return runWindow(argc, argv, *options);

    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return BackupCommand::run(*options, QDateTime::currentDateTime(), out, err);
}
