#pragma once

#include "core/fieldfailure.h"

#include <QString>

#include <optional>

struct SalaryEntry;

/// The checks of a salary row before it is saved, in the order the save makes them.
namespace salarycheck {

inline const QString serialText = QStringLiteral("Enter Serial No");
inline const QString nameText = QStringLiteral("Enter Name Of the employee");
inline const QString panText = QStringLiteral("Enter Pan.");
inline const QString designationText = QStringLiteral("Enter Designation");
/// The figures are named by the boxes' numbers, not by the items on their labels.
inline const QString section16Text = QStringLiteral("209 has to be >= 210");
inline const QString categoryText = QStringLiteral("Please specify the employee category.");
inline const QString incomeText = QStringLiteral("211+212 should be >=0");
inline const QString deductibleText = QStringLiteral("213 should be >= 217");

/// The first check the entry fails, with the field that takes the focus; none when it may be
/// saved.
std::optional<FieldFailure> firstFailure(const SalaryEntry &entry);

} // namespace salarycheck
