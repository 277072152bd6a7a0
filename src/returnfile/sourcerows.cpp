#include "returnfile/sourcerows.h"

#include "returnfile/returnfileerror.h"

#include <QLocale>
#include <QSqlRecord>

#include <cmath>

SourceRows::SourceRows(QSqlQuery query, const QString &table, const QString &keyColumn)
    : m_query(std::move(query)), m_table(table), m_keyColumn(keyColumn)
{
}

bool SourceRows::next()
{
    return m_query.next();
}

int SourceRows::indexOf(const QString &column) const
{
    auto found = m_indexes.constFind(column);
    if (found == m_indexes.constEnd()) {
        const int index = m_query.record().indexOf(column);
        if (index < 0)
            throw ReturnFileError(
                QStringLiteral("The return file was not written: %1 has no column %2.")
                    .arg(m_table, column));
        found = m_indexes.insert(column, index);
    }
    return *found;
}

QVariant SourceRows::value(const QString &column) const
{
    return m_query.value(indexOf(column));
}

bool SourceRows::isEmptyText(const QString &column) const
{
    const QVariant stored = value(column);
    return stored.isNull() || stored.toString().isEmpty();
}

QString SourceRows::text(const QString &column, int cut) const
{
    const QVariant stored = value(column);
    if (stored.isNull())
        return {};
    QString text = stored.toString();
    if (cut >= 0)
        text.truncate(cut);
    checkText(column, text);
    return text;
}

QString SourceRows::number(const QString &column) const
{
    const QVariant stored = value(column);
    if (stored.isNull())
        return {};
    switch (stored.typeId()) {
    case QMetaType::LongLong:
    case QMetaType::Int:
        return QString::number(stored.toLongLong());
    case QMetaType::Double: {
        const double number = stored.toDouble();
        if (number == std::trunc(number) && std::abs(number) < 1e15)
            return QString::number(static_cast<qint64>(number));
        return QString::number(number, 'f', QLocale::FloatingPointShortest);
    }
    default:
        return text(column);
    }
}

QDate SourceRows::date(const QString &column) const
{
    const QVariant stored = value(column);
    if (stored.isNull())
        return {};
    const QString text = stored.toString().trimmed();
    if (text.isEmpty())
        return {};
    const QDate date = QDate::fromString(text.left(10), Qt::ISODate);
    // A guard kept on purpose: a date that cannot be read would go out empty, as if none had
    // been entered, so it stops the generation instead.
    if (!date.isValid())
        refuse(column, QStringLiteral("it is not a date"));
    return date;
}

bool SourceRows::flag(const QString &column) const
{
    const QVariant stored = value(column);
    return !stored.isNull() && stored.toDouble() != 0;
}

QString SourceRows::key() const
{
    return m_query.value(indexOf(m_keyColumn)).toString();
}

void SourceRows::checkText(const QString &column, const QString &text) const
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        if (ch == u'^')
            refuse(column, QStringLiteral("\"^\" separates the fields of the file"));
        if (ch == u'\r' || ch == u'\n')
            refuse(column, QStringLiteral("a line break would split its line in two"));
        if (ch.category() == QChar::Other_Control) {
            refuse(column, QStringLiteral("the control character %1 has no place in the file")
                               .arg(visible(ch)));
        }
        if (ch.unicode() > 0xff) {
            const qsizetype length = ch.isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
            refuse(column, QStringLiteral("\"%1\" is beyond the file's single-byte text")
                               .arg(text.mid(i, length)));
        }
    }
}

QString SourceRows::visible(QChar ch)
{
    return QStringLiteral("<U+%1>").arg(ch.unicode(), 4, 16, QLatin1Char('0')).toUpper();
}

void SourceRows::refuse(const QString &column, const QString &why) const
{
    // The whole stored value, not only the part that goes out, its control characters made
    // visible, so that the user can find it.
    QString shown;
    for (const QChar ch : value(column).toString())
        shown += ch.category() == QChar::Other_Control ? visible(ch) : QString(ch);
    throw ReturnFileError(QStringLiteral("The return file was not written: %1 of %2 (%3 %4) "
                                         "holds \"%5\", and %6.")
                              .arg(column, m_table, m_keyColumn, key(), shown, why));
}
