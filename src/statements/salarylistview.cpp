#include "statements/salarylistview.h"

#include "statements/rowlistview.h"
#include "statements/salarylistmodel.h"

SalaryListView::SalaryListView(SalaryListModel *model, QWidget *parent) : QTableView(parent)
{
    shapeAsList(this, QStringLiteral("lstvEmp"), model);
    setColumnHidden(SalaryListModel::IdColumn, true);
    resizeColumnsToContents();
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    setColumnWidth(SalaryListModel::NameColumn, 200);
    setColumnWidth(SalaryListModel::PanColumn, digit * 12);
    setColumnWidth(SalaryListModel::FromColumn, digit * 11);
    setColumnWidth(SalaryListModel::ToColumn, digit * 11);
    setMinimumHeight(110);
}
