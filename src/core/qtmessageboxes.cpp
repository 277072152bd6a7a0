#include "core/qtmessageboxes.h"

#include <QMessageBox>

Answer QtMessageBoxes::show(const Message &message)
{
    QMessageBox box(m_parent);
    box.setWindowTitle(message.title);
    box.setText(message.text);
    switch (message.icon) {
    case MessageIcon::None: box.setIcon(QMessageBox::NoIcon); break;
    case MessageIcon::Information: box.setIcon(QMessageBox::Information); break;
    case MessageIcon::Question: box.setIcon(QMessageBox::Question); break;
    case MessageIcon::Warning: box.setIcon(QMessageBox::Warning); break;
    case MessageIcon::Critical: box.setIcon(QMessageBox::Critical); break;
    }
    if (message.buttons == MessageButtons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
    }
    if (message.buttons == MessageButtons::YesNoCancel) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::Cancel);
        switch (box.exec()) {
        case QMessageBox::Yes: return Answer::Yes;
        case QMessageBox::No: return Answer::No;
        default: return Answer::Cancel;
        }
    }
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return Answer::Ok;
}
