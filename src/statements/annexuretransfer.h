#pragma once

#include <QString>

class AnnexureRecords;
class DataStore;
struct ChallanRowsKey;
struct FormTraits;

/// Form 24Q's rows entered before any challan existed, turned into challans afterwards.
namespace annexuretransfer {

inline const QString refusedText = QStringLiteral(
    "You have already entered challan records. auto transfer is not possible anymore.");
inline const QString transferredText = QStringLiteral("Challan records created properly");
inline const QString challansIncompleteText = QStringLiteral(
    "The new challans have no date, bank-branch code or challan number yet: enter them on the "
    "Challan panel before the file is generated.");

/**
 * One challan for each row waiting under no challan (@p waiting: the Statement with challan 0),
 * numbered from 1, carrying the row's tax, total and tax deposited; the row moves under it and
 * the challan's control totals follow. Runs in the caller's transaction; throws StoreError, or
 * std::range_error for totals past their range.
 */
void makeChallans(const DataStore &store, const FormTraits &form, const AnnexureRecords &rows,
                  const ChallanRowsKey &waiting);

} // namespace annexuretransfer
