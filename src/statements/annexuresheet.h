#pragma once

#include "statements/annexureentry.h"
#include "statements/annexurelistmodel.h"
#include "statements/annexureparties.h"
#include "statements/annexurerecords.h"
#include "statements/annexurerules.h"
#include "statements/challangridmodel.h"

class StatementSheet;

/**
 * The annexure panel without its widgets: the challan chosen in the grid, the rows entered under
 * it, the tax computed as the amount or the rate changes, and the save and delete of one row with
 * the challan's control totals recomputed in the same transaction. Form 24Q's employee rows take
 * the same way with their differences, and may be entered before any challan exists and turned
 * into challans afterwards.
 */
class AnnexureSheet
{
public:
    static inline const QString cannotSaveText =
        QStringLiteral("Cannot Save Deductee. Try Again.");
    static inline const QString fromListText =
        QStringLiteral("Please select from the drop-down list");

    explicit AnnexureSheet(StatementSheet &statement);

    AnnexureEntry &entry() { return m_entry; }
    const AnnexureEntry &entry() const { return m_entry; }
    ChallanGridModel &challans() { return m_challans; }
    AnnexureListModel &rows() { return m_rows; }
    /// The chosen challan, or null.
    const ChallanEntry *challan() const;
    /// The tax deposited of the rows in the list, "0.00".
    QString depositedSum() const { return m_depositedSum; }

    /// The deductees or employees of the session's group, by name.
    QStringList partyNames() const;

    /// The panel is opened: the challans afresh, the chosen one kept.
    void open();
    /// A challan chosen in the grid: its rows, and a fresh row.
    void chooseChallan(int gridRow);

    /// Leaving the name: the party's particulars from the master; false for a name it lacks.
    bool partyLeft();
    void amountChanged();
    void rateChanged();
    /// Tax, surcharge or cess changed: the total.
    void taxPartChanged();
    bool boxLeft(annexurerules::Box box);
    /// A state chosen by name: its id and code.
    void stateChosen();
    bool stateLeft();
    /// Leaving the date; false when it is not a date, or was put back to the bound it crossed.
    bool dateLeft();

    /// Saves the row of the boxes; false when a check refused it or the store failed.
    bool save();
    /// A row of the list into the boxes, for changing it.
    void loadRow(int row);
    bool editingRow() const { return m_editingRow; }
    /// The Delete key on a row of the list.
    void deleteRow(int row);

    /// Form 24Q: one challan for each row entered before any challan existed.
    bool transferToChallans();

private:
    ChallanRowsKey key() const;
    void reloadChallans();
    void showRows(QList<AnnexureEntry> rows);
    /// The deposited sum and the Statement's count after the list changed.
    void rowsChanged();
    void clearPartyFields();
    void newRow();
    /// Writes the chosen challan's control totals from its list as it is about to become: row
    /// @p changed replaced by @p replacement (added for -1), or taken out when there is none;
    /// nothing without a challan.
    void writeControlTotals(int changed, const AnnexureEntry *replacement) const;
    bool refuse(const QString &text, const QString &field);

    StatementSheet &m_statement;
    AnnexureRecords m_records;
    AnnexureParties m_parties;
    AnnexureEntry m_entry;
    ChallanGridModel m_challans;
    AnnexureListModel m_rows;
    int m_challanId = 0;   ///< the chosen challan's key; 0 for none
    QString m_depositedSum = QStringLiteral("0.00");
    bool m_editingRow = false;
};
