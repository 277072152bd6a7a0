#pragma once

#include "core/money.h"

#include <QVariant>

class DataStore;
struct FormTraits;

/// The figures of the batch header that the file counts and sums before its first line.
struct BatchTotals
{
    Money deposited;        ///< BH field 47: the challans' total, rounded to whole rupees
    qint64 salaryRows = 0;  ///< BH field 49 (24Q)
    Money salaryGross;      ///< BH field 50 (24Q): section 16 gross, rounded to whole rupees

    /// A Statement whose challans deposit nothing is a nil statement: every CD says so.
    bool isNil() const { return deposited <= Money(); }

    /// The sums are exact and rounded once. Throws StoreError, or ReturnFileError for a sum
    /// beyond what an amount can hold.
    static BatchTotals read(const DataStore &store, const FormTraits &form,
                            const QVariant &basicInfoId, const QVariant &companyId);
};
