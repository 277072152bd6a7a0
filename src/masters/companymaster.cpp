#include "masters/companymaster.h"

#include "core/datastore.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/session.h"
#include "core/transaction.h"
#include "core/formtraits.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace {

using E = CompanyEntry;

QVariant storedValue(const CompanyEntry &entry, const CompanyEntry::Field &field)
{
    const QString &text = entry.*(field.member);
    if (field.number)
        return qlonglong(numbers::val(text));
    return records::escapeText(text);
}

QList<CompanyMaster::Reference> references(const DataStore &store, const QString &sql)
{
    QSqlQuery query = store.exec(sql);
    QList<CompanyMaster::Reference> rows;
    while (query.next()) {
        rows.append({query.value(0).toInt(), records::nullToText(query.value(1)),
                     records::nullToText(query.value(2))});
    }
    return rows;
}

// The row of a state or ministry a company points at: by its id, or by its code when the id was
// never written.
void resolve(const QList<CompanyMaster::Reference> &list, QString &name, QString &id,
             QString &code)
{
    const int wanted = int(numbers::val(id));
    for (const CompanyMaster::Reference &row : list) {
        const bool match = wanted != 0
            ? row.id == wanted
            : !code.isEmpty() && row.code.compare(code, Qt::CaseInsensitive) == 0;
        if (match) {
            name = row.name;
            id = QString::number(row.id);
            code = row.code;
            return;
        }
    }
    name.clear();
}

bool typeIn(const QString &type, const char *types)
{
    const QString code = type.trimmed().toUpper();
    return code.size() == 1 && QLatin1String(types).contains(code);
}

} // namespace

CompanyMaster::CompanyMaster(const Session &session) : m_session(session)
{
}

QStringList CompanyMaster::groupNames() const
{
    return records::comboTexts(m_session.store, QStringLiteral("mstGroup"),
                               QStringLiteral("GroupName"), true);
}

int CompanyMaster::groupId(const QString &name) const
{
    return records::lookupId(m_session.store, QStringLiteral("GroupID"),
                             QStringLiteral("mstGroup"), QStringLiteral("GroupName"), name);
}

QList<CompanyMaster::Reference> CompanyMaster::states() const
{
    return references(m_session.store, QStringLiteral("SELECT StateID, StateCode, StateName "
                                                      "FROM mstState ORDER BY StateName"));
}

QList<CompanyMaster::Reference> CompanyMaster::ministries() const
{
    return references(m_session.store, QStringLiteral("SELECT MinistryID, MinistryCode, "
                                                      "MinistryName FROM mstMinistry "
                                                      "ORDER BY MinistryID"));
}

QStringList CompanyMaster::deductorTypes() const
{
    return records::comboTexts(
        m_session.store, {}, {}, false,
        QStringLiteral("SELECT CategoryCode FROM mstCategory ORDER BY CategoryID"));
}

QString CompanyMaster::deductorTypeDescription(const QString &code) const
{
    if (code.trimmed().isEmpty())
        return {};
    return records::nullToText(m_session.store.scalar(
        QStringLiteral("SELECT CategoryDescription FROM mstCategory WHERE CategoryCode = ?"),
        {code.trimmed()}));
}

QList<CompanyMaster::Row> CompanyMaster::companies(int groupId) const
{
    QSqlQuery query = m_session.store.exec(
        QStringLiteral("SELECT a.CompID, a.TanNO, a.PanNo, a.CompName, a.GroupID, "
                       "a.AssessingOfficerCode, a.FilePrefix, b.GroupName "
                       "FROM mstCompany AS a, mstGroup AS b "
                       "WHERE a.GroupID = b.GroupID AND b.GroupID = ? ORDER BY a.CompName"),
        {groupId});
    QList<Row> rows;
    while (query.next()) {
        rows.append({query.value(0).toInt(), records::nullToText(query.value(1)),
                     records::nullToText(query.value(2)), records::nullToText(query.value(3)),
                     query.value(4).toInt(), records::nullToText(query.value(5)),
                     records::nullToText(query.value(6)), records::nullToText(query.value(7))});
    }
    return rows;
}

std::optional<CompanyEntry> CompanyMaster::load(int compId) const
{
    QStringList columns;
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        if (field.column)
            columns << QStringLiteral("a.") + QLatin1String(field.column);
    }
    QSqlQuery query = m_session.store.exec(
        QStringLiteral("SELECT c.GroupName, %1 FROM mstCompany AS a, mstAssessment AS b, "
                       "mstGroup AS c WHERE a.AsstID = b.AsstID AND a.AsstID = ? "
                       "AND a.CompID = ? AND a.GroupID = c.GroupID")
            .arg(columns.join(QStringLiteral(", "))),
        {m_session.asstId, compId});
    if (!query.next())
        return std::nullopt;

    CompanyEntry entry;
    entry.isEdit = true;
    entry.groupName = records::nullToText(query.value(0));
    int index = 1;
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        if (!field.column)
            continue;
        const QVariant value = query.value(index++);
        entry.*(field.member) = field.number && !value.isNull()
            ? QString::number(value.toLongLong())
            : records::nullToText(value);
    }
    entry.status = QStringLiteral("O");

    const QList<Reference> stateList = states();
    resolve(stateList, entry.state, entry.stateId, entry.stateCode);
    resolve(stateList, entry.pState, entry.pStateId, entry.pStateCode);
    resolve(stateList, entry.dState, entry.dStateId, entry.dStateCode);
    resolve(ministries(), entry.ministry, entry.ministryId, entry.ministryCode);
    return entry;
}

int CompanyMaster::save(const CompanyEntry &entry, MessageBoxes &boxes) const
{
    CompanyPropagation::Choice choice;
    if (entry.isEdit) {
        choice = CompanyPropagation(m_session.store).ask(int(numbers::val(entry.compId)), boxes);
    }
    return write(entry, choice);
}

int CompanyMaster::write(const CompanyEntry &entry,
                         const CompanyPropagation::Choice &choice) const
{
    const DataStore &store = m_session.store;
    Transaction transaction(store);
    QStringList columns;
    QVariantList values;
    int compId = 0;
    if (entry.isEdit) {
        compId = int(numbers::val(entry.compId));
        for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
            if (!field.column || field.member == &E::compId)
                continue;
            columns << QLatin1String(field.column) + QStringLiteral(" = ?");
            values << storedValue(entry, field);
        }
        // The import marks the companies it brings in; a save here clears the mark.
        columns << QStringLiteral("Status = ' '");
        values << compId;
        store.exec(QStringLiteral("UPDATE mstCompany SET %1 WHERE CompID = ?")
                       .arg(columns.join(QStringLiteral(", "))),
                   values);
        CompanyPropagation(store).apply(entry, compId, choice);
    } else {
        compId = int(
            records::nextId(store, QStringLiteral("mstCompany"), QStringLiteral("CompID")));
        columns << QStringLiteral("AsstID");
        values << m_session.asstId;
        for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
            // A new company's state rows are left unset; its first update sets them.
            if (!field.column || field.member == &E::stateId || field.member == &E::pStateId)
                continue;
            columns << QLatin1String(field.column);
            values << (field.member == &E::compId ? QVariant(compId) : storedValue(entry, field));
        }
        const QString marks = QStringList(columns.size(), QStringLiteral("?"))
                                  .join(QStringLiteral(", "));
        store.exec(QStringLiteral("INSERT INTO mstCompany (%1) VALUES (%2)")
                       .arg(columns.join(QStringLiteral(", ")), marks),
                   values);
    }
    transaction.commit();
    return compId;
}

std::optional<Message> CompanyMaster::deleteRefusal(int compId) const
{
    const DataStore &store = m_session.store;
    for (const FormTraits &form : allForms()) {
        if (store.hasRows(QStringLiteral("SELECT CompID FROM %1 WHERE CompID = ?")
                              .arg(form.basicInfoTable),
                          {compId})) {
            return Message{QStringLiteral("This Company is related to existing ")
                               + form.messageName,
                           cannotDeleteTitle, MessageIcon::Information};
        }
    }
    // Deductees belong to the group; only a store of an older layout ties them to a company.
    if (store.columnExists(QStringLiteral("mstDeductee"), QStringLiteral("CompID"))
        && store.hasRows(QStringLiteral("SELECT CompID FROM mstDeductee WHERE CompID = ?"),
                         {compId})) {
        return Message{hasDeducteesText, cannotDeleteTitle, MessageIcon::Information};
    }
    return std::nullopt;
}

void CompanyMaster::remove(int compId) const
{
    m_session.store.exec(QStringLiteral("DELETE FROM mstCompany WHERE CompID = ?"), {compId});
}

CompanyEntry CompanyMaster::newEntry(const QString &groupName, const QString &groupId)
{
    CompanyEntry entry;
    entry.groupName = groupName;
    entry.groupId = groupId;
    entry.pan = CompanyEntry::panNotRequired;
    entry.deductorType = QStringLiteral("A");
    entry.status = QStringLiteral("O");
    return entry;
}

CompanyMaster::DeductorTypeFields CompanyMaster::fieldsFor(const QString &deductorType)
{
    return {typeIn(deductorType, "SEHN"), typeIn(deductorType, "ADGEHLN"),
            typeIn(deductorType, "ASDEGHLN")};
}

QString CompanyMaster::enterTarget(const QString &deductorType)
{
    return typeIn(deductorType, "SEHN") ? QStringLiteral("cmbDState")
                                        : QStringLiteral("cmbMinistry");
}

bool CompanyMaster::copyAddressToPerson(CompanyEntry &entry)
{
    if (entry.isEdit || entry.personName.trimmed().isEmpty())
        return false;
    static const std::pair<QString E::*, QString E::*> copies[] = {
        {&E::pAddress1, &E::address1}, {&E::pAddress2, &E::address2},
        {&E::pAddress3, &E::address3}, {&E::pAddress4, &E::address4},
        {&E::pAddress5, &E::address5}, {&E::pState, &E::state},
        {&E::pStateCode, &E::stateCode}, {&E::pStateId, &E::stateId},
        {&E::pPincode, &E::pincode},   {&E::pPhone, &E::phone},
        {&E::pEmail, &E::email},       {&E::pStdCode, &E::stdCode},
    };
    bool copied = false;
    for (const auto &[person, deductor] : copies) {
        if ((entry.*person).trimmed().isEmpty() && !(entry.*deductor).isEmpty()) {
            entry.*person = entry.*deductor;
            copied = true;
        }
    }
    return copied;
}
