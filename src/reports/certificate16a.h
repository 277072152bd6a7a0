#pragma once

#include "reports/report.h"

#include <QDate>
#include <QList>
#include <QStringList>
#include <optional>

class DataStore;

/**
 * The older certificate path of Form 26Q: a Statement chosen by its company's name, its
 * deductee rows chosen by their row keys, a certificate for each row. Throws StoreError.
 */
class Certificate16A
{
public:
    static inline const QString noDeductee = QStringLiteral("No deductee exist.");
    static inline const QString noneSelected =
        QStringLiteral("Please Select At Least One deductee.");

    /// A deductee row of the chosen Statement: its row key and the name it carries.
    struct Row
    {
        int id = 0;
        QString name;
    };

    explicit Certificate16A(const DataStore &store);

    /// The names of all Statements of 26Q, as stored, one for each Statement.
    QStringList companyNames() const;
    /// The rows of the first Statement of that name.
    QList<Row> deductees(const QString &companyName) const;

    /**
     * A certificate for each row whose key is among @p rowKeys, in any Statement of 26Q (the
     * key is a row's number within its challan, as this path has always read it); each on a
     * page of its own when asked. None when no row is found.
     */
    std::optional<Report> report(const QList<int> &rowKeys, bool pageBreak, const QDate &from,
                                 const QDate &to) const;

private:
    const DataStore &m_store;
};
