#pragma once

#include "filingcheck/rulebook.h"

/// The tests of the rule book's rules, one for each rule, which add a hit for each thing wrong.
namespace filingcheck::checks {

/// The longest name that the return file's name fields carry.
inline constexpr int longestName = 75;

// The Statement
void tan(const StatementFacts &, const CheckContext &, Hits &);
void deductorPan(const StatementFacts &, const CheckContext &, Hits &);
void deductorPin(const StatementFacts &, const CheckContext &, Hits &);
void responsiblePin(const StatementFacts &, const CheckContext &, Hits &);
void deductorName(const StatementFacts &, const CheckContext &, Hits &);
void responsibleName(const StatementFacts &, const CheckContext &, Hits &);
void financialYear(const StatementFacts &, const CheckContext &, Hits &);
void challanCount(const StatementFacts &, const CheckContext &, Hits &);
void rowCount(const StatementFacts &, const CheckContext &, Hits &);
void lateFeeUnpaid(const StatementFacts &, const CheckContext &, Hits &);

// A challan
void bankCode(const ChallanFacts &, const CheckContext &, Hits &);
void challanSerial(const ChallanFacts &, const CheckContext &, Hits &);
void bookEntry(const ChallanFacts &, const CheckContext &, Hits &);
void depositDate(const ChallanFacts &, const CheckContext &, Hits &);
void depositInFuture(const ChallanFacts &, const CheckContext &, Hits &);
void depositTooEarly(const ChallanFacts &, const CheckContext &, Hits &);
void depositBeforeDeduction(const ChallanFacts &, const CheckContext &, Hits &);
void challanTotal(const ChallanFacts &, const CheckContext &, Hits &);
void challanCoversRows(const ChallanFacts &, const CheckContext &, Hits &);
void challanAmountText(const ChallanFacts &, const CheckContext &, Hits &);
void challanAmountNegative(const ChallanFacts &, const CheckContext &, Hits &);
void interestUnpaid(const ChallanFacts &, const CheckContext &, Hits &);

// A row
void panShape(const RowValues &, const CheckContext &, Hits &);
void panDigits(const RowValues &, const CheckContext &, Hits &);
void panHolder(const RowValues &, const CheckContext &, Hits &);
void employeePan(const RowValues &, const CheckContext &, Hits &);
void companyPan(const RowValues &, const CheckContext &, Hits &);
void nonCompanyPan(const RowValues &, const CheckContext &, Hits &);
void panReference(const RowValues &, const CheckContext &, Hits &);
void withoutPanRate(const RowValues &, const CheckContext &, Hits &);
void nameLength(const RowValues &, const CheckContext &, Hits &);
void rowAmountText(const RowValues &, const CheckContext &, Hits &);
void rowAmountNegative(const RowValues &, const CheckContext &, Hits &);
void paidNotPositive(const RowValues &, const CheckContext &, Hits &);
void paidTooLarge(const RowValues &, const CheckContext &, Hits &);
void paidDecimals(const RowValues &, const CheckContext &, Hits &);
void rowTaxSum(const RowValues &, const CheckContext &, Hits &);
void rowDeposited(const RowValues &, const CheckContext &, Hits &);
void paymentDate(const RowValues &, const CheckContext &, Hits &);
void paymentOutsideQuarter(const RowValues &, const CheckContext &, Hits &);
void paymentInFuture(const RowValues &, const CheckContext &, Hits &);
void deductionDateMissing(const RowValues &, const CheckContext &, Hits &);
void deductionDateWithoutTax(const RowValues &, const CheckContext &, Hits &);
void deductionBeforeQuarter(const RowValues &, const CheckContext &, Hits &);
void deductionInFuture(const RowValues &, const CheckContext &, Hits &);
void rateWithoutTax(const RowValues &, const CheckContext &, Hits &);
void rateMismatch(const RowValues &, const CheckContext &, Hits &);
void rateBelowSection(const RowValues &, const CheckContext &, Hits &);
void noDeductionWithTax(const RowValues &, const CheckContext &, Hits &);

} // namespace filingcheck::checks
