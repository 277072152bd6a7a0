#pragma once

#include <QString>

inline const QString appTitle = QStringLiteral("Kelvora");

enum class MessageIcon { None, Information, Question, Warning, Critical };
enum class MessageButtons { Ok, YesNo, YesNoCancel };

/// The answer of a box, with the values that the screens have always compared against.
enum class Answer { None = 0, Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct Message
{
    QString text;
    QString title = appTitle;
    MessageIcon icon = MessageIcon::Information;
    MessageButtons buttons = MessageButtons::Ok;
    /// No is the default button: a question that deletes or ends something is not confirmed by
    /// a stray Enter.
    bool defaultNo = false;

    bool operator==(const Message &) const = default;
};

/// The one way the program shows a message box. The program shows real boxes; tests script them.
class MessageBoxes
{
public:
    virtual ~MessageBoxes() = default;
    virtual Answer show(const Message &message) = 0;
};
