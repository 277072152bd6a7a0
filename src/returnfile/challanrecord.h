#pragma once

#include "returnfile/recordline.h"

class SourceRows;
struct FormTraits;

/// Where a CD stands in its file, besides its own challan row.
struct ChallanPlace
{
    int challanNumber = 0;   ///< 1 for the first challan of the file
    qint64 annexureRows = 0; ///< the DD lines that follow it
    bool nilStatement = false;
    QString salarySection;   ///< 24Q's "92A" or "92B"; the other forms take the row's section
};

/// CD, one challan: 38 fields from the current row of @p challan.
RecordLine challanRecord(int lineNumber, const FormTraits &form, const ChallanPlace &place,
                         const SourceRows &challan);

/// The section of a salary return's challans: "92A" for a government deductor, else "92B".
/// The deductor type is compared exactly, case included.
QString salaryChallanSection(const QString &deductorType);
