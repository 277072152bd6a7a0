#include "masters/partyformkeyboard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool isEnter(const QKeyEvent *event)
{
    return (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
           && !(event->modifiers() & (Qt::AltModifier | Qt::ControlModifier));
}

// Focus that leaves a field for a box or a popup is not the user leaving it.
bool isLeaving(const QFocusEvent *event)
{
    return event->reason() != Qt::ActiveWindowFocusReason
           && event->reason() != Qt::PopupFocusReason
           && event->reason() != Qt::MenuBarFocusReason;
}

} // namespace

PartyFormKeyboard::PartyFormKeyboard(QWidget *form, Controls controls, Actions actions)
    : m_form(form),
      m_fieldOrder(std::move(controls.fieldOrder)),
      m_pan(controls.pan),
      m_list(controls.list),
      m_save(controls.save),
      m_actions(std::move(actions))
{
    for (QWidget *field : std::as_const(m_fieldOrder)) {
        field->installEventFilter(this);
        if (auto *combo = qobject_cast<QComboBox *>(field); combo && combo->lineEdit())
            combo->lineEdit()->installEventFilter(this);
    }
    m_list->installEventFilter(this);
}

bool PartyFormKeyboard::takeDroppedClick()
{
    const bool drop = m_dropClick;
    m_dropClick = false;
    return drop;
}

QLineEdit *PartyFormKeyboard::lineEditOf(QWidget *field)
{
    if (auto *edit = qobject_cast<QLineEdit *>(field))
        return edit;
    if (auto *combo = qobject_cast<QComboBox *>(field))
        return combo->lineEdit();
    return nullptr;
}

void PartyFormKeyboard::moveToNextField(QWidget *from)
{
    for (qsizetype index = m_fieldOrder.indexOf(from) + 1; index < m_fieldOrder.size(); ++index) {
        QWidget *next = m_fieldOrder.at(index);
        if (next->isEnabled() && next->isVisible()) {
            next->setFocus(Qt::TabFocusReason);
            if (QLineEdit *edit = lineEditOf(next))
                edit->selectAll();
            return;
        }
    }
    // Past the last field the entry is complete: on to Save.
    if (m_save->isEnabled())
        m_save->setFocus(Qt::TabFocusReason);
}

QWidget *PartyFormKeyboard::fieldOf(QObject *watched) const
{
    for (QWidget *field : m_fieldOrder) {
        if (watched == field)
            return field;
        if (auto *combo = qobject_cast<QComboBox *>(field); combo && watched == combo->lineEdit())
            return field;
    }
    return nullptr;
}

bool PartyFormKeyboard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (isEnter(key)) {
            m_actions.loadListRow();
            return true;
        }
        if (key->key() == Qt::Key_Delete) {
            m_actions.deleteListRow();
            return true;
        }
        return false;
    }
    QWidget *field = fieldOf(watched);
    if (!field)
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
        m_dropClick = false;
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        // Tab out of the PAN goes where Enter goes: to the PAN reference once it is enabled.
        const bool tabOutOfPan = field == m_pan && key->key() == Qt::Key_Tab
                                 && key->modifiers() == Qt::NoModifier;
        if (isEnter(key) || tabOutOfPan) {
            // Left once: the PAN that leaving has just made "PANNOTAVBL" is not left again.
            if (m_actions.leaveField(field)) {
                m_movingOn = true;
                moveToNextField(field);
                m_movingOn = false;
            } else if (QLineEdit *edit = lineEditOf(field)) {
                edit->selectAll(); // what was refused is typed over
            }
            return true;
        }
    } else if (event->type() == QEvent::FocusOut && watched == field && !m_showing
               && !m_movingOn) {
        const auto *focus = static_cast<QFocusEvent *>(event);
        // Only a move to another control of this screen leaves the field; closing the screen or
        // turning to another one does not. A refusal takes the focus back, and the mouse press
        // that took it away then clicks nothing.
        QWidget *next = QApplication::focusWidget();
        if (isLeaving(focus) && next && m_form->isAncestorOf(next) && !m_actions.leaveField(field)
            && focus->reason() == Qt::MouseFocusReason)
            m_dropClick = true;
    }
    return QObject::eventFilter(watched, event);
}
