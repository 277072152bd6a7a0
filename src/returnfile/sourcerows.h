#pragma once

#include <QDate>
#include <QHash>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

/**
 * The rows of one table as the return file reads them, one at a time: values by column name,
 * and every text checked for what the file cannot carry (a "^", which separates its fields, a
 * line break or any other control character, a character outside its single-byte encoding). A
 * refusal is a ReturnFileError that names the table, the row's key and the column, and quotes
 * the whole value.
 */
class SourceRows
{
public:
    SourceRows(QSqlQuery query, const QString &table, const QString &keyColumn);

    bool next();

    QVariant value(const QString &column) const;
    /// Null or the empty text.
    bool isEmptyText(const QString &column) const;
    /// The stored text, or its first @p cut characters; Null is the empty text.
    QString text(const QString &column, int cut = -1) const;
    /// A whole-number column in plain decimal ("0012" would have been stored as 12); Null is
    /// the empty text.
    QString number(const QString &column) const;
    /// A stored yyyy-mm-dd date; Null or empty is an invalid date, anything else unreadable is
    /// refused.
    QDate date(const QString &column) const;
    /// A yes/no column stored as 1 or 0; Null is no.
    bool flag(const QString &column) const;

    QString table() const { return m_table; }
    QString key() const;

    /// Refuses @p text, read from @p column of the current row, when the file cannot carry it.
    void checkText(const QString &column, const QString &text) const;

private:
    int indexOf(const QString &column) const;
    [[noreturn]] void refuse(const QString &column, const QString &why) const;
    /// A control character as the message shows it: "<U+0009>".
    static QString visible(QChar ch);

    QSqlQuery m_query;
    QString m_table;
    QString m_keyColumn;
    mutable QHash<QString, int> m_indexes;
};
