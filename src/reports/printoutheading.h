#pragma once

#include <QDate>
#include <QString>

/// What the printouts of a Statement put above their contents.
struct PrintoutHeading
{
    QString companyName;
    QDate periodStart; ///< the assessment period
    QDate periodEnd;
    QDate runDate;

    /// "From : 01/04/2026 To : 31/03/2027"; @p to is the text between the two dates.
    QString period(const QString &to = QStringLiteral(" To : ")) const
    {
        return QStringLiteral("From : ") + periodStart.toString(QStringLiteral("dd/MM/yyyy")) + to
               + periodEnd.toString(QStringLiteral("dd/MM/yyyy"));
    }
};
