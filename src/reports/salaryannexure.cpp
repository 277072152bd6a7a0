#include "reports/salaryannexure.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/records.h"
#include "reports/reportbuilder.h"
#include "reports/reportformat.h"

#include <QHash>
#include <QSqlRecord>

namespace salaryannexure {

namespace {

/// The stored figures of a salary row and their labels, which carry the return's item numbers.
struct Figure
{
    const char *column;
    const char *label;
};

constexpr Figure figures[] = {
    {"332", "Total Salary [331]"},
    {"333", "Gross Total Salary - Sec 16 [333]"},
    {"334Sec10Gross", "Income chargeable under head Salaries [334]"},
    {"335", "Any Income other than Salary [335]"},
    {"336Sec16Gross", "Gross Total Income [336]"},
    {"337", "Chapter VI-A 80CCE"},
    {"338", "Chapter VI-A Others"},
    {"339", "Gross Total Amt Deductible - Ch VI-A [339]"},
    {"340SecViaGross", "Total Taxable Income [340]"},
    {"344", "Income Tax On Total Income [341]"},
    {"345", "Surcharge [342]"},
    {"346Sec88Gross", "Education Cess [343]"},
    {"350", "Income Tax relief under section 89 [344]"},
    {"351", "Net Tax Payable [345]"},
    {"352", "Total TDS Deducted [346]"},
    {"355", "Shortfall Excess/Deduction of Tax [347]"},
};

/// The rows of a section table by salary row: the section and its amounts.
QHash<int, QList<QStringList>> sectionRows(const DataStore &store, const QString &table,
                                           const QStringList &amounts)
{
    QHash<int, QList<QStringList>> result;
    QSqlQuery query = store.exec(QStringLiteral("SELECT SalaryId, SectionId, %1 FROM %2 "
                                                "ORDER BY Secid")
                                     .arg(amounts.join(QStringLiteral(", ")), table));
    while (query.next()) {
        QStringList row{records::nullToText(query.value(1))};
        for (int amount = 0; amount < amounts.size(); ++amount)
            row << Money::fromStored(query.value(2 + amount)).toText();
        result[query.value(0).toInt()].append(row);
    }
    return result;
}

void sectionTable(ReportBuilder &report, const QString &title, const QStringList &heads,
                  const QList<QStringList> &rows)
{
    if (rows.isEmpty())
        return;
    report.space(3);
    QList<ReportColumn> columns{{title, 0.3}};
    for (const QString &head : heads)
        columns.append({head, 0.15, Qt::AlignRight});
    report.beginTable(columns);
    for (const QStringList &row : rows)
        report.row(row);
    report.endTable();
}

} // namespace

Report build(const DataStore &store, const PrintoutHeading &heading)
{
    const FormTraits &form = formTraits(FormKind::Form24Q);
    ReportBuilder report;
    report.setPageHead(
        {QStringLiteral("Run Date :"), heading.runDate, QStringLiteral("Page No :")});
    report.text(heading.companyName, ReportFont::Heading, Qt::AlignHCenter);
    report.title(QStringLiteral("Form No. 24Q : Salary details of employees"));
    report.text(heading.period(), ReportFont::Normal, Qt::AlignHCenter);

    const QHash<int, QList<QStringList>> section16 =
        sectionRows(store, form.section16Table, {QStringLiteral("TotalDeduction")});
    const QHash<int, QList<QStringList>> chapterVIA =
        sectionRows(store, form.chapterVIATable,
                    {QStringLiteral("GrossAmt"), QStringLiteral("QfAmt"),
                     QStringLiteral("DedAmt")});
    QSqlQuery query = store.exec(QStringLiteral("SELECT a.* FROM %1 AS a").arg(form.salaryTable));
    const QSqlRecord record = query.record();
    while (query.next()) {
        const auto text = [&](const char *column) {
            return records::nullToText(query.value(record.indexOf(QLatin1String(column))));
        };
        report.space(10);
        report.band({ReportCell(QStringLiteral("[327] ") + text("SrlNo"), 0, 0.1),
                     ReportCell(QStringLiteral("[329] ") + text("EmpName"), 0.1, 0.3),
                     ReportCell(QStringLiteral("[328] ") + text("Pan"), 0.4, 0.24),
                     ReportCell(QStringLiteral("[331] ")
                                    + reportformat::storedDateText(text("FromDate"))
                                    + QStringLiteral(" To ")
                                    + reportformat::storedDateText(text("ToDate")),
                                0.64, 0.36, Qt::AlignRight)},
                    ReportFont::Bold);
        report.rule();
        report.keepWithNext();
        // The figures in two columns of labels and amounts.
        constexpr int perColumn = int(std::size(figures) + 1) / 2;
        for (int line = 0; line < perColumn; ++line) {
            QList<ReportCell> cells;
            for (int side = 0; side < 2; ++side) {
                const int index = side * perColumn + line;
                if (index >= int(std::size(figures)))
                    break;
                const Money amount = Money::fromStored(
                    query.value(record.indexOf(QLatin1String(figures[index].column))));
                cells << ReportCell(QLatin1String(figures[index].label), side * 0.5, 0.33)
                      << ReportCell(amount.toText(), side * 0.5 + 0.33, 0.14, Qt::AlignRight);
            }
            report.band(cells);
        }
        const int salaryId = query.value(record.indexOf(QStringLiteral("SalaryId"))).toInt();
        sectionTable(report, QStringLiteral("Section 16"), {QStringLiteral("Deduction Rs.")},
                     section16.value(salaryId));
        sectionTable(report, QStringLiteral("Chapter VI-A"),
                     {QStringLiteral("Gross Amt."), QStringLiteral("Qualifying Amt."),
                      QStringLiteral("Deduct Amt.")},
                     chapterVIA.value(salaryId));
    }
    return report.finish();
}

} // namespace salaryannexure
