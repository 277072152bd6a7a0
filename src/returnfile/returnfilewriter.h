#pragma once

#include "core/money.h"

#include <QDate>
#include <QString>

class DataStore;
struct FormTraits;

/// What a written return file holds, for the user's confirmation and the batch front end.
struct ReturnFileSummary
{
    int challans = 0;      ///< CD lines
    int annexureRows = 0;  ///< DD lines
    int salaryRows = 0;    ///< SD lines (24Q)
    Money deposited;       ///< BH field 47: the challans' total, in whole rupees
};

/**
 * Writes the return file of one saved Statement: FH, BH, each CD followed by its DD lines and,
 * in 24Q, the SD lines with their S16 and C6A lines. The file is written whole or not at all:
 * a value with a caret or a character the single-byte file cannot hold refuses the generation
 * (ReturnFileError naming the table, the row and the column), a store failure throws
 * StoreError, and in both cases nothing is left at path. The company's codes are read within
 * @p groupId, the group chosen for the session.
 */
ReturnFileSummary writeReturnFile(const DataStore &store, const FormTraits &form, int groupId,
                                  int basicInfoId, const QString &path,
                                  const QDate &creationDate);
