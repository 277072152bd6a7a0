#include "core/screenroutines.h"

#include "core/areawindow.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>

namespace screenroutines {

namespace {

const char *const placementProperty = "areaPlacement";

} // namespace

void setPlacement(QWidget *screen, Placement placement)
{
    screen->setProperty(placementProperty, int(placement));
}

QMdiSubWindow *showInArea(QMdiArea *area, QWidget *screen, QMdiSubWindow *opener)
{
    const QSize wanted = screen->size();
    const auto placement = Placement(screen->property(placementProperty).toInt());
    auto *frame = new AreaWindow(opener);
    frame->setWidget(screen);
    area->addSubWindow(frame);
    frame->setWindowIcon(area->window()->windowIcon());
    frame->show();
    // The frame comes up at a default size; each screen knows the size it is drawn for. On a
    // small display the screen's layout gives way down to its minimum, so that its command
    // buttons stay in sight.
    const QSize room = area->viewport()->size();
    const QSize drawn = frame->size() + wanted - screen->size();
    frame->resize(drawn.boundedTo(room).expandedTo(frame->minimumSizeHint()));
    QPoint place = frame->pos();
    if (placement == Placement::TopLeft)
        place = {0, 0};
    else if (placement == Placement::Middle)
        place = {(room.width() - frame->width()) / 2, (room.height() - frame->height()) / 2};
    // Nothing of the window past the area's right or bottom edge, where only scrolling shows it.
    frame->move(std::max(0, std::min(place.x(), room.width() - frame->width())),
                std::max(0, std::min(place.y(), room.height() - frame->height())));
    return frame;
}

void openBeside(QWidget *beside, QWidget *screen)
{
    for (QWidget *widget = beside; widget; widget = widget->parentWidget()) {
        if (auto *frame = qobject_cast<QMdiSubWindow *>(widget); frame && frame->mdiArea()) {
            showInArea(frame->mdiArea(), screen, frame);
            return;
        }
    }
    screen->setParent(beside ? beside->window() : nullptr, Qt::Window);
    screen->setAttribute(Qt::WA_DeleteOnClose);
    screen->show();
}

void closeScreen(QWidget *screen)
{
    if (auto *frame = qobject_cast<QMdiSubWindow *>(screen->parentWidget()))
        frame->close();
    else
        screen->close();
}

QString labelOf(const QWidget *field)
{
    for (const QLabel *label : field->window()->findChildren<QLabel *>()) {
        if (label->buddy() == field)
            return label->text().remove(QRegularExpression(QStringLiteral("&(?!&)"))).trimmed();
    }
    return {};
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
