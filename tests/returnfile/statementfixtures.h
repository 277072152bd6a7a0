#pragma once

#include "core/formtraits.h"
#include "support/teststore.h"

/// Saved Statements of the four forms, inserted row by row, whose return files are kept by hand
/// in golden/<name>.txt.
namespace statementfixtures {

struct Fixture
{
    QString name;
    FormKind form;
    void (*build)(const TestStore &store);
    // What the writer reports for it.
    int challans;
    int annexureRows;
    int salaryRows;
    qint64 depositedRupees;
};

/// Every Statement is BasicIfoID 1 of company 1 in group 1.
constexpr int basicInfoId = 1;
constexpr int groupId = 1;

const QList<Fixture> &all();
const Fixture &named(const QString &name);

} // namespace statementfixtures
