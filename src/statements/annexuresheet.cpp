#include "statements/annexuresheet.h"

#include "core/cannedmessages.h"
#include "core/datastore.h"
#include "core/fieldrules.h"
#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "statements/annexuresavecheck.h"
#include "statements/annexuretransfer.h"
#include "statements/basicinfocheck.h"
#include "statements/statementsheet.h"

AnnexureSheet::AnnexureSheet(StatementSheet &statement)
    : m_statement(statement),
      m_records(statement.session().store, statement.form()),
      m_parties(statement.session().store, statement.form())
{
    // A new entry is dated today, as the screen has always started it.
    m_entry.date = QDate::currentDate();
}

const ChallanEntry *AnnexureSheet::challan() const
{
    const int row = m_challans.find(&ChallanEntry::challanId, m_challanId);
    return m_challanId != 0 && row >= 0 ? &m_challans.row(row) : nullptr;
}

QStringList AnnexureSheet::partyNames() const
{
    try {
        return m_parties.names(m_statement.session().curGroupId);
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return {};
    }
}

void AnnexureSheet::open()
{
    reloadChallans();
    // The grid comes up on the challan chosen before, or on its first row.
    const int row = m_challans.find(&ChallanEntry::challanId, m_challanId);
    chooseChallan(row >= 0 ? row : 0);
}

void AnnexureSheet::chooseChallan(int gridRow)
{
    m_challanId = gridRow >= 0 && gridRow < m_challans.rowCount()
                      ? int(numbers::val(m_challans.row(gridRow).challanId))
                      : 0;
    try {
        showRows(m_records.load(key()));
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
    clearPartyFields();
    newRow();
}

bool AnnexureSheet::partyLeft()
{
    try {
        if (m_parties.fill(m_entry, m_statement.session().curGroupId)) {
            if (!m_statement.form().salaryLayout)
                stateChosen();
            return true;
        }
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return true;
    }
    clearPartyFields();
    if (m_entry.partyName.trimmed().isEmpty())
        return true;
    return refuse(fromListText, QStringLiteral("cmbDeductee"));
}

void AnnexureSheet::amountChanged()
{
    // Employees' tax is typed, never computed.
    if (!m_statement.form().salaryLayout)
        m_entry.tax = annexurerules::taxFromAmount(m_entry.amount, m_entry.rate);
    taxPartChanged();
}

void AnnexureSheet::rateChanged()
{
    m_entry.tax = annexurerules::taxFromRate(m_entry.amount, m_entry.rate);
    taxPartChanged();
}

void AnnexureSheet::taxPartChanged()
{
    m_entry.total = annexurerules::total(m_entry);
}

bool AnnexureSheet::boxLeft(annexurerules::Box box)
{
    const QList<FieldFailure> messages = annexurerules::boxLeft(m_entry, box, m_statement.form());
    taxPartChanged();
    for (const FieldFailure &message : messages) {
        m_statement.boxes().show(message.message);
        m_statement.requestFocus(message.field);
    }
    return messages.isEmpty();
}

void AnnexureSheet::stateChosen()
{
    try {
        const int id = records::lookupId(m_statement.session().store, QStringLiteral("StateID"),
                                         QStringLiteral("mstState"),
                                         QStringLiteral("StateName"), m_entry.state);
        m_entry.stateId = QString::number(id);
        if (id > 0) {
            m_entry.stateCode = records::lookupText(m_statement.session().store,
                                                    QStringLiteral("mstState"),
                                                    QStringLiteral("StateID"),
                                                    QStringLiteral("StateCode"), id);
        }
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
}

bool AnnexureSheet::stateLeft()
{
    if (m_entry.stateCode.trimmed() == u"0")
        return refuse(basicinfocheck::selectStateText, QStringLiteral("cmbDState"));
    if (int(numbers::val(m_entry.stateId)) == StatementSheet::foreignStateId)
        m_entry.pin = StatementSheet::foreignPincode;
    return true;
}

bool AnnexureSheet::dateLeft()
{
    const QString field = QStringLiteral("dtp105");
    const Session &session = m_statement.session();
    const ChallanEntry *chosen = challan();
    return m_statement.acceptDate(fieldrules::checkDateGiven(m_entry.date, field), m_entry.date)
           && m_statement.acceptDate(
               fieldrules::checkDepositDate(m_entry.date, chosen ? chosen->date : QDate(),
                                            fieldrules::sessionDate(session.quarterFromDt),
                                            fieldrules::sessionDate(session.quarterToDt), field),
               m_entry.date);
}

bool AnnexureSheet::save()
{
    const FormTraits &form = m_statement.form();
    if (const auto failure = annexuresavecheck::partyFailure(m_entry, form, challan() != nullptr,
                                                             m_challans.rowCount())) {
        m_statement.boxes().show(failure->message);
        m_statement.requestFocus(failure->field);
        return false;
    }
    if (!dateLeft())
        return false;
    annexuresavecheck::zeroNonNumbers(m_entry, form);
    if (const ChallanEntry *chosen = challan();
        chosen && annexuresavecheck::exceedsChallan(m_entry, m_rows.rows(), chosen->total))
        return refuse(annexuresavecheck::tooMuchTaxText, QStringLiteral("txtdedTax"));

    const ChallanEntry none;
    const ChallanEntry &chosen = challan() ? *challan() : none;
    // The list takes the row as the store now holds it; the challan's totals are summed from
    // the list, so that a challan of many thousand rows is not read again for one row.
    const int listed = m_rows.find(&AnnexureEntry::rowId, int(numbers::val(m_entry.rowId)));
    AnnexureEntry saved;
    try {
        Transaction transaction(m_statement.session().store);
        if (listed >= 0)
            m_records.update(m_entry, chosen, key());
        else
            m_records.insert(m_entry, chosen, key());
        saved = m_records.asListed(m_entry);
        writeControlTotals(listed, &saved);
        transaction.commit();
    } catch (const StoreError &error) {
        return refuse(cannotSaveText + u'\n' + error.description(), {});
    } catch (const std::range_error &error) {
        return refuse(cannotSaveText + u'\n' + QString::fromUtf8(error.what()), {});
    }
    if (listed >= 0)
        m_rows.replaceRow(listed, saved);
    else
        m_rows.appendRow(saved);
    rowsChanged();
    reloadChallans();
    clearPartyFields();
    newRow();
    m_statement.requestFocus(QStringLiteral("cmbDeductee"));
    return true;
}

void AnnexureSheet::loadRow(int row)
{
    if (row < 0 || row >= m_rows.rowCount())
        return;
    try {
        m_entry = m_records.read(int(numbers::val(m_rows.row(row).rowId)), key());
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return;
    }
    if (!m_statement.form().salaryLayout)
        stateChosen();
    m_editingRow = true;
}

void AnnexureSheet::deleteRow(int row)
{
    if (row < 0 || row >= m_rows.rowCount())
        return;
    if (cannedmessages::showMessage(m_statement.boxes(), cannedmessages::ConfirmDelete)
        != int(Answer::Yes)) {
        m_statement.requestFocus(QStringLiteral("lstvDedt"));
        return;
    }
    try {
        Transaction transaction(m_statement.session().store);
        m_records.remove(int(numbers::val(m_rows.row(row).rowId)), key());
        writeControlTotals(row, nullptr);
        transaction.commit();
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return;
    } catch (const std::range_error &error) {
        // The rows left would overflow the challan's totals: the row stays.
        refuse(QString::fromUtf8(error.what()), QStringLiteral("lstvDedt"));
        return;
    }
    // The rows left keep their serial numbers: only challans are numbered anew.
    m_rows.takeRow(row);
    rowsChanged();
    reloadChallans();
    // Nothing of the deleted row stays in the boxes to be saved again by mistake.
    clearPartyFields();
    newRow();
}

bool AnnexureSheet::transferToChallans()
{
    const DataStore &store = m_statement.session().store;
    try {
        if (m_statement.storedChallans() > 0)
            return refuse(annexuretransfer::refusedText, QStringLiteral("lstvDedt"));
        Transaction transaction(store);
        annexuretransfer::makeChallans(store, m_statement.form(), m_records, key());
        transaction.commit();
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return false;
    } catch (const std::range_error &error) {
        return refuse(QString::fromUtf8(error.what()), QStringLiteral("lstvDedt"));
    }
    m_statement.info().noChallan = QString::number(m_statement.storedChallans());
    for (const QString &text :
         {annexuretransfer::transferredText, annexuretransfer::challansIncompleteText})
        m_statement.boxes().show({text, appTitle, MessageIcon::Information});
    open();
    return true;
}

ChallanRowsKey AnnexureSheet::key() const
{
    return {{m_statement.basicInfoId(), m_statement.compId(), m_statement.session().asstId},
            m_challanId};
}

void AnnexureSheet::reloadChallans()
{
    try {
        m_challans.setRows(ChallanRecords(m_statement.session().store, m_statement.form())
                               .load(key().statement));
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
}

void AnnexureSheet::showRows(QList<AnnexureEntry> rows)
{
    m_rows.setRows(std::move(rows));
    rowsChanged();
}

void AnnexureSheet::rowsChanged()
{
    Money sum;
    for (const AnnexureEntry &row : m_rows.rows())
        sum += Money::fromText(row.deposited);
    m_depositedSum = sum.toText();
    try {
        m_statement.info().noDeductee = QString::number(m_statement.storedAnnexureRows());
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
}

void AnnexureSheet::clearPartyFields()
{
    for (QString *field : {&m_entry.deducteeCode, &m_entry.pan, &m_entry.panRef,
                           &m_entry.address1, &m_entry.address2, &m_entry.address3,
                           &m_entry.address4, &m_entry.address5, &m_entry.state,
                           &m_entry.stateCode, &m_entry.stateId, &m_entry.pin,
                           &m_entry.designation})
        field->clear();
    m_entry.grossingUp = QStringLiteral("N");
}

void AnnexureSheet::newRow()
{
    const int next = m_rows.nextNumber(&AnnexureEntry::rowId);
    m_entry.rowId = QString::number(next);
    m_entry.srlNo = QString::number(next);
    // Only these boxes empty for the next row: its date, rate and value of purchase stay.
    for (QString *field : {&m_entry.amount, &m_entry.deposited, &m_entry.partyName,
                           &m_entry.partyNo, &m_entry.tax, &m_entry.surcharge, &m_entry.cess})
        field->clear();
    taxPartChanged();
    m_editingRow = false;
}

void AnnexureSheet::writeControlTotals(int changed, const AnnexureEntry *replacement) const
{
    if (m_challanId == 0)
        return;
    // The list as it is about to become: the changed row replaced, added (at -1), or taken out
    // when there is no replacement.
    const QList<AnnexureEntry> &rows = m_rows.rows();
    QList<AnnexureListRow> amounts;
    amounts.reserve(rows.size() + 1);
    for (int index = 0; index < rows.size(); ++index) {
        if (index != changed)
            amounts.append(AnnexureRecords::controlAmounts(rows.at(index)));
        else if (replacement)
            amounts.append(AnnexureRecords::controlAmounts(*replacement));
    }
    if (changed < 0 && replacement)
        amounts.append(AnnexureRecords::controlAmounts(*replacement));
    m_records.writeControlTotals(key(), amounts);
}

bool AnnexureSheet::refuse(const QString &text, const QString &field)
{
    m_statement.boxes().show({text, appTitle, MessageIcon::Critical});
    if (!field.isEmpty())
        m_statement.requestFocus(field);
    return false;
}
