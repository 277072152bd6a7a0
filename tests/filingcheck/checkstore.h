#pragma once

#include "core/formtraits.h"
#include "support/teststore.h"

#include <QDate>

/**
 * A Statement of each form in which the check finds nothing: BasicIfoID 1 of company 11 for Q2
 * of 2026-27, filed on 15/10/2026, with one challan of 1000.00 deposited on 07/08/2026 and under
 * it row 1, 10000.00 paid and 1000.00 deducted at 10% on 20/07/2026 (section 94J on 26Q, 195 on
 * 27Q, collection code 6CE on 27EQ). Built once per program; a test changes a copy.
 */
namespace checkstore {

constexpr int basicInfoId = 1;
inline const QDate filedOn(2026, 10, 15);

const TestStore &cleanStore();

/// Sets a column of the Statement's "basic" information, its "challan", its "row" or its
/// "company" in mstCompany, when the form's table has it; a value "NULL" stores Null. SQLite
/// keeps a value that is not a number as text in a number column, as an import or another
/// program may leave it.
void change(const TestStore &store, const FormTraits &form, const QString &target,
            const QString &column, const QString &value);

} // namespace checkstore
