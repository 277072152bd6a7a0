#include "core/screenroutines.h"

#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace screenroutines {

QMdiSubWindow *showInArea(QMdiArea *area, QWidget *screen)
{
    const QSize wanted = screen->size();
    QMdiSubWindow *frame = area->addSubWindow(screen);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setWindowIcon(area->window()->windowIcon());
    frame->show();
    // The frame comes up at a default size; each screen knows the size it is drawn for. On a
    // small display the screen's layout gives way down to its minimum, so that its command
    // buttons stay in sight.
    const QSize drawn = frame->size() + wanted - screen->size();
    frame->resize(drawn.boundedTo(area->viewport()->size()).expandedTo(frame->minimumSizeHint()));
    if (frame->geometry().bottom() > area->viewport()->height())
        frame->move(0, 0);
    return frame;
}

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
