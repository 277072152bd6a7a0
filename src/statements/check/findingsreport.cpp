#include "statements/check/findingsreport.h"

#include "reports/reportbuilder.h"

namespace findingsreport {

Report build(const QStringList &heading, const QDate &filedOn,
             const QList<FindingEntry> &findings, const QList<DueEntry> &dues,
             const QDate &runDate)
{
    ReportBuilder report(title);
    report.setOrientation(QPageLayout::Landscape);
    report.setPageHead({QStringLiteral("Run Date :"), runDate, QStringLiteral("Page No :")});
    report.title(title);
    for (const QString &line : heading)
        report.text(line, ReportFont::Bold, Qt::AlignHCenter);
    const QString date = filedOn.toString(QStringLiteral("dd/MM/yyyy"));
    report.text(QStringLiteral("As filed on %1").arg(date), ReportFont::Normal, Qt::AlignHCenter);
    report.space(8);

    if (findings.isEmpty()) {
        report.text(QStringLiteral("The check found nothing to mend."));
    } else {
        report.beginList({{QStringLiteral("Kind"), 0},
                          {QStringLiteral("Challan"), 0, Qt::AlignRight},
                          {QStringLiteral("Row"), 0, Qt::AlignRight},
                          {QStringLiteral("Field"), 0},
                          {QStringLiteral("What is wrong"), 0}},
                         true);
        for (const FindingEntry &finding : findings)
            report.row({finding.kind, finding.challan, finding.row, finding.field,
                        finding.message});
        report.endTable();
    }

    report.space(12);
    report.text(QStringLiteral("Due before filing"), ReportFont::Heading);
    for (const DueEntry &due : dues) {
        report.space(4);
        report.field(due.what + QStringLiteral(", ") + due.where,
                     QStringLiteral("%1 (paid %2)").arg(due.due, due.paid), 0.3);
        if (!due.working.isEmpty())
            report.text(due.working, ReportFont::Small);
    }
    return report.finish();
}

} // namespace findingsreport
