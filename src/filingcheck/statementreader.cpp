#include "filingcheck/statementreader.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/numbers.h"
#include "core/records.h"

#include <QHash>
#include <QSqlQuery>
#include <QStringList>

namespace filingcheck {

namespace {

QString textOf(const QSqlQuery &query, int index)
{
    return records::nullToText(query.value(index));
}

} // namespace

StatementReader::StatementReader(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
    // The columns a form lacks are read as Null, so that every form's rows read alike. The
    // name and the PAN reference lose the blanks at their ends, as in the file.
    const bool deductees = !form.salaryLayout;
    const QStringList columns = {
        "ChallanId", "SrlNo", "PAN", "length(trim(PANRef))",
        "length(trim(" + form.partyNameColumn + "))", "AmtOfPayment", "PaymentDt", "TaxAmount",
        "TaxDeductDt", "NonDeductionflg", "Tax", "Surcharge", "Cess", "Total",
        deductees ? "DeducteeCode" : "NULL", deductees ? "Rate" : "NULL",
        form.purchaseColumn.isEmpty() ? QStringLiteral("NULL") : form.purchaseColumn};
    // In the order of the table's key, which its index gives without sorting the Statement.
    m_rowsSql = QStringLiteral("SELECT %1 FROM %2 WHERE BasicIfoID = ? ORDER BY ChallanId, %3")
                    .arg(columns.join(QStringLiteral(", ")), form.annexureTable,
                         form.annexureKey);
}

std::optional<StatementValues> StatementReader::statement(int basicInfoId) const
{
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT b.CompID, b.TanNO, b.PanNo, b.CompName, b.PersonName, "
                       "b.Pincode, b.pPincode, b.FAYear, b.Quarter, b.NoChallan, b.NoDeductee, "
                       "c.DStatus, a.StartDt FROM %1 AS b "
                       "LEFT JOIN mstCompany AS c ON c.CompID = b.CompID "
                       "LEFT JOIN mstAssessment AS a ON a.AsstID = b.AsstID "
                       "WHERE b.BasicIfoID = ?")
            .arg(m_form.basicInfoTable),
        {basicInfoId});
    if (!query.next())
        return std::nullopt;
    StatementValues values;
    values.basicInfoId = basicInfoId;
    values.compId = query.value(0).toInt();
    values.tan = textOf(query, 1);
    values.pan = textOf(query, 2);
    values.name = textOf(query, 3);
    values.personName = textOf(query, 4);
    values.pincode = textOf(query, 5);
    values.personPincode = textOf(query, 6);
    values.faYear = textOf(query, 7);
    values.quarter = textOf(query, 8);
    values.declaredChallans = textOf(query, 9);
    values.declaredRows = textOf(query, 10);
    values.deductorType = textOf(query, 11);
    values.assessmentYear = StoredDate::of(query.value(12)).date.year();
    return values;
}

QList<ChallanValues> StatementReader::challans(const StatementValues &statement) const
{
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT ChallnID, SlNo, AmountDeducted, Surcharge, EduCess, Interest, "
                       "Others, Total, ExInterest, ExtOthers, BankCode, TrVoucherNo, "
                       "TransferVoucherNo, DtTrVoucher, %1 FROM %2 "
                       "WHERE BasicIfoID = ? AND CompID = ? ORDER BY SlNo, ChallnID")
            .arg(m_form.challanHasSection() ? QStringLiteral("Section") : QStringLiteral("NULL"),
                 m_form.challanTable),
        {statement.basicInfoId, statement.compId});
    QList<ChallanValues> challans;
    while (query.next()) {
        ChallanValues challan;
        challan.challanId = query.value(0).toInt();
        challan.slNo = query.value(1).toInt();
        challan.tax = StoredAmount::ofChallan(query.value(2));
        challan.surcharge = StoredAmount::ofChallan(query.value(3));
        challan.cess = StoredAmount::ofChallan(query.value(4));
        challan.interest = StoredAmount::ofChallan(query.value(5));
        challan.others = StoredAmount::ofChallan(query.value(6));
        challan.total = StoredAmount::ofChallan(query.value(7));
        challan.interestClaimed = StoredAmount::ofChallan(query.value(8));
        challan.othersClaimed = StoredAmount::ofChallan(query.value(9));
        challan.bankCode = textOf(query, 10);
        challan.serial = textOf(query, 11);
        const QVariant voucher = query.value(12);
        challan.transferVoucher = voucher.toString();
        challan.transferVoucherGiven = !voucher.isNull() && !challan.transferVoucher.isEmpty();
        challan.deposited = StoredDate::of(query.value(13));
        // The section tables list upper-case codes.
        challan.section = textOf(query, 14).toUpper();
        challans.append(challan);
    }
    return challans;
}

void StatementReader::rows(int basicInfoId, const QList<ChallanValues> &challans,
                           const std::function<void(int, const RowValues &)> &each) const
{
    QHash<int, int> challanIndex;
    for (int index = 0; index < challans.size(); ++index)
        challanIndex.insert(challans.at(index).challanId, index);
    QSqlQuery query = m_store.exec(m_rowsSql, {basicInfoId});
    RowValues row;
    int challanId = -1;
    int index = -1;
    while (query.next()) {
        if (const int id = query.value(0).toInt(); id != challanId) {
            challanId = id;
            index = challanIndex.value(id, -1);
        }
        // A row under no challan of the Statement does not reach the file.
        if (index < 0)
            continue;
        row.srlNo = query.value(1).toInt();
        row.pan = textOf(query, 2);
        row.panRefGiven = query.value(3).toInt() > 0;
        row.nameLength = query.value(4).toInt();
        row.paid = StoredAmount::ofRow(query.value(5));
        row.paymentDate = StoredDate::of(query.value(6));
        row.taxDeposited = StoredAmount::ofRow(query.value(7));
        row.deductionDate = StoredDate::of(query.value(8));
        row.flag = textOf(query, 9);
        row.tax = StoredAmount::ofRow(query.value(10));
        row.surcharge = StoredAmount::ofRow(query.value(11));
        row.cess = StoredAmount::ofRow(query.value(12));
        row.total = StoredAmount::ofRow(query.value(13));
        row.section = challans.at(index).section;
        row.deducteeCode = textOf(query, 14);
        row.rateStored = query.value(15);
        row.rate = row.rateStored.isNull() ? 0 : numbers::rateTenThousandths(row.rateStored);
        row.purchase = StoredAmount::ofRow(query.value(16));
        each(index, row);
    }
}

} // namespace filingcheck
