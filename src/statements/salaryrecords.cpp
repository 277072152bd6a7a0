#include "statements/salaryrecords.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/schema.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace {

using records::escapeText;
using records::nullToText;

const QString isoDate = QStringLiteral("yyyy-MM-dd");

QVariant storedDate(const QDate &date)
{
    return date.isValid() ? QVariant(date.toString(isoDate)) : QVariant();
}

QString shownAmount(const QVariant &value)
{
    return value.isNull() ? QString() : Money::fromStored(value).toText();
}

/// Where each stored column stands in the rows of a query, looked up once for all its rows.
struct ColumnPositions
{
    explicit ColumnPositions(const QSqlRecord &record)
    {
        const auto at = [&record](const char *name) {
            return record.indexOf(QLatin1String(name));
        };
        salaryId = at("SalaryId");
        empId = at("EmpID");
        empName = at("EmpName");
        fromDate = at("FromDate");
        toDate = at("ToDate");
        category = at("331");
        for (const SalaryEntry::Box &box : SalaryEntry::boxes())
            boxes.append(box.column ? at(box.column) : -1);
        for (const SalaryEntry::PerkBox &box : SalaryEntry::perkBoxes())
            perks.append(box.column ? at(box.column) : -1);
    }

    SalaryEntry read(const QSqlQuery &query) const
    {
        SalaryEntry entry;
        entry.salaryId = nullToText(query.value(salaryId));
        entry.employeeId = nullToText(query.value(empId));
        entry.empName = nullToText(query.value(empName));
        entry.fromDate = QDate::fromString(nullToText(query.value(fromDate)), Qt::ISODate);
        entry.toDate = QDate::fromString(nullToText(query.value(toDate)), Qt::ISODate);
        const QVariant row = query.value(category);
        bool ok = false;
        const int index = row.toInt(&ok);
        entry.category = ok && index >= 0 && index < SalaryEntry::categoryCodes.size() ? index
                                                                                        : -1;
        const auto boxes = SalaryEntry::boxes();
        for (qsizetype i = 0; i < qsizetype(boxes.size()); ++i) {
            if (this->boxes.at(i) < 0)
                continue;
            const QVariant value = query.value(this->boxes.at(i));
            entry.txt[boxes[i].index] =
                boxes[i].isAmount() ? shownAmount(value) : nullToText(value);
        }
        for (qsizetype i = 0; i < perks.size(); ++i) {
            if (perks.at(i) >= 0)
                entry.perk[i] = shownAmount(query.value(perks.at(i)));
        }
        return entry;
    }

    int salaryId, empId, empName, fromDate, toDate, category;
    QList<int> boxes;
    QList<int> perks;
};

QString quoted(const QString &column)
{
    return QLatin1Char('"') + column + QLatin1Char('"');
}

} // namespace

SalaryRecords::SalaryRecords(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
}

QList<SalaryEntry> SalaryRecords::load(int basicInfoId) const
{
    QList<SalaryEntry> rows;
    // An entry is large; growing the list row by row would copy thousands of them.
    rows.reserve(m_store
                     .scalar(QStringLiteral("SELECT count(*) FROM %1 WHERE BasicIfoID = ?")
                                 .arg(m_form.salaryTable),
                             {basicInfoId})
                     .toInt());
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT * FROM %1 WHERE BasicIfoID = ? ORDER BY SalaryId")
            .arg(m_form.salaryTable),
        {basicInfoId});
    const ColumnPositions positions(query.record());
    while (query.next())
        rows.append(positions.read(query));
    return rows;
}

SalaryEntry SalaryRecords::loadOne(int salaryId) const
{
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT * FROM %1 WHERE SalaryId = ?").arg(m_form.salaryTable),
        {salaryId});
    return query.next() ? ColumnPositions(query.record()).read(query) : SalaryEntry();
}

int SalaryRecords::nextSalaryId() const
{
    return int(records::nextId(m_store, m_form.salaryTable, QStringLiteral("SalaryId")));
}

int SalaryRecords::statementId(int compId, int asstId, const QString &quarter) const
{
    const QVariant found = m_store.scalar(
        QStringLiteral("SELECT BasicIfoID FROM %1 WHERE CompID = ? AND AsstID = ? "
                       "AND Quarter = ?")
            .arg(m_form.basicInfoTable),
        {compId, asstId, quarter});
    if (found.isValid())
        return found.toInt();
    return int(records::nextId(m_store, m_form.basicInfoTable, QStringLiteral("BasicIfoID")));
}

QVariant SalaryRecords::amountValue(const QString &column, const QString &text) const
{
    const Money amount = Money::fromText(text);
    // Whole-number columns take an amount as the store has always converted it: half to even.
    if (schema::isWholeNumber(m_form.salaryTable, column))
        return amount.roundedToRupees().paise() / 100;
    return amount.toDouble();
}

QList<QPair<QString, QVariant>> SalaryRecords::values(const SalaryEntry &entry) const
{
    QList<QPair<QString, QVariant>> values = {
        {QStringLiteral("EmpName"), escapeText(entry.empName)},
        {QStringLiteral("FromDate"), storedDate(entry.fromDate)},
        {QStringLiteral("ToDate"), storedDate(entry.toDate)},
        {QStringLiteral("331"), entry.category < 0 ? QVariant() : QVariant(entry.category)},
    };
    for (const SalaryEntry::Box &box : SalaryEntry::boxes()) {
        if (!box.column)
            continue;
        const QString column = QLatin1String(box.column);
        const QString &text = entry.txt.value(box.index);
        if (box.isAmount())
            values.append({column, amountValue(column, text)});
        else if (box.kind == SalaryEntry::Kind::Serial)
            values.append({column, qint64(numbers::val(text))});
        else
            values.append({column, escapeText(text)});
    }
    const auto perks = SalaryEntry::perkBoxes();
    for (qsizetype i = 0; i < qsizetype(perks.size()); ++i) {
        if (perks[i].column) {
            const QString column = QLatin1String(perks[i].column);
            values.append({column, amountValue(column, entry.perk.at(i))});
        }
    }
    return values;
}

void SalaryRecords::insert(SalaryEntry &entry, int basicInfoId) const
{
    const int salaryId = nextSalaryId();
    QStringList columns = {QStringLiteral("SalaryId"), QStringLiteral("EmpID"),
                           QStringLiteral("BasicIfoID")};
    QVariantList bound = {salaryId, qint64(numbers::val(entry.employeeId)), basicInfoId};
    for (const auto &[column, value] : values(entry)) {
        columns << quoted(column);
        bound << value;
    }
    m_store.exec(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                     .arg(m_form.salaryTable, columns.join(u", "),
                          QStringList(bound.size(), QStringLiteral("?")).join(u", ")),
                 bound);
    entry.salaryId = QString::number(salaryId);
}

void SalaryRecords::update(const SalaryEntry &entry, int basicInfoId) const
{
    QStringList assignments = {QStringLiteral("EmpID = ?")};
    QVariantList bound = {qint64(numbers::val(entry.employeeId))};
    for (const auto &[column, value] : values(entry)) {
        assignments << quoted(column) + QStringLiteral(" = ?");
        bound << value;
    }
    bound << basicInfoId << int(numbers::val(entry.salaryId));
    m_store.exec(QStringLiteral("UPDATE %1 SET %2 WHERE BasicIfoID = ? AND SalaryId = ?")
                     .arg(m_form.salaryTable, assignments.join(u", ")),
                 bound);
}

void SalaryRecords::remove(int salaryId, int basicInfoId, const QList<int> &remainingIds) const
{
    m_store.exec(QStringLiteral("DELETE FROM %1 WHERE SalaryId = ? AND BasicIfoID = ?")
                     .arg(m_form.salaryTable),
                 {salaryId, basicInfoId});
    const QString renumber =
        QStringLiteral("UPDATE %1 SET SrlNo = ? WHERE SalaryId = ? AND BasicIfoID = ?")
            .arg(m_form.salaryTable);
    for (int serial = 1; serial <= remainingIds.size(); ++serial)
        m_store.exec(renumber, {serial, remainingIds.at(serial - 1), basicInfoId});
}

QStringList SalaryRecords::employeeNames(int groupId) const
{
    return records::comboTexts(m_store, {}, {}, false,
                               QStringLiteral("SELECT DISTINCT EmpName FROM mstEmployee "
                                              "WHERE GroupID = ? ORDER BY EmpName"),
                               false, {groupId});
}

bool SalaryRecords::fillEmployee(SalaryEntry &entry, int groupId) const
{
    // By name within the group: another group may have an employee of the same name.
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT EmpID, Designation, PAN, PanRef, FromDate, ToDate, category "
                       "FROM mstEmployee WHERE EmpName = ? AND GroupID = ?"),
        {escapeText(entry.empName), groupId});
    if (!query.next())
        return false;
    entry.employeeId = nullToText(query.value(0));
    entry.txt[3] = nullToText(query.value(1));
    entry.txt[202] = nullToText(query.value(2));
    entry.txt[2] = nullToText(query.value(3));
    entry.fromDate = QDate::fromString(nullToText(query.value(4)), Qt::ISODate);
    entry.toDate = QDate::fromString(nullToText(query.value(5)), Qt::ISODate);
    bool ok = false;
    const int category = query.value(6).toInt(&ok);
    if (ok && category >= 0 && category < SalaryEntry::categoryCodes.size())
        entry.category = category;
    return true;
}
