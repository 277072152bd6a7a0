#include "statements/statementrecord.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/numbers.h"
#include "core/records.h"
#include "statements/basicinfo.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace {

using records::escapeText;
using records::nullToText;

// A receipt number or a count goes through the number reading of the screens, so that an empty
// field stores 0; a whole number keeps all its digits.
QString wholeNumberText(const QString &text)
{
    return QString::number(static_cast<qint64>(numbers::val(text)));
}

// The stored value of a field: texts trimmed, the receipts 0 when empty.
QVariant storedValue(const BasicInfo &info, const BasicInfo::Field &field, bool update)
{
    const QString &text = info.*(field.member);
    switch (field.kind) {
    case BasicInfo::Kind::Count:
        return static_cast<qint64>(numbers::val(text));
    case BasicInfo::Kind::Receipt:
        if (update)
            return wholeNumberText(text);
        return text.trimmed().isEmpty() ? QStringLiteral("0") : escapeText(text);
    default:
        return escapeText(text);
    }
}

// The columns that an update leaves as the insert wrote them.
bool keptOnUpdate(const QString &column)
{
    static const QStringList kept = {"BasicIfoID", "CompID", "AsstYear", "FAYear", "Quarter"};
    return kept.contains(column, Qt::CaseInsensitive);
}

} // namespace

StatementRecord::StatementRecord(const DataStore &store, const FormTraits &form, int asstId)
    : m_store(store), m_form(form), m_asstId(asstId)
{
}

int StatementRecord::find(int compId, const QString &quarter) const
{
    const QVariant id = m_store.scalar(
        QStringLiteral("SELECT BasicIfoID FROM %1 WHERE CompID = ? AND AsstID = ? "
                       "AND Quarter = ?")
            .arg(m_form.basicInfoTable),
        {compId, m_asstId, quarter});
    return id.isValid() ? id.toInt() : 0;
}

void StatementRecord::copyCompany(BasicInfo &info) const
{
    QSqlQuery company = m_store.exec(
        QStringLiteral("SELECT CompName, TANNO, PANNo, Address1, Address2, Address3, Address4, "
                       "Address5, StateCode, Pincode, Phone, Email, Std, PersonName, "
                       "Designation, PAddress1, PAddress2, PAddress3, PAddress4, PAddress5, "
                       "BranchDiv, PStateCode, PPincode, PPhone, PEmail, pStd, TdsCircle "
                       "FROM mstCompany WHERE AsstID = ? AND CompID = ?"),
        {m_asstId, numbers::val(info.compId)});
    if (company.next()) {
        QString *targets[] = {
            &info.compName, &info.tan, &info.pan, &info.address1, &info.address2,
            &info.address3, &info.address4, &info.address5, &info.stateCode, &info.pincode,
            &info.phone, &info.email, &info.stdCode, &info.personName, &info.designation,
            &info.pAddress1, &info.pAddress2, &info.pAddress3, &info.pAddress4, &info.pAddress5,
            &info.branch, &info.pStateCode, &info.pPincode, &info.pPhone, &info.pEmail,
            &info.pStdCode, &info.tdsCircle};
        for (int column = 0; column < int(std::size(targets)); ++column)
            *targets[column] = nullToText(company.value(column));
    }

    // The combos show the states by name; the codes are what the master keeps.
    readStates(info);

    QSqlQuery years = m_store.exec(
        QStringLiteral("SELECT AsstYear, FAYear FROM mstAssessment WHERE AsstID = ?"),
        {m_asstId});
    if (years.next()) {
        info.asstYear = nullToText(years.value(0));
        info.faYear = nullToText(years.value(1));
    }
}

bool StatementRecord::load(BasicInfo &info) const
{
    QSqlQuery row = m_store.exec(
        QStringLiteral("SELECT * FROM %1 WHERE BasicIfoID = ? AND Quarter = ?")
            .arg(m_form.basicInfoTable),
        {numbers::val(info.basicInfoId), info.quarter});
    if (!row.next())
        return false;
    const QSqlRecord record = row.record();
    for (const BasicInfo::Field &field : BasicInfo::fields()) {
        if (field.column)
            info.*(field.member) = nullToText(record.value(QLatin1String(field.column)));
    }
    info.addressChanged = record.value(QStringLiteral("Employer")).toInt() == 1;
    info.personAddressChanged = record.value(QStringLiteral("Salary")).toInt() == 1;
    info.revisedReturn =
        nullToText(record.value(QStringLiteral("RevisedRtn"))).compare(u"C", Qt::CaseInsensitive)
            == 0
        ? QStringLiteral("C")
        : QStringLiteral("R");
    info.tdsCircle = nullToText(record.value(QStringLiteral("TDSCircle")));

    readStates(info);
    return true;
}

void StatementRecord::readStates(BasicInfo &info) const
{
    const auto read = [this](const QString &code, QString &id, QString &name) {
        QSqlQuery state = m_store.exec(
            QStringLiteral("SELECT StateID, StateName FROM mstState WHERE StateCode = ?"), {code});
        const bool found = state.next();
        id = found ? nullToText(state.value(0)) : QString();
        name = found ? nullToText(state.value(1)) : QString();
    };
    read(info.stateCode, info.stateId, info.state);
    read(info.pStateCode, info.pStateId, info.pState);
}

void StatementRecord::readDeductorStatus(BasicInfo &info) const
{
    info.deductorStatus = records::lookupText(m_store, QStringLiteral("mstCompany"),
                                              QStringLiteral("CompID"),
                                              QStringLiteral("DStatus"),
                                              int(numbers::val(info.compId)));
    info.deductorStatusText = nullToText(m_store.scalar(
        QStringLiteral("SELECT CategoryDescription FROM mstCategory WHERE CategoryCode = ?"),
        {info.deductorStatus}));
}

void StatementRecord::updateCompany(const BasicInfo &info) const
{
    m_store.exec(
        QStringLiteral("UPDATE mstCompany SET TanNO = ?, PanNo = ?, CompName = ?, Address1 = ?, "
                       "Address2 = ?, Address3 = ?, Address4 = ?, Address5 = ?, StateCode = ?, "
                       "Phone = ?, Email = ?, PersonName = ?, Designation = ?, Pincode = ? "
                       "WHERE CompID = ?"),
        {escapeText(info.tan), escapeText(info.pan), escapeText(info.compName),
         escapeText(info.address1), escapeText(info.address2), escapeText(info.address3),
         escapeText(info.address4), escapeText(info.address5), escapeText(info.stateCode),
         escapeText(info.phone), escapeText(info.email), escapeText(info.personName),
         escapeText(info.designation), escapeText(info.pincode), numbers::val(info.compId)});
}

void StatementRecord::insert(const BasicInfo &info) const
{
    QStringList columns;
    QVariantList values;
    for (const BasicInfo::Field &field : BasicInfo::fields()) {
        if (!field.column)
            continue;
        columns << QLatin1String(field.column);
        values << storedValue(info, field, false);
    }
    columns << QStringLiteral("AsstID") << QStringLiteral("Employer") << QStringLiteral("Salary")
            << QStringLiteral("Status") << QStringLiteral("RevisedRtn")
            << QStringLiteral("TDSCircle");
    values << m_asstId << int(info.addressChanged) << int(info.personAddressChanged) << 1
           << info.revisedReturn << escapeText(info.tdsCircle);
    m_store.exec(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                     .arg(m_form.basicInfoTable, columns.join(u", "),
                          QStringList(values.size(), QStringLiteral("?")).join(u", ")),
                 values);
}

void StatementRecord::update(const BasicInfo &info) const
{
    QStringList assignments;
    QVariantList values;
    for (const BasicInfo::Field &field : BasicInfo::fields()) {
        if (!field.column || keptOnUpdate(QLatin1String(field.column)))
            continue;
        assignments << QLatin1String(field.column) + QStringLiteral(" = ?");
        values << storedValue(info, field, true);
    }
    assignments << QStringLiteral("Employer = ?") << QStringLiteral("Salary = ?")
                << QStringLiteral("Status = 0") << QStringLiteral("RevisedRtn = ?");
    values << int(info.addressChanged) << int(info.personAddressChanged) << info.revisedReturn
           << numbers::val(info.basicInfoId) << info.quarter;
    m_store.exec(QStringLiteral("UPDATE %1 SET %2 WHERE BasicIfoID = ? AND Quarter = ?")
                     .arg(m_form.basicInfoTable, assignments.join(u", ")),
                 values);
}

void StatementRecord::remove(int basicInfoId) const
{
    const auto removeFrom = [&](const QString &table) {
        m_store.exec(QStringLiteral("DELETE FROM %1 WHERE BasicIfoID = ?").arg(table),
                     {basicInfoId});
    };
    removeFrom(m_form.challanTable);
    removeFrom(m_form.annexureTable);
    removeFrom(m_form.basicInfoTable);
    if (!m_form.hasSalaryDetail)
        return;
    for (const QString &sections : m_form.salarySectionTables()) {
        m_store.exec(QStringLiteral("DELETE FROM %1 WHERE SalaryId IN "
                                    "(SELECT SalaryId FROM %2 WHERE BasicIfoID = ?)")
                         .arg(sections, m_form.salaryTable),
                     {basicInfoId});
    }
    removeFrom(m_form.salaryTable);
}
