#pragma once

#include "returnfile/recordline.h"

class SourceRows;
struct BatchTotals;
struct DeductorCodes;
struct FormTraits;

/// BH, the batch header: 61 fields, from the saved Statement (its row of the basic information
/// table, current in @p statement), the company's codes and the totals counted beforehand.
RecordLine batchHeaderRecord(int lineNumber, const FormTraits &form, const SourceRows &statement,
                             const DeductorCodes &deductor, const BatchTotals &totals);
