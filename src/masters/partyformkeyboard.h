#pragma once

#include <QList>
#include <QObject>

#include <functional>

class QAbstractItemView;
class QLineEdit;
class QWidget;

// How the party screen takes the keyboard: Enter moves along the fields in their order and from
// the last one to Save, Tab out of the PAN goes where Enter goes, leaving a field for another
// control of the screen runs the field's check, and Enter and Delete on the list load and delete
// its row. The checks and the row actions are the screen's.
class PartyFormKeyboard : public QObject
{
public:
    struct Controls
    {
        QList<QWidget *> fieldOrder; // the order that Enter follows
        QWidget *pan;
        QAbstractItemView *list;
        QWidget *save;
    };

    struct Actions
    {
        std::function<bool(QWidget *)> leaveField; // false keeps the focus in the field
        std::function<void()> loadListRow;
        std::function<void()> deleteListRow;
    };

    PartyFormKeyboard(QWidget *form, Controls controls, Actions actions);

    // The field that an object is, or whose line edit it is; nullptr for none.
    QWidget *fieldOf(QObject *watched) const;
    // Whether the mouse press that took the focus from a refused field is still to be dropped;
    // asking forgets it.
    bool takeDroppedClick();
    // While the screen moves the focus itself, no field counts as left.
    void setShowing(bool showing) { m_showing = showing; }

    // Where a field's text is typed: the field itself or its combo's edit.
    static QLineEdit *lineEditOf(QWidget *field);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void moveToNextField(QWidget *from);

    QWidget *m_form;
    QList<QWidget *> m_fieldOrder;
    QWidget *m_pan;
    QAbstractItemView *m_list;
    QWidget *m_save;
    Actions m_actions;
    bool m_dropClick = false; // a leave check refused as the mouse took the focus away
    bool m_showing = false;
    bool m_movingOn = false; // the focus leaves a field already left by Enter or Tab
};
