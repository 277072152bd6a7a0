#include "statements/challanrecords.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/schema.h"

#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

namespace {

using records::escapeText;
using records::nullToText;

QString amountText(const QVariant &value)
{
    return value.isNull() ? QString() : Money::fromStored(value).toPaddedText();
}

} // namespace

ChallanRecords::ChallanRecords(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
}

QList<ChallanEntry> ChallanRecords::load(const StatementKey &statement) const
{
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT * FROM %1 WHERE BasicIfoID = ? ORDER BY SlNo, ChallnID")
            .arg(m_form.challanTable),
        {statement.basicInfoId});
    QList<ChallanEntry> rows;
    while (query.next()) {
        const QSqlRecord record = query.record();
        ChallanEntry entry;
        for (const ChallanEntry::Box &box : ChallanEntry::boxes()) {
            const QVariant value = record.value(QLatin1String(box.column));
            entry.*(box.member) = box.amount ? amountText(value) : nullToText(value);
        }
        if (m_form.challanHasSection())
            entry.section = nullToText(record.value(QStringLiteral("Section")));
        entry.date = records::dateOf(record.value(QStringLiteral("DtTrVoucher")));
        entry.bookEntry = nullToText(record.value(QStringLiteral("BookEntry")));
        rows.append(entry);
    }
    return rows;
}

QVariant ChallanRecords::stored(const ChallanEntry &entry, const ChallanEntry::Box &box) const
{
    const QString &text = entry.*(box.member);
    const QString column = QLatin1String(box.column);
    const double number = numbers::val(text);
    if (column == u"SlNo" || column == u"ChallnID")
        return static_cast<qint64>(number);
    // The cheque number has always gone through the number reading: no leading zeros.
    if (column == u"ChqDDNo")
        return QString::number(static_cast<qint64>(number));
    if (!box.amount)
        return escapeText(text);
    // Whole-number columns take an amount as the store always converted it: half to even.
    if (schema::isWholeNumber(m_form.challanTable, column))
        return static_cast<qint64>(std::nearbyint(number));
    return number;
}

void ChallanRecords::insert(ChallanEntry &entry, const StatementKey &statement) const
{
    entry.challanId = QString::number(
        qint64(records::nextId(m_store, m_form.challanTable, QStringLiteral("ChallnID"))));
    entry.bookEntry = QStringLiteral("C");

    QStringList columns = {"BasicIfoID", "CompID", "AsstID", "DtTrVoucher", "BookEntry"};
    QVariantList values = {statement.basicInfoId, statement.compId, statement.asstId,
                           records::storedDate(entry.date), entry.bookEntry};
    if (m_form.challanHasSection()) {
        columns << QStringLiteral("Section");
        values << escapeText(entry.section);
    }
    for (const ChallanEntry::Box &box : ChallanEntry::boxes()) {
        columns << QLatin1String(box.column);
        values << stored(entry, box);
    }
    values[columns.indexOf(QStringLiteral("TotCess"))] =
        values.at(columns.indexOf(QStringLiteral("TotSurcharge")));
    m_store.exec(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                     .arg(m_form.challanTable, columns.join(u", "),
                          QStringList(values.size(), QStringLiteral("?")).join(u", ")),
                 values);
}

void ChallanRecords::update(const ChallanEntry &entry, const StatementKey &statement) const
{
    QStringList assignments = {QStringLiteral("DtTrVoucher = ?")};
    QVariantList values = {records::storedDate(entry.date)};
    if (m_form.challanHasSection()) {
        assignments << QStringLiteral("Section = ?");
        values << escapeText(entry.section);
    }
    for (const ChallanEntry::Box &box : ChallanEntry::boxes()) {
        const QString column = QLatin1String(box.column);
        if (column == u"SlNo" || column == u"ChallnID")
            continue;
        assignments << column + QStringLiteral(" = ?");
        values << stored(entry, box);
    }
    const int challanId = int(numbers::val(entry.challanId));
    m_store.exec(QStringLiteral("UPDATE %1 SET %2 WHERE ChallnID = ? AND BasicIfoID = ? "
                                "AND CompID = ?")
                     .arg(m_form.challanTable, assignments.join(u", ")),
                 values + QVariantList{challanId, statement.basicInfoId, statement.compId});

    // The rows under the challan name its bank, number and date, and its section.
    QString carried = QStringLiteral("BankBranchCode = ?, BankChallanNo = ?, TaxPaidToCGDt = ?");
    QVariantList carriedValues = {escapeText(entry.bankCode), escapeText(entry.challanNo),
                                  records::storedDate(entry.date)};
    if (m_form.challanHasSection()) {
        carried.prepend(QStringLiteral("Section = ?, "));
        carriedValues.prepend(escapeText(entry.section));
    }
    m_store.exec(QStringLiteral("UPDATE %1 SET %2 WHERE ChallanId = ? AND BasicIfoId = ?")
                     .arg(m_form.annexureTable, carried),
                 carriedValues + QVariantList{challanId, statement.basicInfoId});
}

int ChallanRecords::annexureRows(int challanId, const StatementKey &statement) const
{
    return m_store
        .scalar(QStringLiteral("SELECT count(*) FROM %1 WHERE ChallanId = ? AND BasicIfoID = ? "
                               "AND CompID = ?")
                    .arg(m_form.annexureTable),
                {challanId, statement.basicInfoId, statement.compId})
        .toInt();
}

void ChallanRecords::remove(int challanId, const QList<int> &remainingIds,
                            const StatementKey &statement) const
{
    m_store.exec(QStringLiteral("DELETE FROM %1 WHERE ChallnID = ? AND BasicIfoID = ? "
                                "AND CompID = ?")
                     .arg(m_form.challanTable),
                 {challanId, statement.basicInfoId, statement.compId});
    for (int serial = 1; serial <= remainingIds.size(); ++serial) {
        m_store.exec(QStringLiteral("UPDATE %1 SET SlNo = ? WHERE ChallnID = ? "
                                    "AND BasicIfoID = ? AND CompID = ?")
                         .arg(m_form.challanTable),
                     {serial, remainingIds.at(serial - 1), statement.basicInfoId,
                      statement.compId});
    }
}
