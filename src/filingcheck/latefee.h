#pragma once

#include "core/formtraits.h"
#include "filingcheck/filingcheck.h"

/// The late fee under section 234E.
namespace filingcheck {

/// Rs 200 for every day from the Statement's due date to @p filedOn, never more than the tax
/// deducted or collected in it (@p cap); @p paid is what the challans' Others hold together.
LateFee lateFee(FormKind form, int quarterIndex, int financialYear, QDate filedOn, Money cap,
                Money paid);

} // namespace filingcheck
