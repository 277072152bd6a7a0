#include "scriptedmessageboxes.h"

Answer ScriptedMessageBoxes::show(const Message &message)
{
    shown.append(message);
    if (!m_answers.isEmpty())
        return m_answers.takeFirst();
    switch (message.buttons) {
    case MessageButtons::YesNo: return Answer::No;
    case MessageButtons::YesNoCancel: return Answer::Cancel;
    case MessageButtons::Ok: break;
    }
    return Answer::Ok;
}

QStringList ScriptedMessageBoxes::texts() const
{
    QStringList result;
    for (const Message &message : shown)
        result << message.text;
    return result;
}
