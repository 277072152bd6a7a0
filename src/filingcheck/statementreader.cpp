#include "filingcheck/statementreader.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/numbers.h"
#include "core/records.h"

#include <QSqlQuery>
#include <QStringList>

namespace filingcheck {

namespace {

QString textOf(const QSqlQuery &query, int index)
{
    return records::nullToText(query.value(index)).trimmed();
}

} // namespace

StatementReader::StatementReader(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
    // The columns a form lacks are read as Null, so that every form's rows read alike.
    const bool deductees = !form.salaryLayout;
    const QStringList columns = {
        "SrlNo", "PAN", "PANRef", form.partyNameColumn, "AmtOfPayment", "PaymentDt",
        "TaxAmount", "TaxDeductDt", "NonDeductionflg", "Tax", "Surcharge", "Cess", "Total",
        deductees ? "Section" : "NULL", deductees ? "DeducteeCode" : "NULL",
        deductees ? "Rate" : "NULL",
        form.purchaseColumn.isEmpty() ? QStringLiteral("NULL") : form.purchaseColumn};
    m_rowsSql = QStringLiteral("SELECT %1 FROM %2 WHERE ChallanId = ? AND BasicIfoID = ? "
                               "ORDER BY SrlNo, %3")
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
                       "TransferVoucherNo, DtTrVoucher FROM %1 "
                       "WHERE BasicIfoID = ? AND CompID = ? ORDER BY SlNo, ChallnID")
            .arg(m_form.challanTable),
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
        challan.transferVoucher = records::nullToText(query.value(12));
        challan.transferVoucherGiven = !challan.transferVoucher.isEmpty();
        challan.deposited = StoredDate::of(query.value(13));
        challans.append(challan);
    }
    return challans;
}

void StatementReader::rows(int basicInfoId, const ChallanValues &challan,
                           const std::function<void(const RowValues &)> &each) const
{
    QSqlQuery query = m_store.exec(m_rowsSql, {challan.challanId, basicInfoId});
    RowValues row;
    while (query.next()) {
        row.srlNo = query.value(0).toInt();
        row.pan = textOf(query, 1);
        row.panRef = textOf(query, 2);
        row.name = textOf(query, 3);
        row.paid = StoredAmount::ofRow(query.value(4));
        row.paymentDate = StoredDate::of(query.value(5));
        row.taxDeposited = StoredAmount::ofRow(query.value(6));
        row.deductionDate = StoredDate::of(query.value(7));
        row.flag = textOf(query, 8);
        row.tax = StoredAmount::ofRow(query.value(9));
        row.surcharge = StoredAmount::ofRow(query.value(10));
        row.cess = StoredAmount::ofRow(query.value(11));
        row.total = StoredAmount::ofRow(query.value(12));
        row.section = textOf(query, 13);
        row.deducteeCode = textOf(query, 14);
        row.rateStored = query.value(15);
        row.rate = row.rateStored.isNull() ? 0 : numbers::rateTenThousandths(row.rateStored);
        row.purchase = StoredAmount::ofRow(query.value(16));
        each(row);
    }
}

} // namespace filingcheck
