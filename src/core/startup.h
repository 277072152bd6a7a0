#pragma once

#include "core/storeaccess.h"

#include <QString>
#include <optional>

class MessageBoxes;
struct Session;

/// The steps of a start, in the order the program runs them.
namespace startup {

/// Opens Kelvora.db in the program's folder as storeaccess::openForProgram does: none when the
/// user would not view a store that cannot be written or is in use; a missing, unreadable or
/// foreign file throws StoreError, which the program reports before any window appears.
std::optional<OpenedStore> openStore(const QString &programFolder, MessageBoxes &boxes);

/// What the main window's load does: the session's assessment id, the seed of the CHAPVIAU
/// sections, the schema upgrade, and the first year of the financial year.
void prepareStore(Session &session);

/// Reads the assessment period into the session; with no row the values stay as they are.
void readAssessmentPeriod(Session &session);

/// The folder of generated return files, eReturns beside the data store.
QString returnsFolder(const QString &storeFolder);
/// Makes that folder when it is not there; a failure is not reported, only returned.
bool createReturnsFolder(const QString &storeFolder);
bool returnsFolderExists(const QString &storeFolder);

} // namespace startup
