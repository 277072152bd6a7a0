#include "statements/salarylistview.h"

#include "statements/salarylistmodel.h"

#include <QHeaderView>

SalaryListView::SalaryListView(SalaryListModel *model, QWidget *parent) : QTableView(parent)
{
    setObjectName(QStringLiteral("lstvEmp"));
    setModel(model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setColumnHidden(SalaryListModel::IdColumn, true);
    resizeColumnsToContents();
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    setColumnWidth(SalaryListModel::NameColumn, 200);
    setColumnWidth(SalaryListModel::PanColumn, digit * 12);
    setColumnWidth(SalaryListModel::FromColumn, digit * 11);
    setColumnWidth(SalaryListModel::ToColumn, digit * 11);
    setMinimumHeight(110);
}
