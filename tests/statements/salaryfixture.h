#pragma once

#include "statementfixture.h"
#include "statements/salarysheet.h"
#include "statements/statementsheet.h"

/// A saved 24Q Statement of the fourth quarter, three employees in the group's master, and the
/// salary panel opened on it.
struct SalaryFixture : StatementFixture
{
    SalaryFixture();

    /// The employee's name chosen and the combo left.
    void choose(const QString &name);
    /// A box typed into.
    void type(int index, const QString &text);
    /// The amounts typed into a section's row of a grid; a section not shown yet is typed into
    /// the blank row first. False when the grid refused the section.
    bool enter(SectionKind kind, const QString &section, const QStringList &amounts);
    /// The columns of the Statement's salary rows joined by "/", row after row by serial.
    QStringList stored(const QString &columns) const;

    StatementSheet sheet;
    SalarySheet salary{sheet};
};
