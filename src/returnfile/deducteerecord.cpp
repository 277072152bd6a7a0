#include "returnfile/deducteerecord.h"

#include "core/numbers.h"
#include "returnfile/sourcerows.h"
#include "core/formtraits.h"

#include <QLocale>
#include <QStringList>

#include <cmath>

RecordLine deducteeRecord(int lineNumber, const FormTraits &form, int challanNumber,
                          int rowNumber, const SourceRows &row)
{
    // Column names are QStringLiterals: nothing is allocated for them on each of the rows.
    const bool employees = form.salaryLayout;
    const bool deductees = !employees;

    RecordLine line(lineNumber, QStringLiteral("DD"));
    line.addNumber(1).addNumber(challanNumber).addNumber(rowNumber).addText(QStringLiteral("O"));
    if (employees)
        line.addText(row.number(QStringLiteral("SrlNo"))).addBlank();
    else if (row.value(QStringLiteral("DeducteeCode")).isNull())
        line.addBlank(2);
    else
        line.addBlank().addText(deducteeCodeText(row.text(QStringLiteral("DeducteeCode"))));
    line.addBlank()
        .addText(row.text(QStringLiteral("PAN")))
        .addBlank()
        .addText(row.text(QStringLiteral("PANRef")))
        .addText(row.text(form.partyNameColumn))
        .addAmount(row.value(QStringLiteral("Tax")))
        .addAmount(row.value(QStringLiteral("Surcharge")))
        .addAmount(row.value(QStringLiteral("Cess")))
        .addAmount(row.value(QStringLiteral("Total")))
        .addBlank()
        .addAmount(row.value(QStringLiteral("TaxAmount")))
        .addBlank();
    if (form.purchaseColumn.isEmpty())
        line.addBlank();
    else
        line.addAmount(row.value(form.purchaseColumn));
    line.addAmount(row.value(QStringLiteral("AmtOfPayment")))
        .addDate(row.date(QStringLiteral("PaymentDt")))
        .addDate(row.date(QStringLiteral("TaxDeductDt")));
    if (employees)
        line.addDate(row.date(QStringLiteral("TaxPaidToCGDt"))).addBlank();
    else
        line.addBlank().addRate(row.value(QStringLiteral("Rate")));
    if (form.grossingUpColumn.isEmpty())
        line.addBlank();
    else
        line.addText(row.text(form.grossingUpColumn));
    if (deductees)
        line.addText(QStringLiteral("N"));
    else
        line.addBlank();
    line.addBlank().addText(row.text(QStringLiteral("NonDeductionflg"))).addBlank(2);
    return line;
}

QString deducteeRecordColumns(const FormTraits &form)
{
    QStringList columns = {form.annexureKey, "SrlNo", "PAN", "PANRef", form.partyNameColumn,
                           "Tax", "Surcharge", "Cess", "Total", "TaxAmount", "AmtOfPayment",
                           "PaymentDt", "TaxDeductDt", "NonDeductionflg"};
    if (form.salaryLayout)
        columns << "TaxPaidToCGDt";
    else
        columns << "DeducteeCode" << "Rate";
    if (!form.grossingUpColumn.isEmpty())
        columns << form.grossingUpColumn;
    if (!form.purchaseColumn.isEmpty())
        columns << form.purchaseColumn;
    return columns.join(QStringLiteral(", "));
}

QString deducteeCodeText(const QString &code)
{
    const double number = numbers::val(code);
    if (number == std::trunc(number) && std::abs(number) < 1e15)
        return QString::number(static_cast<qint64>(number));
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}
