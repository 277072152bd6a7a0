#include "statements/annexurerecords.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/schema.h"
#include "statements/annexurerules.h"
#include "statements/challanentry.h"

#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

namespace {

using records::escapeText;
using records::nullToText;

QString amountText(const QVariant &value)
{
    return Money::fromStored(value).toPaddedText();
}

} // namespace

AnnexureRecords::AnnexureRecords(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
}

QList<AnnexureEntry> AnnexureRecords::load(const ChallanRowsKey &key) const
{
    QSqlQuery query = m_store.exec(QStringLiteral("SELECT * FROM %1 WHERE CompID = ? AND BasicIfoID = ? "
                                                  "AND ChallanId = ? ORDER BY %2")
                                       .arg(m_form.annexureTable, m_form.annexureKey),
                                   {key.statement.compId, key.statement.basicInfoId,
                                    key.challanId});
    const QSqlRecord record = query.record();
    const auto column = [&record](const char *name) { return record.indexOf(name); };
    const int id = record.indexOf(m_form.annexureKey);
    const int srl = column("SrlNo"), name = record.indexOf(m_form.partyNameColumn);
    const int pan = column("PAN"), panRef = column("PANRef"), amount = column("AmtOfPayment");
    const int paid = column("PaymentDt"), deposited = column("TaxAmount");
    const int flag = column("NonDeductionflg"), tax = column("Tax");
    const int surcharge = column("Surcharge"), cess = column("Cess"), total = column("Total");
    QList<AnnexureEntry> rows;
    while (query.next()) {
        AnnexureEntry entry;
        entry.rowId = nullToText(query.value(id));
        entry.srlNo = nullToText(query.value(srl));
        entry.partyName = nullToText(query.value(name));
        entry.pan = nullToText(query.value(pan));
        entry.panRef = nullToText(query.value(panRef));
        entry.amount = amountText(query.value(amount));
        entry.date = records::dateOf(query.value(paid));
        entry.deposited = amountText(query.value(deposited));
        entry.flag = query.value(flag).toString();
        entry.tax = amountText(query.value(tax));
        entry.surcharge = amountText(query.value(surcharge));
        entry.cess = amountText(query.value(cess));
        entry.total = amountText(query.value(total));
        if (m_form.salaryLayout) {
            entry.partyNo = nullToText(query.value(column("EmpNo")));
            entry.designation = nullToText(query.value(column("Designation")));
            entry.fromDate = records::dateOf(query.value(column("FromDate")));
            entry.toDate = records::dateOf(query.value(column("ToDate")));
        } else {
            entry.partyNo = nullToText(query.value(column("DeducteeNo")));
            entry.deducteeCode = nullToText(query.value(column("DeducteeCode")));
            QString *addresses[] = {&entry.address1, &entry.address2, &entry.address3,
                                    &entry.address4, &entry.address5};
            for (int line = 0; line < 5; ++line) {
                *addresses[line] = nullToText(
                    query.value(record.indexOf(QStringLiteral("Address%1").arg(line + 1))));
            }
            entry.state = nullToText(query.value(column("State")));
            entry.stateCode = nullToText(query.value(column("StateCode")));
            entry.pin = query.value(column("PIN")).toString();
            entry.rate = annexurerules::rateText(
                query.value(column("Rate")).toDouble(), m_form.kind == FormKind::Form26Q);
        }
        if (!m_form.grossingUpColumn.isEmpty())
            entry.grossingUp = nullToText(query.value(record.indexOf(m_form.grossingUpColumn)));
        if (!m_form.purchaseColumn.isEmpty())
            entry.purchaseValue = amountText(query.value(record.indexOf(m_form.purchaseColumn)));
        rows.append(entry);
    }
    return rows;
}

QList<QPair<QString, QVariant>> AnnexureRecords::values(const AnnexureEntry &entry,
                                                        const ChallanEntry &challan) const
{
    const auto amount = [this](const char *column, const QString &text) -> QVariant {
        const double number = numbers::val(text);
        // Whole-number columns take an amount as the store always converted it: half to even.
        if (schema::isWholeNumber(m_form.annexureTable, QLatin1String(column)))
            return static_cast<qint64>(std::nearbyint(number));
        return number;
    };
    QList<QPair<QString, QVariant>> columns = {
        {"SrlNo", static_cast<qint64>(numbers::val(entry.srlNo))},
        {"PAN", escapeText(entry.pan)},
        {"PANRef", escapeText(entry.panRef)},
        {m_form.partyNameColumn, escapeText(entry.partyName)},
        {"AmtOfPayment", amount("AmtOfPayment", entry.amount)},
        {"PaymentDt", records::storedDate(entry.date)},
        {"TaxAmount", amount("TaxAmount", entry.deposited)},
        {"NonDeductionflg", entry.flag},
        {"BookEntry", QStringLiteral("O")},
        {"Tax", amount("Tax", entry.tax)},
        {"Surcharge", amount("Surcharge", entry.surcharge)},
        {"Cess", amount("Cess", entry.cess)},
        {"Total", amount("Total", entry.total)},
    };
    // Only tax that was deposited has a date of deposit and a challan behind it.
    const bool deposited = numbers::val(entry.deposited) > 0;
    columns += {{"TaxDeductDt", deposited ? records::storedDate(entry.date) : QVariant()},
                {"TaxPaidToCGDt", deposited ? records::storedDate(challan.date) : QVariant()},
                {"BankBranchCode", deposited ? escapeText(challan.bankCode) : QStringLiteral(" ")},
                {"BankChallanNo", deposited ? escapeText(challan.challanNo) : QStringLiteral(" ")}};
    if (m_form.salaryLayout) {
        columns += {{"EmpNo", static_cast<qint64>(numbers::val(entry.partyNo))},
                    {"Designation", escapeText(entry.designation)},
                    {"FromDate", records::storedDate(entry.fromDate)},
                    {"ToDate", records::storedDate(entry.toDate)}};
        return columns;
    }
    columns += {{"Section", escapeText(challan.section)},
                {"DeducteeNo", static_cast<qint64>(numbers::val(entry.partyNo))},
                {"DeducteeCode", escapeText(entry.deducteeCode)},
                {"Address1", escapeText(entry.address1)},
                {"Address2", escapeText(entry.address2)},
                {"Address3", escapeText(entry.address3)},
                {"Address4", escapeText(entry.address4)},
                {"Address5", escapeText(entry.address5)},
                {"State", escapeText(entry.state)},
                {"StateCode", escapeText(entry.stateCode)},
                // An empty PIN has always been written as one blank.
                {"PIN", entry.pin.isEmpty() ? QStringLiteral(" ") : entry.pin},
                {"Rate", numbers::val(entry.rate)}};
    if (!m_form.grossingUpColumn.isEmpty())
        columns.append({m_form.grossingUpColumn, entry.grossingUp});
    if (!m_form.purchaseColumn.isEmpty())
        columns.append({m_form.purchaseColumn, numbers::val(entry.purchaseValue)});
    return columns;
}

void AnnexureRecords::insert(AnnexureEntry &entry, const ChallanEntry &challan,
                             const ChallanRowsKey &key) const
{
    entry.rowId = QString::number(
        qint64(records::nextChildId(m_store, m_form.annexureTable, m_form.annexureKey,
                                    key.statement.basicInfoId, key.challanId)));
    QStringList columns = {m_form.annexureKey, "BasicIfoID", "CompID", "AsstID", "ChallanId"};
    QVariantList bound = {entry.rowId.toLongLong(), key.statement.basicInfoId,
                          key.statement.compId, key.statement.asstId, key.challanId};
    for (const auto &[column, value] : values(entry, challan)) {
        columns << column;
        bound << value;
    }
    m_store.exec(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                     .arg(m_form.annexureTable, columns.join(u", "),
                          QStringList(bound.size(), QStringLiteral("?")).join(u", ")),
                 bound);
}

void AnnexureRecords::update(const AnnexureEntry &entry, const ChallanEntry &challan,
                             const ChallanRowsKey &key) const
{
    QStringList assignments;
    QVariantList bound;
    for (const auto &[column, value] : values(entry, challan)) {
        assignments << column + QStringLiteral(" = ?");
        bound << value;
    }
    bound << entry.rowId.toLongLong() << key.statement.basicInfoId << key.statement.compId
          << key.challanId;
    m_store.exec(QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ? AND BasicIfoID = ? "
                                "AND CompID = ? AND ChallanId = ?")
                     .arg(m_form.annexureTable, assignments.join(u", "), m_form.annexureKey),
                 bound);
}

void AnnexureRecords::remove(int rowId, const ChallanRowsKey &key) const
{
    m_store.exec(QStringLiteral("DELETE FROM %1 WHERE %2 = ? AND BasicIfoID = ? AND CompID = ? "
                                "AND ChallanId = ?")
                     .arg(m_form.annexureTable, m_form.annexureKey),
                 {rowId, key.statement.basicInfoId, key.statement.compId, key.challanId});
}
