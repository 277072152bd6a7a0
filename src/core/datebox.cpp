#include "core/datebox.h"

#include "core/fieldrules.h"
#include "core/keyfilters.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QRegularExpressionValidator>
#include <QStyle>

namespace {

const QString shownFormat = QStringLiteral("dd/MM/yyyy");

} // namespace

DateBox::DateBox(const QString &name, QWidget *parent) : QLineEdit(parent)
{
    setObjectName(name);
    setMaxLength(10);
    setPlaceholderText(QStringLiteral("dd/mm/yyyy"));
    setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9/.-]*")), this));
    keyfilters::selectOnEntry(this);
    QAction *drop = addAction(style()->standardIcon(QStyle::SP_ArrowDown), TrailingPosition);
    drop->setToolTip(QStringLiteral("Calendar (Alt+Down)"));
    connect(drop, &QAction::triggered, this, &DateBox::dropCalendar);
}

QDate DateBox::date() const
{
    return fieldrules::typedDate(text());
}

void DateBox::setDate(QDate date)
{
    if (!date.isValid()) {
        if (this->date().isValid())
            clear();
        return;
    }
    const QString shown = date.toString(shownFormat);
    if (text() != shown)
        setText(shown);
}

void DateBox::keyPressEvent(QKeyEvent *event)
{
    const bool altDown = event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier;
    if (!isReadOnly() && (altDown || event->key() == Qt::Key_F4)) {
        dropCalendar();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DateBox::dropCalendar()
{
    if (isReadOnly() || !isEnabled())
        return;
    if (!m_calendar) {
        m_calendar = new QCalendarWidget(this);
        m_calendar->setWindowFlags(Qt::Popup);
        m_calendar->setObjectName(objectName() + QStringLiteral("Calendar"));
        connect(m_calendar, &QCalendarWidget::activated, this, [this](QDate picked) {
            m_calendar->hide();
            setDate(picked);
            setFocus(Qt::PopupFocusReason);
            selectAll();
        });
        connect(m_calendar, &QCalendarWidget::clicked, m_calendar,
                &QCalendarWidget::activated);
    }
    m_calendar->setSelectedDate(date().isValid() ? date() : QDate::currentDate());
    m_calendar->adjustSize();
    m_calendar->move(mapToGlobal(QPoint(0, height())));
    m_calendar->show();
    m_calendar->setFocus(Qt::PopupFocusReason);
}
