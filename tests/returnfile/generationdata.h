#pragma once

#include "core/datastore.h"
#include "core/formtraits.h"

#include <QString>
#include <QVariant>

/// Masters and Statements that the generation tests put straight into a store.
namespace generationdata {

inline void addGroup(const DataStore &store, int groupId, const QString &name)
{
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (?, ?)"),
               {groupId, name});
}

inline void addCompany(const DataStore &store, int groupId, int compId, const QString &name,
                       const QString &tan, const QVariant &filePrefix,
                       const QString &status = QStringLiteral("K"))
{
    store.exec(QStringLiteral("INSERT INTO mstCompany (AsstID, GroupID, CompID, CompName, TanNO, "
                              "PanNo, FilePrefix, DStatus) VALUES (1, ?, ?, ?, ?, ?, ?, ?)"),
               {groupId, compId, name, tan, QStringLiteral("AAACK1234F"), filePrefix, status});
}

/// A saved Statement with its declared counts, as the basic information panel stores it.
inline void addStatement(const DataStore &store, const FormTraits &form, int basicInfoId,
                         int compId, const QString &quarter, int noChallan, int noDeductee,
                         const QString &compName = QStringLiteral("KAVERI TEXTILES LTD"),
                         const QString &revisedRcptNo = QStringLiteral("0"))
{
    store.exec(QStringLiteral("INSERT INTO %1 (BasicIfoID, CompID, AsstID, TanNO, PanNo, "
                              "CompName, Address1, StateCode, Pincode, Employer, Salary, Status, "
                              "PersonName, Designation, NoChallan, NoDeductee, AsstYear, FAYear, "
                              "AppRcptNo, RevisedRtn, RevisedRcptNo, Quarter) "
                              "VALUES (?, ?, 1, 'BLRK01234E', 'AAACK1234F', ?, 'MG ROAD', '15', "
                              "'560001', 0, 0, 1, 'R NAIR', 'MANAGER', ?, ?, '202728', "
                              "'202627', '0', 'R', ?, ?)")
                   .arg(form.basicInfoTable),
               {basicInfoId, compId, compName, noChallan, noDeductee, revisedRcptNo, quarter});
}

inline void addChallan(const DataStore &store, const FormTraits &form, int challanId,
                       int basicInfoId, int compId, int slNo, double total)
{
    store.exec(QStringLiteral("INSERT INTO %1 (ChallnID, BasicIfoID, CompID, AsstID, SlNo, "
                              "AmountDeducted, TrVoucherNo, DtTrVoucher, BankCode, Surcharge, "
                              "EduCess, Interest, Others, Total, ChqDDNo, TransferVoucherNo, "
                              "TotTax, TotIncomeTax, TotSurcharge, TotCess, CtrlTot, ExInterest, "
                              "ExtOthers, Remarks) "
                              "VALUES (?, ?, ?, 1, ?, ?, '00123', '2026-07-07', '0510308', 0, 0, "
                              "0, 0, ?, '445566', '', 0, 0, 0, 0, 0, 0, 0, '')")
                   .arg(form.challanTable),
               {challanId, basicInfoId, compId, slNo, total, total});
}

/// One employee or deductee row under a challan.
inline void addAnnexureRow(const DataStore &store, const FormTraits &form, int rowId,
                           int basicInfoId, int challanId, int srlNo, double amountPaid,
                           double taxAmount)
{
    const QString key = form.kind == FormKind::Form24Q ? QStringLiteral("EmpID")
                                                       : QStringLiteral("DeducteeID");
    store.exec(QStringLiteral("INSERT INTO %1 (%2, BasicIfoID, CompID, AsstID, ChallanId, SrlNo, "
                              "PAN, AmtOfPayment, PaymentDt, TaxAmount, TaxDeductDt, Tax, "
                              "Surcharge, Cess, Total) "
                              "VALUES (?, ?, 11, 1, ?, ?, 'ABCPE1234F', ?, '2026-07-05', ?, "
                              "'2026-07-05', ?, 0, 0, ?)")
                   .arg(form.annexureTable, key),
               {rowId, basicInfoId, challanId, srlNo, amountPaid, taxAmount, taxAmount,
                taxAmount});
}

inline int rowCount(const DataStore &store, const QString &table)
{
    return store.scalar(QStringLiteral("SELECT count(*) FROM %1").arg(table)).toInt();
}

} // namespace generationdata
