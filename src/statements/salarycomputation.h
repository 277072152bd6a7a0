#pragma once

#include "core/money.h"

struct SalaryEntry;

/**
 * The figures of the salary statement that follow from others, as the boxes change. Every
 * result is read with the program's number reading and written "0.00"; a result that changes
 * passes the change on, so that one typed figure runs the whole chain down to the shortfall.
 * The tax itself is typed, and the employee's category enters no figure.
 */
namespace salarycomputation {

/// txt(index) changed: the results that hang on it, and the ones that hang on those.
void boxChanged(SalaryEntry &entry, int index);

/// A perquisite box changed: the value of furniture (ten percent of its cost), the furnished
/// total and the value of the perquisite.
void perkChanged(SalaryEntry &entry);

/// What the perquisites' OK puts in txt(207): the boxes with the items 361 to 367 only; the
/// ones before feed the value of the perquisite.
Money perkTotal(const SalaryEntry &entry);

/// A stored row loaded into the boxes: the figures that are never stored, summed again (the
/// Section 10 total, the perquisites, the Section 88 rebate and their sum in txt(209)), and
/// the unfurnished perquisite that the stored value of the perquisite was computed from. The
/// stored figures stand as they were saved.
void restoreUnstored(SalaryEntry &entry, Money section10, Money section88);

} // namespace salarycomputation
