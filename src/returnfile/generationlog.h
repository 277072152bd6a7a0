#pragma once

#include "core/money.h"

#include <QDateTime>
#include <QString>

class DataStore;

/// What one confirmed generation records in FileGenerationLog.
struct GenerationLogEntry
{
    int groupId = 0;
    int compId = 0;
    QString formType;    ///< "26Q"; stored as "Form -26Q"
    QString fileName;    ///< the whole path of the return file
    QDateTime created;
    QString periodicity; ///< the quarter
    QString asstYear;
    Money amountPaid;    ///< the panel's total amount paid
    Money taxDeducted;   ///< the panel's total tax
    int deductees = 0;   ///< rows of the open challan's list; 0 when none is open
    QString companyName;
};

/**
 * Adds the log row of a generation and returns its FGId (the largest plus 1). The date is stored
 * as yyyy-mm-dd, the time as hh:mm:ss; media "C", one medium, existing assessee "N", officer
 * code "NA". Rows are only ever added. Throws StoreError.
 */
int insertFileGenerationData(const DataStore &store, const GenerationLogEntry &entry);
