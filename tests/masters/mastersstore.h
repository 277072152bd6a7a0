#pragma once

#include "masters/companyentry.h"
#include "support/teststore.h"

/**
 * The masters the masters' tests read, built once per program; a test that writes works on a
 * copy. Groups: 1 ALPHA GROUP (companies 1 to 6, employee 4, deductees 3 and 9), 2 BETA GROUP
 * (company 20 with 27Q and 27EQ Statements, employee 7, deductee 20), 3 ALPINE (nothing), 4 A_B
 * (a deductee), 5 100% PURE (an employee), 6 O'NEIL GROUP (nothing). Company 5 has a Statement
 * in each form and a challan or deductee row in each table with book-entry marks, and so has
 * company 6, which no change of company 5 may touch; company 6 has generated a file.
 */
const TestStore &mastersStore();

/// A new company of group 1 that passes every check: a company deductor in Maharashtra whose
/// person responsible lives elsewhere.
CompanyEntry validEntry();

/// The tables of the Statements' particulars, and those whose rows carry book-entry marks.
inline const QStringList basicInfoTables = {"TranBasicInfoE24", "TranBasicInfoE26",
                                            "TranBasicInfoE27", "TranBasicInfoE27E"};
inline const QStringList markedTables = {"TranChallanE24",   "TranChallanE26",
                                         "TranDeducteeE26",  "TranChallanE27E",
                                         "TranChallanE27",   "TranDeducteeE27",
                                         "TranDeducteeE27E"};
