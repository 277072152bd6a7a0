#pragma once

#include "core/fieldfailure.h"

#include <QList>

#include <optional>

struct AnnexureEntry;
struct FormTraits;

/// The checks of an annexure row's save, before and after its date is checked.
namespace annexuresavecheck {

inline const QString chooseChallanText =
    QStringLiteral("Select a particuler challan for Deductee Entry.");
inline const QString depositedNeededText =
    QStringLiteral("Tax Deposited value should not be Blank or Zero !!");
inline const QString properStateText = QStringLiteral("Please select proper State Name");
inline const QString tooMuchTaxText = QStringLiteral("Total Tax should not be greater !!");

/// "Please select proper Deductee Name", or Employee on Form 24Q.
QString properPartyText(const FormTraits &form);

/**
 * The first refusal before the row's date and amounts are looked at: a normal row depositing
 * nothing, no challan chosen (only Form 24Q's rows may wait for their challans while the
 * Statement has none), a blank code, name or state, and a party or state not taken from its
 * list.
 */
std::optional<FieldFailure> partyFailure(const AnnexureEntry &entry, const FormTraits &form,
                                         bool challanChosen, int challans);

/// Amounts that are not numbers are saved as the form's zero ("00.00" or "0.00").
void zeroNonNumbers(AnnexureEntry &entry, const FormTraits &form);

/// The rows of a challan, this one in its place, deposit more than the challan's total; to
/// the paisa.
bool exceedsChallan(const AnnexureEntry &entry, const QList<AnnexureEntry> &rows,
                    const QString &challanTotal);

} // namespace annexuresavecheck
