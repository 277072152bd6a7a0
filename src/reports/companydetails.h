#pragma once

#include "reports/report.h"

#include <QDate>
#include <QList>
#include <QStringList>
#include <optional>

class DataStore;

/// A company as the details screen lists it: "name/ Tan :TAN", and the TAN it stands for.
struct CompanyChoice
{
    QString text;
    QString tan;
};

/**
 * The group-wise company details: the groups and their companies to choose from, and the
 * report of the chosen ones. Throws StoreError.
 */
class CompanyDetails
{
public:
    static inline const QString noCompany =
        QStringLiteral("No Company Found Under This Group.");
    static inline const QString noneSelected =
        QStringLiteral("Please Select At Least One Company.");
    static inline const QString noRecord = QStringLiteral("Sorry No Record Found.");

    explicit CompanyDetails(const DataStore &store) : m_store(store) {}

    /// The group names, in alphabetical order.
    QStringList groupNames() const;
    /// The companies of the group of that name, in the order stored.
    QList<CompanyChoice> companies(const QString &groupName) const;

    /**
     * The details of the chosen companies (by TAN) of the group, each starting a new page when
     * asked. A company drops out when its own state and its responsible person's differ, as it
     * always has; nothing when none is left.
     */
    std::optional<Report> report(const QString &groupName, const QStringList &tans,
                                 bool pageBreak, const QDate &runDate) const;

private:
    int groupId(const QString &groupName) const;

    const DataStore &m_store;
};
