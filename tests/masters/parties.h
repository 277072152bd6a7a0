#pragma once

#include "mastersstore.h"
#include "core/session.h"
#include "masters/deducteemaster.h"
#include "masters/employeemaster.h"
#include "support/scriptedmessageboxes.h"

/// The employee and deductee masters over a copy of the masters' store, group 1 chosen: RAVI
/// KUMAR (employee 4), O'NEIL AND SONS (deductee 3) and SHAH TRADERS (deductee 9).
struct Parties
{
    Parties()
    {
        employees.load();
        deductees.load();
    }

    PartyMaster &master(bool employee)
    {
        return employee ? static_cast<PartyMaster &>(employees) : deductees;
    }

    // The double click on a party's row.
    void edit(PartyMaster &master, int id)
    {
        for (int row = 0; row < master.list().rowCount(); ++row) {
            if (master.list().text(row, 0).toInt() == id)
                master.loadRow(row);
        }
        master.takeFocus();
    }

    // A statement row of the form naming the party by its number.
    void addStatementRow(FormKind form, int rowId, int partyNo, const QString &name)
    {
        const FormTraits &traits = formTraits(form);
        data.insert(traits.annexureTable,
                    {{traits.annexureKey, rowId}, {"BasicIfoID", 1}, {"ChallanId", 1},
                     {form == FormKind::Form24Q ? "EmpNo" : "DeducteeNo", partyNo},
                     {traits.partyNameColumn, name}, {"PAN", "OLDPN1234X"}});
    }

    QString statementName(FormKind form, int rowId) const
    {
        const FormTraits &traits = formTraits(form);
        return data.text(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                             .arg(traits.partyNameColumn, traits.annexureTable,
                                  traits.annexureKey),
                         {rowId});
    }

    QString stored(const char *column, bool employee, int id) const
    {
        return data.text(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                             .arg(QLatin1String(column),
                                  employee ? "mstEmployee" : "mstDeductee",
                                  employee ? "EmpID" : "DeducteeID"),
                         {id});
    }

    TestStore data{mastersStore()};
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    EmployeeMaster employees{session, boxes};
    DeducteeMaster deductees{session, boxes};
};
