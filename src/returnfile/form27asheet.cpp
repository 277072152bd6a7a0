#include "returnfile/form27a.h"

#include "core/money.h"
#include "core/numbers.h"
#include "reports/reportbuilder.h"

namespace form27a {

namespace {

constexpr double labelWidth = 0.45;
const QString amountFormat = QStringLiteral("00.00");

/// The labels of the address lines, the first line standing beside "(d) Address".
const QStringList addressLabels = {
    QStringLiteral("(d) Address"),
    QStringLiteral("Name of Premises / Building"),
    QStringLiteral("Road / Street / Lane"),
    QStringLiteral("Area / Locality"),
    QStringLiteral("Town / District / City"),
};

void address(ReportBuilder &report, const std::array<QString, 5> &lines, const QString &state,
             const QString &pincode, const QString &phone)
{
    for (int line = 0; line < 5; ++line)
        report.field(addressLabels[line], lines[line], labelWidth);
    report.field(QStringLiteral("State"), state, labelWidth);
    report.field(QStringLiteral("PIN"), pincode, labelWidth);
    report.field(QStringLiteral("Phone"), phone, labelWidth);
}

/// An amount of the panel in the sheet's format, with its number for a workbook.
ReportCell amount(const QString &text)
{
    const Money value = Money::fromText(text);
    ReportCell cell(value.toPaddedText());
    cell.number = value.toDouble();
    cell.numberFormat = amountFormat;
    return cell;
}

} // namespace

Report sheet(const Form27AValues &values, const Form27APerson &person)
{
    const FormTraits &traits = formTraits(values.form);
    ReportBuilder report(caption);

    report.title(traits.collectsTax ? QStringLiteral("Form No. 27 B")
                                    : QStringLiteral("FORM NO. 27A"));
    report.text(QStringLiteral("[See rule 37B]"), ReportFont::Normal, Qt::AlignHCenter);
    report.space(4);
    report.text(QStringLiteral("From for furnishing information with the return or statement "
                               "of deduction of tax at source filed on computer media"),
                ReportFont::Bold, Qt::AlignHCenter);
    report.space(4);
    report.band({ReportCell(QStringLiteral("From :"), 0.25, 0.1, Qt::AlignRight),
                 ReportCell(values.quarterFrom, 0.35, 0.15),
                 ReportCell(QStringLiteral("To :"), 0.5, 0.1, Qt::AlignRight),
                 ReportCell(values.quarterTo, 0.6, 0.15)});

    report.space(6);
    report.field(QStringLiteral("(a) Tax Deduction Account Number"), values.tan, labelWidth);
    report.field(QStringLiteral("(b) Permanent Account Number"), values.pan, labelWidth);
    report.field(QStringLiteral("(c) Form No."), traits.formType, labelWidth);
    report.field(QStringLiteral("(d) Financial Year"), values.financialYear, labelWidth);
    report.field(QStringLiteral("(e) Assesment Year"), values.assessmentYear, labelWidth);
    report.field(QStringLiteral("(e) Previous receipt number"),
                 numbers::val(values.revisedReceiptNo) == 0 ? QString()
                                                            : values.revisedReceiptNo,
                 labelWidth);

    report.space(6);
    report.text(QStringLiteral("2.     Particulers of the  deductor/Collector"), ReportFont::Bold);
    report.keepWithNext();
    report.field(QStringLiteral("(a) Name Of Organisation"), values.compName, labelWidth);
    for (const QString &value : {values.branch, values.deductorType, values.email})
        report.field(QString(), value, labelWidth);
    address(report, values.address, values.state, values.pincode, values.phone);

    report.space(6);
    report.field(QStringLiteral("(a) Name"), values.personName, labelWidth);
    report.field(QString(), values.designation, labelWidth);
    address(report, person.address, person.state, person.pincode, person.phone);
    report.field(QString(), values.personEmail, labelWidth);

    report.space(6);
    report.text(QStringLiteral(" 4. Control Totals"), ReportFont::Bold);
    report.keepWithNext();
    report.beginTable({{QStringLiteral("Sr.No."), 0.16, Qt::AlignHCenter},
                       {QStringLiteral("Total Amount Paid"), 0.28, Qt::AlignRight},
                       {QStringLiteral("Tax Deducted \n/collection Rs"), 0.28, Qt::AlignRight},
                       {QStringLiteral("Tax Deposited\n(Total challan amount)Rs"), 0.28,
                        Qt::AlignRight}},
                      true);
    report.cellRow({ReportCell(traits.formType), amount(values.totalAmountPaid),
                    amount(values.totalTds), amount(values.totalDeposited)});
    report.endTable();

    report.space(6);
    report.field(QStringLiteral(" 5. Total Number of Annexures enclosed"), values.annexures,
                 labelWidth);
    report.field(QString(), values.otherInformation, labelWidth);
    report.field(QString(), values.deductees, labelWidth);

    report.space(10);
    report.text(QStringLiteral("Verification"), ReportFont::Heading, Qt::AlignHCenter);
    report.keepWithNext();
    report.space(4);
    report.text(QStringLiteral("I, ....................................................... "
                               "certify that all the particulars furnished above are correct "
                               "and complete."));
    report.space(10);
    // The place and the date on the left, the signature on the right, on the same lines.
    report.band({ReportCell(QStringLiteral("Place :\nDate :"), 0, 0.4),
                 ReportCell(QStringLiteral("Name and signature of the person responsible\n"
                                           " for deducting  tax at source \nDesignation"),
                            0.4, 0.6, Qt::AlignRight)});
    return report.finish();
}

} // namespace form27a
