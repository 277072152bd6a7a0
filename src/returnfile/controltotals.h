#pragma once

#include "core/exactamount.h"

#include <QList>
#include <QString>

class DataStore;
struct FormTraits;

/// The amounts of one annexure row as its challan's list shows them, as text.
struct AnnexureListRow
{
    QString taxAmount; ///< TaxAmount
    QString tax;       ///< Tax (income tax)
    QString surcharge;
    QString cess;
    QString total;
};

/// The five control totals of a challan, which the CD record carries unrounded.
struct ChallanControlTotals
{
    ExactAmount totTax;
    ExactAmount totIncomeTax;
    ExactAmount totSurcharge;
    ExactAmount totCess;
    ExactAmount ctrlTot;

    bool operator==(const ChallanControlTotals &) const = default;
};

/// Identifies the challan whose totals are written.
struct ChallanKey
{
    int challanId = 0;
    int basicInfoId = 0;
    int compId = 0;
};

/**
 * The control totals of a challan from the rows of its list, each amount read as typed
 * (numbers::val). Form 24Q sums in 32-bit whole rupees, rounding half to even after every row;
 * the other forms keep the exact sum, paise and beyond. Throws std::range_error when a 24Q sum
 * leaves the 32-bit range.
 */
ChallanControlTotals sumChallanRows(const FormTraits &form, const QList<AnnexureListRow> &rows);

/**
 * Writes the control totals of the rows to the challan, found by its id, Statement and company.
 * An empty list sets all five to 0. Returns the totals written; throws StoreError, or
 * std::range_error for a sum out of range.
 */
ChallanControlTotals calculateChallanControlTotal(const DataStore &store, const FormTraits &form,
                                                  const ChallanKey &challan,
                                                  const QList<AnnexureListRow> &rows);

/// The number of challans of a Statement, over its challan table.
int totalChallan(const DataStore &store, const FormTraits &form, int basicInfoId);

/// The number of annexure rows of a Statement, over all its challans.
int totalDeductee(const DataStore &store, const FormTraits &form, int basicInfoId);
