#include "statements/challansheet.h"

#include "core/cannedmessages.h"
#include "core/datastore.h"
#include "core/fieldrules.h"
#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "statements/statementsheet.h"

namespace {

const QString zero = QStringLiteral("0.00");

} // namespace

ChallanSheet::ChallanSheet(StatementSheet &statement)
    : m_statement(statement), m_records(statement.session().store, statement.form())
{
    // A new entry is dated today, as the screen has always started it.
    m_entry.date = QDate::currentDate();
}

QStringList ChallanSheet::sections() const
{
    const FormTraits &form = m_statement.form();
    if (!form.challanHasSection())
        return {};
    try {
        return records::comboTexts(m_statement.session().store, form.sectionTable,
                                   form.sectionColumn, true);
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return {};
    }
}

void ChallanSheet::open()
{
    clearFields();
    reload();
    boxChanged();
    m_statement.requestFocus(m_statement.form().challanHasSection() ? QStringLiteral("cmb116")
                                                                    : QStringLiteral("dtp119"));
}

void ChallanSheet::reload()
{
    try {
        m_list.setRows(m_records.load(key()));
        m_statement.info().noChallan = QString::number(m_statement.storedChallans());
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
    m_entry.slNo = QString::number(m_list.nextNumber(&ChallanEntry::slNo));
}

void ChallanSheet::clearFields()
{
    for (QString *amount : {&m_entry.tds, &m_entry.surcharge, &m_entry.cess, &m_entry.interest,
                            &m_entry.others, &m_entry.total, &m_entry.totTax, &m_entry.totCess,
                            &m_entry.totSurcharge, &m_entry.totIncomeTax, &m_entry.ctrlTot,
                            &m_entry.exInterest, &m_entry.exOthers})
        *amount = zero;
    m_entry.remarks.clear();
}

void ChallanSheet::boxChanged()
{
    m_entry.total = challanrules::total(m_entry);
    m_numberBoxes = challanrules::applyNumberRule(m_entry, m_statement.info().deductorStatus);
}

bool ChallanSheet::amountLeft(int index)
{
    const auto failure = challanrules::amountLeft(m_entry, index);
    if (!failure)
        return true;
    m_statement.boxes().show(failure->message);
    m_statement.requestFocus(failure->field);
    return false;
}

bool ChallanSheet::dateLeft()
{
    const QString field = QStringLiteral("dtp119");
    const QDate quarterStart = fieldrules::sessionDate(m_statement.session().quarterFromDt);
    return m_statement.acceptDate(fieldrules::checkDateGiven(m_entry.date, field), m_entry.date)
           && m_statement.acceptDate(
               fieldrules::checkNotBeforeQuarter(m_entry.date, quarterStart, field),
               m_entry.date);
}

void ChallanSheet::sectionChanged()
{
    m_sectionDescription.clear();
    const FormTraits &form = m_statement.form();
    if (!form.challanHasSection() || m_entry.section.trimmed().isEmpty())
        return;
    try {
        m_sectionDescription = records::nullToText(m_statement.session().store.scalar(
            QStringLiteral("SELECT Description FROM %1 WHERE %2 = ?")
                .arg(form.sectionTable, form.sectionColumn),
            {records::escapeText(m_entry.section)}));
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
}

bool ChallanSheet::sectionLeft()
{
    if (m_entry.section.trimmed().isEmpty() || sectionKnown())
        return true;
    return refuse(selectSectionText, QStringLiteral("cmb116"));
}

bool ChallanSheet::save()
{
    if (!dateLeft())
        return false;
    const int serial = int(numbers::val(m_entry.slNo));
    if (serial == 0 || m_statement.basicInfoId() == 0)
        return refuse(somethingWrongText, {}, beforeSavingTitle);
    if (m_statement.form().challanHasSection()) {
        if (const auto blank = fieldrules::isBlank(m_entry.section, enterSectionText,
                                                   QStringLiteral("cmb116"))) {
            m_statement.boxes().show(blank->message);
            m_statement.requestFocus(blank->field);
            return false;
        }
        if (!sectionKnown())
            return refuse(selectSectionText, QStringLiteral("cmb116"));
    }

    const int found = m_list.find(&ChallanEntry::slNo, serial);
    try {
        Transaction transaction(m_statement.session().store);
        if (found >= 0) {
            // The serial number names the challan; its key is the list's.
            m_entry.challanId = m_list.row(found).challanId;
            m_records.update(m_entry, key());
        } else {
            m_records.insert(m_entry, key());
        }
        transaction.commit();
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        reload();
        return false;
    }
    reload();
    clearFields();
    boxChanged();
    m_statement.requestFocus(m_statement.form().challanHasSection() ? QStringLiteral("cmb116")
                                                                    : QStringLiteral("dtp119"));
    return true;
}

void ChallanSheet::loadRow(int row)
{
    if (row < 0 || row >= m_list.rowCount())
        return;
    m_entry = m_list.row(row);
    boxChanged();
    sectionChanged();
}

void ChallanSheet::deleteRow(int row)
{
    if (row < 0 || row >= m_list.rowCount())
        return;
    MessageBoxes &boxes = m_statement.boxes();
    if (cannedmessages::showMessage(boxes, cannedmessages::ConfirmDelete) != int(Answer::Yes)) {
        m_statement.requestFocus(QStringLiteral("lstvChallan"));
        return;
    }
    const int challanId = int(numbers::val(m_list.row(row).challanId));
    try {
        const int rows = m_records.annexureRows(challanId, key());
        if (rows > 0) {
            refuse(annexureRowsText(rows), QStringLiteral("lstvChallan"));
            return;
        }
        QList<int> remaining;
        for (const ChallanEntry &other : m_list.rows()) {
            if (int(numbers::val(other.challanId)) != challanId)
                remaining << int(numbers::val(other.challanId));
        }
        Transaction transaction(m_statement.session().store);
        m_records.remove(challanId, remaining, key());
        transaction.commit();
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
    reload();
}

QString ChallanSheet::annexureRowsText(int rows)
{
    return QStringLiteral("This challan contain : %1 deductee First delete the deductee then "
                          "challan")
        .arg(rows);
}

StatementKey ChallanSheet::key() const
{
    return {m_statement.basicInfoId(), m_statement.compId(), m_statement.session().asstId};
}

bool ChallanSheet::refuse(const QString &text, const QString &field, const QString &title)
{
    m_statement.boxes().show({text, title.isEmpty() ? appTitle : title, MessageIcon::Critical});
    if (!field.isEmpty())
        m_statement.requestFocus(field);
    return false;
}

bool ChallanSheet::sectionKnown() const
{
    const FormTraits &form = m_statement.form();
    try {
        return m_statement.session().store.hasRows(
            QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?")
                .arg(form.sectionTable, form.sectionColumn),
            {records::escapeText(m_entry.section)});
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return false;
    }
}
