#include "core/qtmessageboxes.h"

#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

namespace {

// Room beside a title for the window's icon and its three title-bar buttons.
constexpr int titleBarRoom = 160;

// A box sizes itself to its text; a long title in a short box would be cut by the title bar.
void holdTitle(QMessageBox &box, const QString &title)
{
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    if (!grid)
        return;
    QFont titleFont = box.font();
    titleFont.setBold(true);
    const int width = QFontMetrics(titleFont).horizontalAdvance(title) + titleBarRoom;
    grid->addItem(new QSpacerItem(width, 0, QSizePolicy::Minimum, QSizePolicy::Minimum),
                  grid->rowCount(), 0, 1, grid->columnCount());
}

QMessageBox::Icon boxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::None: return QMessageBox::NoIcon;
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Warning: return QMessageBox::Warning;
    case MessageIcon::Critical: return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

} // namespace

Answer QtMessageBoxes::show(const Message &message)
{
    QMessageBox box(m_parent);
    box.setWindowTitle(message.title);
    // Texts carry names and the system's own "<BR>" as typed: never read as markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setIcon(boxIcon(message.icon));
    holdTitle(box, message.title);
    const QMessageBox::StandardButton defaultButton =
        message.defaultNo ? QMessageBox::No : QMessageBox::Yes;
    if (message.buttons == MessageButtons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(defaultButton);
        return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
    }
    if (message.buttons == MessageButtons::YesNoCancel) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        box.setDefaultButton(defaultButton);
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
