#include "masters/deducteemaster.h"

#include "core/datastore.h"
#include "core/records.h"
#include "core/session.h"

#include <QSqlQuery>

namespace {

PartyMaster::Traits deducteeTraits()
{
    PartyMaster::Traits traits;
    traits.table = QStringLiteral("mstDeductee");
    traits.idColumn = QStringLiteral("DeducteeID");
    traits.nameColumn = QStringLiteral("DeducteeName");
    traits.numberColumn = QStringLiteral("DeducteeNo");
    traits.word = QStringLiteral("Deductee");
    traits.nameField = DeducteeMaster::nameField;
    traits.blankNameText = DeducteeMaster::blankNameText;
    traits.forms = {FormKind::Form26Q, FormKind::Form27Q, FormKind::Form27EQ};
    traits.listStatement = QStringLiteral(
        "SELECT a.DeducteeID, a.DeducteeCode, a.DeducteeName, a.PAN, b.GroupID, b.GroupName "
        "FROM mstDeductee a, mstGroup b WHERE a.GroupId = b.GroupId AND b.GroupId = ? "
        "ORDER BY a.DeducteeName");
    traits.listHeaders = {QStringLiteral("Deductee ID"), QStringLiteral("Code"),
                          QStringLiteral("Deductee Name"), QStringLiteral("PAN"),
                          QStringLiteral("Group ID"), QStringLiteral("Group Name")};
    traits.listIdColumn = 0;
    traits.listNameColumn = 2;
    traits.listPanColumn = 3;
    return traits;
}

} // namespace

QString DeducteeMaster::codeCaption(const QString &code)
{
    if (code == companyCode)
        return QStringLiteral("DEDUCTEE - COMPANY");
    if (code == nonCompanyCode)
        return QStringLiteral("DEDUCTEE - NON COMPANY");
    return {};
}

DeducteeMaster::DeducteeMaster(Session &session, MessageBoxes &boxes)
    : PartyMaster(session, boxes, deducteeTraits())
{
    guarded([this] {
        QSqlQuery query = this->session().store.exec(
            QStringLiteral("SELECT StateID, StateCode, StateName FROM mstState "
                           "ORDER BY StateName"));
        while (query.next())
            m_states.append({query.value(0).toInt(), records::nullToText(query.value(1)),
                             records::nullToText(query.value(2))});
    });
}

std::optional<DeducteeMaster::State> DeducteeMaster::findState(const QString &name) const
{
    const QString wanted = name.trimmed();
    if (wanted.isEmpty())
        return std::nullopt;
    for (const State &state : m_states) {
        if (state.name.compare(wanted, Qt::CaseInsensitive) == 0)
            return state;
    }
    return std::nullopt;
}

void DeducteeMaster::stateChosen()
{
    const std::optional<State> state = findState(m_fields.state);
    m_fields.stateId = state ? state->id : 0;
    m_fields.stateCode = state ? state->code : QString();
    if (!state)
        return;
    m_fields.state = state->name;
    if (state->id == foreignStateId)
        m_fields.pin = foreignPin;
}

bool DeducteeMaster::stateLeft()
{
    // A blank names no state either.
    stateChosen();
    if (m_fields.stateId != 0)
        return true;
    boxes().show({badStateText});
    requestFocus(stateField);
    return false;
}

bool DeducteeMaster::codeLeft()
{
    const QString code = m_fields.code.trimmed();
    if (code == companyCode || code == nonCompanyCode)
        return true;
    boxes().show({badCodeText});
    requestFocus(codeField);
    return false;
}

std::optional<FieldFailure> DeducteeMaster::checkOwnFields() const
{
    if (m_fields.code.trimmed().isEmpty())
        return FieldFailure{{blankCodeText}, codeField};
    if (!findState(m_fields.state))
        return FieldFailure{{badStateText}, stateField};
    if (m_fields.pin.trimmed().isEmpty())
        return FieldFailure{{blankPinText}, pinField};
    return std::nullopt;
}

void DeducteeMaster::clearOwnFields()
{
    m_fields.code.clear();
    for (QString &line : m_fields.address)
        line.clear();
    m_fields.state.clear();
    m_fields.stateId = 0;
    m_fields.stateCode.clear();
    m_fields.pin.clear();
}

void DeducteeMaster::loadOwnFields(int id)
{
    QSqlQuery query = session().store.exec(
        QStringLiteral("SELECT Address1, Address2, Address3, Address4, Address5, DeducteeCode, "
                       "StateCode, State, PIN, PanRef FROM mstDeductee WHERE DeducteeID = ?"),
        {id});
    if (!query.next())
        return;
    for (int line = 0; line < 5; ++line)
        m_fields.address[line] = records::nullToText(query.value(line));
    m_fields.code = records::nullToText(query.value(5));
    m_fields.stateCode = records::nullToText(query.value(6));
    m_fields.state = records::nullToText(query.value(7));
    const std::optional<State> state = findState(m_fields.state);
    m_fields.stateId = state ? state->id : 0;
    m_fields.pin = records::nullToText(query.value(8));
    m_fields.panRef = records::nullToText(query.value(9));
}

QVariantList DeducteeMaster::addressValues() const
{
    QVariantList values;
    for (const QString &line : m_fields.address)
        values << records::escapeText(line);
    return values;
}

void DeducteeMaster::insertRecord()
{
    const std::optional<State> state = findState(m_fields.state);
    QVariantList values{m_fields.groupId, m_fields.id, storedPan(m_fields.pan),
                        records::escapeText(m_fields.panRef), records::escapeText(m_fields.name)};
    values << addressValues();
    values << records::escapeText(m_fields.code) << (state ? state->name : QString())
           << (state ? state->code : QString()) << records::escapeText(m_fields.pin)
           << QString();
    session().store.exec(
        QStringLiteral("INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, PanRef, DeducteeName, "
                       "Address1, Address2, Address3, Address4, Address5, DeducteeCode, State, "
                       "StateCode, PIN, InWords) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        values);
}

void DeducteeMaster::updateRecord()
{
    const std::optional<State> state = findState(m_fields.state);
    QVariantList values{m_fields.groupId, records::escapeText(m_fields.name),
                        records::escapeText(m_fields.code)};
    values << addressValues();
    values << storedPan(m_fields.pan) << records::escapeText(m_fields.panRef)
           << (state ? state->name : QString()) << (state ? state->code : QString())
           << records::escapeText(m_fields.pin) << m_fields.id;
    session().store.exec(
        QStringLiteral("UPDATE mstDeductee SET GroupID = ?, DeducteeName = ?, DeducteeCode = ?, "
                       "Address1 = ?, Address2 = ?, Address3 = ?, Address4 = ?, Address5 = ?, "
                       "PAN = ?, PanRef = ?, State = ?, StateCode = ?, PIN = ? "
                       "WHERE DeducteeID = ?"),
        values);
}

void DeducteeMaster::updateDeducteeInfo()
{
    const std::optional<State> state = findState(m_fields.state);
    QVariantList values{records::escapeText(m_fields.name), records::escapeText(m_fields.code)};
    values << addressValues();
    values << storedPan(m_fields.pan) << (state ? state->name : QString())
           << (state ? state->code : QString()) << records::escapeText(m_fields.pin)
           << m_fields.id;
    // The reference of a PAN applied for stays as the statement row has it.
    for (const FormKind kind : forms()) {
        session().store.exec(
            QStringLiteral("UPDATE %1 SET DeducteeName = ?, DeducteeCode = ?, Address1 = ?, "
                           "Address2 = ?, Address3 = ?, Address4 = ?, Address5 = ?, PAN = ?, "
                           "State = ?, StateCode = ?, PIN = ? WHERE DeducteeNo = ?")
                .arg(formTraits(kind).annexureTable),
            values);
    }
}
