#pragma once

#include "returnfile/recordline.h"

class QDate;
struct FormTraits;

/// FH, the file header: 17 fields, the last seven of them empty.
RecordLine fileHeaderRecord(int lineNumber, const FormTraits &form, const QString &tan,
                            const QDate &creationDate);
