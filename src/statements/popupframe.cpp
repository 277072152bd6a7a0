#include "statements/popupframe.h"

#include "core/screenroutines.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

PopupFrame::PopupFrame(const QString &name, const QString &title, const QString &okName,
                       const QString &cancelName, QWidget *parent)
    : QFrame(parent), m_body(new QVBoxLayout)
{
    setObjectName(name);
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setLineWidth(2);
    setAutoFillBackground(true);
    auto *caption = new QLabel(title, this);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    auto *ok = screenroutines::commandButton(QStringLiteral("OK"), okName, this);
    m_cancel = screenroutines::commandButton(QStringLiteral("Cancel"), cancelName, this);
    connect(ok, &QPushButton::clicked, this, &PopupFrame::okClicked);
    connect(m_cancel, &QPushButton::clicked, this, &PopupFrame::cancelClicked);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(m_cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addLayout(m_body, 1);
    layout->addLayout(buttons);
    hide();
}

void PopupFrame::popUp()
{
    adjustSize();
    const QWidget *panel = parentWidget();
    const QSize size = this->size().boundedTo(panel->size());
    resize(size);
    move((panel->width() - size.width()) / 2, (panel->height() - size.height()) / 2);
    show();
    raise();
}

void PopupFrame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        m_cancel->click();
        return;
    }
    QFrame::keyPressEvent(event);
}
