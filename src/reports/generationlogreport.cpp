#include "reports/generationlogreport.h"

#include "core/datastore.h"
#include "core/money.h"
#include "core/records.h"
#include "reports/reportbuilder.h"

#include <QTime>

namespace generationlogreport {

namespace {

/// The log's own formats: 5.04.26 and 3:05:09 PM. A stored text that does not read as a date
/// or a time is shown as it is.
QString logDate(const QString &stored)
{
    const QDate date = QDate::fromString(stored, Qt::ISODate);
    return date.isValid() ? date.toString(QStringLiteral("d.MM.yy")) : stored;
}

QString logTime(const QString &stored)
{
    const QTime time = QTime::fromString(stored, QStringLiteral("hh:mm:ss"));
    return time.isValid() ? time.toString(QStringLiteral("h:mm:ss AP")) : stored;
}

} // namespace

std::optional<Report> build(const DataStore &store, Order order, const QDate &runDate)
{
    const QString orderBy = order == Order::ByDate
                                ? QStringLiteral("DateOfCreation, TimeOFCreation")
                                : QStringLiteral("CompanyName, DateOfCreation, TimeOFCreation");
    QSqlQuery query = store.exec(
        QStringLiteral("SELECT FormNo, FileName, DateOfCreation, TimeOFCreation, AsstYear, "
                       "TotAmtPaid, TotTDS, NoOFDeductees, CompanyName FROM FileGenerationLog "
                       "ORDER BY %1")
            .arg(orderBy));
    if (!query.next())
        return std::nullopt;

    const QString title = order == Order::ByDate
                              ? QStringLiteral("Date-wise File Generation Log")
                              : QStringLiteral("Company-wise File Generation Log");
    ReportBuilder report(title);
    report.setPageHead({QStringLiteral("Run Date :"), runDate, QStringLiteral("Page No :")});
    report.title(title);
    report.space(6);
    const QList<ReportColumn> columns = {
        {QStringLiteral(" Company Name"), 0.2},
        {QStringLiteral("Asst Yr"), 0.08},
        {QStringLiteral("Form Details"), 0.12},
        {QStringLiteral("Total Amount"), 0.13, Qt::AlignRight},
        {QStringLiteral("Total TDS"), 0.12, Qt::AlignRight},
        {QStringLiteral("No.of Deductees"), 0.12, Qt::AlignRight},
        {QStringLiteral("Date"), 0.1, Qt::AlignHCenter},
        {QStringLiteral("Time"), 0.13, Qt::AlignHCenter},
    };
    report.beginTable(columns, false, {{QStringLiteral("Kelvora File "), 6, 2}});
    do {
        report.row({records::nullToText(query.value(8)), records::nullToText(query.value(4)),
                    records::nullToText(query.value(0)),
                    Money::fromStored(query.value(5)).toText(),
                    Money::fromStored(query.value(6)).toText(),
                    QString::number(query.value(7).toLongLong()),
                    logDate(records::nullToText(query.value(2))),
                    logTime(records::nullToText(query.value(3)))});
    } while (query.next());
    return report.finish();
}

} // namespace generationlogreport
