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

/// Shows a screen in a window of the main window's area at the size it is drawn for, or smaller
/// down to its minimum when the area is smaller; a window that would run past the bottom of the
/// area starts at its top instead. The window goes when it is closed.
QMdiSubWindow *showInArea(QMdiArea *area, QWidget *screen);

/// A key press of Enter, on the main keyboard or the keypad: entry moves along the fields on it.
bool isEnterKey(const QEvent *event);

/// A named command button that Enter presses when it has the focus, so that a screen can be
/// worked from the keyboard alone.
QPushButton *commandButton(const QString &caption, const QString &name, QWidget *parent);

} // namespace screenroutines
