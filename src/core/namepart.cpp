#include "core/namepart.h"

bool isPlainNamePart(const QString &part)
{
    for (const QChar ch : part) {
        const char16_t code = ch.unicode();
        const bool plain = (code >= u'0' && code <= u'9') || (code >= u'A' && code <= u'Z')
                           || (code >= u'a' && code <= u'z');
        if (!plain)
            return false;
    }
    return true;
}
