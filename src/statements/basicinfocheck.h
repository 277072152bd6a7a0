#pragma once

#include "core/fieldfailure.h"

#include <optional>

struct BasicInfo;

/// The refusals of a Statement's save, in the order the panel has always made them.
namespace basicinfocheck {

inline const QString challanCountText =
    QStringLiteral("Please enter NO. CHALLAN., It Cannot be left blank");
inline const QString deducteeCountText =
    QStringLiteral("Please enter NO. DEDUCTEE., It Cannot be left blank");
inline const QString tanReceiptText =
    QStringLiteral("Please enter 14 digit valid Application receipt no.");
inline const QString revisedReceiptText =
    QStringLiteral("Please enter valid 14 digit Revised Receipt no.");
inline const QString selectStateText = QStringLiteral("Please select a State Name");
inline const QString pincodeText = QStringLiteral("Pincode should be of 6 digits");

/**
 * The first check that refuses the basic information, or none. @p tanReceiptShown: the
 * application's receipt field stands on the panel (the TAN is applied for). The receipt numbers
 * are compared as numbers with 14, as they always have been, not counted in digits.
 */
std::optional<FieldFailure> firstFailure(const BasicInfo &info, bool tanReceiptShown);

} // namespace basicinfocheck
