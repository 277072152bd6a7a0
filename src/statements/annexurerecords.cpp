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

namespace {

/// What the list shows of a row, in this order; the rest of a row is read when it is chosen.
const QString listedColumns = QStringLiteral(
    "%1, SrlNo, %2, PAN, AmtOfPayment, PaymentDt, TaxAmount, NonDeductionflg, Tax, Surcharge, "
    "Cess, Total");

} // namespace

QList<AnnexureEntry> AnnexureRecords::load(const ChallanRowsKey &key) const
{
    QString columns = listedColumns.arg(m_form.annexureKey, m_form.partyNameColumn);
    if (!m_form.salaryLayout)
        columns += QStringLiteral(", DeducteeCode, Rate");
    QSqlQuery query = m_store.exec(QStringLiteral("SELECT %1 FROM %2 WHERE CompID = ? "
                                                  "AND BasicIfoID = ? AND ChallanId = ? "
                                                  "ORDER BY %3")
                                       .arg(columns, m_form.annexureTable, m_form.annexureKey),
                                   {key.statement.compId, key.statement.basicInfoId,
                                    key.challanId});
    QList<AnnexureEntry> rows;
    while (query.next()) {
        AnnexureEntry entry;
        entry.rowId = query.value(0).toString();
        entry.srlNo = query.value(1).toString();
        entry.partyName = nullToText(query.value(2));
        entry.pan = nullToText(query.value(3));
        entry.amount = amountText(query.value(4));
        entry.date = records::dateOf(query.value(5));
        entry.deposited = amountText(query.value(6));
        entry.flag = query.value(7).toString();
        entry.tax = amountText(query.value(8));
        entry.surcharge = amountText(query.value(9));
        entry.cess = amountText(query.value(10));
        entry.total = amountText(query.value(11));
        if (!m_form.salaryLayout) {
            entry.deducteeCode = nullToText(query.value(12));
            entry.rate = annexurerules::rateText(query.value(13).toDouble(), true);
        }
        rows.append(entry);
    }
    return rows;
}

AnnexureEntry AnnexureRecords::read(int rowId, const ChallanRowsKey &key) const
{
    QSqlQuery query = m_store.exec(QStringLiteral("SELECT * FROM %1 WHERE %2 = ? AND CompID = ? "
                                                  "AND BasicIfoID = ? AND ChallanId = ?")
                                       .arg(m_form.annexureTable, m_form.annexureKey),
                                   {rowId, key.statement.compId, key.statement.basicInfoId,
                                    key.challanId});
    AnnexureEntry entry;
    if (!query.next())
        return entry;
    const QSqlRecord row = query.record();
    const auto text = [&row](const QString &column) { return nullToText(row.value(column)); };
    entry.rowId = text(m_form.annexureKey);
    entry.srlNo = text(QStringLiteral("SrlNo"));
    entry.partyName = text(m_form.partyNameColumn);
    entry.pan = text(QStringLiteral("PAN"));
    entry.panRef = text(QStringLiteral("PANRef"));
    entry.amount = amountText(row.value(QStringLiteral("AmtOfPayment")));
    entry.date = records::dateOf(row.value(QStringLiteral("PaymentDt")));
    entry.deposited = amountText(row.value(QStringLiteral("TaxAmount")));
    entry.flag = row.value(QStringLiteral("NonDeductionflg")).toString();
    entry.tax = amountText(row.value(QStringLiteral("Tax")));
    entry.surcharge = amountText(row.value(QStringLiteral("Surcharge")));
    entry.cess = amountText(row.value(QStringLiteral("Cess")));
    entry.total = amountText(row.value(QStringLiteral("Total")));
    if (m_form.salaryLayout) {
        entry.partyNo = text(QStringLiteral("EmpNo"));
        entry.designation = text(QStringLiteral("Designation"));
        entry.fromDate = records::dateOf(row.value(QStringLiteral("FromDate")));
        entry.toDate = records::dateOf(row.value(QStringLiteral("ToDate")));
        return entry;
    }
    entry.partyNo = text(QStringLiteral("DeducteeNo"));
    entry.deducteeCode = text(QStringLiteral("DeducteeCode"));
    QString *addresses[] = {&entry.address1, &entry.address2, &entry.address3, &entry.address4,
                            &entry.address5};
    for (int line = 0; line < 5; ++line)
        *addresses[line] = text(QStringLiteral("Address%1").arg(line + 1));
    entry.state = text(QStringLiteral("State"));
    entry.stateCode = text(QStringLiteral("StateCode"));
    entry.pin = row.value(QStringLiteral("PIN")).toString();
    entry.rate = annexurerules::rateText(row.value(QStringLiteral("Rate")).toDouble(), true);
    if (!m_form.grossingUpColumn.isEmpty())
        entry.grossingUp = text(m_form.grossingUpColumn);
    if (!m_form.purchaseColumn.isEmpty())
        entry.purchaseValue = amountText(row.value(m_form.purchaseColumn));
    return entry;
}

QVariant AnnexureRecords::amount(const QString &column, const QString &text) const
{
    const double number = numbers::val(text);
    // Whole-number columns take an amount as the store always converted it: half to even.
    if (schema::isWholeNumber(m_form.annexureTable, column))
        return static_cast<qint64>(std::nearbyint(number));
    return number;
}

AnnexureListRow AnnexureRecords::controlAmounts(const AnnexureEntry &row)
{
    return {row.deposited, row.tax, row.surcharge, row.cess, row.total};
}

void AnnexureRecords::writeControlTotals(const ChallanRowsKey &key,
                                         const QList<AnnexureListRow> &amounts) const
{
    calculateChallanControlTotal(m_store, m_form,
                                 {key.challanId, key.statement.basicInfoId, key.statement.compId},
                                 amounts);
}

AnnexureEntry AnnexureRecords::asListed(const AnnexureEntry &entry) const
{
    AnnexureEntry listed = entry;
    const std::pair<const char *, QString AnnexureEntry::*> amounts[] = {
        {"AmtOfPayment", &AnnexureEntry::amount}, {"TaxAmount", &AnnexureEntry::deposited},
        {"Tax", &AnnexureEntry::tax},             {"Surcharge", &AnnexureEntry::surcharge},
        {"Cess", &AnnexureEntry::cess},           {"Total", &AnnexureEntry::total}};
    for (const auto &[column, member] : amounts)
        listed.*member = amountText(amount(QLatin1String(column), entry.*member));
    if (!m_form.salaryLayout)
        listed.rate = annexurerules::rateText(numbers::val(entry.rate), true);
    return listed;
}

QList<QPair<QString, QVariant>> AnnexureRecords::values(const AnnexureEntry &entry,
                                                        const ChallanEntry &challan) const
{
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
                {"BankChallanNo",
                 deposited ? escapeText(challan.challanNo) : QStringLiteral(" ")}};
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
