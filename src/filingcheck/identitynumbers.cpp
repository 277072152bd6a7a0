#include "filingcheck/identitynumbers.h"

#include <cstring>

namespace filingcheck::identity {

bool hasShape(const QString &text, const char *shape)
{
    const qsizetype length = qsizetype(std::strlen(shape));
    if (text.size() != length)
        return false;
    for (qsizetype i = 0; i < length; ++i) {
        const char16_t ch = text.at(i).unicode();
        const bool fits = shape[i] == '9' ? ch >= u'0' && ch <= u'9' : ch >= u'A' && ch <= u'Z';
        if (!fits)
            return false;
    }
    return true;
}

const QStringList &panPlaceholders()
{
    static const QStringList placeholders = {QStringLiteral("PANAPPLIED"),
                                             QStringLiteral("PANINVALID"),
                                             QStringLiteral("PANNOTAVBL")};
    return placeholders;
}

bool isPanPlaceholder(const QString &pan)
{
    // Asked of every row: most PANs do not begin as the placeholders do.
    return pan.startsWith(u"PAN") && panPlaceholders().contains(pan);
}

bool hasZeroDigits(const QString &pan)
{
    return hasShape(pan, panShape) && QStringView(pan).mid(5, 4) == u"0000";
}

} // namespace filingcheck::identity
