#include "core/programlayout.h"

#include "core/datastore.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace programlayout {

bool isInstalled(const QString &programFolder)
{
    const QDir folder(programFolder);
    return folder.dirName() == QLatin1String("kelvora")
           && QFileInfo(folder.filePath(QStringLiteral("../../share/kelvora"))).isDir();
}

QString storeFolder(const QString &programFolder)
{
    if (!isInstalled(programFolder))
        return programFolder;
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString makeStoreIfMissing(const QString &programFolder, const QString &storeFolder)
{
    const QString path = QDir(storeFolder).filePath(DataStore::fileName);
    if (QFileInfo::exists(path))
        return {};
    if (!QDir().mkpath(storeFolder))
        return QStringLiteral("The folder %1 could not be made.")
            .arg(QDir::toNativeSeparators(storeFolder));
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(QDir(programFolder).filePath(QStringLiteral("kelvora-newstore")),
               {QStringLiteral("--if-missing"), path});
    if (!tool.waitForFinished(-1) || tool.exitStatus() != QProcess::NormalExit
        || tool.exitCode() != 0) {
        const QString said = QString::fromLocal8Bit(tool.readAll()).trimmed();
        return said.isEmpty() ? tool.errorString() : said;
    }
    return {};
}

} // namespace programlayout
