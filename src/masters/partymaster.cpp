#include "masters/partymaster.h"

#include "core/datastore.h"
#include "core/records.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/transaction.h"

namespace {

// SQLite's extended codes of a unique index refusing a second row with the same key.
bool isDuplicateKey(const StoreError &error)
{
    return error.code() == QLatin1String("2067") || error.code() == QLatin1String("1555");
}

} // namespace

PartyMaster::PartyMaster(Session &session, MessageBoxes &boxes, Traits traits)
    : PartyRecordFlow(session, boxes, std::move(traits))
{
}

std::optional<FieldFailure> PartyMaster::firstFailure() const
{
    const PartyFields &values = fields();
    if (values.groupName.trimmed().isEmpty())
        return FieldFailure{{noGroupSaveText}, groupField};
    if (values.name.trimmed().isEmpty())
        return FieldFailure{{traits().blankNameText}, traits().nameField};
    if (auto failure = checkPan(values.pan))
        return failure;
    if (auto failure = checkOwnFields())
        return failure;
    const int current = mode();
    if (!traits().nameCheckInEditModesOnly || current == ClsOperation::AddMode
        || current == ClsOperation::ModifyMode) {
        if (session().store.hasRows(
                QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ? AND %1 <> ? AND GroupId = ?")
                    .arg(traits().idColumn, traits().table, traits().nameColumn),
                {records::escapeText(values.name), values.id, values.groupId}))
            return FieldFailure{{QStringLiteral("%1 Name Already Exists. ").arg(traits().word)},
                                traits().nameField};
    }
    return std::nullopt;
}

QList<PartyMaster::Question> PartyMaster::questions() const
{
    const PartyFields &values = fields();
    QList<Question> asked;
    const bool editing = mode() == ClsOperation::ModifyMode;
    if (editing) {
        for (const FormKind kind : std::as_const(traits().forms)) {
            if (session().store.hasRows(QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?")
                                            .arg(formTraits(kind).annexureTable,
                                                 traits().numberColumn),
                                        {values.id}))
                asked.append({{QStringLiteral("Entry of the %1 exists in %2 like to update.")
                                   .arg(traits().word, formTraits(kind).messageName),
                               appTitle, MessageIcon::Question, MessageButtons::YesNo},
                              traits().nameField});
        }
    }
    // A party without a PAN is asked about too: "PANNOTAVBL" is compared like any PAN.
    const QString pan = records::escapeText(values.pan);
    if (!pan.isEmpty() && pan != panApplied) {
        QString sql = QStringLiteral("SELECT %1 FROM %2 WHERE PAN = ? AND GroupId = ?")
                          .arg(traits().idColumn, traits().table);
        QVariantList bound{pan, values.groupId};
        if (editing) {
            sql += QStringLiteral(" AND %1 <> ?").arg(traits().idColumn);
            bound << values.id;
        }
        if (session().store.hasRows(sql, bound))
            asked.append({{duplicatePanText, appTitle, MessageIcon::Question,
                           MessageButtons::YesNo},
                          panField});
    }
    return asked;
}

bool PartyMaster::hasStatementRows() const
{
    for (const FormKind kind : std::as_const(traits().forms)) {
        if (session().store.hasRows(QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?")
                                        .arg(formTraits(kind).annexureTable,
                                             traits().numberColumn),
                                    {fields().id}))
            return true;
    }
    return false;
}

void PartyMaster::validateData(bool &cancel)
{
    if (const std::optional<FieldFailure> failure = firstFailure()) {
        boxes().show(failure->message);
        requestFocus(failure->field);
        cancel = true;
        return;
    }
    for (const Question &question : questions()) {
        if (boxes().show(question.message) != Answer::Yes) {
            requestFocus(question.field);
            cancel = true;
            return;
        }
    }
}

void PartyMaster::saveProcedure(bool &cancel)
{
    PartyFields &values = fields();
    values.name = values.name.trimmed();
    const int current = mode();
    const int shownId = values.id;
    try {
        Transaction transaction(session().store);
        if (current == ClsOperation::AddMode) {
            values.id = static_cast<int>(
                records::nextId(session().store, traits().table, traits().idColumn));
            insertRecord();
        } else if (current == ClsOperation::ModifyMode) {
            updateRecord();
            if (hasStatementRows())
                updateStatementRows();
        }
        transaction.commit();
    } catch (const StoreError &error) {
        values.id = shownId;
        showSaveError(error);
        cancel = true;
        return;
    }
    showSaved();
}

void PartyMaster::showSaveError(const StoreError &error)
{
    boxes().show({error.description(), appTitle, MessageIcon::Critical, MessageButtons::Ok});
    if (isDuplicateKey(error)) {
        boxes().show({duplicateKeyText, duplicateKeyTitle, MessageIcon::Information,
                      MessageButtons::Ok});
        requestFocus(traits().nameField);
    } else {
        boxes().show({unableToSaveText, appTitle, MessageIcon::Critical, MessageButtons::Ok});
    }
}
