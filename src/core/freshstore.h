#pragma once

#include <QDate>
#include <QString>

/// A new data store for one financial year, in the older layout that the start-up upgrade then
/// brings up to date, with the authority's reference data read from the files in data/.
namespace freshstore {

/// Creates the store at path for the financial year that begins in April of firstYear.
/// Refuses (StoreError) when a file is already there: an existing store is never overwritten.
void create(const QString &path, int firstYear);

/// The financial year that contains the date: 2026 for any day from 01/04/2026 to 31/03/2027.
int financialYearOf(const QDate &date);

} // namespace freshstore
