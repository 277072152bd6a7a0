#pragma once

#include <QWidget>

/// A named control of a screen or panel; a missing one ends the test program, as no check
/// after it could mean anything.
template<typename T = QWidget>
T *child(QWidget &screen, const QString &name)
{
    T *found = screen.findChild<T *>(name);
    if (!found)
        qFatal("no %s on the screen", qPrintable(name));
    return found;
}
