#pragma once

#include "core/money.h"

#include <QDate>
#include <QString>
#include <QVariant>

/// Single values of a Statement as the store holds them, read as the return file reads them.
namespace filingcheck {

/// An amount column: the figure that the return file writes, and what the store really holds.
struct StoredAmount
{
    QVariant stored;
    Money money; ///< to the paisa on a row, to the rupee on a challan, as the file writes it

    /// A row's amount, which the file carries to the paisa.
    static StoredAmount ofRow(const QVariant &stored);
    /// A challan's amount, which the file carries rounded to whole rupees.
    static StoredAmount ofChallan(const QVariant &stored);

    /// The store holds a text in the number column (SQLite keeps one there), which the file
    /// would read as a number of its own.
    bool isText() const;
    /// The stored text of a non-number, quoted.
    QString shownText() const;
};

/// A date column: ISO text, as the program stores dates.
struct StoredDate
{
    QString stored; ///< trimmed
    QDate date;     ///< invalid when empty or not a date

    static StoredDate of(const QVariant &stored);

    /// dd/mm/yyyy, or the stored text quoted when it is no date, or "empty".
    QString shown() const;
};

/// A text for a message: quoted, or "empty".
QString shown(const QString &text);

/// dd/mm/yyyy.
QString dateText(QDate date);

/// "1 day", "2 days": a count with its unit.
QString counted(qint64 count, const QString &unit);

} // namespace filingcheck
