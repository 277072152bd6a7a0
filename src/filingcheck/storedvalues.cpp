#include "filingcheck/storedvalues.h"

namespace filingcheck {

StoredAmount StoredAmount::ofRow(const QVariant &stored)
{
    return {stored, Money::fromStored(stored)};
}

StoredAmount StoredAmount::ofChallan(const QVariant &stored)
{
    return {stored, Money::roundedFromStored(stored)};
}

bool StoredAmount::isText() const
{
    // The store's driver gives each value the type of what is stored, whatever the column.
    return stored.typeId() == QMetaType::QString && !stored.isNull();
}

QString StoredAmount::shownText() const
{
    return shown(stored.toString());
}

StoredDate StoredDate::of(const QVariant &stored)
{
    StoredDate read;
    if (stored.isNull())
        return read;
    read.stored = stored.toString().trimmed();
    // As the file reads it: the first ten characters, yyyy-mm-dd.
    read.date = QDate::fromString(QStringView(read.stored).left(10), Qt::ISODate);
    return read;
}

QString StoredDate::shown() const
{
    return date.isValid() ? dateText(date) : filingcheck::shown(stored);
}

QString shown(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("empty") : u'"' + text + u'"';
}

QString dateText(QDate date)
{
    return date.toString(QStringLiteral("dd/MM/yyyy"));
}

QString counted(qint64 count, const QString &unit)
{
    return QString::number(count) + u' ' + unit + (count == 1 ? QString() : QStringLiteral("s"));
}

} // namespace filingcheck
