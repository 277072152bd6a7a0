#include "reports/form16adocument.h"

#include "reports/reportbuilder.h"
#include "reports/reportformat.h"

namespace form16adocument {

namespace {

using reportformat::indianAmount;

QString joined(const QStringList &parts)
{
    QStringList kept;
    for (const QString &part : parts) {
        if (!part.isEmpty())
            kept << part;
    }
    return kept.join(QLatin1Char('\n'));
}

QString addressBlock(const QString &name, const std::array<QString, 5> &lines,
                     const QString &state, const QString &pin)
{
    QStringList parts{name};
    parts.append(QStringList(lines.begin(), lines.end()));
    parts << state << (pin.isEmpty() ? QString() : QStringLiteral("PIN : ") + pin);
    return joined(parts);
}

void parties(ReportBuilder &report, const Form16ACertificate &certificate, bool collected)
{
    const QString deductor = collected ? QStringLiteral("collector") : QStringLiteral("deductor");
    const QString deductee = collected ? QStringLiteral("collectee") : QStringLiteral("deductee");
    report.band({ReportCell(QStringLiteral("Name and address of the ") + deductor, 0, 0.5,
                            Qt::AlignLeft, true),
                 ReportCell(QStringLiteral("Name and address of the ") + deductee, 0.5, 0.5,
                            Qt::AlignLeft, true)},
                ReportFont::Bold);
    report.keepWithNext();
    report.band({ReportCell(addressBlock(certificate.deductorName, certificate.deductorAddress,
                                         certificate.deductorState,
                                         certificate.deductorPincode),
                            0, 0.5, Qt::AlignLeft, true),
                 ReportCell(addressBlock(certificate.deducteeName, certificate.deducteeAddress,
                                         certificate.deducteeState, certificate.deducteePin),
                            0.5, 0.5, Qt::AlignLeft, true)});
    report.band({ReportCell(QStringLiteral("TAN of the ") + deductor, 0, 0.2, Qt::AlignLeft, true),
                 ReportCell(certificate.deductorTan, 0.2, 0.13, Qt::AlignLeft, true),
                 ReportCell(QStringLiteral("PAN of the ") + deductor, 0.33, 0.2, Qt::AlignLeft,
                            true),
                 ReportCell(certificate.deductorPan, 0.53, 0.13, Qt::AlignLeft, true),
                 ReportCell(QStringLiteral("PAN of the ") + deductee, 0.66, 0.2, Qt::AlignLeft,
                            true),
                 ReportCell(certificate.deducteePan, 0.86, 0.14, Qt::AlignLeft, true)});
}

void payments(ReportBuilder &report, const Form16ACertificate &certificate)
{
    report.beginTable({{QStringLiteral("Sl.\nNo."), 0.04, Qt::AlignRight},
                       {QStringLiteral("Amount paid /\ncredited (Rs.)"), 0.11, Qt::AlignRight},
                       {QStringLiteral("Date of\npayment /\ncredit"), 0.085, Qt::AlignHCenter},
                       {QStringLiteral("TDS\n(Rs.)"), 0.1, Qt::AlignRight},
                       {QStringLiteral("Surcharge\n(Rs.)"), 0.09, Qt::AlignRight},
                       {QStringLiteral("Education\ncess (Rs.)"), 0.09, Qt::AlignRight},
                       {QStringLiteral("Total tax\ndeposited\n(Rs.)"), 0.11, Qt::AlignRight},
                       {QStringLiteral("Cheque /\nDD No."), 0.08},
                       {QStringLiteral("BSR code\nof bank\nbranch"), 0.08},
                       {QStringLiteral("Date on\nwhich tax\ndeposited"), 0.085, Qt::AlignHCenter},
                       {QStringLiteral("Transfer\nvoucher /\nchallan No."), 0.13}},
                      true);
    int serial = 0;
    for (const Form16APayment &payment : certificate.payments) {
        report.row({QString::number(++serial), indianAmount(payment.amountPaid),
                    payment.paymentDate, indianAmount(payment.tds),
                    indianAmount(payment.surcharge), indianAmount(payment.cess),
                    indianAmount(payment.total), payment.chequeNo, payment.bsrCode,
                    payment.depositDate, payment.voucherNo});
    }
    Money tds;
    Money surcharge;
    Money cess;
    for (const Form16APayment &payment : certificate.payments) {
        tds += payment.tds;
        surcharge += payment.surcharge;
        cess += payment.cess;
    }
    report.row({QStringLiteral("Total"), indianAmount(certificate.totalPaid()), QString(),
                indianAmount(tds), indianAmount(surcharge), indianAmount(cess),
                indianAmount(certificate.totalTax())});
    report.endTable();
}

void certificatePage(ReportBuilder &report, const Form16ACertificate &certificate,
                     const Form16AHeading &heading)
{
    report.title(heading.collected ? QStringLiteral("FORM NO. 27D")
                                   : QStringLiteral("FORM NO. 16A"));
    report.text(heading.collected ? QStringLiteral("[See rule 37D]")
                                  : QStringLiteral("[See rule 31(1)(b)]"),
                ReportFont::Normal, Qt::AlignHCenter);
    report.text(heading.collected
                    ? QStringLiteral("Certificate of collection of tax at source under section "
                                     "206C of the Income-tax Act, 1961")
                    : QStringLiteral("Certificate of deduction of tax at source under section "
                                     "203 of the Income-tax Act, 1961"),
                ReportFont::Bold, Qt::AlignHCenter);
    if (!heading.period.isEmpty())
        report.text(heading.period, ReportFont::Normal, Qt::AlignHCenter);
    report.space(8);
    parties(report, certificate, heading.collected);
    report.space(6);
    report.field(QStringLiteral("Acknowledgement No."), heading.inputs.acknowledgementNo, 0.25);
    report.field(QStringLiteral("Section"), certificate.sectionNo, 0.25);
    report.field(QStringLiteral("Nature of payment"), certificate.sectionDescription, 0.25);
    report.space(8);
    report.text(QStringLiteral("DETAILS OF PAYMENT, TAX %1 AND DEPOSIT OF TAX INTO CENTRAL "
                               "GOVERNMENT ACCOUNT")
                    .arg(heading.collected ? QStringLiteral("COLLECTION")
                                           : QStringLiteral("DEDUCTION")),
                ReportFont::Bold, Qt::AlignHCenter);
    report.keepWithNext();
    payments(report, certificate);
    report.space(8);
    report.text(QStringLiteral("Certified that a sum of Rs. %1 (Rupees %2) has been %3 at source "
                               "and paid to the credit of the Central Government as per details "
                               "given above.")
                    .arg(indianAmount(certificate.totalTax()), certificate.words,
                         heading.collected ? QStringLiteral("collected")
                                           : QStringLiteral("deducted")));
    if (!heading.inputs.remarks.isEmpty()) {
        report.space(6);
        report.field(QStringLiteral("Remarks"), heading.inputs.remarks, 0.25);
    }
    report.space(24);
    report.band({ReportCell(QStringLiteral("Place : ") + heading.inputs.place, 0, 0.45),
                 ReportCell(QStringLiteral("Signature of the person responsible for %1 of tax")
                                .arg(heading.collected ? QStringLiteral("collection")
                                                       : QStringLiteral("deduction")),
                            0.45, 0.55, Qt::AlignRight)});
    report.band({ReportCell(QStringLiteral("Date : ") + heading.inputs.date, 0, 0.45),
                 ReportCell(QStringLiteral("Full Name : ") + heading.inputs.fullName, 0.45, 0.55,
                            Qt::AlignRight)});
    report.band({ReportCell(QStringLiteral("Designation : ") + heading.inputs.designation, 0.45,
                            0.55, Qt::AlignRight)});
}

} // namespace

Report build(const QList<Form16ACertificate> &certificates, const Form16AHeading &heading)
{
    ReportBuilder report(caption);
    // The payments table needs the width of a landscape page.
    report.setOrientation(QPageLayout::Landscape);
    for (const Form16ACertificate &certificate : certificates) {
        report.pageBreak();
        certificatePage(report, certificate, heading);
    }
    return report.finish();
}

} // namespace form16adocument
