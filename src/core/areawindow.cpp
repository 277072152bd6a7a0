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
    const bool inFront = area && area->currentSubWindow() == this;
    QMdiSubWindow::closeEvent(event);
    if (!event->isAccepted() || !area)
        return;
    // What this window opened goes back, when closed, to where this one came from: a statement
    // opened through the company selection returns to the screen before the selection.
    const QList<QMdiSubWindow *> frames = area->subWindowList();
    for (QMdiSubWindow *frame : frames) {
        if (auto *child = qobject_cast<AreaWindow *>(frame); child && child->m_opener == this)
            child->m_opener = m_opener;
    }
    // The area by itself brings forward the next window in the order of opening, which may be
    // another statement's screen.
    if (inFront && m_opener && m_opener->isVisible())
        area->setActiveSubWindow(m_opener);
}
