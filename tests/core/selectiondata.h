#pragma once

#include "core/datastore.h"

#include <QString>
#include <QVariant>

/// Rows that the selection tests put straight into a store: groups, companies and Statements.
namespace selectiondata {

inline void addGroup(DataStore &store, int groupId, const QString &name)
{
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, ?)"),
               {groupId, name});
}

/// A null status stands for a company whose deductor type was never set.
inline void addCompany(DataStore &store, int asstId, int groupId, int compId,
                       const QString &name, const QVariant &status)
{
    store.exec(QStringLiteral("INSERT INTO mstCompany "
                              "(AsstID, GroupID, CompID, CompName, DStatus) VALUES (?, ?, ?, ?, ?)"),
               {asstId, groupId, compId, name, status});
}

inline void addStatement(DataStore &store, const QString &table, int basicInfoId, int compId,
                         int asstId, const QString &quarter)
{
    store.exec(QStringLiteral("INSERT INTO %1 (BasicIfoID, CompID, AsstID, Quarter) "
                              "VALUES (?, ?, ?, ?)").arg(table),
               {basicInfoId, compId, asstId, quarter});
}

} // namespace selectiondata
