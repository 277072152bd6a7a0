#pragma once

#include "returnfile/recordline.h"

class QVariant;
class SourceRows;

/// SD, the salary detail of one employee (24Q): 33 fields from the current row of @p salary,
/// with the number of S16 and C6A lines that follow it.
RecordLine salaryRecord(int lineNumber, int salaryNumber, qint64 section16Lines,
                        qint64 chapterVIALines, const SourceRows &salary);

/// S16 or C6A (@p recordType), one section row under an SD: 7 fields.
RecordLine salarySectionRecord(int lineNumber, const QString &recordType, int salaryNumber,
                               int rowNumber, const QString &section, const QVariant &amount);

/// The employee category of the salary screen's list, by the row number stored for it:
/// "W", "S" or "G"; empty for a number that is not a row of the list. A number beyond the
/// 16-bit range throws ReturnFileError with numbers::overflowMessage.
QString employeeCategoryCode(const QVariant &index);
