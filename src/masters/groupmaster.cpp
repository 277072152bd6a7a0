#include "masters/groupmaster.h"

#include "core/datastore.h"
#include "core/records.h"
#include "core/formtraits.h"
#include "core/transaction.h"

#include <QSqlQuery>

namespace {

const QString nameField = QStringLiteral("txtGrpName");

// LIKE treats "%" and "_" as wildcards; a name typed with them means the characters.
QString likePrefix(const QString &typed)
{
    QString pattern = records::escapeText(typed);
    pattern.replace(u'\\', QStringLiteral("\\\\"));
    pattern.replace(u'%', QStringLiteral("\\%"));
    pattern.replace(u'_', QStringLiteral("\\_"));
    return pattern + u'%';
}

} // namespace

GroupMaster::GroupMaster(const DataStore &store) : m_store(store)
{
}

int GroupMaster::nextId() const
{
    return static_cast<int>(
        records::nextId(m_store, QStringLiteral("mstGroup"), QStringLiteral("GroupID")));
}

QList<GroupMaster::Group> GroupMaster::groups() const
{
    QSqlQuery query =
        m_store.exec(QStringLiteral("SELECT GroupName, GroupID FROM mstGroup ORDER BY GroupName"));
    QList<Group> rows;
    while (query.next())
        rows.append({query.value(1).toInt(), records::nullToText(query.value(0))});
    return rows;
}

QStringList GroupMaster::namesStartingWith(const QString &typed) const
{
    return records::comboTexts(
        m_store, {}, {}, false,
        QStringLiteral("SELECT GroupName FROM mstGroup WHERE GroupName LIKE ? ESCAPE '\\' "
                       "ORDER BY GroupName"),
        false, {likePrefix(typed)});
}

std::optional<FieldFailure> GroupMaster::check(const Entry &entry) const
{
    const QString name = records::escapeText(entry.name);
    if (name.isEmpty())
        return FieldFailure{{enterGroupText, appTitle, MessageIcon::Critical}, nameField};

    const bool taken = entry.isEdit
        ? m_store.hasRows(QStringLiteral("SELECT GroupID FROM mstGroup WHERE GroupName = ? "
                                         "AND GroupID <> ?"),
                          {name, entry.id})
        : m_store.hasRows(QStringLiteral("SELECT GroupID FROM mstGroup WHERE GroupName = ?"),
                          {name});
    if (taken)
        return FieldFailure{{nameExistsText, cantSaveTitle, MessageIcon::Information}, nameField};
    return std::nullopt;
}

QList<Message> GroupMaster::questions(const Entry &entry) const
{
    QList<Message> asked;
    if (!entry.isEdit)
        return asked;
    // A rename is warned about for the salary and resident returns only.
    for (const FormKind kind : {FormKind::Form24Q, FormKind::Form26Q}) {
        const FormTraits &form = formTraits(kind);
        const bool used = m_store.hasRows(
            QStringLiteral("SELECT 1 FROM mstCompany AS c, %1 AS b "
                           "WHERE c.CompID = b.CompID AND c.GroupID = ?")
                .arg(form.basicInfoTable),
            {entry.id});
        if (used) {
            asked.append({QStringLiteral("This Group Is Used In [%1] Like To Update.")
                              .arg(form.messageName),
                          appTitle, MessageIcon::Question, MessageButtons::YesNo});
        }
    }
    return asked;
}

int GroupMaster::save(const Entry &entry) const
{
    const QString name = records::escapeText(entry.name);
    if (entry.isEdit) {
        m_store.exec(QStringLiteral("UPDATE mstGroup SET GroupName = ? WHERE GroupID = ?"),
                     {name, entry.id});
        return entry.id;
    }
    // The id is read inside the write, so that another program's save cannot take it first.
    Transaction transaction(m_store);
    const int id = nextId();
    m_store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, ?)"),
                 {id, name});
    transaction.commit();
    return id;
}

std::optional<Message> GroupMaster::deleteRefusal(int id) const
{
    if (m_store.hasRows(QStringLiteral("SELECT GroupID FROM mstCompany WHERE GroupID = ?"), {id}))
        return Message{hasCompaniesText, cannotDeleteTitle, MessageIcon::Information};
    if (m_store.hasRows(QStringLiteral("SELECT GroupId FROM mstDeductee WHERE GroupId = ?"), {id}))
        return Message{hasDeducteesText, cannotDeleteTitle, MessageIcon::Information};
    return std::nullopt;
}

void GroupMaster::remove(int id) const
{
    m_store.exec(QStringLiteral("DELETE FROM mstGroup WHERE GroupID = ?"), {id});
}
