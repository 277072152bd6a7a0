#pragma once

#include <QObject>

class QMdiArea;

/// Gives the active screen's mnemonics precedence over the menu bar's: Alt and a letter that a
/// label, button or box of the screen carries moves there instead of opening a menu. Two
/// widgets of a screen with one letter take the focus in turn, as they always have.
class ScreenMnemonics : public QObject
{
    Q_OBJECT

public:
    /// Watches the application's key events for the screens of the area.
    explicit ScreenMnemonics(QMdiArea *area, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMdiArea *m_area;
};
