#include "core/wholefile.h"

#include <QFileDevice>
#include <QFileInfo>
#include <filesystem>

namespace wholefile {

QString refusal(const QString &path)
{
    const QFileInfo target(path);
    // A link that points nowhere does not exist, yet a write would make the file it names.
    if (target.isSymLink() || (target.exists() && !target.isFile()))
        return QStringLiteral("that name is not a plain file, and it is left as it is");
    return {};
}

QString makeFolder(const QString &path)
{
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path.toStdU16String()), error);
    if (error)
        return QString::fromStdString(error.message());
    return {};
}

bool write(QFileDevice &file, QByteArrayView bytes)
{
    // A disk that fills up takes part of a write without a word; only the next write fails,
    // with the reason.
    while (!bytes.isEmpty()) {
        const qint64 written = file.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

} // namespace wholefile
