#include "core/masterbuttonbar.h"

#include <QBoxLayout>
#include <QPushButton>

MasterButtonBar::MasterButtonBar(QWidget *parent, Qt::Orientation orientation)
    : QWidget(parent)
{
    static const char *const captions[count] = {"Add &New", "&Edit", "&Save", "&Cancel",
                                                "&Delete"};
    auto *layout = new QBoxLayout(orientation == Qt::Horizontal ? QBoxLayout::LeftToRight
                                                                 : QBoxLayout::TopToBottom,
                                  this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < count; ++index) {
        auto *cmd = new QPushButton(QString::fromLatin1(captions[index]), this);
        cmd->setObjectName(QStringLiteral("cmd(%1)").arg(index));
        connect(cmd, &QPushButton::clicked, this, [this, index] { emit clicked(index); });
        layout->addWidget(cmd);
        m_buttons[index] = cmd;
    }
}

QPushButton *MasterButtonBar::button(int index) const
{
    return index >= 0 && index < count ? m_buttons[index] : nullptr;
}
