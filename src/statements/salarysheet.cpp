#include "statements/salarysheet.h"

#include "core/cannedmessages.h"
#include "core/fieldrules.h"
#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/numbers.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "statements/salarycheck.h"
#include "statements/salarycomputation.h"
#include "statements/statementsheet.h"

SalarySheet::SalarySheet(StatementSheet &statement)
    : m_statement(statement),
      m_records(statement.session().store, statement.form()),
      m_sections(statement.session().store, statement.form())
{
    for (SectionKind kind : SectionGrid::kinds) {
        m_grids[static_cast<int>(kind)] =
            std::make_unique<SectionGrid>(kind, m_sections, statement.boxes());
    }
    clearEntry();
}

QStringList SalarySheet::offered(SectionKind kind) const
{
    try {
        return m_sections.offered(kind);
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return {};
    }
}

void SalarySheet::open()
{
    try {
        m_names = m_records.employeeNames(m_statement.session().curGroupId);
        m_list.setRows(m_records.load(m_statement.basicInfoId()));
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
    startNew();
    m_statement.requestFocus(QStringLiteral("cmbEmpname"));
}

void SalarySheet::clearEntry()
{
    m_entry = SalaryEntry();
    for (const SalaryEntry::Box &box : SalaryEntry::boxes()) {
        if (box.isAmount())
            m_entry.txt[box.index] = Money().toText();
    }
    m_entry.perk.fill(Money().toText());
    m_entry.fromDate = m_statement.session().asstStartDt;
    m_entry.toDate = m_statement.session().asstEndDt;
}

void SalarySheet::startNew()
{
    // A new row owes nothing to the one before it: not a figure, not a section's row.
    clearEntry();
    try {
        m_entry.salaryId = QString::number(m_records.nextSalaryId());
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
    // Salary rows are kept numbered without gaps, so the next is one past the count.
    m_entry.txt[201] = QString::number(m_list.rowCount() + 1);
    loadGrids();
}

void SalarySheet::loadGrids()
{
    const int salaryId = int(numbers::val(m_entry.salaryId));
    try {
        for (SectionKind kind : SectionGrid::kinds)
            grid(kind).setRows(m_sections.load(kind, salaryId));
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
}

bool SalarySheet::employeeLeft()
{
    if (m_entry.empName.trimmed().isEmpty())
        return true;
    try {
        if (m_records.fillEmployee(m_entry, m_statement.session().curGroupId))
            return true;
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return false;
    }
    refuse({{chooseEmployeeText, appTitle, MessageIcon::Information},
            QStringLiteral("cmbEmpname")});
    return false;
}

bool SalarySheet::periodLeft(const QString &field)
{
    QDate &date = field == u"DTP204From" ? m_entry.fromDate : m_entry.toDate;
    return m_statement.acceptDate(fieldrules::checkDateGiven(date, field), date);
}

void SalarySheet::boxChanged(int index)
{
    salarycomputation::boxChanged(m_entry, index);
}

void SalarySheet::perkChanged()
{
    salarycomputation::perkChanged(m_entry);
}

void SalarySheet::setAmount(int index, Money value)
{
    const QString text = value.toText();
    if (m_entry.txt.value(index) == text)
        return;
    m_entry.txt[index] = text;
    salarycomputation::boxChanged(m_entry, index);
}

bool SalarySheet::gridOk(SectionKind kind)
{
    SectionGrid &chosen = grid(kind);
    if (const auto refusal = chosen.amountRefusal()) {
        m_statement.boxes().show({*refusal, appTitle, MessageIcon::Information});
        return false;
    }
    setAmount(chosen.traits().totalBox, chosen.total());
    if (kind == SectionKind::ChapterVIA) {
        m_entry.txt[337] = chosen.deductionOf(QStringLiteral("80CCE")).toText();
        m_entry.txt[338] = chosen.deductionOf(QStringLiteral("Others")).toText();
    }
    if (kind == SectionKind::Section16)
        m_statement.requestFocus(QStringLiteral("txt(212)"));
    return true;
}

void SalarySheet::gridCancelled(SectionKind kind)
{
    const int total = SectionGrid::traits(kind).totalBox;
    setAmount(total, m_entry.amount(total));
    if (kind == SectionKind::Section16)
        m_statement.requestFocus(QStringLiteral("txt(212)"));
    else if (kind == SectionKind::ChapterVIA)
        m_statement.requestFocus(QStringLiteral("txt(219)"));
}

void SalarySheet::perkOk()
{
    setAmount(207, salarycomputation::perkTotal(m_entry));
}

void SalarySheet::perkCancelled()
{
    setAmount(207, m_entry.amount(207));
}

bool SalarySheet::save()
{
    if (const auto failure = salarycheck::firstFailure(m_entry)) {
        refuse(*failure);
        return false;
    }
    const Session &session = m_statement.session();
    const QString previousId = m_entry.salaryId;
    const int found = m_list.findSalaryId(int(numbers::val(m_entry.salaryId)));
    try {
        Transaction transaction(session.store);
        if (found >= 0) {
            m_records.update(m_entry, m_statement.basicInfoId());
        } else {
            m_records.insert(m_entry, m_records.statementId(m_statement.compId(), session.asstId,
                                                            session.curQuarter));
        }
        const int salaryId = int(numbers::val(m_entry.salaryId));
        const int employeeId = int(numbers::val(m_entry.employeeId));
        for (SectionKind kind : SectionGrid::kinds)
            m_sections.rewrite(kind, salaryId, employeeId, grid(kind).enteredRows());
        transaction.commit();
    } catch (const StoreError &error) {
        m_entry.salaryId = previousId;
        m_statement.reportStoreError(error);
        return false;
    }
    try {
        // The list shows the row as stored, in whole rupees.
        const SalaryEntry saved = m_records.loadOne(int(numbers::val(m_entry.salaryId)));
        if (found >= 0)
            m_list.setRow(found, saved);
        else
            m_list.append(saved);
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
    if (found < 0)
        startNew();
    m_statement.requestFocus(QStringLiteral("cmbEmpname"));
    return true;
}

void SalarySheet::loadRow(int row)
{
    if (row < 0 || row >= m_list.rowCount())
        return;
    m_entry = m_list.row(row);
    loadGrids();
    salarycomputation::restoreUnstored(m_entry, grid(SectionKind::Section10).total(),
                                       grid(SectionKind::Section88).total());
}

void SalarySheet::deleteRow(int row)
{
    if (row < 0 || row >= m_list.rowCount())
        return;
    m_statement.requestFocus(QStringLiteral("lstvEmp"));
    if (cannedmessages::showMessage(m_statement.boxes(), cannedmessages::ConfirmDelete)
        != int(Answer::Yes))
        return;
    const int salaryId = int(numbers::val(m_list.row(row).salaryId));
    QList<int> remaining;
    for (const SalaryEntry &other : m_list.rows()) {
        if (int(numbers::val(other.salaryId)) != salaryId)
            remaining << int(numbers::val(other.salaryId));
    }
    const DataStore &store = m_statement.session().store;
    try {
        Transaction transaction(store);
        m_records.remove(salaryId, m_statement.basicInfoId(), remaining);
        m_sections.remove(salaryId);
        transaction.commit();
        m_list.setRows(m_records.load(m_statement.basicInfoId()));
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return;
    }
    startNew();
}

void SalarySheet::refuse(const FieldFailure &failure)
{
    m_statement.boxes().show(failure.message);
    m_statement.requestFocus(failure.field);
}
