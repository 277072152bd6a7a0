#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

class MessageBoxes;

/**
 * The editors of a section grid: the section's cell offers the grid's list (lstsection) and
 * takes a typed name too; an amount's cell takes digits and a point, and any other character
 * is refused with its message.
 */
class SectionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    SectionDelegate(MessageBoxes &boxes, QObject *parent);

    void setOffered(const QStringList &sections) { m_offered = sections; }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

protected:
    bool eventFilter(QObject *editor, QEvent *event) override;

private:
    MessageBoxes &m_boxes;
    QStringList m_offered;
};
