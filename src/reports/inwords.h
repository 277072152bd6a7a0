#pragma once

#include "core/money.h"

#include <QString>

/// Amounts spelled in words for certificates, with the digits grouped the Indian way.
namespace inwords {

/**
 * The amount in words: "One Hundred Twenty Five  and Seventy Five paise only.". The amount is
 * written as nine digits, a point and two decimals, and read in groups of crores, lakhs,
 * thousands, hundreds and the rest. Each group's word carries its blanks, so a group that ends
 * the rupees leaves a double blank, and the words of the groups are never made singular
 * ("One Lakhs  only."). The groups are taken from the left, so an amount of ten digits or more
 * loses its last rupee digits; the paise are always read from the end.
 */
QString spell(Money amount);

/// The words of a certificate's total: "Zero only" for nothing, else spell().
QString certificateWords(Money total);

} // namespace inwords
