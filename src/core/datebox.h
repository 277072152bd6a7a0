#pragma once

#include <QDate>
#include <QLineEdit>

class QCalendarWidget;

/**
 * A date box that takes a date as it is typed, dd/mm/yyyy, and never rewrites it key by key:
 * arriving by Enter, Tab or a click selects the whole date, so the typed one replaces it. The
 * screen checks the date when the box is left. An empty box is no date. Alt+Down, F4 or the
 * arrow at its end drops a calendar down to pick from.
 */
class DateBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit DateBox(const QString &name, QWidget *parent = nullptr);

    /// The date typed; invalid when the box is empty or holds what is not a date.
    QDate date() const;
    /// Shows a date as dd/mm/yyyy, or an empty box for an invalid one. What was typed and is not
    /// a date stays when the date is invalid, so that the user can mend it.
    void setDate(QDate date);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void dropCalendar();

    QCalendarWidget *m_calendar = nullptr;
};
