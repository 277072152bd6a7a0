#pragma once

#include <QTableView>

/// A table shaped as the panels' lists: whole rows chosen, nothing edited in place, no row
/// numbers, rows one line high.
void shapeAsList(QTableView *view, const QString &name, QAbstractItemModel *model);

/**
 * The table in which a panel lists its entries: whole rows are chosen, nothing is edited in
 * place, and each column is as wide as its head and the first rows need. Lists of thousands of
 * rows are not measured row by row.
 */
class RowListView : public QTableView
{
    Q_OBJECT

public:
    RowListView(const QString &name, QAbstractItemModel *model, QWidget *parent = nullptr);

private:
    void fitColumns();
};
