#include "reports/companydetails.h"

#include "core/datastore.h"
#include "core/records.h"
#include "reports/reportbuilder.h"

#include <QSqlRecord>

namespace {

/// The columns of the report's statement, in the order they are selected and grouped.
const QStringList detailColumns = {
    QStringLiteral("mstGroup.GroupName"), QStringLiteral("mstCompany.Address1"),
    QStringLiteral("mstCompany.Address2"), QStringLiteral("mstCompany.Address3"),
    QStringLiteral("mstCompany.Address4"), QStringLiteral("mstCompany.Address5"),
    QStringLiteral("mstCompany.AssessingOfficerCode"), QStringLiteral("mstCompany.AsstID"),
    QStringLiteral("mstCompany.CompName"), QStringLiteral("mstCompany.Designation"),
    QStringLiteral("mstCompany.FilePrefix"), QStringLiteral("mstCompany.GroupID"),
    QStringLiteral("mstCompany.PAddress1"), QStringLiteral("mstCompany.CompID"),
    QStringLiteral("mstCompany.PAddress2"), QStringLiteral("mstCompany.PAddress3"),
    QStringLiteral("mstCompany.PAddress4"), QStringLiteral("mstCompany.PAddress5"),
    QStringLiteral("mstCompany.PanNo"), QStringLiteral("mstCompany.PersonName"),
    QStringLiteral("mstCompany.Phone"), QStringLiteral("mstCompany.Pincode"),
    QStringLiteral("mstCompany.PPhone"), QStringLiteral("mstCompany.PPincode"),
    QStringLiteral("mstCompany.PStateCode"), QStringLiteral("mstCompany.PStateID"),
    QStringLiteral("mstCompany.StateCode"), QStringLiteral("mstCompany.StateID"),
    QStringLiteral("mstCompany.TanNO"), QStringLiteral("mstGroup.GroupID"),
    QStringLiteral("mstState.StateName"),
};

/// The labels of one company, each with the column it shows; a label without a column heads
/// the block of the person responsible.
struct Line
{
    const char *label;
    const char *column;
};

constexpr Line companyLines[] = {
    {"GroupName:", "GroupName"},
    {"CompName:", "CompName"},
    {"TanNO:", "TanNO"},
    {"PanNo:", "PanNo"},
    {"Flat/Door/Block:", "Address1"},
    {"Road/Street/Lane:", "Address2"},
    {"Area/Locality:", "Address3"},
    {"Premises/Building:", "Address4"},
    {"Town/District/City:", "Address5"},
    {"StateName:", "StateName"},
    {"Pincode:", "Pincode"},
    {"Phone:", "Phone"},
    {"AssessingOfficerCode:", "AssessingOfficerCode"},
    {"FilePrefix:", "FilePrefix"},
    {"PersonName:", "PersonName"},
    {"Designation:", "Designation"},
    {"Person Responsible for Tds.", nullptr},
    {"Flat/Door/Block:", "PAddress1"},
    {"Road/Street/Lane:", "PAddress2"},
    {"Area/Locality:", "PAddress3"},
    {"Premises/Building:", "PAddress4"},
    {"Town/District/City:", "PAddress5"},
    {"StateName:", "StateName"},
    {"PPincode:", "PPincode"},
    {"PPhone:", "PPhone"},
};

constexpr double labelWidth = 0.3;

} // namespace

QStringList CompanyDetails::groupNames() const
{
    return records::comboTexts(m_store, QStringLiteral("mstGroup"), QStringLiteral("GroupName"),
                               true);
}

QList<CompanyChoice> CompanyDetails::companies(const QString &groupName) const
{
    QList<CompanyChoice> result;
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT CompName, TanNo FROM mstCompany WHERE GroupId = ?"),
        {groupId(groupName)});
    while (query.next()) {
        const QString tan = records::nullToText(query.value(1));
        result.append({records::nullToText(query.value(0)) + QStringLiteral("/ Tan :") + tan,
                       tan});
    }
    return result;
}

std::optional<Report> CompanyDetails::report(const QString &groupName, const QStringList &tans,
                                             bool pageBreak, const QDate &runDate) const
{
    if (tans.isEmpty())
        return std::nullopt;
    QStringList marks(tans.size(), QStringLiteral("?"));
    QVariantList values{groupId(groupName)};
    for (const QString &tan : tans)
        values.append(tan);
    const QString columns = detailColumns.join(QStringLiteral(", "));
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT %1, mstGroup.GroupID AS MainGroupId FROM mstCompany, mstGroup, "
                       "mstState WHERE mstCompany.GroupID = mstGroup.GroupID "
                       "AND mstCompany.StateCode = mstState.StateCode "
                       "AND mstCompany.PStateCode = mstState.StateCode "
                       "AND mstCompany.GroupId = ? AND mstCompany.TanNo IN (%2) "
                       "GROUP BY %1 ORDER BY %1")
            .arg(columns, marks.join(QStringLiteral(", "))),
        values);
    if (!query.next())
        return std::nullopt;

    const QString title = QStringLiteral("Group-wise Company Details");
    ReportBuilder report(title);
    report.setPageHead({QStringLiteral("Run Date :"), runDate, QStringLiteral("Page No :")});
    report.title(title);
    const QSqlRecord record = query.record();
    bool first = true;
    do {
        if (!first && pageBreak)
            report.pageBreak();
        report.space(first ? 6 : 14);
        first = false;
        for (const Line &line : companyLines) {
            const QString label = QLatin1String(line.label);
            if (!line.column) {
                report.space(6);
                report.text(label, ReportFont::Bold);
                report.keepWithNext();
                continue;
            }
            const int column = record.indexOf(QLatin1String(line.column));
            report.field(label, records::nullToText(query.value(column)), labelWidth);
        }
        report.rule();
    } while (query.next());
    return report.finish();
}

int CompanyDetails::groupId(const QString &groupName) const
{
    return records::lookupId(m_store, QStringLiteral("GroupID"), QStringLiteral("mstGroup"),
                             QStringLiteral("GroupName"), groupName);
}
