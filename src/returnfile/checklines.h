#pragma once

#include <QStringList>

namespace filingcheck {
struct CheckResult;
}

/**
 * The pre-filing check as the batch front end prints it, fields apart by tabs: a line for each
 * finding ("error" or "warning", where, the store's column, the message), one for each challan
 * that owes interest ("interest 201(1A)", "challan N", the amount) and one for the late fee
 * ("late fee 234E", the amount). Scripts read these lines: their form does not change.
 */
QStringList checkLines(const filingcheck::CheckResult &result);
