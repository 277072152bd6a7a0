#include "salaryfixture.h"

#include <QSqlQuery>
#include <QSqlRecord>

SalaryFixture::SalaryFixture()
    : StatementFixture(FormKind::Form24Q, QStringLiteral("Q4")), sheet(session, boxes, form)
{
    const QStringList columns = {"GroupId", "EmpID", "PAN", "PanRef", "EmpName", "Designation",
                                 "FromDate", "Todate", "category"};
    data.insert("mstEmployee", columns,
                {{1, 101, "AAAPL1234C", "", "LATA IYER", "STAFF", "2026-04-01", "2027-03-31", 0},
                 {1, 102, "BBBPM2345D", "", "MOHAN DAS", "STAFF", "2026-04-01", "2027-03-31", 1},
                 {1, 103, "PANAPPLIED", "APP0001", "NEHA SHAH", "CLERK", "2026-06-01",
                  "2027-03-31", 2}});
    sheet.open();
    if (!sheet.save())
        qFatal("the Statement of the fixture was not saved");
    boxes.shown.clear();
    salary.open();
}

void SalaryFixture::choose(const QString &name)
{
    salary.entry().empName = name;
    if (!salary.employeeLeft())
        qFatal("the employee was refused");
}

void SalaryFixture::type(int index, const QString &text)
{
    salary.entry().txt[index] = text;
    salary.boxChanged(index);
}

bool SalaryFixture::enter(SectionKind kind, const QString &section, const QStringList &amounts)
{
    SectionGrid &grid = salary.grid(kind);
    int row = 0;
    while (row < grid.rowCount() - 1
           && grid.index(row, 0).data().toString().compare(section, Qt::CaseInsensitive) != 0)
        ++row;
    if (!grid.setData(grid.index(row, 0), section))
        return false;
    for (int column = 0; column < amounts.size(); ++column)
        grid.setData(grid.index(row, column + 1), amounts.at(column));
    return true;
}

QStringList SalaryFixture::stored(const QString &columns) const
{
    QSqlQuery query = data.store().exec(
        QStringLiteral("SELECT %1 FROM TranSalaryE24 ORDER BY SrlNo").arg(columns));
    QStringList rows;
    while (query.next()) {
        QStringList values;
        for (int column = 0; column < query.record().count(); ++column)
            values << query.value(column).toString();
        rows << values.join(u'/');
    }
    return rows;
}
