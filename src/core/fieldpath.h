#pragma once

#include <QHash>
#include <QList>
#include <QObject>

#include <functional>

class QWidget;

/**
 * The way entry moves through the fields of a screen from the keyboard: Enter leaves a field
 * and goes on to the next one of the path that can take the focus, or runs the field's action;
 * leaving a field (by Enter, Tab or the mouse) runs the screen's check of it, and a refusal keeps
 * the focus there with the field's text selected. The screen names the path and the jumps that
 * differ from it.
 */
class FieldPath : public QObject
{
    Q_OBJECT

public:
    /// The check of a field that is left; false keeps the focus in it.
    using LeaveCheck = std::function<bool(QWidget *field)>;

    explicit FieldPath(QWidget *screen);

    /// The fields in the order Enter visits them.
    void setOrder(const QList<QWidget *> &fields);
    void setLeaveCheck(LeaveCheck check) { m_check = std::move(check); }
    /// Enter in @p field goes where @p target says, instead of to the next field of the path;
    /// a null target goes nowhere.
    void setJump(QWidget *field, std::function<QWidget *()> target);
    /// Enter in @p field runs @p action once the field is left.
    void setAction(QWidget *field, std::function<void()> action);

    /// While set, focus moves are the screen's own: nothing is checked.
    void setQuiet(bool quiet) { m_quiet = quiet; }

    /// Gives the field the focus and selects its text, as arriving by Enter does.
    static void enter(QWidget *field);
    /// The same for the screen's field of that objectName, as the screen's own move: the field
    /// that loses the focus is not checked. Nothing happens for an empty name.
    void focus(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *fieldOf(QObject *watched) const;
    bool leave(QWidget *field);
    void moveOn(QWidget *from);

    QWidget *m_screen;
    QList<QWidget *> m_order;
    QHash<QObject *, QWidget *> m_watched; ///< the fields, and the line edits of their combos
    LeaveCheck m_check;
    QHash<QWidget *, std::function<QWidget *()>> m_jumps;
    QHash<QWidget *, std::function<void()>> m_actions;
    bool m_quiet = false;
    bool m_checking = false;
};
