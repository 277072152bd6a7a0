#pragma once

#include "core/formtraits.h"

#include <QString>

class DataStore;

// Rows put straight into a test store, as the masters and the statement screens leave them.
namespace partymastertestdata {

void addGroup(const DataStore &store, int id, const QString &name);
void addEmployee(const DataStore &store, int groupId, int id, const QString &name,
                 const QString &pan);
void addDeductee(const DataStore &store, int groupId, int id, const QString &name,
                 const QString &pan);
// A statement row of the form naming the party (the employee's or deductee's id) by its number.
void addStatementRow(const DataStore &store, FormKind form, int rowId, int partyNo,
                     const QString &name);
// Makes every change to the form's statement rows fail, as a damaged store would.
void blockStatementUpdates(const DataStore &store, FormKind form);
// The party's name in the statement row, or an empty text when there is no such row.
QString statementName(const DataStore &store, FormKind form, int rowId);
int rowCount(const DataStore &store, const QString &table);

} // namespace partymastertestdata
