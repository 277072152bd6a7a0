#include "core/screenroutines.h"

#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QPushButton>

namespace screenroutines {

void closeScreen(QWidget *screen)
{
    if (auto *frame = qobject_cast<QMdiSubWindow *>(screen->parentWidget()))
        frame->close();
    else
        screen->close();
}

bool isEnterKey(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

QPushButton *commandButton(const QString &caption, const QString &name, QWidget *parent)
{
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(true);
    return button;
}

} // namespace screenroutines
