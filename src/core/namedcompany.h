#pragma once

#include <QString>
#include <optional>

class DataStore;

/**
 * The company that a front end's command line names by its id or by its TAN, within the
 * assessment period: its id, or none with the reason in @p error when the text names no company
 * or a TAN that several companies share (placeholders such as TANAPPLIED). Throws StoreError.
 */
std::optional<int> namedCompany(const DataStore &store, int asstId, const QString &company,
                                QString &error);
