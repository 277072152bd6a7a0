#pragma once

#include <QMdiSubWindow>
#include <QPointer>

/// A window of the main window's area that remembers the window it was opened from: closing
/// it brings that window to the front again, so that the user goes on where they left off.
class AreaWindow : public QMdiSubWindow
{
    Q_OBJECT

public:
    /// opener: the window the user was working in; none for a window opened from nowhere.
    explicit AreaWindow(QMdiSubWindow *opener);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QMdiSubWindow> m_opener;
    bool m_returning = false; ///< closing in front: the opener takes the front when it goes
};
