#include "returnfile/recordline.h"

#include "core/money.h"
#include "core/numbers.h"

#include <QDate>
#include <QVariant>

namespace {

/// Blanks are what the file's fields lose at both ends; tabs and other characters stay.
QString trimmedOfBlanks(const QString &text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text.at(first) == u' ')
        ++first;
    while (last > first && text.at(last - 1) == u' ')
        --last;
    return text.mid(first, last - first);
}

} // namespace

RecordLine::RecordLine(int lineNumber, const QString &recordType)
{
    addNumber(lineNumber);
    addText(recordType);
}

RecordLine &RecordLine::addField(const QString &value)
{
    m_text += value;
    m_text += u'^';
    ++m_fields;
    return *this;
}

RecordLine &RecordLine::addText(const QString &text)
{
    return addField(trimmedOfBlanks(text));
}

RecordLine &RecordLine::addBlank(int count)
{
    for (int i = 0; i < count; ++i)
        addField(QString());
    return *this;
}

RecordLine &RecordLine::addNumber(qint64 number)
{
    return addField(QString::number(number));
}

RecordLine &RecordLine::addFlag(bool yes)
{
    return addField(yes ? QStringLiteral("Y") : QStringLiteral("N"));
}

RecordLine &RecordLine::addDate(const QDate &date)
{
    if (!date.isValid())
        return addField(QString());
    // Written digit by digit: the file has hundreds of thousands of dates, and a format string
    // is parsed anew for each one.
    const int digits[] = {date.day() / 10,         date.day() % 10,
                          date.month() / 10,       date.month() % 10,
                          date.year() / 1000 % 10, date.year() / 100 % 10,
                          date.year() / 10 % 10,   date.year() % 10};
    QString text(8, Qt::Uninitialized);
    for (int i = 0; i < 8; ++i)
        text[i] = QChar(u'0' + digits[i]);
    return addField(text);
}

RecordLine &RecordLine::addAmount(const QVariant &stored)
{
    if (stored.isNull())
        return addField(QString());
    return addField(Money::fromStored(stored).toText());
}

RecordLine &RecordLine::addRoundedAmount(const QVariant &stored)
{
    if (stored.isNull())
        return addField(QString());
    return addField(Money::roundedFromStored(stored).toText());
}

RecordLine &RecordLine::addMoney(const Money &amount)
{
    return addField(amount.toText());
}

RecordLine &RecordLine::addRate(const QVariant &stored)
{
    return addField(rateText(stored));
}

QString RecordLine::rateText(const QVariant &stored)
{
    if (stored.isNull())
        return {};
    return numbers::rateText(numbers::rateTenThousandths(stored));
}
