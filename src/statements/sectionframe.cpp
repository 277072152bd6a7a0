#include "statements/sectionframe.h"

#include "statements/sectiondelegate.h"
#include "statements/sectiongrid.h"

#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

SectionFrame::SectionFrame(SectionGrid &grid, MessageBoxes &boxes, QWidget *parent)
    : PopupFrame(QLatin1String(grid.traits().frame), QLatin1String(grid.traits().title),
                 QLatin1String(grid.traits().okButton),
                 QLatin1String(grid.traits().cancelButton), parent),
      m_grid(grid),
      m_view(new QTableView(this)),
      m_delegate(new SectionDelegate(boxes, this))
{
    m_view->setObjectName(QLatin1String(grid.traits().grid));
    m_view->setModel(&grid);
    m_view->setItemDelegate(m_delegate);
    m_view->setEditTriggers(QAbstractItemView::AllEditTriggers);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->verticalHeader()->setVisible(false);
    m_view->verticalHeader()->setDefaultSectionSize(m_view->fontMetrics().height() + 8);
    m_view->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < grid.columnCount(); ++column)
        m_view->setColumnWidth(column, 110);
    m_view->setMinimumSize(140 + 110 * (grid.columnCount() - 1) + 30, 230);
    body()->addWidget(m_view);
}

void SectionFrame::setOffered(const QStringList &sections)
{
    m_delegate->setOffered(sections);
}

void SectionFrame::open()
{
    popUp();
    m_view->setFocus();
    m_view->setCurrentIndex(m_grid.index(0, 1));
}

void SectionFrame::finishEditing()
{
    // What is typed in the open cell counts, as leaving the cell would have stored it.
    if (QWidget *editor = m_view->indexWidget(m_view->currentIndex()))
        emit m_delegate->commitData(editor);
}
