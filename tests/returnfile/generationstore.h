#pragma once

#include "core/formtraits.h"
#include "support/teststore.h"

/**
 * The Statements the generation tests read, built once per program; a test that writes works on
 * a copy. Company 11 (prefix KAVR) files a 26Q Statement 5 for Q2, two challans declared and
 * entered (51 with rows 1 to 3, 52 with rows 4 to 7; 1003.00 deposited, each row 1000.10 paid and
 * 0.75 tax), and a 24Q Statement 5 of one challan and one row. Company 12, with no prefix and a
 * Central Government deductor, files a 26Q Statement 6 with one row without tax and a receipt
 * number of an earlier return.
 */
const TestStore &generationStore();

namespace generationrows {

/// A saved Statement with its declared counts, as the basic information panel stores it.
void addStatement(const TestStore &data, FormKind form, int basicInfoId, int compId,
                  const QString &quarter, int noChallan, int noDeductee,
                  const QString &compName = QStringLiteral("KAVERI TEXTILES LTD"),
                  const QString &revisedRcptNo = QStringLiteral("0"));
void addChallan(const TestStore &data, FormKind form, int challanId, int basicInfoId,
                int compId, int slNo, double total);
/// One employee or deductee row under a challan.
void addAnnexureRow(const TestStore &data, FormKind form, int rowId, int basicInfoId,
                    int challanId, int srlNo, double amountPaid, double taxAmount);

} // namespace generationrows
