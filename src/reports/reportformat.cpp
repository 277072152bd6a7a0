#include "reports/reportformat.h"

namespace reportformat {

QString indianAmount(Money amount)
{
    const qint64 paise = amount.paise();
    const quint64 magnitude = paise < 0 ? quint64(-(paise + 1)) + 1 : quint64(paise);
    const QString rupees = QString::number(magnitude / 100);
    QString grouped = rupees.right(3);
    for (qsizetype end = rupees.size() - 3; end > 0; end -= 2)
        grouped.prepend(rupees.mid(std::max<qsizetype>(0, end - 2), std::min<qsizetype>(2, end))
                        + QLatin1Char(','));
    return (paise < 0 ? QStringLiteral("-") : QString()) + grouped + QLatin1Char('.')
           + QStringLiteral("%1").arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

QString dateText(const QDate &date)
{
    return date.isValid() ? date.toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

QString storedDateText(const QString &stored)
{
    const QDate date = QDate::fromString(stored.trimmed(), Qt::ISODate);
    return date.isValid() ? dateText(date) : stored;
}

} // namespace reportformat
