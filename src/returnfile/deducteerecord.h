#pragma once

#include "returnfile/recordline.h"

class SourceRows;
struct FormTraits;

/// DD, one annexure row of a challan: 32 fields from the current row of @p row, laid out by
/// form (24Q's employee rows, or the deductee rows of the others).
RecordLine deducteeRecord(int lineNumber, const FormTraits &form, int challanNumber,
                          int rowNumber, const SourceRows &row);

/// The columns of the annexure table that a DD line takes, for the query of its rows: only
/// these, because a large Statement has hundreds of thousands of rows.
QString deducteeRecordColumns(const FormTraits &form);

/// The deductee code taken as a number: "01" is "1", a text that is not a number "0".
QString deducteeCodeText(const QString &code);
