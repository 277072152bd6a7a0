#pragma once

#include <QDate>
#include <QStringList>
#include <functional>

class DataStore;

/**
 * Brings the masters of an earlier year's data store into the current one: the companies,
 * deductees, employees and groups there replace those here, keys and all, so that the four stay
 * linked; the statements are not touched. Every employee takes the current financial year as
 * the period of employment.
 *
 * All four tables are replaced in one transaction: a refused source or a failure at any row
 * leaves the current store as it was (ImportError). The source is only read.
 */
class MasterImport
{
public:
    /// Told the table being copied and the rows copied so far of the total of all four.
    using Progress = std::function<void(const QString &table, qint64 copied, qint64 total)>;

    static inline const QString failureText =
        QStringLiteral("The import could not be completed: %1.");

    /// The tables, in the order they are copied.
    static const QStringList tables;

    explicit MasterImport(const DataStore &store) : m_store(store) {}

    /// Imports from the store at sourcePath; yearStart and yearEnd become every employee's
    /// FromDate and ToDate.
    void run(const QString &sourcePath, const QDate &yearStart, const QDate &yearEnd,
             const Progress &progress = {}) const;

private:
    const DataStore &m_store;
};
