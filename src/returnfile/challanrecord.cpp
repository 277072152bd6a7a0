#include "returnfile/challanrecord.h"

#include "returnfile/sourcerows.h"
#include "core/formtraits.h"

#include <QStringList>

RecordLine challanRecord(int lineNumber, const FormTraits &form, const ChallanPlace &place,
                         const SourceRows &challan)
{
    const auto column = [](const char *name) { return QLatin1String(name); };
    const auto amount = [&challan, &column](const char *name) {
        return challan.value(column(name));
    };

    // A transfer voucher makes it a book entry, which has no cheque; a stored "0" counts, and
    // it counts in a nil statement too.
    const bool bookEntry = !challan.isEmptyText(column("TransferVoucherNo"));
    // The program has always held these four in buffers of 5, 9, 7 and 15 characters, so a
    // longer value goes out cut. A nil statement carries none of them.
    QString voucher;
    QString transferVoucher;
    QString bankCode;
    QString cheque;
    if (!place.nilStatement) {
        voucher = challan.text(column("TrVoucherNo"), 5);
        transferVoucher = challan.text(column("TransferVoucherNo"), 9);
        bankCode = challan.text(column("BankCode"), 7);
        if (!bookEntry)
            cheque = challan.text(column("ChqDDNo"), 15);
    }

    RecordLine line(lineNumber, QStringLiteral("CD"));
    line.addNumber(1)
        .addNumber(place.challanNumber)
        .addNumber(place.annexureRows)
        .addFlag(place.nilStatement)
        .addBlank(5)
        .addText(voucher)
        .addBlank()
        .addText(transferVoucher)
        .addBlank()
        .addText(bankCode)
        .addBlank()
        .addDate(challan.date(column("DtTrVoucher")))
        .addBlank(2)
        .addText(form.salaryLayout ? place.salarySection : challan.text(column("Section")))
        .addRoundedAmount(amount("AmountDeducted"))
        .addRoundedAmount(amount("Surcharge"))
        .addRoundedAmount(amount("EduCess"))
        .addRoundedAmount(amount("Interest"))
        .addRoundedAmount(amount("Others"))
        .addRoundedAmount(amount("Total"))
        .addBlank()
        .addAmount(amount("TotTax"))
        .addAmount(amount("TotIncomeTax"))
        .addAmount(amount("TotSurcharge"))
        .addAmount(amount("TotCess"))
        .addAmount(amount("CtrlTot"))
        .addRoundedAmount(amount("ExInterest"))
        .addRoundedAmount(amount("ExtOthers"))
        .addText(cheque)
        .addFlag(bookEntry)
        .addText(challan.text(column("Remarks")));
    return line;
}

QString salaryChallanSection(const QString &deductorType)
{
    static const QStringList government = {"A", "S", "D", "E", "G", "H", "L", "N"};
    return government.contains(deductorType, Qt::CaseSensitive) ? QStringLiteral("92A")
                                                                : QStringLiteral("92B");
}
