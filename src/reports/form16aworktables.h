#pragma once

#include <QList>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

class DataStore;
struct FormTraits;

/**
 * The work tables behind Form 16A. Temp_RptQryFormNo16A holds every deductee row of one form
 * across the store, with its Statement's deductor, its challan and its section's description;
 * Temp_DeducteeSection holds the amount in words of each deductee and section that is printed.
 * Both are rebuilt before use and hold nothing of lasting value. Every failure throws
 * StoreError.
 */
class Form16AWorkTables
{
public:
    /// A deductee as the selection list shows it: the master's id and the name in the rows.
    struct Deductee
    {
        int id = 0;
        QString name;
        bool operator==(const Deductee &) const = default;
    };

    explicit Form16AWorkTables(const DataStore &store);

    /// Makes what the certificates need and an older store may lack: the column InWords of
    /// mstDeductee and the two work tables.
    void prepare() const;

    /// Empties the rows table and fills it from the Statements of a form with a section
    /// (26Q, 27Q, 27EQ). The joins are inner: a row whose section is not in the form's section
    /// list, or whose Statement's state code is not in mstState, has no certificate.
    void fill(const FormTraits &form) const;

    /// The deductees of a company's quarter in the rows table, by name, each id once; with
    /// @p nameOrPan only those of that name or PAN (compared without regard to case).
    QList<Deductee> deductees(int companyId, const QString &quarter,
                              const QString &nameOrPan = {}) const;

    /**
     * Empties the words table, then adds one row for each deductee name and section among
     * the rows of the chosen deductees (master ids), with the total tax deposited in words.
     * Returns the number of rows added.
     */
    int fillWords(int companyId, const QString &quarter, const QList<int> &deducteeIds) const;

    /// The rows to certify: every column of the rows table, then the words and the master's
    /// PIN, for the chosen deductees whose master of that name is in the group; by name,
    /// section and date of payment. Two masters of one name in a group double the rows.
    QSqlQuery certificateRows(int companyId, const QString &quarter,
                              const QList<int> &deducteeIds, int groupId) const;

    /// The names among the chosen deductees' rows that two or more masters of the group bear
    /// (compared without regard to case), which certificateRows joins to every one of them.
    QStringList sharedNames(int companyId, const QString &quarter,
                            const QList<int> &deducteeIds, int groupId) const;

    /**
     * The rows to certify each deductee master on its own: the columns of certificateRows, the
     * words Null, for the chosen deductees whose master (by its id) is in the group; each
     * master's rows together, by its name and id, then by section and date of payment. Each
     * row is read once, whatever the names of the masters and of the rows.
     */
    QSqlQuery masterRows(int companyId, const QString &quarter, const QList<int> &deducteeIds,
                         int groupId) const;

private:
    const DataStore &m_store;
};
