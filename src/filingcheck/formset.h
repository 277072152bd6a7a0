#pragma once

#include "core/formtraits.h"

/// Which of the four forms a line of a dated table applies to.
namespace filingcheck {

using FormSet = unsigned;

constexpr FormSet formSet(FormKind form)
{
    return 1u << static_cast<unsigned>(form);
}

inline constexpr FormSet form24Q = formSet(FormKind::Form24Q);
inline constexpr FormSet form26Q = formSet(FormKind::Form26Q);
inline constexpr FormSet form27Q = formSet(FormKind::Form27Q);
inline constexpr FormSet form27EQ = formSet(FormKind::Form27EQ);
/// The forms whose rows are deductees or collectees, with a code, a section and a rate.
inline constexpr FormSet deducteeForms = form26Q | form27Q | form27EQ;
inline constexpr FormSet everyForm = form24Q | deducteeForms;
/// The forms of tax deducted at source, whose interest is under section 201(1A); Form 27EQ's
/// tax collected at source owes it under section 206C(7).
inline constexpr FormSet deductionForms = form24Q | form26Q | form27Q;

} // namespace filingcheck
