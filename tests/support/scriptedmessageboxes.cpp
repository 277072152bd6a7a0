#include "scriptedmessageboxes.h"

Answer ScriptedMessageBoxes::show(const Message &message)
{
    shown.append(message);
    if (!m_answers.isEmpty())
        return m_answers.takeFirst();
    return message.buttons == MessageButtons::YesNo ? Answer::No : Answer::Ok;
}

QStringList ScriptedMessageBoxes::texts() const
{
    QStringList result;
    for (const Message &message : shown)
        result << message.text;
    return result;
}
