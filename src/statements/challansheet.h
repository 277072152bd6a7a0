#pragma once

#include "statements/challanentry.h"
#include "statements/challanlistmodel.h"
#include "statements/challanrecords.h"
#include "statements/challanrules.h"

#include <QString>
#include <QStringList>

class StatementSheet;

/**
 * The challan panel without its widgets: the boxes of the challan being entered, the list of
 * the Statement's challans, the totals and number rules as the boxes change, and the save and
 * delete of one challan. It asks the focus of the Statement's sheet, which the screen reads.
 */
class ChallanSheet
{
public:
    static inline const QString somethingWrongText =
        QStringLiteral("Something is wrong..Please Check");
    static inline const QString beforeSavingTitle = QStringLiteral("Before Saving");
    static inline const QString enterSectionText =
        QStringLiteral("Please Enter Section No [like 193, 194, 194A etc.]");
    static inline const QString selectSectionText =
        QStringLiteral("Please select valid section from the drop-down list");

    explicit ChallanSheet(StatementSheet &statement);

    ChallanEntry &entry() { return m_entry; }
    const ChallanEntry &entry() const { return m_entry; }
    ChallanListModel &list() { return m_list; }

    /// The sections (or collection codes) the combo offers; none on Form 24Q.
    QStringList sections() const;

    /// The panel is opened: its boxes cleared, the list reloaded, the number rule applied.
    void open();
    /// The list afresh from the store, the next serial number and the Statement's count.
    void reload();
    /// Empties the amounts and remarks; the cheque, bank, numbers and date stay for the next.
    void clearFields();

    /// A box changed: the total, and the challan or voucher number rule.
    void boxChanged();
    challanrules::NumberBoxes numberBoxes() const { return m_numberBoxes; }
    /// Leaving an amount box; false when it refused.
    bool amountLeft(int index);
    /// Leaving the date; false when it is not a date, or was before the quarter and was put
    /// back to its first day.
    bool dateLeft();
    /// The section changed: its description.
    void sectionChanged();
    /// Leaving the section; false for a section the master does not hold.
    bool sectionLeft();
    QString sectionDescription() const { return m_sectionDescription; }

    /// Saves the challan of the boxes: an update when the list has its serial number, else an
    /// insert. False when it refused or the store failed.
    bool save();
    /// A row of the list into the boxes.
    void loadRow(int row);
    /// The Delete key on a row: the question, the refusal while rows hang under the challan,
    /// then the delete with the serial numbers closed up.
    void deleteRow(int row);

    static QString annexureRowsText(int rows);

private:
    StatementKey key() const;
    bool refuse(const QString &text, const QString &field, const QString &title = {});
    bool sectionKnown() const;

    StatementSheet &m_statement;
    ChallanRecords m_records;
    ChallanEntry m_entry;
    ChallanListModel m_list;
    challanrules::NumberBoxes m_numberBoxes;
    QString m_sectionDescription;
};
