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
#include "returnfile/controltotals.h"
#include "statements/basicinfocheck.h"
#include "statements/statementsheet.h"

#include <QSqlQuery>

namespace {

bool isNumeric(const QString &text)
{
    bool ok = false;
    text.trimmed().toDouble(&ok);
    return ok;
}

} // namespace

AnnexureSheet::AnnexureSheet(StatementSheet &statement)
    : m_statement(statement), m_records(statement.session().store, statement.form())
{
    // A new entry is dated today, as the screen has always started it.
    m_entry.date = QDate::currentDate();
}

const ChallanEntry *AnnexureSheet::challan() const
{
    const int row = m_challans.find(&ChallanEntry::challanId, m_challanId);
    return m_challanId != 0 && row >= 0 ? &m_challans.row(row) : nullptr;
}

QString AnnexureSheet::properPartyText() const
{
    return QStringLiteral("Please select proper %1 Name").arg(m_statement.form().partyWord);
}

QStringList AnnexureSheet::partyNames() const
{
    const FormTraits &form = m_statement.form();
    const QString table = form.salaryLayout ? "mstEmployee" : "mstDeductee";
    try {
        return records::comboTexts(m_statement.session().store, {}, {}, false,
                                   QStringLiteral("SELECT DISTINCT %1 FROM %2 WHERE GroupID = ? "
                                                  "ORDER BY %1")
                                       .arg(form.partyNameColumn, table),
                                   false, {m_statement.session().curGroupId});
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
    const FormTraits &form = m_statement.form();
    const Session &session = m_statement.session();
    const QString table = form.salaryLayout ? "mstEmployee" : "mstDeductee";
    const QString idColumn = form.salaryLayout ? "EmpID" : "DeducteeID";
    try {
        // The combo lists the group's parties: a name is looked up among them.
        const QVariant id = session.store.scalar(
            QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ? AND GroupID = ?")
                .arg(idColumn, table, form.partyNameColumn),
            {records::escapeText(m_entry.partyName), session.curGroupId});
        m_entry.partyNo = QString::number(id.isValid() ? id.toInt() : 0);
        if (id.isValid() && id.toInt() > 0) {
            if (form.salaryLayout) {
                QSqlQuery row = session.store.exec(
                    QStringLiteral("SELECT Designation, PAN, PanRef, FromDate, ToDate "
                                   "FROM mstEmployee WHERE EmpID = ?"),
                    {id});
                row.next();
                m_entry.designation = records::nullToText(row.value(0));
                m_entry.pan = records::nullToText(row.value(1));
                m_entry.panRef = records::nullToText(row.value(2));
                m_entry.fromDate = records::dateOf(row.value(3));
                m_entry.toDate = records::dateOf(row.value(4));
            } else {
                QSqlQuery row = session.store.exec(
                    QStringLiteral("SELECT DeducteeCode, PAN, PanRef, Address1, Address2, "
                                   "Address3, Address4, Address5, State, StateCode, PIN "
                                   "FROM mstDeductee WHERE DeducteeID = ?"),
                    {id});
                row.next();
                QString *fields[] = {&m_entry.deducteeCode, &m_entry.pan, &m_entry.panRef,
                                     &m_entry.address1, &m_entry.address2, &m_entry.address3,
                                     &m_entry.address4, &m_entry.address5, &m_entry.state,
                                     &m_entry.stateCode, &m_entry.pin};
                for (int column = 0; column < int(std::size(fields)); ++column)
                    *fields[column] = records::nullToText(row.value(column));
                stateChosen();
            }
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

std::optional<FieldFailure> AnnexureSheet::partyFailure() const
{
    const FormTraits &form = m_statement.form();
    const auto failure = [](const QString &text, const char *field) {
        return FieldFailure{{text, appTitle, MessageIcon::Critical}, QLatin1String(field)};
    };
    if (m_entry.flag == u" " && numbers::val(m_entry.deposited) <= 0)
        return failure(depositedNeededText, "txt107");
    // Only Form 24Q's employee rows may wait for their challans.
    if (!challan() && (!form.salaryLayout || m_challans.rowCount() > 0))
        return failure(chooseChallanText, "GrdChallan");
    struct Required
    {
        QString AnnexureEntry::*member;
        const char *field;
        bool deducteesOnly;
    };
    static const Required required[] = {
        {&AnnexureEntry::deducteeCode, "txtDeducteeCode", true},
        {&AnnexureEntry::partyName, "cmbDeductee", false},
        {&AnnexureEntry::stateCode, "txtDStateCode", true},
        {&AnnexureEntry::state, "cmbDState", true},
    };
    for (const Required &blank : required) {
        if (blank.deducteesOnly && form.salaryLayout)
            continue;
        if (auto refusal = fieldrules::isBlank(m_entry.*blank.member, {},
                                               QLatin1String(blank.field)))
            return refusal;
    }
    if (numbers::val(m_entry.partyNo) == 0)
        return failure(properPartyText(), "cmbDeductee");
    if (!form.salaryLayout && numbers::val(m_entry.stateId) == 0)
        return failure(properStateText, "cmbDState");
    return std::nullopt;
}

bool AnnexureSheet::allocationExceeded() const
{
    // The rows of a challan may not deposit more than the challan paid; to the paisa.
    const ChallanEntry *chosen = challan();
    if (!chosen)
        return false;
    Money sum = Money::fromText(m_entry.deposited);
    for (const AnnexureEntry &row : m_rows.rows()) {
        if (row.srlNo != m_entry.srlNo)
            sum += Money::fromText(row.deposited);
    }
    return Money::fromText(chosen->total) < sum;
}

bool AnnexureSheet::save()
{
    if (const auto failure = partyFailure()) {
        m_statement.boxes().show(failure->message);
        m_statement.requestFocus(failure->field);
        return false;
    }
    if (!dateLeft())
        return false;
    for (QString *amount : {&m_entry.amount, &m_entry.rate, &m_entry.deposited}) {
        if (!isNumeric(*amount))
            *amount = m_statement.form().annexureZero;
    }
    if (allocationExceeded())
        return refuse(tooMuchTaxText, QStringLiteral("txtdedTax"));

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
        writeControlTotals(m_challanId, listed, &saved);
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
        writeControlTotals(m_challanId, row, nullptr);
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
    const FormTraits &form = m_statement.form();
    try {
        if (m_statement.storedChallans() > 0)
            return refuse(transferRefusedText, QStringLiteral("lstvDedt"));
        Transaction transaction(store);
        ChallanRecords challans(store, form);
        const QList<AnnexureEntry> waiting = m_records.load(key());
        int serial = 0;
        for (AnnexureEntry row : waiting) {
            ChallanEntry created;
            created.slNo = QString::number(++serial);
            created.tds = row.tax;
            created.total = row.total;
            created.totTax = row.deposited;
            created.cheque = QStringLiteral("0");
            challans.insert(created, key().statement);
            // The row now hangs under its own challan, as the first and only row there.
            const ChallanRowsKey target{key().statement, int(numbers::val(created.challanId))};
            m_records.remove(int(numbers::val(row.rowId)), key());
            m_records.insert(row, created, target);
            writeControlTotals(target.challanId, {row});
        }
        transaction.commit();
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
        return false;
    } catch (const std::range_error &error) {
        return refuse(QString::fromUtf8(error.what()), QStringLiteral("lstvDedt"));
    }
    m_statement.info().noChallan = QString::number(m_statement.storedChallans());
    m_statement.boxes().show({transferredText, appTitle, MessageIcon::Information});
    m_statement.boxes().show({challansIncompleteText, appTitle, MessageIcon::Information});
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

void AnnexureSheet::writeControlTotals(int challanId, const QList<AnnexureEntry> &rows) const
{
    writeControlTotals(challanId, rows, -1, nullptr);
}

void AnnexureSheet::writeControlTotals(int challanId, int changed,
                                       const AnnexureEntry *replacement) const
{
    writeControlTotals(challanId, m_rows.rows(), changed, replacement);
}

void AnnexureSheet::writeControlTotals(int challanId, const QList<AnnexureEntry> &rows,
                                       int changed, const AnnexureEntry *replacement) const
{
    if (challanId == 0)
        return;
    // The rows as they are about to become: the changed one replaced, added (at -1), or taken
    // out when there is no replacement.
    const auto amountsOf = [](const AnnexureEntry &row) {
        return AnnexureListRow{row.deposited, row.tax, row.surcharge, row.cess, row.total};
    };
    QList<AnnexureListRow> amounts;
    amounts.reserve(rows.size() + 1);
    for (int index = 0; index < rows.size(); ++index) {
        if (index != changed)
            amounts.append(amountsOf(rows.at(index)));
        else if (replacement)
            amounts.append(amountsOf(*replacement));
    }
    if (changed < 0 && replacement)
        amounts.append(amountsOf(*replacement));
    calculateChallanControlTotal(m_statement.session().store, m_statement.form(),
                                 {challanId, m_statement.basicInfoId(), m_statement.compId()},
                                 amounts);
}

bool AnnexureSheet::refuse(const QString &text, const QString &field)
{
    m_statement.boxes().show({text, appTitle, MessageIcon::Critical});
    if (!field.isEmpty())
        m_statement.requestFocus(field);
    return false;
}
