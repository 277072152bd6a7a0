#include "core/programicon.h"

QIcon programIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/kelvora-%1.png").arg(size));
    return icon;
}
