#include "reports/statementannexures.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/records.h"
#include "reports/reportbuilder.h"
#include "reports/reportformat.h"

namespace statementannexures {

namespace {

enum class Kind { Text, Amount, Date };

/// A printed column: its head, the stored column it shows and the item number of the form
/// that it carries (none: -1), which leaves it out of a form without that item.
struct Column
{
    QString heading;
    QString column;
    int item;
    Kind kind;
};

QString cellText(const QVariant &value, Kind kind)
{
    switch (kind) {
    case Kind::Amount:
        return Money::fromStored(value).toText();
    case Kind::Date:
        return reportformat::storedDateText(records::nullToText(value));
    case Kind::Text:
        break;
    }
    return records::nullToText(value);
}

/// The columns that the form has, with their item numbers under their heads; each is as wide
/// as its texts need.
QList<ReportColumn> reportColumns(const QList<Column> &columns)
{
    QList<ReportColumn> result;
    for (const Column &column : columns) {
        const QString heading = column.item > 0 ? column.heading + QStringLiteral("\n[%1]")
                                                                        .arg(column.item)
                                                : column.heading;
        result.append({heading, 0, column.kind == Kind::Amount ? Qt::AlignRight : Qt::AlignLeft});
    }
    return result;
}

QString selectList(const QList<Column> &columns, const QString &prefix)
{
    QStringList names;
    for (const Column &column : columns)
        names << prefix + column.column;
    return names.join(QStringLiteral(", "));
}

ReportBuilder started(const QString &caption, const QString &title,
                      const PrintoutHeading &heading)
{
    ReportBuilder report(caption);
    report.setOrientation(QPageLayout::Landscape);
    report.setPageHead(
        {QStringLiteral("Run Date :"), heading.runDate, QStringLiteral("Page No :")});
    report.text(heading.companyName, ReportFont::Heading, Qt::AlignHCenter);
    report.title(title);
    report.text(heading.period(), ReportFont::Normal, Qt::AlignHCenter);
    report.space(8);
    return report;
}

/// The row of a table's totals: "Total" in the first column, the sums under the amounts.
QStringList totalRow(const QList<Column> &columns, const QList<Money> &sums)
{
    QStringList row{QStringLiteral("Total")};
    for (qsizetype index = 1; index < columns.size(); ++index) {
        row << (columns[index].kind == Kind::Amount ? sums[index].toText() : QString());
    }
    return row;
}

QString formNumber(const FormTraits &form)
{
    return form.reportForm.mid(4);
}

QString taxWord(const FormTraits &form)
{
    return form.collectsTax ? QStringLiteral("TCS") : QStringLiteral("TDS");
}

} // namespace

std::optional<Report> challans(const DataStore &store, const FormTraits &form, int basicInfoId,
                               const PrintoutHeading &heading)
{
    const auto item = [&form](ChallanItem which) { return form.challanItem(which); };
    QList<Column> columns = {
        {QStringLiteral("Sl. No."), QStringLiteral("SlNo"), item(ChallanItem::Serial),
         Kind::Text},
        {form.collectsTax ? QStringLiteral("Collection\nCode") : QStringLiteral("Section"),
         QStringLiteral("Section"), item(ChallanItem::Section), Kind::Text},
        {taxWord(form), QStringLiteral("AmountDeducted"), item(ChallanItem::Tds), Kind::Amount},
        {QStringLiteral("Surcharge"), QStringLiteral("Surcharge"), item(ChallanItem::Surcharge),
         Kind::Amount},
        {QStringLiteral("Education\nCess"), QStringLiteral("EduCess"), item(ChallanItem::Cess),
         Kind::Amount},
        {QStringLiteral("Interest"), QStringLiteral("Interest"), item(ChallanItem::Interest),
         Kind::Amount},
        {QStringLiteral("Others"), QStringLiteral("Others"), item(ChallanItem::Others),
         Kind::Amount},
        {QStringLiteral("Total tax\ndeposited"), QStringLiteral("Total"), item(ChallanItem::Total),
         Kind::Amount},
        {QStringLiteral("Cheque /\nDD No."), QStringLiteral("ChqDDNo"), item(ChallanItem::Cheque),
         Kind::Text},
        {QStringLiteral("BSR Code"), QStringLiteral("BankCode"), item(ChallanItem::Bank),
         Kind::Text},
        {QStringLiteral("Date of\ndeposit"), QStringLiteral("DtTrVoucher"),
         item(ChallanItem::Date), Kind::Date},
        {QStringLiteral("Challan No."), QStringLiteral("TrVoucherNo"),
         item(ChallanItem::ChallanNo), Kind::Text},
        {QStringLiteral("Transfer\nVoucher No."), QStringLiteral("TransferVoucherNo"),
         item(ChallanItem::VoucherNo), Kind::Text},
        {QStringLiteral("Book\nEntry"), QStringLiteral("BookEntry"), -1, Kind::Text},
    };

    columns.removeIf([](const Column &column) { return column.item == 0; });
    QSqlQuery query = store.exec(
        QStringLiteral("SELECT %1 FROM %2 WHERE BasicIfoID = ? ORDER BY SlNo")
            .arg(selectList(columns, QString()), form.challanTable),
        {basicInfoId});
    if (!query.next())
        return std::nullopt;

    ReportBuilder report = started(QStringLiteral("Annexures ") + formNumber(form),
                                   QStringLiteral("Form No. %1 : Details of tax deposited")
                                       .arg(form.formType),
                                   heading);
    report.beginList(reportColumns(columns), true);
    QList<Money> sums(columns.size());
    do {
        QStringList row;
        for (qsizetype index = 0; index < columns.size(); ++index) {
            row << cellText(query.value(int(index)), columns[index].kind);
            if (columns[index].kind == Kind::Amount)
                sums[index] += Money::fromStored(query.value(int(index)));
        }
        report.row(row);
    } while (query.next());
    report.row(totalRow(columns, sums));
    return report.finish();
}

std::optional<Report> annexure(const DataStore &store, const FormTraits &form, int basicInfoId,
                               const PrintoutHeading &heading)
{
    const auto item = [&form](AnnexureItem which) { return form.annexureItem(which); };
    const QString extra = form.grossingUpColumn.isEmpty() ? form.purchaseColumn
                                                          : form.grossingUpColumn;
    QList<Column> columns = {
        {QStringLiteral("Sr.\nNo."), QStringLiteral("SrlNo"), -1, Kind::Text},
        {QStringLiteral("Section"), QStringLiteral("Section"),
         form.challanHasSection() ? -1 : 0, Kind::Text},
        {QStringLiteral("Code"), QStringLiteral("DeducteeCode"), item(AnnexureItem::Code),
         Kind::Text},
        {QStringLiteral("PAN"), QStringLiteral("PAN"), item(AnnexureItem::Pan), Kind::Text},
        {form.partyWord + QStringLiteral(" Name"), form.partyNameColumn,
         item(AnnexureItem::Name), Kind::Text},
        {QStringLiteral("Amount\npaid"), QStringLiteral("AmtOfPayment"),
         item(AnnexureItem::Amount), Kind::Amount},
        {QStringLiteral("Date of\npayment"), QStringLiteral("PaymentDt"),
         item(AnnexureItem::Date), Kind::Date},
        {QStringLiteral("Rate"), QStringLiteral("Rate"), item(AnnexureItem::Rate), Kind::Text},
        {QStringLiteral("Tax"), QStringLiteral("Tax"), item(AnnexureItem::Tax), Kind::Amount},
        {QStringLiteral("Surcharge"), QStringLiteral("Surcharge"),
         item(AnnexureItem::Surcharge), Kind::Amount},
        {QStringLiteral("Cess"), QStringLiteral("Cess"), item(AnnexureItem::Cess), Kind::Amount},
        {QStringLiteral("Total"), QStringLiteral("Total"), item(AnnexureItem::Total),
         Kind::Amount},
        {QStringLiteral("Tax\ndeposited"), QStringLiteral("TaxAmount"),
         item(AnnexureItem::Deposited), Kind::Amount},
        {QStringLiteral("Date of\ndeduction"), QStringLiteral("TaxDeductDt"), -1, Kind::Date},
        {form.collectsTax ? QStringLiteral("Value of\npurchase") : QStringLiteral("Grossing\nup"),
         extra, extra.isEmpty() ? 0 : item(AnnexureItem::Extra),
         form.collectsTax ? Kind::Amount : Kind::Text},
    };

    columns.removeIf([](const Column &column) { return column.item == 0; });
    // The challan's own columns follow the row's.
    QSqlQuery query = store.exec(
        QStringLiteral("SELECT %1, b.SlNo, b.BankCode, b.DtTrVoucher, b.TrVoucherNo, b.Total "
                       "FROM %2 AS a, %3 AS b WHERE a.BasicIfoID = b.BasicIfoID "
                       "AND a.ChallanId = b.ChallnID AND a.BasicIfoID = ? "
                       "ORDER BY b.SlNo, a.SrlNo")
            .arg(selectList(columns, QStringLiteral("a.")), form.annexureTable,
                 form.challanTable),
        {basicInfoId});
    if (!query.next())
        return std::nullopt;

    const int challanAt = int(columns.size());
    ReportBuilder report = started(
        (form.hasSalaryDetail ? QStringLiteral("Employee ") : QStringLiteral("Annexures "))
            + formNumber(form),
        QStringLiteral("Form No. %1 : %2-wise break-up of %3")
            .arg(form.formType, form.partyWord, taxWord(form)),
        heading);
    const QList<ReportColumn> heads = reportColumns(columns);
    QList<Money> sums;
    bool more = true;
    while (more) {
        const QVariant serial = query.value(challanAt);
        report.space(8);
        report.band({ReportCell(QStringLiteral("Challan Sl. No. : ")
                                    + cellText(serial, Kind::Text),
                                0, 0.2),
                     ReportCell(QStringLiteral("BSR Code : ")
                                    + cellText(query.value(challanAt + 1), Kind::Text),
                                0.2, 0.2),
                     ReportCell(QStringLiteral("Date : ")
                                    + cellText(query.value(challanAt + 2), Kind::Date),
                                0.4, 0.2),
                     ReportCell(QStringLiteral("Challan No. : ")
                                    + cellText(query.value(challanAt + 3), Kind::Text),
                                0.6, 0.2),
                     ReportCell(QStringLiteral("Tax deposited : ")
                                    + cellText(query.value(challanAt + 4), Kind::Amount),
                                0.8, 0.2, Qt::AlignRight)},
                    ReportFont::Bold);
        report.keepWithNext();
        report.beginList(heads, true);
        sums = QList<Money>(columns.size());
        do {
            QStringList row;
            for (int index = 0; index < challanAt; ++index) {
                row << cellText(query.value(index), columns[index].kind);
                if (columns[index].kind == Kind::Amount)
                    sums[index] += Money::fromStored(query.value(index));
            }
            report.row(row);
            more = query.next();
        } while (more && query.value(challanAt) == serial);
        report.row(totalRow(columns, sums));
        report.endTable();
    }
    return report.finish();
}

} // namespace statementannexures
