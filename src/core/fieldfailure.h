#pragma once

#include "core/messageboxes.h"

#include <QString>

/// Why a check refused an entry: the box to show and the objectName of the field that takes the
/// focus. Checks return it instead of showing it, so that their order can be tested.
struct FieldFailure
{
    Message message;
    QString field;

    bool operator==(const FieldFailure &) const = default;
};
