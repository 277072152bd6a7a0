#pragma once

#include <QTableView>

class SalaryListModel;

/**
 * lstvEmp: the salary rows of the Statement, whole rows chosen, nothing edited in place, the
 * key hidden. Its columns are as wide as their heads, with room for names, PANs and dates, so
 * that thousands of rows are not measured one by one.
 */
class SalaryListView : public QTableView
{
    Q_OBJECT

public:
    explicit SalaryListView(SalaryListModel *model, QWidget *parent = nullptr);
};
