#include "masters/partyrecordflow.h"

#include "core/cannedmessages.h"
#include "core/companyselection.h"
#include "core/datastore.h"
#include "core/fieldrules.h"
#include "core/records.h"
#include "core/recordsetfailure.h"
#include "core/session.h"
#include "core/storeerror.h"

namespace {

// BeforePrint has always asked for a sixth canned box, which shows nothing.
constexpr int printCheckKind = 6;

} // namespace

PartyRecordFlow::PartyRecordFlow(Session &session, MessageBoxes &boxes, Traits traits)
    : m_session(session),
      m_boxes(boxes),
      m_traits(std::move(traits)),
      m_operation(this),
      m_list(m_traits.listHeaders)
{
}

bool PartyRecordFlow::isPanPlaceholder(const QString &pan)
{
    return pan == panNotAvailable || pan == panInvalid || pan == panApplied;
}

bool PartyRecordFlow::isPanNotAvailable(const QString &pan)
{
    const QString text = pan.trimmed();
    return text.isEmpty() || text == panApplied || text == panNotAvailable;
}

bool PartyRecordFlow::asksPanRef(const QString &pan)
{
    const QString text = pan.trimmed();
    return text.isEmpty() || text == panApplied;
}

QString PartyRecordFlow::storedPan(const QString &pan)
{
    const QString text = records::escapeText(pan);
    return text.isEmpty() ? panNotAvailable : text;
}

QString PartyRecordFlow::panAfterLeaving(const QString &pan)
{
    return asksPanRef(pan) ? panNotAvailable : pan;
}

std::optional<FieldFailure> PartyRecordFlow::checkPan(const QString &pan)
{
    if (isPanPlaceholder(pan) || fieldrules::isValidPan(pan))
        return std::nullopt;
    return FieldFailure{{badPanText, appTitle, MessageIcon::Critical, MessageButtons::Ok},
                        panField};
}

QString PartyRecordFlow::takeFocus()
{
    QString field;
    field.swap(m_focus);
    return field;
}

bool PartyRecordFlow::guarded(const std::function<void()> &step)
{
    try {
        step();
        return true;
    } catch (const StoreError &error) {
        m_boxes.show(recordsetFailure(error));
        return false;
    }
}

void PartyRecordFlow::load()
{
    guarded([this] {
        m_groups.clear();
        QSqlQuery query = m_session.store.exec(
            QStringLiteral("SELECT GroupName, GroupID FROM mstGroup ORDER BY GroupID"));
        while (query.next())
            m_groups.append({query.value(1).toInt(), records::nullToText(query.value(0))});
    });
    clearFields();
    fields().groupName = m_groups.isEmpty() ? QString() : m_groups.first().name;
    groupChanged();
    m_bar = Bar::Browse;
    m_listEnabled = true;
    m_groupEnabled = true;
    commandTail();
}

void PartyRecordFlow::groupChanged()
{
    PartyFields &values = fields();
    values.groupId = 0;
    for (const Group &group : std::as_const(m_groups)) {
        if (group.name == values.groupName)
            values.groupId = group.id;
    }
    guarded([this] { reloadList(); });
}

void PartyRecordFlow::reloadList()
{
    m_selectedRow = -1;
    if (fields().groupId == 0) {
        m_list.clear();
        return;
    }
    m_list.load(m_session.store, m_traits.listStatement, {fields().groupId});
    if (m_list.rowCount() > 0)
        m_selectedRow = 0;
}

void PartyRecordFlow::clearFields()
{
    PartyFields &values = fields();
    values.id = 0;
    values.name.clear();
    values.pan.clear();
    values.panRef.clear();
    clearOwnFields();
}

void PartyRecordFlow::command(int index)
{
    if (fields().groupName.trimmed().isEmpty()) {
        m_boxes.show({CompanySelection::noGroupText, appTitle, MessageIcon::Information,
                      MessageButtons::Ok});
        requestFocus(groupField);
        return;
    }
    guarded([this, index] {
        switch (index) {
        case 0:
            readDefaults();
            m_operation.addRecord();
            m_bar = Bar::Editing;
            break;
        case 1:
            loadRow(m_selectedRow);
            break;
        case 2:
            m_operation.saveRecord();
            break;
        case 3:
            m_operation.userCanceled();
            clearFields();
            m_bar = Bar::Browse;
            break;
        case 4:
            m_operation.deleteRecord();
            break;
        default:
            break;
        }
    });
    fields().pan = panNotAvailable;
    commandTail();
}

void PartyRecordFlow::loadRow(int row)
{
    if (row < 0 || row >= m_list.rowCount())
        return;
    const int id = m_list.text(row, m_traits.listIdColumn).toInt();
    PartyFields &values = fields();
    if (!guarded([this, id] { loadOwnFields(id); }))
        return;
    values.id = id;
    values.name = m_list.text(row, m_traits.listNameColumn);
    values.pan = m_list.text(row, m_traits.listPanColumn);
    m_panRefEnabled = isPanNotAvailable(values.pan);
    m_listEnabled = false;
    m_groupEnabled = false;
    m_operation.modifyRecord();
    m_bar = Bar::Editing;
    requestFocus(m_traits.nameField);
}

void PartyRecordFlow::deleteKey()
{
    guarded([this] { m_operation.deleteRecord(); });
    if (!m_operation.actionCancelled())
        m_bar = Bar::AllEnabled;
}

void PartyRecordFlow::panLeft()
{
    m_panRefEnabled = asksPanRef(fields().pan);
    fields().pan = panAfterLeaving(fields().pan);
}

void PartyRecordFlow::beforeAdd(bool & /*cancel*/)
{
    clearFields();
    fields().id = static_cast<int>(
        records::nextId(m_session.store, m_traits.table, m_traits.idColumn));
    m_listEnabled = false;
    requestFocus(m_traits.nameField);
}

void PartyRecordFlow::afterCancel()
{
    m_bar = Bar::Browse;
    m_listEnabled = true;
    m_groupEnabled = true;
    requestFocus(listField);
}

void PartyRecordFlow::beforeDelete(bool &cancel)
{
    if (cannedmessages::showMessage(m_boxes, cannedmessages::ConfirmDelete)
        != static_cast<int>(Answer::Yes)) {
        cancel = true;
        requestFocus(listField);
    }
}

void PartyRecordFlow::deleteRecord(bool &cancel)
{
    if (m_selectedRow < 0 || m_selectedRow >= m_list.rowCount()) {
        // No row to take the id from: the delete fails as any other failure of it does.
        m_boxes.show({unableToDeleteText, appTitle, MessageIcon::Critical, MessageButtons::Ok});
        cancel = true;
        return;
    }
    try {
        const int id = m_list.text(m_selectedRow, m_traits.listIdColumn).toInt();
        for (const FormKind kind : std::as_const(m_traits.forms)) {
            if (m_session.store.hasRows(QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?")
                                            .arg(formTraits(kind).annexureTable,
                                                 m_traits.numberColumn),
                                        {id})) {
                m_boxes.show({QStringLiteral("Cannot delete the %1. Entry of the %1 exists in %2")
                                  .arg(m_traits.word, formTraits(kind).messageName),
                              appTitle, MessageIcon::Information, MessageButtons::Ok});
                cancel = true;
                requestFocus(listField);
                return;
            }
        }
        m_session.store.exec(
            QStringLiteral("DELETE FROM %1 WHERE %2 = ?").arg(m_traits.table, m_traits.idColumn),
            {id});
        m_boxes.show({deletedText, appTitle, MessageIcon::Information, MessageButtons::Ok});
        reloadList();
        requestFocus(listField);
    } catch (const StoreError &) {
        m_boxes.show({unableToDeleteText, appTitle, MessageIcon::Critical, MessageButtons::Ok});
        cancel = true;
    }
}

void PartyRecordFlow::beforePrint(bool &cancel)
{
    // Both masters have always asked about deductees here; nothing prints from these screens.
    if (cannedmessages::showMessage(m_boxes, printCheckKind) == static_cast<int>(Answer::No))
        cancel = true;
    if (!m_session.store.hasRows(QStringLiteral("SELECT DeducteeID, DeducteeName FROM mstDeductee "
                                                "ORDER BY DeducteeName"))) {
        m_boxes.show({noDataText, noDataTitle, MessageIcon::Critical, MessageButtons::Ok});
        cancel = true;
    }
}

void PartyRecordFlow::showSaved()
{
    m_listEnabled = true;
    clearFields();
    m_bar = Bar::Browse;
    m_groupEnabled = true;
    requestFocus(listField);
    fields().id = static_cast<int>(
        records::nextId(m_session.store, m_traits.table, m_traits.idColumn));
    reloadList();
}
