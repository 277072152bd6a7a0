#pragma once

#include <QByteArrayView>
#include <QString>

class QFileDevice;

/// Files that the programs write whole to a name the user chose: a return, a certificate, a
/// backup.
namespace wholefile {

/**
 * Why nothing may be written at @p path, in words; empty when the name is free or holds a plain
 * file. A file is put in place by a rename, which would replace a device, a pipe or a folder of
 * that name with a plain file, and a symbolic link would be written through, changing the file
 * it points to; such a name is refused and left as it is.
 */
QString refusal(const QString &path);

/// Makes the folder @p path and the missing folders above it; the system's reason in words
/// when that fails, empty when the folder is there.
QString makeFolder(const QString &path);

/// Writes all of @p bytes to the open @p file; false when they do not all go, with the system's
/// reason (a full disk) in the file's errorString().
bool write(QFileDevice &file, QByteArrayView bytes);

} // namespace wholefile
