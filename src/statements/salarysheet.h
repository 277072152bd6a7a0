#pragma once

#include "statements/salaryentry.h"
#include "statements/salarylistmodel.h"
#include "statements/salaryrecords.h"
#include "statements/sectiongrid.h"
#include "statements/sectionrecords.h"

#include <QString>
#include <QStringList>

#include <array>
#include <memory>

class StatementSheet;
struct FieldFailure;

/**
 * The salary panel of Form 24Q without its widgets: the boxes of one employee's annual
 * statement with their computation, the four section grids and the perquisites of the pop-up
 * frames, the Statement's salary rows, and the save and delete of one row with its section
 * rows in one transaction. It asks the focus of the Statement's sheet, which the screen reads.
 */
class SalarySheet
{
public:
    static inline const QString chooseEmployeeText =
        QStringLiteral("Please select from the drop-down list");

    explicit SalarySheet(StatementSheet &statement);

    SalaryEntry &entry() { return m_entry; }
    const SalaryEntry &entry() const { return m_entry; }
    SalaryListModel &list() { return m_list; }
    SectionGrid &grid(SectionKind kind) { return *m_grids[static_cast<int>(kind)]; }
    /// The employees of the group, for cmbEmpname.
    QStringList employeeNames() const { return m_names; }
    /// The sections a grid's list offers.
    QStringList offered(SectionKind kind) const;

    /// The panel is opened: the employees, the Statement's rows, and empty boxes and grids
    /// under the next key.
    void open();
    /// Leaving the employee's name: the details from the master; false for a name that the
    /// group does not have.
    bool employeeLeft();
    /// Leaving a date of the period of employment (DTP204From or DTP204To); false when it is
    /// not a date.
    bool periodLeft(const QString &field);

    /// txt(index) changed.
    void boxChanged(int index);
    /// A perquisite box changed.
    void perkChanged();

    /// A grid's OK: its checks and its total into its box; false keeps the frame open.
    bool gridOk(SectionKind kind);
    /// A grid's Cancel: the total box as it stood, formatted.
    void gridCancelled(SectionKind kind);
    /// The perquisites' OK: their total into txt(207).
    void perkOk();
    void perkCancelled();

    /// cmdSaveEmployee: the checks, then the row and its section rows written, as an update
    /// when the list holds its key and an insert otherwise. True when saved.
    bool save();
    /// A row of the list into the boxes and the grids.
    void loadRow(int row);
    /// The Delete key on a row: the question, the row and its section rows deleted, and the
    /// rows behind it numbered down.
    void deleteRow(int row);

private:
    void clearEntry();
    /// The entry is a new, empty row with empty grids: the next key and the serial number after
    /// the list's.
    void startNew();
    void loadGrids();
    /// A box set by the program, with the chain it starts when its text changes.
    void setAmount(int index, Money value);
    void refuse(const FieldFailure &failure);

    StatementSheet &m_statement;
    SalaryRecords m_records;
    SectionRecords m_sections;
    SalaryListModel m_list;
    std::array<std::unique_ptr<SectionGrid>, 4> m_grids;
    SalaryEntry m_entry;
    QStringList m_names;
};
