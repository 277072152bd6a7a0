#include "statements/rowlistview.h"

#include <QHeaderView>

#include <algorithm>

namespace {

constexpr int measuredRows = 50;

} // namespace

void shapeAsList(QTableView *view, const QString &name, QAbstractItemModel *model)
{
    view->setObjectName(name);
    view->setModel(model);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->verticalHeader()->setVisible(false);
    view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 6);
}

RowListView::RowListView(const QString &name, QAbstractItemModel *model, QWidget *parent)
    : QTableView(parent)
{
    shapeAsList(this, name, model);
    connect(model, &QAbstractItemModel::modelReset, this, &RowListView::fitColumns);
    fitColumns();
}

void RowListView::fitColumns()
{
    const QFontMetrics metrics = fontMetrics();
    const int padding = metrics.horizontalAdvance(QLatin1Char('0')) * 2;
    const int rows = std::min(model()->rowCount(), measuredRows);
    for (int column = 0; column < model()->columnCount(); ++column) {
        int width = metrics.horizontalAdvance(
            model()->headerData(column, Qt::Horizontal).toString());
        for (int row = 0; row < rows; ++row) {
            width = std::max(width, metrics.horizontalAdvance(
                                        model()->index(row, column).data().toString()));
        }
        setColumnWidth(column, width + padding);
    }
}
