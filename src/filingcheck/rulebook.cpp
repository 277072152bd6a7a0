#include "filingcheck/rulebook.h"

#include "filingcheck/rulechecks.h"

namespace filingcheck {

namespace {

constexpr Severity E = Severity::Error;
constexpr Severity W = Severity::Warning;

// Messages that a challan's rule and a row's share.
constexpr char amountTextMessage[] =
    "%1 holds %2, which is not a number; the return file would carry %3.";
constexpr char amountNegativeMessage[] = "%1 is %2; no amount in a return is negative.";
constexpr char dateInFutureMessage[] =
    "The %1 %2 is after the filing date %3; a date in a return is never in the future.";

// Rules hold for every financial year unless their years say otherwise; a year's change is a
// new line with its years, and an end year on the line it replaces.
const Rule<StatementFacts> statementBook[] = {
    {"TAN", E, everyForm, 0, 0, "TanNO",
     "The deductor's TAN is %1; a TAN is four letters, five digits and a letter, and a return "
     "is filed only under an allotted TAN, not TANAPPLIED.",
     checks::tan},
    {"DEDUCTOR-PAN", E, everyForm, 0, 0, "PanNo",
     "The deductor's PAN is %1; a PAN is five letters, four digits other than 0000 and a "
     "letter, or PANNOTREQD for a government deductor.",
     checks::deductorPan},
    {"DEDUCTOR-PIN", E, everyForm, 0, 0, "Pincode",
     "The PIN code of the deductor's address is %1; a PIN code is 6 digits.",
     checks::deductorPin},
    {"RESPONSIBLE-PIN", E, everyForm, 0, 0, "pPincode",
     "The PIN code of the responsible person's address is %1; a PIN code is 6 digits.",
     checks::responsiblePin},
    {"DEDUCTOR-NAME", E, everyForm, 0, 0, "CompName",
     "The deductor's name is %1 characters long; the return file carries at most 75.",
     checks::deductorName},
    {"RESPONSIBLE-NAME", E, everyForm, 0, 0, "PersonName",
     "The responsible person's name is %1 characters long; the return file carries at most 75.",
     checks::responsibleName},
    {"FINANCIAL-YEAR", E, everyForm, 0, 0, "FAYear",
     "The financial year is %1; it is written as its two years, such as 202627 for 2026-27.",
     checks::financialYear},
    {"CHALLAN-COUNT", E, everyForm, 0, 0, "NoChallan",
     "The number of challans declared is %1 and the Statement holds %2; the two are the same.",
     checks::challanCount},
    {"ROW-COUNT", E, everyForm, 0, 0, "NoDeductee",
     "The number of %1 rows declared is %2 and the Statement holds %3; the two are the same.",
     checks::rowCount},
    {"LATE-FEE", W, everyForm, 2012, 0, "Others",
     "The late fee under section 234E is %1 as of %2 and the challans' others hold %3 "
     "together; the fee is paid before filing, in the others of a challan.",
     checks::lateFeeUnpaid},
};

const Rule<ChallanFacts> challanBook[] = {
    {"BSR-CODE", E, everyForm, 0, 0, "BankCode",
     "The bank's BSR code is %1; a BSR code is 7 digits, as printed on the challan.",
     checks::bankCode},
    {"CHALLAN-SERIAL", E, everyForm, 0, 0, "TrVoucherNo",
     "The challan serial number is %1; it is 5 digits, as printed on the challan (a government "
     "deductor paying by book entry gives its transfer voucher number instead).",
     checks::challanSerial},
    {"BOOK-ENTRY", E, everyForm, 0, 0, "TransferVoucherNo",
     "The transfer voucher number is %1, which makes the challan a book entry; only a Central "
     "or State Government deductor pays by book entry. Empty it and give the challan serial "
     "number.",
     checks::bookEntry},
    {"DEPOSIT-DATE", E, everyForm, 0, 0, "DtTrVoucher",
     "The date of deposit is %1; give the date printed on the challan.", checks::depositDate},
    {"DEPOSIT-FUTURE", E, everyForm, 0, 0, "DtTrVoucher", dateInFutureMessage,
     checks::depositInFuture},
    {"DEPOSIT-TOO-EARLY", E, everyForm, 0, 0, "DtTrVoucher",
     "The date of deposit %1 is before %2; a challan of this Statement is deposited on or after "
     "1 April of the previous financial year.",
     checks::depositTooEarly},
    {"DEPOSIT-BEFORE-DEDUCTION", W, everyForm, 0, 0, "DtTrVoucher",
     "The date of deposit %1 is before the date of deduction %2 of row %3; tax is deposited "
     "after it is deducted.",
     checks::depositBeforeDeduction},
    {"CHALLAN-TOTAL", E, everyForm, 0, 0, "Total",
     "The total is %1, and tax %2, surcharge %3, education cess %4, interest %5 and others %6 "
     "make %7, in whole rupees as the return file carries them; the total is their sum.",
     checks::challanTotal},
    {"CHALLAN-COVERS-ROWS", E, everyForm, 0, 0, "AmountDeducted",
     "The challan deposits tax of %1 (its total less interest and others) and its rows %2; a "
     "challan's tax is at least the tax deposited in its rows.",
     checks::challanCoversRows},
    {"CHALLAN-AMOUNT-TEXT", E, everyForm, 0, 0, nullptr, amountTextMessage,
     checks::challanAmountText},
    {"CHALLAN-AMOUNT-NEGATIVE", E, everyForm, 0, 0, nullptr, amountNegativeMessage,
     checks::challanAmountNegative},
    {"INTEREST-UNPAID", W, deductionForms, 0, 0, "Interest",
     "Interest under section 201(1A) of %1 is due on this challan and its interest holds %2; "
     "the interest is paid before filing.",
     checks::interestUnpaid},
    {"INTEREST-UNPAID", W, form27EQ, 0, 0, "Interest",
     "Interest under section 206C(7) of %1 is due on this challan and its interest holds %2; "
     "the interest is paid before filing.",
     checks::interestUnpaid},
};

const Rule<RowValues> rowBook[] = {
    {"PAN-SHAPE", E, everyForm, 0, 0, "PAN",
     "The PAN is %1; a PAN is five letters, four digits and a letter, or PANAPPLIED, "
     "PANINVALID or PANNOTAVBL when the %2 has none.",
     checks::panShape},
    {"PAN-DIGITS", E, everyForm, 0, 0, "PAN",
     "The PAN %1 has 0000 for its digits; a PAN's digits are never all zero.",
     checks::panDigits},
    {"PAN-HOLDER", W, everyForm, 0, 0, "PAN",
     "The PAN %1 has %2 for its fourth letter, which names no kind of holder; it is one of %3.",
     checks::panHolder},
    {"EMPLOYEE-PAN", W, form24Q, 0, 0, "PAN",
     "The PAN %1 has %2 for its fourth letter; an employee is a person, whose PAN has P.",
     checks::employeePan},
    {"COMPANY-PAN", W, deducteeForms, 0, 0, "PAN",
     "The deductee code is 01, a company, and the PAN %1 has %2 for its fourth letter; a "
     "company's PAN has C.",
     checks::companyPan},
    {"NON-COMPANY-PAN", W, deducteeForms, 0, 0, "PAN",
     "The deductee code is 02, other than a company, and the PAN %1 has C for its fourth "
     "letter, a company's; check the code or the PAN.",
     checks::nonCompanyPan},
    {"PAN-REFERENCE", E, everyForm, 0, 0, "PANRef",
     "The PAN is %1 and no PAN reference number is given; a row without a PAN needs one.",
     checks::panReference},
    {"WITHOUT-PAN-RATE", W, everyForm, 0, 0, "Total",
     "The PAN is %1 and the tax deducted %2 is %3% of the amount paid %4; without a PAN, tax "
     "is deducted at %5% or more.",
     checks::withoutPanRate},
    {"NAME-LENGTH", E, everyForm, 0, 0, nullptr,
     "The name is %1 characters long; the return file carries at most 75.", checks::nameLength},
    {"ROW-AMOUNT-TEXT", E, everyForm, 0, 0, nullptr, amountTextMessage, checks::rowAmountText},
    {"ROW-AMOUNT-NEGATIVE", E, everyForm, 0, 0, nullptr, amountNegativeMessage,
     checks::rowAmountNegative},
    {"PAID-NOT-POSITIVE", E, everyForm, 0, 0, "AmtOfPayment",
     "The amount paid or credited is %1; it is more than 0.", checks::paidNotPositive},
    {"PAID-TOO-LARGE", E, everyForm, 0, 0, "AmtOfPayment",
     "The amount paid or credited is %1; a return carries at most 999999999.00.",
     checks::paidTooLarge},
    {"PAID-DECIMALS", E, everyForm, 0, 0, "AmtOfPayment",
     "The amount paid or credited %1 has more than two decimals; the return file would carry "
     "%2.",
     checks::paidDecimals},
    {"ROW-TAX-SUM", E, everyForm, 0, 0, "Total",
     "The total tax deducted is %1, and tax %2, surcharge %3 and cess %4 make %5; the total is "
     "their sum.",
     checks::rowTaxSum},
    {"ROW-DEPOSITED", E, everyForm, 0, 0, "TaxAmount",
     "The tax deposited is %1 and the total tax deducted %2; on a row the two are the same.",
     checks::rowDeposited},
    {"PAYMENT-DATE", E, everyForm, 0, 0, "PaymentDt",
     "The date of payment or credit is %1; give the date on which the amount was paid or "
     "credited.",
     checks::paymentDate},
    {"PAYMENT-OUTSIDE-QUARTER", E, everyForm, 0, 0, "PaymentDt",
     "The date of payment or credit %1 is outside the quarter, %2 to %3; a row is reported in "
     "the quarter of its payment or credit.",
     checks::paymentOutsideQuarter},
    {"PAYMENT-FUTURE", E, everyForm, 0, 0, "PaymentDt", dateInFutureMessage,
     checks::paymentInFuture},
    {"DEDUCTION-DATE-MISSING", E, everyForm, 0, 0, "TaxDeductDt",
     "Tax of %1 was deducted and the date of deduction is %2; give the date on which it was "
     "deducted.",
     checks::deductionDateMissing},
    {"DEDUCTION-DATE-WITHOUT-TAX", E, everyForm, 0, 0, "TaxDeductDt",
     "The date of deduction is %1 and no tax was deducted; a row without tax has no date of "
     "deduction.",
     checks::deductionDateWithoutTax},
    {"DEDUCTION-BEFORE-QUARTER", E, everyForm, 0, 0, "TaxDeductDt",
     "The date of deduction %1 is before the quarter starts on %2; tax reported in a quarter "
     "is deducted on or after its first day.",
     checks::deductionBeforeQuarter},
    {"DEDUCTION-FUTURE", E, everyForm, 0, 0, "TaxDeductDt", dateInFutureMessage,
     checks::deductionInFuture},
    {"RATE-WITHOUT-TAX", E, deducteeForms, 0, 0, "Rate",
     "The rate is %1% and no tax was deducted; the rate is 0 when there is no tax.",
     checks::rateWithoutTax},
    {"RATE-MISMATCH", W, deducteeForms, 0, 0, "Rate",
     "The rate is %1% and the tax %2 is %3% of the amount paid %4; the rate and the tax agree "
     "to a paisa.",
     checks::rateMismatch},
    {"RATE-BELOW-SECTION", W, form26Q, 0, 0, "Rate",
     "The rate is %1%, below the %2% of section code %3 on %4, and the row has no lower- or "
     "no-deduction flag; deduct at the section's rate or mark the row A or B.",
     checks::rateBelowSection},
    {"NO-DEDUCTION-WITH-TAX", E, everyForm, 0, 0, "NonDeductionflg",
     "The row is marked B, no deduction under a certificate, and tax of %1 was deducted; a "
     "row marked B has tax 0.",
     checks::noDeductionWithTax},
};

} // namespace

std::span<const Rule<StatementFacts>> statementRules()
{
    return statementBook;
}

std::span<const Rule<ChallanFacts>> challanRules()
{
    return challanBook;
}

std::span<const Rule<RowValues>> rowRules()
{
    return rowBook;
}

QString filled(const char *message, const QStringList &values)
{
    const QString text = QString::fromLatin1(message);
    QString result;
    result.reserve(text.size() + 64);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        if (ch == u'%' && i + 1 < text.size() && text.at(i + 1).isDigit()) {
            const int index = text.at(++i).digitValue() - 1;
            result += values.value(index);
        } else {
            result += ch;
        }
    }
    return result;
}

} // namespace filingcheck
