#include "checkstore.h"
#include "filingcheck/filingcheck.h"
#include "support/testsuite.h"

using filingcheck::Severity;

namespace {

const QString E = QStringLiteral("error\t");
const QString W = QStringLiteral("warning\t");
const QString statement = QStringLiteral("statement\t");
const QString challan = QStringLiteral("challan 1\t");
const QString row = QStringLiteral("challan 1 row 1\t");

QString finding(const filingcheck::Finding &finding)
{
    return QStringList{finding.severity == Severity::Error ? "error" : "warning",
                       finding.where(), finding.column, finding.message}
        .join(u'\t');
}

const QString lateFee = QStringLiteral(
    "Others\tThe late fee under section 234E is 200.00 as of %1 and the challans' others hold "
    "0.00 together; the fee is paid before filing, in the others of a challan.");
const QString interestUnpaid = QStringLiteral(
    "Interest\tInterest under section 201(1A) of %1 is due on this challan and its interest "
    "holds 0.00; the interest is paid before filing.");
// Tax collected at source owes its interest under section 206C(7), at 1% a month throughout.
const QString collectedUnpaid = QString(interestUnpaid).replace("201(1A)", "206C(7)");
const QString inFuture = QStringLiteral(
    "%1 %2 is after the filing date %3; a date in a return is never in the future.");
const QString outsideQuarter = QStringLiteral(
    "PaymentDt\tThe date of payment or credit %1 is outside the quarter, 01/07/2026 to "
    "30/09/2026; a row is reported in the quarter of its payment or credit.");
const QString noPanReference = QStringLiteral(
    "PANRef\tThe PAN is %1 and no PAN reference number is given; a row without a PAN needs "
    "one.");
const QString withoutPanRate = QStringLiteral(
    "Total\tThe PAN is %1 and the tax deducted %2 is %3% of the amount paid %4; without a "
    "PAN, tax is deducted at 20% or more.");
const QString rateMismatch = QStringLiteral(
    "Rate\tThe rate is %1% and the tax %2 is %3% of the amount paid %4; the rate and the tax "
    "agree to a paisa.");
const QString belowSection = QStringLiteral(
    "Rate\tThe rate is %1%, below the 2.0000% of section code 94J on 20/07/2026, and the row "
    "has no lower- or no-deduction flag; deduct at the section's rate or mark the row A or B.");
const QString depositedBefore = QStringLiteral(
    "DtTrVoucher\tThe date of deposit %1 is before the date of deduction 20/07/2026 of row 1; "
    "tax is deposited after it is deducted.");
const QString name75 = QString(75, u'N');
const QString name76 = QString(76, u'N');
const QString nameTooLong =
    QStringLiteral("is 76 characters long; the return file carries at most 75.");
// A row without tax, as the screens save a no-deduction row.
const QString noTax = QStringLiteral("row.Tax=0; row.Total=0; row.TaxAmount=0; row.Rate=0; "
                                     "row.NonDeductionflg=B; ");

} // namespace

// The rule book over the clean Statement of each form, one change at a time: each rule fires and
// stays silent at its boundary, and a rule that a form lacks stays silent on that form.
class TestRules : public QObject
{
    Q_OBJECT

private slots:
    void rules_data()
    {
        // changes: "target.Column=value" apart by ";" (targets of checkstore::change), with
        // {name} for the form's name column; expected: the findings as "severity, where,
        // column, message" apart by tabs, {name} and {party} as in the changes
        testsuite::columns<int, QString, QDate, QStringList>("form", "changes", "filedOn",
                                                            "expected");
        const auto add = [](const char *name, const char *forms, const char *changes,
                            const QStringList &expected,
                            const QDate &filedOn = checkstore::filedOn) {
            for (const FormTraits &form : allForms()) {
                if (qstrcmp(forms, "all") != 0
                    && !QString::fromLatin1(forms).split(u' ').contains(form.formType))
                    continue;
                QStringList lines;
                for (QString line : expected) {
                    lines << line.replace("{name}", form.partyNameColumn)
                                 .replace("{party}", form.partyWord.toLower());
                }
                QTest::newRow(qPrintable(QStringLiteral("%1 [%2]").arg(name, form.formType)))
                    << int(form.kind)
                    << QString::fromLatin1(changes).replace("{name}", form.partyNameColumn)
                    << filedOn << lines;
            }
        };
        const auto on = [](int day, int month, int year) { return QDate(year, month, day); };

        add("clean", "all", "", {});

        // The Statement
        add("TAN applied for", "all", "basic.TanNO=TANAPPLIED",
            {E + statement + "TanNO\tThe deductor's TAN is \"TANAPPLIED\"; a TAN is four "
                             "letters, five digits and a letter, and a return is filed only "
                             "under an allotted TAN, not TANAPPLIED."});
        add("TAN of nine characters", "26Q", "basic.TanNO=BLRK0123E",
            {E + statement + "TanNO\tThe deductor's TAN is \"BLRK0123E\"; a TAN is four "
                             "letters, five digits and a letter, and a return is filed only "
                             "under an allotted TAN, not TANAPPLIED."});
        add("deductor without a PAN of its own", "all", "basic.PanNo=PANNOTREQD", {});
        add("deductor's PAN of digits 0000", "26Q", "basic.PanNo=AAACK0000F",
            {E + statement + "PanNo\tThe deductor's PAN is \"AAACK0000F\"; a PAN is five "
                             "letters, four digits other than 0000 and a letter, or "
                             "PANNOTREQD for a government deductor."});
        add("PIN of five digits", "26Q", "basic.Pincode=56001",
            {E + statement + "Pincode\tThe PIN code of the deductor's address is \"56001\"; "
                             "a PIN code is 6 digits."});
        add("responsible person's PIN empty", "24Q", "basic.pPincode=NULL",
            {E + statement + "pPincode\tThe PIN code of the responsible person's address is "
                             "empty; a PIN code is 6 digits."});
        add("names of 75 characters", "all",
            qPrintable("basic.CompName=" + name75 + "; basic.PersonName=" + name75
                       + "; row.{name}=" + name75),
            {});
        add("names of 76 characters", "all",
            qPrintable("basic.CompName=" + name76 + "; basic.PersonName=" + name76
                       + "; row.{name}=" + name76),
            {E + statement + "CompName\tThe deductor's name " + nameTooLong,
             E + statement + "PersonName\tThe responsible person's name " + nameTooLong,
             E + row + "{name}\tThe name " + nameTooLong});
        add("financial year whose years do not follow", "27Q", "basic.FAYear=202628",
            {E + statement + "FAYear\tThe financial year is \"202628\"; it is written as its "
                             "two years, such as 202627 for 2026-27."});
        add("counts that differ from the records", "all",
            "basic.NoChallan=2; basic.NoDeductee=NULL",
            {E + statement + "NoChallan\tThe number of challans declared is 2 and the "
                             "Statement holds 1; the two are the same.",
             E + statement + "NoDeductee\tThe number of {party} rows declared is empty and "
                             "the Statement holds 1; the two are the same."});
        add("filed on its due date", "24Q 26Q 27Q", "", {}, on(31, 10, 2026));
        add("filed a day late", "24Q 26Q 27Q", "", {W + statement + lateFee.arg("01/11/2026")},
            on(1, 11, 2026));
        add("filed a day late", "27EQ", "", {W + statement + lateFee.arg("16/10/2026")},
            on(16, 10, 2026));
        add("filed late with the fee in others", "24Q 26Q 27Q",
            "challan.Others=200; challan.Total=1200", {}, on(1, 11, 2026));

        // A challan
        add("BSR code of six digits", "all", "challan.BankCode=051030",
            {E + challan + "BankCode\tThe bank's BSR code is \"051030\"; a BSR code is 7 "
                           "digits, as printed on the challan."});
        add("challan serial of six digits", "all", "challan.TrVoucherNo=001234",
            {E + challan + "TrVoucherNo\tThe challan serial number is \"001234\"; it is 5 "
                           "digits, as printed on the challan (a government deductor paying "
                           "by book entry gives its transfer voucher number instead)."});
        add("book entry of a government deductor, on the day of deduction", "all",
            "company.DStatus=A; challan.TrVoucherNo=; challan.TransferVoucherNo=1234567; "
            "challan.DtTrVoucher=2026-07-20",
            {});
        // A book entry is due on the day of deduction: July and August at 1.5% of 1000.00.
        add("book entry of a government deductor, after the day of deduction", "24Q 26Q 27Q",
            "company.DStatus=S; challan.TrVoucherNo=; challan.TransferVoucherNo=1234567",
            {W + challan + interestUnpaid.arg("30.00")});
        add("book entry of a government collector, after the day of collection", "27EQ",
            "company.DStatus=S; challan.TrVoucherNo=; challan.TransferVoucherNo=1234567",
            {W + challan + collectedUnpaid.arg("20.00")});
        add("transfer voucher of a company", "all", "challan.TransferVoucherNo=0",
            {E + challan + "TransferVoucherNo\tThe transfer voucher number is \"0\", which "
                           "makes the challan a book entry; only a Central or State Government "
                           "deductor pays by book entry. Empty it and give the challan serial "
                           "number."});
        add("nil statement without serial or bank code", "all",
            qPrintable(noTax + "row.TaxDeductDt=NULL; challan.AmountDeducted=0; "
                               "challan.Total=0; challan.BankCode=; challan.TrVoucherNo="),
            {});
        add("deposit date impossible", "all", "challan.DtTrVoucher=2026-02-30",
            {E + challan + "DtTrVoucher\tThe date of deposit is \"2026-02-30\"; give the date "
                           "printed on the challan."});
        add("deposit date empty", "26Q", "challan.DtTrVoucher=NULL",
            {E + challan + "DtTrVoucher\tThe date of deposit is empty; give the date printed "
                           "on the challan."});
        add("filed before the deposit", "all", "",
            {E + challan + "DtTrVoucher\t"
                 + inFuture.arg("The date of deposit", "07/08/2026", "06/08/2026")},
            on(6, 8, 2026));
        add("filed on the day of the deposit", "all", "", {}, on(7, 8, 2026));
        add("filed before the payment", "all", "",
            {E + challan + "DtTrVoucher\t"
                 + inFuture.arg("The date of deposit", "07/08/2026", "19/07/2026"),
             E + row + "PaymentDt\t"
                 + inFuture.arg("The date of payment or credit", "20/07/2026", "19/07/2026"),
             E + row + "TaxDeductDt\t"
                 + inFuture.arg("The date of deduction", "20/07/2026", "19/07/2026")},
            on(19, 7, 2026));
        add("deposited before the previous financial year", "all",
            "challan.DtTrVoucher=2025-03-31",
            {E + challan + "DtTrVoucher\tThe date of deposit 31/03/2025 is before 01/04/2025; "
                           "a challan of this Statement is deposited on or after 1 April of the "
                           "previous financial year.",
             W + challan + depositedBefore.arg("31/03/2025")});
        add("deposited on 1 April of the previous financial year", "26Q",
            "challan.DtTrVoucher=2025-04-01", {W + challan + depositedBefore.arg("01/04/2025")});
        add("deposited on the day of deduction", "all", "challan.DtTrVoucher=2026-07-20", {});
        add("deposited the day before deduction", "all", "challan.DtTrVoucher=2026-07-19",
            {W + challan + depositedBefore.arg("19/07/2026")});
        add("challan total a rupee over", "all", "challan.Total=1001",
            {E + challan + "Total\tThe total is 1001.00, and tax 1000.00, surcharge 0.00, "
                           "education cess 0.00, interest 0.00 and others 0.00 make 1000.00, in "
                           "whole rupees as the return file carries them; the total is their "
                           "sum."});
        // 1000.50 and 0.50 add up to 1001.00, but the file carries 1000.00 and 0.00.
        add("challan amounts that the file rounds apart", "all",
            "challan.AmountDeducted=1000.5; challan.Surcharge=0.5; challan.Total=1001",
            {E + challan + "Total\tThe total is 1001.00, and tax 1000.00, surcharge 0.00, "
                           "education cess 0.00, interest 0.00 and others 0.00 make 1000.00, in "
                           "whole rupees as the return file carries them; the total is their "
                           "sum."});
        add("challan amounts that the file rounds alike", "all",
            "challan.AmountDeducted=999.5; challan.Surcharge=0.5; challan.Total=1000", {});
        add("challan short of its rows", "all", "challan.AmountDeducted=999; challan.Total=999",
            {E + challan + "AmountDeducted\tThe challan deposits tax of 999.00 (its total less "
                           "interest and others) and its rows 1000.00; a challan's tax is at "
                           "least the tax deposited in its rows."});
        add("challan with interest and others beside the tax", "all",
            "challan.Interest=50; challan.Others=25; challan.Total=1075", {});
        add("challan amount that is text", "all", "challan.Surcharge=abc",
            {E + challan + "Surcharge\tSurcharge holds \"abc\", which is not a number; the "
                           "return file would carry 0.00."});
        add("challan amount negative", "all", "challan.Others=-5; challan.Total=995",
            {E + challan + "Others\tOthers is -5.00; no amount in a return is negative."});
        add("deposited a day late", "24Q 26Q 27Q", "challan.DtTrVoucher=2026-08-08",
            {W + challan + interestUnpaid.arg("30.00")});
        add("deposited a day late", "27EQ", "challan.DtTrVoucher=2026-08-08",
            {W + challan + collectedUnpaid.arg("20.00")});
        add("interest negative while none is due", "all",
            "challan.Interest=-5; challan.Total=995",
            {E + challan + "Interest\tInterest is -5.00; no amount in a return is negative."});
        add("deposited a day late with the interest", "all",
            "challan.DtTrVoucher=2026-08-08; challan.Interest=30; challan.Total=1030", {});

        // A row
        add("PAN of nine characters", "all", "row.PAN=ABCPE1234",
            {E + row + "PAN\tThe PAN is \"ABCPE1234\"; a PAN is five letters, four digits and "
                       "a letter, or PANAPPLIED, PANINVALID or PANNOTAVBL when the {party} has "
                       "none."});
        add("PAN in small letters", "26Q", "row.PAN=abcpe1234f",
            {E + row + "PAN\tThe PAN is \"abcpe1234f\"; a PAN is five letters, four digits "
                       "and a letter, or PANAPPLIED, PANINVALID or PANNOTAVBL when the {party} "
                       "has none."});
        add("PAN empty", "24Q", "row.PAN=",
            {E + row + "PAN\tThe PAN is empty; a PAN is five letters, four digits and a "
                       "letter, or PANAPPLIED, PANINVALID or PANNOTAVBL when the {party} has "
                       "none."});
        add("PAN of digits 0000", "all", "row.PAN=AAAPZ0000Z",
            {E + row + "PAN\tThe PAN AAAPZ0000Z has 0000 for its digits; a PAN's digits are "
                       "never all zero."});
        add("PAN of digits 0001", "all", "row.PAN=AAAPZ0001Z", {});
        const QString noKind = "PAN\tThe PAN ABCXE1234F has X for its fourth letter, which "
                               "names no kind of holder; it is one of P, C, H, F, A, T, B, L, "
                               "J, G, K, E.";
        add("PAN of no kind of holder", "24Q", "row.PAN=ABCXE1234F",
            {W + row + noKind,
             W + row + "PAN\tThe PAN ABCXE1234F has X for its fourth letter; an employee is a "
                       "person, whose PAN has P."});
        add("PAN of no kind of holder", "26Q 27Q 27EQ", "row.PAN=ABCXE1234F", {W + row + noKind});
        add("PAN of a company", "24Q", "row.PAN=ABCCE1234F",
            {W + row + "PAN\tThe PAN ABCCE1234F has C for its fourth letter; an employee is a "
                       "person, whose PAN has P."});
        add("PAN of a company", "26Q 27Q 27EQ", "row.PAN=ABCCE1234F",
            {W + row + "PAN\tThe deductee code is 02, other than a company, and the PAN "
                       "ABCCE1234F has C for its fourth letter, a company's; check the code or "
                       "the PAN."});
        add("company code with a person's PAN", "26Q 27Q 27EQ", "row.DeducteeCode=01",
            {W + row + "PAN\tThe deductee code is 01, a company, and the PAN ABCPE1234F has P "
                       "for its fourth letter; a company's PAN has C."});
        add("company code with a company's PAN", "26Q 27Q 27EQ",
            "row.DeducteeCode=01; row.PAN=ABCCE1234F", {});
        for (const char *placeholder : {"PANAPPLIED", "PANINVALID", "PANNOTAVBL"}) {
            const QByteArray changes = QByteArray("row.PAN=") + placeholder;
            add(placeholder, "24Q 26Q 27Q", changes,
                {E + row + noPanReference.arg(placeholder),
                 W + row + withoutPanRate.arg(placeholder, "1000.00", "10.0000", "10000.00")});
            add(placeholder, "27EQ", changes, {E + row + noPanReference.arg(placeholder)});
        }
        const char *higherRate = "row.PAN=PANNOTAVBL; row.PANRef=AZ12345678; row.Tax=2000; "
                                 "row.Total=2000; row.TaxAmount=2000; row.Rate=20; "
                                 "challan.AmountDeducted=2000; challan.Total=2000";
        add("without a PAN at 20%", "all", higherRate, {});
        const char *fivePercent = "row.PAN=PANNOTAVBL; row.PANRef=AZ12345678; row.Tax=500; "
                                  "row.Total=500; row.TaxAmount=500; row.Rate=5";
        add("without a PAN at 5%", "27EQ", fivePercent, {});
        add("without a PAN at 5%", "24Q 27Q", fivePercent,
            {W + row + withoutPanRate.arg("PANNOTAVBL", "500.00", "5.0000", "10000.00")});
        add("without a PAN at 5%", "26Q", fivePercent,
            {W + row + withoutPanRate.arg("PANNOTAVBL", "500.00", "5.0000", "10000.00")});
        add("row amount that is text", "all", "row.Cess=abc",
            {E + row + "Cess\tCess holds \"abc\", which is not a number; the return file would "
                       "carry 0.00."});
        add("purchase value that is text", "27EQ", "row.TotvalPur=1,000",
            {E + row + "TotvalPur\tTotal Value Of Purchase holds \"1,000\", which is not a "
                       "number; the return file would carry 1.00."});
        const QString rateText = "Rate\tRate holds \"ten\", which is not a number; the return "
                                 "file would carry 0.0000.";
        add("rate that is text", "27Q 27EQ", "row.Rate=ten",
            {E + row + rateText,
             W + row + rateMismatch.arg("0.0000", "1000.00", "10.0000", "10000.00")});
        add("rate that is text", "26Q", "row.Rate=ten",
            {E + row + rateText,
             W + row + rateMismatch.arg("0.0000", "1000.00", "10.0000", "10000.00"),
             W + row + belowSection.arg("0.0000")});
        add("row amount negative", "all", "row.Cess=-10; row.Surcharge=10",
            {E + row + "Cess\tCess is -10.00; no amount in a return is negative."});
        add("amount paid of 0", "all", "row.AmtOfPayment=0",
            {E + row + "AmtOfPayment\tThe amount paid or credited is 0.00; it is more than 0."});
        add("amount paid past the largest", "all", "row.AmtOfPayment=1000000000",
            {E + row + "AmtOfPayment\tThe amount paid or credited is 1000000000.00; a return "
                       "carries at most 999999999.00."});
        add("the largest amount paid", "all",
            "row.AmtOfPayment=999999999; row.Rate=0.0001; row.NonDeductionflg=A", {});
        add("amount paid with three decimals", "all", "row.AmtOfPayment=10000.005",
            {E + row + "AmtOfPayment\tThe amount paid or credited 10000.005 has more than two "
                       "decimals; the return file would carry 10000.01."});
        add("amount paid with two decimals", "all", "row.AmtOfPayment=10000.01", {});
        add("row tax not adding up", "all", "row.Surcharge=1",
            {E + row + "Total\tThe total tax deducted is 1000.00, and tax 1000.00, surcharge "
                       "1.00 and cess 0.00 make 1001.00; the total is their sum."});
        add("deposited other than deducted", "all", "row.TaxAmount=999",
            {E + row + "TaxAmount\tThe tax deposited is 999.00 and the total tax deducted "
                       "1000.00; on a row the two are the same."});
        add("payment date impossible", "all", "row.PaymentDt=2026-13-01",
            {E + row + "PaymentDt\tThe date of payment or credit is \"2026-13-01\"; give the "
                       "date on which the amount was paid or credited."});
        add("payment date empty", "26Q", "row.PaymentDt=NULL",
            {E + row + "PaymentDt\tThe date of payment or credit is empty; give the date on "
                       "which the amount was paid or credited."});
        // Deducted a day after the payment across a month end: two months at 1% of 1000.00.
        add("paid before the quarter, deducted a day later", "24Q 26Q 27Q",
            "row.PaymentDt=2026-06-30; row.TaxDeductDt=2026-07-01",
            {E + row + outsideQuarter.arg("30/06/2026"),
             W + challan + interestUnpaid.arg("20.00")});
        add("paid before the quarter, deducted a day later", "27EQ",
            "row.PaymentDt=2026-06-30; row.TaxDeductDt=2026-07-01",
            {E + row + outsideQuarter.arg("30/06/2026"),
             W + challan + collectedUnpaid.arg("20.00")});
        add("paid on the first day of the quarter", "all",
            "row.PaymentDt=2026-07-01; row.TaxDeductDt=2026-07-01", {});
        add("paid on the last day of the quarter", "all",
            "row.PaymentDt=2026-09-30; row.TaxDeductDt=2026-09-30; "
            "challan.DtTrVoucher=2026-10-07",
            {});
        add("paid after the quarter", "all",
            "row.PaymentDt=2026-10-01; row.TaxDeductDt=2026-10-01; "
            "challan.DtTrVoucher=2026-10-07",
            {E + row + outsideQuarter.arg("01/10/2026")});
        add("deducted without a date", "all", "row.TaxDeductDt=NULL",
            {E + row + "TaxDeductDt\tTax of 1000.00 was deducted and the date of deduction is "
                       "empty; give the date on which it was deducted."});
        add("no tax with a date of deduction", "all", qPrintable(noTax),
            {E + row + "TaxDeductDt\tThe date of deduction is 20/07/2026 and no tax was "
                       "deducted; a row without tax has no date of deduction."});
        add("no tax without a date of deduction", "all",
            qPrintable(noTax + "row.TaxDeductDt=NULL"), {});
        // Deducted in June and deposited in August: June to August at 1.5% of 1000.00.
        add("deducted before the quarter", "24Q 26Q 27Q",
            "row.PaymentDt=2026-06-30; row.TaxDeductDt=2026-06-30",
            {E + row + outsideQuarter.arg("30/06/2026"),
             E + row + "TaxDeductDt\tThe date of deduction 30/06/2026 is before the quarter "
                       "starts on 01/07/2026; tax reported in a quarter is deducted on or after "
                       "its first day.",
             W + challan + interestUnpaid.arg("45.00")});
        add("deducted before the quarter", "27EQ",
            "row.PaymentDt=2026-06-30; row.TaxDeductDt=2026-06-30",
            {E + row + outsideQuarter.arg("30/06/2026"),
             E + row + "TaxDeductDt\tThe date of deduction 30/06/2026 is before the quarter "
                       "starts on 01/07/2026; tax reported in a quarter is deducted on or after "
                       "its first day.",
             W + challan + collectedUnpaid.arg("30.00")});
        add("rate with no tax", "26Q 27Q 27EQ",
            "row.Tax=0; row.Total=0; row.TaxAmount=0; row.TaxDeductDt=NULL; "
            "row.NonDeductionflg=B",
            {E + row + "Rate\tThe rate is 10.0000% and no tax was deducted; the rate is 0 when "
                       "there is no tax."});
        add("rate other than the tax's", "26Q 27Q 27EQ", "row.Rate=9",
            {W + row + rateMismatch.arg("9.0000", "1000.00", "10.0000", "10000.00")});
        const char *paisa = "challan.AmountDeducted=1001; challan.Total=1001; "
                            "row.AmtOfPayment=10000.20; row.Tax=%1; row.Total=%1; "
                            "row.TaxAmount=%1";
        add("tax to the paisa from the rate", "all",
            qPrintable(QString::fromLatin1(paisa).arg("1000.02")), {});
        add("tax to the rupee from the amount", "all", "row.AmtOfPayment=10005", {});
        add("tax two paise off the rate", "26Q 27Q 27EQ",
            qPrintable(QString::fromLatin1(paisa).arg("1000.04")),
            {W + row + rateMismatch.arg("10.0000", "1000.04", "10.0002", "10000.20")});
        const char *lowRate = "row.Rate=1; row.Tax=100; row.Total=100; row.TaxAmount=100";
        add("rate below the section's", "26Q", lowRate, {W + row + belowSection.arg("1.0000")});
        add("rate below the section's", "24Q 27Q 27EQ", lowRate, {});
        // The file carries the challan's section for its rows.
        add("rate below the challan's section and not the row's", "26Q",
            qPrintable(QString::fromLatin1(lowRate) + "; row.Section=94C"),
            {W + row + belowSection.arg("1.0000")});
        add("rate below the section's with a lower deduction", "26Q",
            qPrintable(QString::fromLatin1(lowRate) + "; row.NonDeductionflg=A"), {});
        add("no deduction with tax", "all", "row.NonDeductionflg=B",
            {E + row + "NonDeductionflg\tThe row is marked B, no deduction under a "
                       "certificate, and tax of 1000.00 was deducted; a row marked B has tax "
                       "0."});
    }
    void rules()
    {
        QFETCH(int, form);
        QFETCH(QString, changes);
        QFETCH(QDate, filedOn);
        QFETCH(QStringList, expected);
        const FormTraits &traits = formTraits(FormKind(form));
        const TestStore data(checkstore::cleanStore());
        for (const QString &change : changes.split(u';', Qt::SkipEmptyParts)) {
            const qsizetype dot = change.indexOf(u'.');
            const qsizetype equals = change.indexOf(u'=');
            checkstore::change(data, traits, change.left(dot).trimmed(),
                               change.mid(dot + 1, equals - dot - 1), change.mid(equals + 1));
        }
        const filingcheck::CheckResult result =
            filingcheck::FilingCheck(data.store(), traits).run(checkstore::basicInfoId, filedOn);
        QStringList found;
        for (const filingcheck::Finding &each : result.findings)
            found << finding(each);
        // Joined, so that a failure shows both lists whole.
        QCOMPARE(found.join(u'\n'), expected.join(u'\n'));
    }
};

KELVORA_TEST_OBJECT(TestRules);
#include "test_rules.moc"
