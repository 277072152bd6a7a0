#pragma once

#include "statements/sectiongrid.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class DataStore;
struct FormTraits;

/**
 * The four section tables under the salary rows of Form 24Q: the grids' rows read for an
 * employee, the sections the grids offer and accept, and the rewrite and delete of an
 * employee's rows. Writes throw StoreError and are left to the caller's transaction.
 */
class SectionRecords
{
public:
    SectionRecords(const DataStore &store, const FormTraits &form);

    /// Every section of the grid's list in the master's order, with the amounts of the salary
    /// row where it has them ("0.00"), and behind them any rows of the salary row whose
    /// section is not in that list, so that a save never drops a row it did not show.
    QList<SectionRow> load(SectionKind kind, int salaryId) const;

    /// The sections the grid's list offers.
    QStringList offered(SectionKind kind) const;

    /// The master's spelling of a section of any kind; none when the master lacks it.
    std::optional<QString> masterName(const QString &section) const;

    /// Replaces the salary row's rows of the grid's table with @p rows.
    void rewrite(SectionKind kind, int salaryId, int employeeId,
                 const QList<SectionRow> &rows) const;

    /// Deletes the salary row's rows of all four tables.
    void remove(int salaryId) const;

private:
    QString table(SectionKind kind) const;

    const DataStore &m_store;
    const FormTraits &m_form;
};
