#include "shell/screenmnemonics.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace {

/// A widget that answers to a mnemonic, and the widget that then takes the focus.
struct Target
{
    QWidget *owner;
    QWidget *field;
};

bool reachable(const QWidget *widget)
{
    return widget && widget->isVisible() && widget->isEnabled();
}

// The first field inside a box that takes the focus, as the box's own mnemonic does.
QWidget *firstField(QGroupBox *box)
{
    const QList<QWidget *> children = box->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (reachable(child) && (child->focusPolicy() & Qt::TabFocus))
            return child;
    }
    return nullptr;
}

QList<Target> targets(QWidget *screen, const QKeySequence &pressed)
{
    const auto matches = [&pressed](const QString &text) {
        return !text.isEmpty() && QKeySequence::mnemonic(text) == pressed;
    };
    QList<Target> found;
    const QList<QWidget *> widgets = screen->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!reachable(widget))
            continue;
        if (auto *label = qobject_cast<QLabel *>(widget)) {
            if (reachable(label->buddy()) && matches(label->text()))
                found.append(Target{label, label->buddy()});
        } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            if (matches(button->text()))
                found.append(Target{button, button});
        } else if (auto *box = qobject_cast<QGroupBox *>(widget)) {
            if (matches(box->title())) {
                if (QWidget *field = box->isCheckable() ? box : firstField(box))
                    found.append(Target{box, field});
            }
        }
    }
    return found;
}

// One target: its field takes the focus and a button is pressed. Several: the focus moves to the
// next one, and nothing is pressed.
void activate(const QList<Target> &found)
{
    if (found.size() == 1) {
        QWidget *field = found.first().field;
        if (field->focusPolicy() != Qt::NoFocus)
            field->setFocus(Qt::ShortcutFocusReason);
        if (auto *button = qobject_cast<QAbstractButton *>(field))
            button->animateClick();
        else if (auto *box = qobject_cast<QGroupBox *>(field))
            box->setChecked(!box->isChecked());
        return;
    }
    const QWidget *focus = QApplication::focusWidget();
    qsizetype current = -1;
    for (qsizetype i = 0; i < found.size(); ++i) {
        if (found.at(i).field == focus || found.at(i).field->isAncestorOf(focus))
            current = i;
    }
    found.at((current + 1) % found.size()).field->setFocus(Qt::ShortcutFocusReason);
}

} // namespace

ScreenMnemonics::ScreenMnemonics(QMdiArea *area, QObject *parent)
    : QObject(parent), m_area(area)
{
}

bool ScreenMnemonics::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->modifiers() != Qt::AltModifier || key->isAutoRepeat())
        return false;
    auto *widget = qobject_cast<QWidget *>(watched);
    const QMdiSubWindow *frame = m_area->activeSubWindow();
    if (!widget || !frame || !frame->widget() || !frame->isAncestorOf(widget))
        return false;
    const QList<Target> found =
        targets(frame->widget(), QKeySequence(Qt::AltModifier | Qt::Key(key->key())));
    if (found.isEmpty())
        return false;
    // Claimed at the override, so that the menu bar never sees the key; acted on at the press.
    if (event->type() == QEvent::ShortcutOverride)
        event->accept();
    else
        activate(found);
    return true;
}
