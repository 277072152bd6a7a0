#pragma once

#include "core/session.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QApplication>
#include <QTest>

/// A master screen shown and active over a copy of a store, driven from the keyboard.
template<typename Form>
struct ScreenDriver
{
    explicit ScreenDriver(const TestStore &source) : data(source)
    {
        form = std::make_unique<Form>(session, boxes);
        form->show();
        if (!QTest::qWaitForWindowActive(form.get()))
            qFatal("the screen did not become active");
    }

    template<typename T = QWidget> T *child(const char *name) const
    {
        T *widget = form->template findChild<T *>(QLatin1String(name));
        if (!widget)
            qFatal("no control %s", name);
        return widget;
    }

    QString focused() const
    {
        const QWidget *widget = QApplication::focusWidget();
        return widget ? widget->objectName() : QString();
    }

    /// A key to the focused control; a button's accelerator presses it visibly and clicks it a
    /// moment later.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QTest::qWait(modifiers & Qt::AltModifier ? 200 : 1);
    }

    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    TestStore data;
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    std::unique_ptr<Form> form;
};
