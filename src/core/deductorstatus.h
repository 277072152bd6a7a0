#pragma once

#include <QString>

namespace deductorstatus {

/// Central ("A") and State ("S") Government deductors may pay by book entry: their challans
/// carry a transfer voucher number instead of a challan number.
inline bool paysByBookEntry(const QString &status)
{
    const QString code = status.trimmed();
    return code == u"A" || code == u"S";
}

} // namespace deductorstatus
