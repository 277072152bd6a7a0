#include "statements/sectiondelegate.h"

#include "core/messageboxes.h"
#include "statements/sectiongrid.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

SectionDelegate::SectionDelegate(MessageBoxes &boxes, QObject *parent)
    : QStyledItemDelegate(parent), m_boxes(boxes)
{
}

QWidget *SectionDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                                       const QModelIndex &index) const
{
    if (index.column() != 0) {
        auto *amount = new QLineEdit(parent);
        amount->setAlignment(Qt::AlignRight);
        amount->setMaxLength(15);
        return amount;
    }
    auto *section = new QComboBox(parent);
    section->setEditable(true);
    section->setInsertPolicy(QComboBox::NoInsert);
    section->addItems(m_offered);
    return section;
}

void SectionDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *section = qobject_cast<QComboBox *>(editor)) {
        section->setCurrentIndex(section->findText(text, Qt::MatchFixedString));
        section->setEditText(text);
        section->lineEdit()->selectAll();
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void SectionDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                   const QModelIndex &index) const
{
    if (auto *section = qobject_cast<QComboBox *>(editor)) {
        model->setData(index, section->currentText());
        return;
    }
    QStyledItemDelegate::setModelData(editor, model, index);
}

bool SectionDelegate::eventFilter(QObject *editor, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && qobject_cast<QLineEdit *>(editor)) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const QString text = key->text();
        const bool types = text.size() == 1 && text.at(0).isPrint()
                           && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        if (types && !SectionGrid::isNumericKey(text.at(0))) {
            m_boxes.show({SectionGrid::numericOnlyText, appTitle, MessageIcon::Information});
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}
