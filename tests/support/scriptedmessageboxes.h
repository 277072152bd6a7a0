#pragma once

#include "core/messageboxes.h"

#include <QList>

/// Records every box the code shows and answers from a queue (Ok, No or Cancel when the queue is
/// empty, so that an unexpected question never deletes or ends anything).
class ScriptedMessageBoxes : public MessageBoxes
{
public:
    Answer show(const Message &message) override;

    void answerNext(Answer answer) { m_answers.append(answer); }

    QList<Message> shown;

    /// The texts of the boxes shown so far, in order.
    QStringList texts() const;

private:
    QList<Answer> m_answers;
};
