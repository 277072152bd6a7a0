#include "reports/form16acertificate.h"

#include "core/numbers.h"
#include "core/records.h"
#include "core/storeerror.h"
#include "reports/inwords.h"
#include "reports/reportformat.h"

#include <QSqlError>

namespace {

// Positions in a row of the rows table, then the words and the PIN.
enum Column {
    DeductorName = 2, DeductorFlat = 3, DeductorState = 8, DeductorPincode = 9,
    DeductorTan = 10, DeductorPan = 11, DeducteeId = 13, DeducteeName = 14, DeducteeFlat = 15,
    DeducteeState = 20, SectionNo = 21, SectionDescription = 22, DeducteePan = 23,
    AmountPaid = 24, PaymentDate = 25, Tds = 26, Surcharge = 27, Cess = 28, Total = 29,
    ChequeNo = 30, BsrCode = 31, DepositDate = 32, VoucherNo = 33, Words = 34, Pin = 35,
};

Form16ACertificate certificateOf(const QSqlQuery &row)
{
    const auto text = [&row](int column) { return records::nullToText(row.value(column)); };
    Form16ACertificate certificate;
    certificate.deductorName = text(DeductorName);
    certificate.deductorState = text(DeductorState);
    certificate.deductorPincode = text(DeductorPincode);
    certificate.deductorTan = text(DeductorTan);
    certificate.deductorPan = text(DeductorPan);
    certificate.deducteeId = row.value(DeducteeId).toInt();
    certificate.deducteeName = text(DeducteeName);
    for (int line = 0; line < 5; ++line) {
        certificate.deductorAddress[line] = text(DeductorFlat + line);
        certificate.deducteeAddress[line] = text(DeducteeFlat + line);
    }
    certificate.deducteeState = text(DeducteeState);
    certificate.deducteePin = text(Pin);
    certificate.deducteePan = text(DeducteePan);
    certificate.sectionNo = text(SectionNo);
    certificate.sectionDescription = text(SectionDescription);
    certificate.words = row.value(Words).toString();
    return certificate;
}

Form16APayment paymentOf(const QSqlQuery &row)
{
    const auto text = [&row](int column) { return records::nullToText(row.value(column)); };
    const auto money = [&row](int column) { return Money::fromStored(row.value(column)); };
    return {money(AmountPaid), reportformat::storedDateText(text(PaymentDate)), money(Tds),
            money(Surcharge), money(Cess), money(Total), text(ChequeNo), text(BsrCode),
            reportformat::storedDateText(text(DepositDate)), text(VoucherNo)};
}

bool sameText(const QVariant &a, const QString &b)
{
    return records::nullToText(a).compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

Money Form16ACertificate::totalPaid() const
{
    Money sum;
    for (const Form16APayment &payment : payments)
        sum += payment.amountPaid;
    return sum;
}

Money Form16ACertificate::totalTax() const
{
    Money sum;
    for (const Form16APayment &payment : payments)
        sum += payment.total;
    return sum;
}

Form16ACertificateReader::Form16ACertificateReader(QSqlQuery rows, Deductee deductee)
    : m_rows(std::move(rows)), m_deductee(deductee)
{
}

QList<Form16ACertificate> Form16ACertificateReader::nextDeductee()
{
    QList<Form16ACertificate> certificates;
    if (!m_pending && !advance())
        return certificates;
    m_pending = false;
    certificates.append(certificateOf(m_rows));
    certificates.last().payments.append(paymentOf(m_rows));
    while (advance()) {
        const Form16ACertificate &current = certificates.last();
        if (!sameDeductee(current)) {
            m_pending = true;
            break;
        }
        if (!sameText(m_rows.value(SectionNo), current.sectionNo))
            certificates.append(certificateOf(m_rows));
        certificates.last().payments.append(paymentOf(m_rows));
    }
    if (m_deductee == Deductee::ByMaster) {
        for (Form16ACertificate &certificate : certificates)
            certificate.words = inwords::certificateWords(certificate.totalTax());
    }
    return certificates;
}

bool Form16ACertificateReader::sameDeductee(const Form16ACertificate &current) const
{
    if (m_deductee == Deductee::ByMaster)
        return m_rows.value(DeducteeId).toInt() == current.deducteeId;
    return sameText(m_rows.value(DeducteeName), current.deducteeName);
}

bool Form16ACertificateReader::advance()
{
    if (m_rows.next())
        return true;
    if (m_rows.lastError().isValid()) {
        throw StoreError(m_rows.lastError().nativeErrorCode(),
                         m_rows.lastError().text().trimmed());
    }
    return false;
}

QString form16APeriod(const QString &quarter, const QString &year)
{
    if (quarter == u"Q1")
        return QStringLiteral("From 01/04/%1 To 30/06/%1").arg(year);
    if (quarter == u"Q2")
        return QStringLiteral("From 01/07/%1 To 30/09/%1").arg(year);
    if (quarter == u"Q3")
        return QStringLiteral("From 01/10/%1 To 31/12/%1").arg(year);
    if (quarter == u"Q4") {
        const QString next = QString::number(qint64(numbers::val(year)) + 1);
        return QStringLiteral("From 01/01/%1 To 31/03/%1").arg(next);
    }
    return {};
}
