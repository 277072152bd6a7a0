#pragma once

#include <QString>

class QEvent;
class QMdiArea;
class QMdiSubWindow;
class QPushButton;
class QWidget;

/// Small routines that every screen of the program shares.
namespace screenroutines {

/// Closes a screen: its window in the main window's area, or the screen itself when it stands
/// alone (as in tests).
void closeScreen(QWidget *screen);

/// Where a screen's window stands when it opens in the main window's area.
enum class Placement {
    Next,    ///< where the area puts its next window
    TopLeft, ///< at the area's top left corner, the same place each time
    Middle,  ///< in the middle of the area
};

/// Tells showInArea() where the screen's window stands; without it, at the Next place.
void setPlacement(QWidget *screen, Placement placement);

/// Shows a screen in a window of the main window's area at the size it is drawn for, or smaller
/// down to its minimum when the area is smaller, at the screen's place, moved left and up as far
/// as it takes to stand wholly in the area. Closing the window brings the opener, the window the
/// screen was opened from, to the front again; the window goes when it is closed.
QMdiSubWindow *showInArea(QMdiArea *area, QWidget *screen, QMdiSubWindow *opener);

/// Shows a screen beside the one it is opened from: in the main window's area when that screen
/// stands in it, returning to it when closed; otherwise in a window of its own. The screen goes
/// when it is closed.
void openBeside(QWidget *beside, QWidget *screen);

/// The text of the label whose buddy is @p field, as the screen shows it (a mnemonic's "&"
/// gone); empty when the field has no label.
QString labelOf(const QWidget *field);

/// A key press of Enter, on the main keyboard or the keypad: entry moves along the fields on it.
bool isEnterKey(const QEvent *event);

/// A named command button that Enter presses when it has the focus, so that a screen can be
/// worked from the keyboard alone.
QPushButton *commandButton(const QString &caption, const QString &name, QWidget *parent);

} // namespace screenroutines
