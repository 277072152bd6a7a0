#include "core/cannedmessages.h"

namespace cannedmessages {

std::optional<Message> message(int kind)
{
    switch (kind) {
    case OnlyNumerics:
        return Message{QStringLiteral("Only numerics is to be entered"),
                       QStringLiteral("Invalid Entry"), MessageIcon::Information,
                       MessageButtons::Ok};
    case ConfirmSave:
        return Message{QStringLiteral("Save Record?"), QStringLiteral("Confirm Save"),
                       MessageIcon::Question, MessageButtons::YesNo};
    case ConfirmDelete:
        return Message{QStringLiteral("Are you sure to proceed with the Deletion?"),
                       QStringLiteral("Confirm Delete"), MessageIcon::Question,
                       MessageButtons::YesNo, true};
    case ConfirmExit:
        return Message{QStringLiteral("Do you wish to Exit?"), appTitle, MessageIcon::Question,
                       MessageButtons::YesNo, true};
    case DuplicateCode:
        return Message{QStringLiteral("The CODE you have entered is DUPLICATE "),
                       QStringLiteral("Duplicate Entry"), MessageIcon::Information,
                       MessageButtons::Ok};
    default:
        return std::nullopt;
    }
}

int showMessage(MessageBoxes &boxes, int kind)
{
    const std::optional<Message> box = message(kind);
    if (!box)
        return 0;
    return static_cast<int>(boxes.show(*box));
}

} // namespace cannedmessages
