#pragma once

#include "core/fieldfailure.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

class DataStore;

/**
 * The decisions of the group master: ids, the duplicate checks of a save, the warnings about
 * Statements that already use the group, and the guards of a delete. A group is the top of the
 * master data; companies, employees and deductees hang from it.
 */
class GroupMaster
{
public:
    /// One row of the group list.
    struct Group
    {
        int id = 0;
        QString name;
        bool operator==(const Group &) const = default;
    };

    /// What the screen holds when Save is pressed.
    struct Entry
    {
        int id = 0;        ///< txtGID
        QString name;      ///< txtGrpName as typed
        bool isEdit = false;
    };

    static inline const QString enterGroupText = QStringLiteral("Please enter Group");
    static inline const QString nameExistsText = QStringLiteral("This Group Name already exists.");
    static inline const QString cantSaveTitle = QStringLiteral("Can't Save");
    static inline const QString confirmDeleteText =
        QStringLiteral("Are you sure about Deleting the selected Group?");
    static inline const QString confirmationTitle = QStringLiteral("Confirmation");
    static inline const QString hasCompaniesText =
        QStringLiteral("This Group is related to Companies.");
    static inline const QString hasDeducteesText =
        QStringLiteral("This Group is related to Deductee.");
    static inline const QString cannotDeleteTitle = QStringLiteral("Can not Delete");
    static inline const QString deletedText = QStringLiteral("Deleted");

    explicit GroupMaster(const DataStore &store);

    /// The id a new group gets: the largest GroupID plus 1, or 1 for the first group.
    int nextId() const;

    /// All groups by name.
    QList<Group> groups() const;

    /// The names that begin with what has been typed so far (case-insensitive), by name.
    QStringList namesStartingWith(const QString &typed) const;

    /// The refusals of a save, in order: a blank name, then a name that another group has.
    std::optional<FieldFailure> check(const Entry &entry) const;

    /**
     * The Yes/No questions to ask before an update goes on: one for each of Forms 24Q and 26Q
     * in which a company of the group has a Statement. A No ends the save. The name is not
     * copied into the Statements, so the questions only warn.
     */
    QList<Message> questions(const Entry &entry) const;

    /// Writes the group; an insert takes a fresh id. Returns the id written. Throws StoreError.
    int save(const Entry &entry) const;

    /// Why the group cannot be deleted (companies or deductees hang from it), or nothing.
    /// Employees are not looked at: they are left without a group.
    std::optional<Message> deleteRefusal(int id) const;

    /// Deletes the group. Throws StoreError.
    void remove(int id) const;

private:
    const DataStore &m_store;
};
