#include "core/fieldpath.h"

#include "core/screenroutines.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>

FieldPath::FieldPath(QWidget *screen) : QObject(screen), m_screen(screen)
{
}

void FieldPath::setOrder(const QList<QWidget *> &fields)
{
    m_order = fields;
    const auto watch = [this](QObject *watched, QWidget *field) {
        m_watched.insert(watched, field);
        watched->installEventFilter(this);
        // Widgets go one by one as the screen closes; none may be looked at after it went.
        connect(watched, &QObject::destroyed, this, [this](QObject *gone) {
            m_watched.remove(gone);
            m_order.removeAll(gone);
        });
    };
    for (QWidget *field : fields) {
        watch(field, field);
        // An editable combo types into its own line edit, which sees the keys first.
        if (auto *combo = qobject_cast<QComboBox *>(field); combo && combo->lineEdit())
            watch(combo->lineEdit(), field);
    }
}

void FieldPath::setJump(QWidget *field, std::function<QWidget *()> target)
{
    m_jumps.insert(field, std::move(target));
}

void FieldPath::setAction(QWidget *field, std::function<void()> action)
{
    m_actions.insert(field, std::move(action));
}

void FieldPath::enter(QWidget *field)
{
    if (!field || !field->isEnabled() || !field->isVisible())
        return;
    field->setFocus(Qt::TabFocusReason);
    if (auto *edit = qobject_cast<QLineEdit *>(field))
        edit->selectAll();
    else if (auto *combo = qobject_cast<QComboBox *>(field); combo && combo->lineEdit())
        combo->lineEdit()->selectAll();
    else if (auto *spin = qobject_cast<QAbstractSpinBox *>(field))
        spin->selectAll();
}

void FieldPath::focus(const QString &name)
{
    if (name.isEmpty())
        return;
    m_quiet = true;
    enter(m_screen->findChild<QWidget *>(name));
    m_quiet = false;
}

bool FieldPath::eventFilter(QObject *watched, QEvent *event)
{
    QWidget *field = fieldOf(watched);
    if (!field)
        return false;
    if (screenroutines::isEnterKey(event)) {
        if (auto *combo = qobject_cast<QComboBox *>(field); combo && combo->view()->isVisible())
            return false; // Enter picks from the open list first
        if (!leave(field)) {
            enter(field); // what was refused is selected, to be typed over
            return true;
        }
        if (const auto action = m_actions.constFind(field); action != m_actions.constEnd())
            (*action)();
        else
            moveOn(field);
        return true;
    }
    if (event->type() == QEvent::FocusOut && watched == field && !m_quiet && !m_checking) {
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        QWidget *next = QApplication::focusWidget();
        // Opening a list or turning to another window is not leaving the field, and neither is
        // a move out of the screen (its closing).
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason && next
            && m_screen->isAncestorOf(next) && !leave(field))
            enter(field);
    }
    return false;
}

QWidget *FieldPath::fieldOf(QObject *watched) const
{
    return m_watched.value(watched);
}

bool FieldPath::leave(QWidget *field)
{
    if (!m_check)
        return true;
    m_checking = true;
    const bool accepted = m_check(field);
    m_checking = false;
    return accepted;
}

void FieldPath::moveOn(QWidget *from)
{
    if (const auto jump = m_jumps.constFind(from); jump != m_jumps.constEnd()) {
        enter((*jump)());
        return;
    }
    for (qsizetype index = m_order.indexOf(from) + 1; index < m_order.size(); ++index) {
        QWidget *next = m_order.at(index);
        if (next->isEnabled() && next->isVisible() && next->focusPolicy() != Qt::NoFocus) {
            enter(next);
            return;
        }
    }
}
