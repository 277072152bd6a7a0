#include "reports/grouplistreports.h"

#include "core/datastore.h"
#include "core/records.h"
#include "reports/reportbuilder.h"

#include <QHash>
#include <QSqlRecord>

namespace grouplistreports {

namespace {

const QString runDateLabel = QStringLiteral("Run Date :");

struct Group
{
    int id;
    QString name;
};

QList<Group> groups(const DataStore &store)
{
    QList<Group> result;
    QSqlQuery query = store.exec(
        QStringLiteral("SELECT GroupID, GroupName FROM mstGroup ORDER BY GroupID"));
    while (query.next())
        result.append({query.value(0).toInt(), records::nullToText(query.value(1))});
    return result;
}

/// The rows of a statement whose first column is the group's id, by group, in the order read.
QHash<int, QList<QStringList>> rowsByGroup(const DataStore &store, const QString &sql)
{
    QHash<int, QList<QStringList>> result;
    QSqlQuery query = store.exec(sql);
    const int columns = query.record().count();
    while (query.next()) {
        QStringList row;
        for (int column = 1; column < columns; ++column)
            row.append(records::nullToText(query.value(column)));
        result[query.value(0).toInt()].append(row);
    }
    return result;
}

ReportBuilder builder(const QString &title, const QDate &runDate, const QString &pageLabel)
{
    ReportBuilder result(title);
    result.setPageHead({runDateLabel, runDate, pageLabel});
    result.title(title);
    result.space(6);
    return result;
}

/// The groups, each under its head with its rows in a table. labelText: the head's label, or
/// empty for a head of the group's name alone.
std::optional<Report> groupwise(const DataStore &store, const QDate &runDate,
                                const QString &title, const QString &pageLabel,
                                const QString &labelText, const QList<ReportColumn> &columns,
                                const QString &rowsSql)
{
    const QList<Group> all = groups(store);
    if (all.isEmpty())
        return std::nullopt;
    const QHash<int, QList<QStringList>> rows = rowsByGroup(store, rowsSql);
    ReportBuilder report = builder(title, runDate, pageLabel);
    for (const Group &group : all) {
        report.space(8);
        if (labelText.isEmpty())
            report.text(group.name, ReportFont::Heading);
        else
            report.band({ReportCell(labelText, 0, 0.2), ReportCell(group.name, 0.2, 0.8)},
                        ReportFont::Heading);
        report.keepWithNext();
        report.beginTable(columns);
        for (const QStringList &row : rows.value(group.id))
            report.row(row);
        report.endTable();
    }
    return report.finish();
}

} // namespace

std::optional<Report> groupMaster(const DataStore &store, const QDate &runDate)
{
    const QList<Group> all = groups(store);
    if (all.isEmpty())
        return std::nullopt;
    const QString title = QStringLiteral("Group Master");
    ReportBuilder report = builder(title, runDate, QStringLiteral("Page No :"));
    report.beginTable({{QStringLiteral("GroupID"), 0.2, Qt::AlignRight},
                       {QStringLiteral("GroupName"), 0.8}});
    for (const Group &group : all)
        report.row({QString::number(group.id), group.name});
    return report.finish();
}

std::optional<Report> companyList(const DataStore &store, const QDate &runDate)
{
    return groupwise(store, runDate, QStringLiteral("Group-wise Company List"),
                     QStringLiteral("Page No"), QString(),
                     {{QStringLiteral(" Company Name"), 0.6},
                      {QStringLiteral(" TAN"), 0.2},
                      {QStringLiteral(" PAN"), 0.2}},
                     QStringLiteral("SELECT GroupID, CompName, TanNO, PanNo FROM mstCompany "
                                    "ORDER BY CompName"));
}

std::optional<Report> deducteeList(const DataStore &store, const QDate &runDate)
{
    return groupwise(store, runDate, QStringLiteral("Group-wise Deductee List"),
                     QStringLiteral("Page No :"), QStringLiteral(" Group Name"),
                     {{QStringLiteral(" Deductee Name"), 0.7}, {QStringLiteral(" PAN"), 0.3}},
                     QStringLiteral("SELECT GroupID, DeducteeName, PAN FROM mstDeductee "
                                    "ORDER BY DeducteeName"));
}

std::optional<Report> employeeList(const DataStore &store, const QDate &runDate)
{
    return groupwise(store, runDate, QStringLiteral("Group-wise Employee List"),
                     QStringLiteral("Page No :"), QStringLiteral(" Group Name"),
                     {{QStringLiteral(" Employee Name"), 0.7}, {QStringLiteral(" PAN"), 0.3}},
                     QStringLiteral("SELECT GroupId, EmpName, PAN FROM mstEmployee "
                                    "ORDER BY EmpName"));
}

} // namespace grouplistreports
