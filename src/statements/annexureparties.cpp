#include "statements/annexureparties.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/records.h"
#include "statements/annexureentry.h"

#include <QSqlQuery>

AnnexureParties::AnnexureParties(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
}

QString AnnexureParties::table() const
{
    return m_form.salaryLayout ? QStringLiteral("mstEmployee") : QStringLiteral("mstDeductee");
}

QStringList AnnexureParties::names(int groupId) const
{
    return records::comboTexts(
        m_store, {}, {}, false,
        QStringLiteral("SELECT DISTINCT %1 FROM %2 WHERE GroupID = ? ORDER BY %1")
            .arg(m_form.partyNameColumn, table()),
        false, {groupId});
}

bool AnnexureParties::fill(AnnexureEntry &entry, int groupId) const
{
    const QString idColumn = m_form.salaryLayout ? "EmpID" : "DeducteeID";
    // The combo lists the group's parties: a name is looked up among them.
    const QVariant id = m_store.scalar(
        QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ? AND GroupID = ?")
            .arg(idColumn, table(), m_form.partyNameColumn),
        {records::escapeText(entry.partyName), groupId});
    entry.partyNo = QString::number(id.isValid() ? id.toInt() : 0);
    if (!id.isValid() || id.toInt() <= 0)
        return false;
    if (m_form.salaryLayout) {
        QSqlQuery row = m_store.exec(QStringLiteral("SELECT Designation, PAN, PanRef, FromDate, "
                                                    "ToDate FROM mstEmployee WHERE EmpID = ?"),
                                     {id});
        row.next();
        entry.designation = records::nullToText(row.value(0));
        entry.pan = records::nullToText(row.value(1));
        entry.panRef = records::nullToText(row.value(2));
        entry.fromDate = records::dateOf(row.value(3));
        entry.toDate = records::dateOf(row.value(4));
        return true;
    }
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT DeducteeCode, PAN, PanRef, Address1, Address2, Address3, "
                       "Address4, Address5, State, StateCode, PIN FROM mstDeductee "
                       "WHERE DeducteeID = ?"),
        {id});
    row.next();
    QString *fields[] = {&entry.deducteeCode, &entry.pan,      &entry.panRef,
                         &entry.address1,     &entry.address2, &entry.address3,
                         &entry.address4,     &entry.address5, &entry.state,
                         &entry.stateCode,    &entry.pin};
    for (int column = 0; column < int(std::size(fields)); ++column)
        *fields[column] = records::nullToText(row.value(column));
    return true;
}
