#pragma once

#include "filingcheck/storedvalues.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

class DataStore;
struct FormTraits;

namespace filingcheck {

/// The basic information of a Statement that the rules look at.
struct StatementValues
{
    int basicInfoId = 0;
    int compId = 0;
    QString tan;
    QString pan;
    QString name;
    QString personName;
    QString pincode;
    QString personPincode;
    QString faYear;
    QString quarter;
    QString declaredChallans; ///< NoChallan as stored
    QString declaredRows;     ///< NoDeductee as stored
    QString deductorType;     ///< DStatus of the company
    int assessmentYear = 0;   ///< the year the store's assessment period starts in; 0 for none
};

/// One challan, its amounts rounded to whole rupees as the file carries them.
struct ChallanValues
{
    int challanId = 0;
    int slNo = 0;
    StoredAmount tax; ///< AmountDeducted
    StoredAmount surcharge;
    StoredAmount cess;
    StoredAmount interest;
    StoredAmount others;
    StoredAmount total;
    StoredAmount interestClaimed; ///< ExInterest
    StoredAmount othersClaimed;   ///< ExtOthers
    QString bankCode;
    QString serial;               ///< TrVoucherNo
    QString transferVoucher;      ///< as stored
    /// As the file decides a book entry: any text, "0" and a blank too.
    bool transferVoucherGiven = false;
    StoredDate deposited;         ///< DtTrVoucher
    QString section;              ///< none on 24Q
};

/// One employee or deductee row, its amounts to the paisa as the file carries them.
struct RowValues
{
    int srlNo = 0;
    QString pan;
    bool panRefGiven = false;
    int nameLength = 0; ///< in characters, without the blanks at its ends that the file drops
    QString section;    ///< the challan's, which the file carries for its rows
    QString deducteeCode; ///< none on 24Q
    QString flag;         ///< NonDeductionflg
    StoredAmount paid;    ///< AmtOfPayment
    StoredAmount taxDeposited; ///< TaxAmount
    StoredAmount tax;
    StoredAmount surcharge;
    StoredAmount cess;
    StoredAmount total;
    StoredAmount purchase; ///< 27EQ's total value of purchase
    QVariant rateStored;   ///< Null on 24Q
    qint64 rate = 0;       ///< ten-thousandths of a percent
    StoredDate paymentDate;
    StoredDate deductionDate;
};

/**
 * Reads a saved Statement of one form as the return file reads it: the challans of the
 * Statement and company in order of SlNo, and the rows under them one at a time, so that a
 * Statement of any size is checked in little memory. Of a row's name and PAN reference only what
 * the rules need is read: the name's length and whether there is a reference.
 */
class StatementReader
{
public:
    StatementReader(const DataStore &store, const FormTraits &form);

    /// None when the form has no Statement of that id.
    std::optional<StatementValues> statement(int basicInfoId) const;
    QList<ChallanValues> challans(const StatementValues &statement) const;
    /// Calls @p each with every row under one of @p challans and the challan's index in that
    /// list. The rows come grouped by challan, in the order of the challans' ids and then of
    /// the table's key, not of SlNo and SrlNo: what the caller tells in that order, it puts in
    /// order itself.
    void rows(int basicInfoId, const QList<ChallanValues> &challans,
              const std::function<void(int, const RowValues &)> &each) const;

private:
    const DataStore &m_store;
    const FormTraits &m_form;
    QString m_rowsSql;
};

} // namespace filingcheck
