#include "core/storeerror.h"

QString StoreError::reason() const
{
    switch (primaryCode()) {
    case busyCode:
        return QStringLiteral("another program is writing to it");
    case diskFullCode:
        return QStringLiteral("the disk is full");
    case cannotOpenCode:
        return QStringLiteral("the file cannot be opened or made in its folder");
    default:
        break;
    }
    if (m_code.isEmpty())
        return m_description;
    return QStringLiteral("SQLite reports \"%1\"").arg(m_description);
}
