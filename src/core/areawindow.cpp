#include "core/areawindow.h"

#include <QCloseEvent>
#include <QMdiArea>

AreaWindow::AreaWindow(QMdiSubWindow *opener) : m_opener(opener)
{
    setAttribute(Qt::WA_DeleteOnClose);
}

void AreaWindow::closeEvent(QCloseEvent *event)
{
    QMdiArea *area = mdiArea();
    m_returning = area && area->currentSubWindow() == this && m_opener && m_opener->isVisible();
    QMdiSubWindow::closeEvent(event);
    m_returning = false;
    if (!event->isAccepted() || !area)
        return;
    // What this window opened goes back, when closed, to where this one came from: a statement
    // opened through the company selection returns to the screen before the selection.
    const QList<QMdiSubWindow *> frames = area->subWindowList();
    for (QMdiSubWindow *frame : frames) {
        if (auto *child = qobject_cast<AreaWindow *>(frame); child && child->m_opener == this)
            child->m_opener = m_opener;
    }
}

bool AreaWindow::eventFilter(QObject *watched, QEvent *event)
{
    // The screen has agreed to close and goes: its opener takes the front before the focus
    // leaves the screen, which would bring up the window next in the focus chain instead.
    if (m_returning && watched == widget() && event->type() == QEvent::Hide) {
        m_returning = false;
        mdiArea()->setActiveSubWindow(m_opener);
        // After a question of the screen the main window gets the keyboard back later, to the
        // field it last had: that must be one of the opener, not the closed screen's.
        if (!m_opener->isAncestorOf(window()->focusWidget())) {
            QWidget *field = m_opener->widget() ? m_opener->widget()->focusWidget() : nullptr;
            (field ? field : m_opener.data())->setFocus();
        }
    }
    return QMdiSubWindow::eventFilter(watched, event);
}
