#pragma once

#include "core/messageboxes.h"

#include <optional>

/// The five canned boxes that screens ask for by number.
namespace cannedmessages {

enum Kind {
    OnlyNumerics = 1, ///< "Only numerics is to be entered"
    ConfirmSave = 2,
    ConfirmDelete = 3,
    ConfirmExit = 4,
    DuplicateCode = 5,
};

/// The box of a kind; none for a kind outside 1 to 5.
std::optional<Message> message(int kind);

/// Shows the box of the kind and returns its answer as the screens compare it (6 Yes, 7 No,
/// 1 Ok); a kind outside 1 to 5 shows nothing and returns 0.
int showMessage(MessageBoxes &boxes, int kind);

} // namespace cannedmessages
