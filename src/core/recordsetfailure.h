#pragma once

#include "core/messageboxes.h"
#include "core/storeerror.h"

/// The box of a read that failed: the store's description with the words the program has always
/// put after it when rows it asked for could not be opened, under its title, for information.
inline Message recordsetFailure(const StoreError &error)
{
    return {error.description() + QStringLiteral(" : :Error opening Recordset"), appTitle,
            MessageIcon::Information};
}
