#include "partymastertestdata.h"

#include "core/datastore.h"

namespace partymastertestdata {

namespace {

QString partyColumn(FormKind form, const char *employee, const char *deductee)
{
    return QLatin1String(form == FormKind::Form24Q ? employee : deductee);
}

} // namespace

void addGroup(const DataStore &store, int id, const QString &name)
{
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, ?)"),
               {id, name});
}

void addEmployee(const DataStore &store, int groupId, int id, const QString &name,
                 const QString &pan)
{
    store.exec(QStringLiteral("INSERT INTO mstEmployee (GroupId, EmpID, PAN, PanRef, EmpName, "
                              "Designation, FromDate, Todate, category) "
                              "VALUES (?, ?, ?, '', ?, 'CLERK', '2026-04-01', '2027-03-31', 2)"),
               {groupId, id, pan, name});
}

void addDeductee(const DataStore &store, int groupId, int id, const QString &name,
                 const QString &pan)
{
    store.exec(QStringLiteral("INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, PanRef, "
                              "DeducteeName, Address1, Address2, Address3, Address4, Address5, "
                              "DeducteeCode, State, StateCode, PIN, InWords) "
                              "VALUES (?, ?, ?, '', ?, 'LINE 1', '', '', '', '', '02', "
                              "'KARNATAKA', '15', '560001', '')"),
               {groupId, id, pan, name});
}

void addStatementRow(const DataStore &store, FormKind form, int rowId, int partyNo,
                     const QString &name)
{
    const FormTraits &traits = formTraits(form);
    store.exec(QStringLiteral("INSERT INTO %1 (%2, BasicIfoID, CompID, AsstID, ChallanId, SrlNo, "
                              "%3, %4, PAN) VALUES (?, 1, 1, 1, 1, ?, ?, ?, 'OLDPN1234X')")
                   .arg(traits.annexureTable, traits.annexureKey,
                        partyColumn(form, "EmpNo", "DeducteeNo"), traits.partyNameColumn),
               {rowId, rowId, partyNo, name});
}

void blockStatementUpdates(const DataStore &store, FormKind form)
{
    const QString table = formTraits(form).annexureTable;
    store.exec(QStringLiteral("CREATE TRIGGER block_%1 BEFORE UPDATE ON %1 "
                              "BEGIN SELECT RAISE(ABORT, 'statement rows are locked'); END")
                   .arg(table));
}

QString statementName(const DataStore &store, FormKind form, int rowId)
{
    const FormTraits &traits = formTraits(form);
    return store
        .scalar(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                    .arg(traits.partyNameColumn, traits.annexureTable, traits.annexureKey),
                {rowId})
        .toString();
}

int rowCount(const DataStore &store, const QString &table)
{
    return store.scalar(QStringLiteral("SELECT count(*) FROM %1").arg(table)).toInt();
}

} // namespace partymastertestdata
