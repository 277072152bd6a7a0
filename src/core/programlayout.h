#pragma once

#include <QString>

/// Where the program keeps its data store. A build keeps it beside the executable; an installed
/// program cannot write its own folder and keeps it in the user's data folder instead.
namespace programlayout {

/// The program runs installed: its folder is <prefix>/lib/kelvora with <prefix>/share/kelvora.
bool isInstalled(const QString &programFolder);

/// The folder of the data store: the program's own, or the user's data folder when installed.
QString storeFolder(const QString &programFolder);

/// Makes a fresh store in the folder through the store tool beside the program, unless one is
/// there. Returns the tool's failure, empty when the store is there afterwards.
QString makeStoreIfMissing(const QString &programFolder, const QString &storeFolder);

} // namespace programlayout
