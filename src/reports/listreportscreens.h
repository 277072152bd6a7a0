#pragma once

#include <QStringList>

class DataStore;
class MessageBoxes;
class QWidget;

/// The lists and logs that the Reports menu opens by name, straight into their viewers.
namespace listreportscreens {

/// The names of the reports, as the menu opens them ("dRptGroupMaster", ...).
QStringList names();

/**
 * Builds the named report as of today and returns its viewer. Null when there is nothing to
 * show: a list without rows says so, an empty log shows nothing; a store failure is shown.
 */
QWidget *open(const QString &name, const DataStore &store, MessageBoxes &boxes);

} // namespace listreportscreens
