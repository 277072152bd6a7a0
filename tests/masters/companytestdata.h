#pragma once

#include "core/datastore.h"
#include "masters/companyentry.h"

#include <QString>
#include <QVariant>

/// Rows that the group and company tests put straight into a store, and a company entry that
/// passes every check of the save.
namespace companytestdata {

inline void addGroup(const DataStore &store, int groupId, const QString &name)
{
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, ?)"),
               {groupId, name});
}

inline void addCompany(const DataStore &store, int compId, int groupId, const QString &tan,
                       const QString &name = QStringLiteral("SOME COMPANY"),
                       const QString &pan = QStringLiteral("PANNOTREQD"),
                       const QString &prefix = QString())
{
    store.exec(QStringLiteral("INSERT INTO mstCompany (AsstID, GroupID, CompID, TanNO, PanNo, "
                              "CompName, FilePrefix, StateCode, StateID) "
                              "VALUES (1, ?, ?, ?, ?, ?, ?, '19', 19)"),
               {groupId, compId, tan, pan, name,
                prefix.isEmpty() ? QStringLiteral("P%1").arg(compId) : prefix});
}

inline void addDeductee(const DataStore &store, int deducteeId, int groupId)
{
    store.exec(QStringLiteral("INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, DeducteeName) "
                              "VALUES (?, ?, 'PANNOTAVBL', 'A DEDUCTEE')"),
               {groupId, deducteeId});
}

inline void addEmployee(const DataStore &store, int empId, int groupId)
{
    store.exec(QStringLiteral("INSERT INTO mstEmployee (GroupId, EmpID, PAN, EmpName) "
                              "VALUES (?, ?, 'PANNOTAVBL', 'AN EMPLOYEE')"),
               {groupId, empId});
}

/// A Statement as the statement screen leaves it, with the company's particulars copied in.
inline void addStatement(const DataStore &store, const QString &table, int basicInfoId,
                         int compId, const QString &name = QStringLiteral("OLD NAME"))
{
    store.exec(QStringLiteral("INSERT INTO %1 (BasicIfoID, CompID, AsstID, TanNO, CompName, "
                              "BranchDiv, Quarter) "
                              "VALUES (?, ?, 1, 'OLDT12345A', ?, 'OLD BRANCH', 'Q1')")
                   .arg(table),
               {basicInfoId, compId, name});
}

/// A challan or deductee row with its book-entry mark.
inline void addBookEntryRow(const DataStore &store, const QString &table, const QString &key,
                            int id, int compId, const QString &bookEntry = QStringLiteral("O"))
{
    store.exec(QStringLiteral("INSERT INTO %1 (%2, BasicIfoID, CompID, AsstID, BookEntry) "
                              "VALUES (?, 1, ?, 1, ?)")
                   .arg(table, key),
               {id, compId, bookEntry});
}

inline void addGenerationLog(const DataStore &store, int logId, int compId)
{
    store.exec(QStringLiteral("INSERT INTO FileGenerationLog (FGId, GrpID, CompID, FormNo) "
                              "VALUES (?, 1, ?, 'Form -26Q')"),
               {logId, compId});
}

inline QVariant columnOf(const DataStore &store, const QString &table, const QString &column,
                         const QString &where, const QVariantList &values)
{
    return store.scalar(QStringLiteral("SELECT %1 FROM %2 WHERE %3").arg(column, table, where),
                        values);
}

/// A new company of group 1 ("ALPHA GROUP") that passes every check: a company deductor in
/// Maharashtra whose person responsible lives at the same address.
inline CompanyEntry validEntry()
{
    CompanyEntry entry;
    entry.groupName = QStringLiteral("ALPHA GROUP");
    entry.groupId = QStringLiteral("1");
    entry.tan = QStringLiteral("MUMA12345B");
    entry.pan = QStringLiteral("AAACM1234C");
    entry.name = QStringLiteral("MEHTA TRADERS");
    entry.branch = QStringLiteral("FORT");
    entry.address1 = QStringLiteral("12 MG ROAD");
    entry.address2 = QStringLiteral("FORT");
    entry.address5 = QStringLiteral("MUMBAI");
    entry.state = QStringLiteral("MAHARASHTRA");
    entry.stateId = QStringLiteral("19");
    entry.stateCode = QStringLiteral("19");
    entry.pincode = QStringLiteral("400001");
    entry.stdCode = QStringLiteral("022");
    entry.phone = QStringLiteral("22001234");
    entry.email = QStringLiteral("accounts@mehta.co.in");
    entry.personName = QStringLiteral("RAJ MEHTA");
    entry.designation = QStringLiteral("DIRECTOR");
    entry.pAddress1 = QStringLiteral("4 HILL ROAD");
    entry.pAddress5 = QStringLiteral("MUMBAI");
    entry.pState = QStringLiteral("MAHARASHTRA");
    entry.pStateId = QStringLiteral("19");
    entry.pStateCode = QStringLiteral("19");
    entry.pPincode = QStringLiteral("400050");
    entry.pStdCode = QStringLiteral("022");
    entry.pPhone = QStringLiteral("26001234");
    entry.pEmail = QStringLiteral("raj@mehta.co.in");
    entry.assessingOfficerCode = QStringLiteral("MUM W 12");
    entry.tdsCircle = QStringLiteral("TDS WARD 1(1)");
    entry.filePrefix = QStringLiteral("MTR");
    entry.deductorType = QStringLiteral("K");
    entry.status = QStringLiteral("O");
    return entry;
}

} // namespace companytestdata
