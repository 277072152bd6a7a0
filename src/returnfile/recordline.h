#pragma once

#include <QByteArray>
#include <QString>

class Money;
class QDate;
class QVariant;

/**
 * One line of the return file as it is assembled. Field 1 is the line number and field 2 the
 * record type; every field, the last one too, is followed by one "^". Texts go out trimmed of
 * blanks and otherwise as given: nothing is cut or padded to a field's declared width here.
 * What the file cannot carry is refused where the values are read (SourceRows), so a line is
 * always single-byte text.
 */
class RecordLine
{
public:
    RecordLine(int lineNumber, const QString &recordType);

    RecordLine &addText(const QString &text);
    /// Empty fields: a caret each.
    RecordLine &addBlank(int count = 1);
    RecordLine &addNumber(qint64 number);
    /// "Y" or "N".
    RecordLine &addFlag(bool yes);
    /// "ddmmyyyy"; a date that is not there gives an empty field.
    RecordLine &addDate(const QDate &date);
    /// "0.00" of a stored amount as it stands; Null gives an empty field.
    RecordLine &addAmount(const QVariant &stored);
    /// "0.00" of a stored amount rounded to whole rupees, half to even; Null gives an empty field.
    RecordLine &addRoundedAmount(const QVariant &stored);
    RecordLine &addMoney(const Money &amount);
    /// "0.0000" of a stored rate; Null gives an empty field.
    RecordLine &addRate(const QVariant &stored);

    int fieldCount() const { return m_fields; }
    QString text() const { return m_text; }
    /// The line in the file's single-byte encoding, without its line end.
    QByteArray toLatin1() const { return m_text.toLatin1(); }

    /// A rate with exactly four decimals, read from its shortest decimal text and rounded half
    /// away from zero at the fifth, so that a typed 10.12345 is 10.1235 whatever its binary value.
    static QString rateText(const QVariant &stored);

private:
    RecordLine &addField(const QString &value);

    QString m_text;
    int m_fields = 0;
};
