#include "masters/employeemaster.h"

#include "core/datastore.h"
#include "core/fieldrules.h"
#include "core/records.h"
#include "core/session.h"

#include <QSqlQuery>

namespace {

PartyMaster::Traits employeeTraits()
{
    PartyMaster::Traits traits;
    traits.table = QStringLiteral("mstEmployee");
    traits.idColumn = QStringLiteral("EmpID");
    traits.nameColumn = QStringLiteral("EmpName");
    traits.numberColumn = QStringLiteral("EmpNo");
    traits.word = QStringLiteral("Employee");
    traits.nameField = EmployeeMaster::nameField;
    traits.blankNameText = EmployeeMaster::blankNameText;
    traits.forms = {FormKind::Form24Q};
    traits.nameCheckInEditModesOnly = true;
    traits.listStatement = QStringLiteral(
        "SELECT a.EmpID, a.EmpName, a.PAN, b.GroupID, b.GroupName "
        "FROM mstEmployee a, mstGroup b WHERE a.GroupId = b.GroupId AND b.GroupId = ? "
        "ORDER BY a.EmpName");
    traits.listHeaders = {QStringLiteral("Emp ID"), QStringLiteral("Employee Name"),
                          QStringLiteral("PAN"), QStringLiteral("Group ID"),
                          QStringLiteral("Group Name")};
    traits.listIdColumn = 0;
    traits.listNameColumn = 1;
    traits.listPanColumn = 2;
    return traits;
}

QVariant storedDate(const QDate &date)
{
    return date.isValid() ? QVariant(date.toString(Qt::ISODate)) : QVariant();
}

} // namespace

const QStringList EmployeeMaster::categories = {QStringLiteral("Woman"),
                                                QStringLiteral("SeniorCitizen"),
                                                QStringLiteral("General")};

EmployeeMaster::EmployeeMaster(Session &session, MessageBoxes &boxes)
    : PartyMaster(session, boxes, employeeTraits())
{
}

std::optional<FieldFailure> EmployeeMaster::checkOwnFields() const
{
    if (m_fields.category < 0)
        return FieldFailure{{noCategoryText, noCategoryTitle}, categoryField};
    if (auto failure = dateFailure(fromDateField))
        return failure;
    return dateFailure(toDateField);
}

std::optional<FieldFailure> EmployeeMaster::dateFailure(const QString &field) const
{
    const QDate date = field == fromDateField ? m_fields.fromDate : m_fields.toDate;
    if (const auto failure = fieldrules::checkDateGiven(date, field))
        return failure->failure;
    return std::nullopt;
}

void EmployeeMaster::clearOwnFields()
{
    // The dates stay, as date controls always have, for the next employee of the same period.
    m_fields.designation.clear();
    m_fields.category = -1;
}

void EmployeeMaster::loadOwnFields(int id)
{
    QSqlQuery query = session().store.exec(
        QStringLiteral("SELECT Designation, FromDate, ToDate, PanRef, category FROM mstEmployee "
                       "WHERE EmpID = ?"),
        {id});
    if (!query.next())
        return;
    m_fields.designation = records::nullToText(query.value(0));
    const QDate from = QDate::fromString(records::nullToText(query.value(1)), Qt::ISODate);
    if (from.isValid())
        m_fields.fromDate = from;
    const QDate to = QDate::fromString(records::nullToText(query.value(2)), Qt::ISODate);
    if (to.isValid())
        m_fields.toDate = to;
    m_fields.panRef = records::nullToText(query.value(3));
    // A category outside the list leaves the combo as it stood.
    const QVariant category = query.value(4);
    if (!category.isNull() && category.toInt() >= 0 && category.toInt() < categories.size())
        m_fields.category = category.toInt();
}

void EmployeeMaster::insertRecord()
{
    session().store.exec(
        QStringLiteral("INSERT INTO mstEmployee (GroupId, EmpID, PAN, PanRef, EmpName, "
                       "Designation, FromDate, Todate, category) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {m_fields.groupId, m_fields.id, storedPan(m_fields.pan),
         records::escapeText(m_fields.panRef), records::escapeText(m_fields.name),
         records::escapeText(m_fields.designation), storedDate(m_fields.fromDate),
         storedDate(m_fields.toDate), m_fields.category});
}

void EmployeeMaster::updateRecord()
{
    session().store.exec(
        QStringLiteral("UPDATE mstEmployee SET GroupID = ?, EmpName = ?, Designation = ?, "
                       "FromDate = ?, ToDate = ?, PAN = ?, PanRef = ?, category = ? "
                       "WHERE EmpID = ?"),
        {m_fields.groupId, records::escapeText(m_fields.name),
         records::escapeText(m_fields.designation), storedDate(m_fields.fromDate),
         storedDate(m_fields.toDate), storedPan(m_fields.pan),
         records::escapeText(m_fields.panRef), m_fields.category, m_fields.id});
}

void EmployeeMaster::updateEmpInfo()
{
    session().store.exec(
        QStringLiteral("UPDATE %1 SET EmpName = ?, Designation = ?, FromDate = ?, ToDate = ?, "
                       "PAN = ?, PanRef = ? WHERE EmpNo = ?")
            .arg(formTraits(FormKind::Form24Q).annexureTable),
        {records::escapeText(m_fields.name), records::escapeText(m_fields.designation),
         storedDate(m_fields.fromDate), storedDate(m_fields.toDate), storedPan(m_fields.pan),
         records::escapeText(m_fields.panRef), m_fields.id});
}

void EmployeeMaster::readDefaults()
{
    QSqlQuery query = session().store.exec(
        QStringLiteral("SELECT StartDt, EndDt FROM mstAssessment WHERE AsstId = ?"),
        {session().asstId});
    if (query.next()) {
        m_fields.fromDate = QDate::fromString(records::nullToText(query.value(0)), Qt::ISODate);
        m_fields.toDate = QDate::fromString(records::nullToText(query.value(1)), Qt::ISODate);
        return;
    }
    const int year = QDate::currentDate().year();
    m_fields.fromDate = QDate(year, 4, 1);
    m_fields.toDate = QDate(year + 1, 3, 31);
}

void EmployeeMaster::commandTail()
{
    m_fields.category = generalCategory;
}
