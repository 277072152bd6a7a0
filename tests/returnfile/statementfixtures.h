#pragma once

#include "core/formtraits.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

class DataStore;

/// Saved Statements of the four forms, inserted row by row, whose return files are kept by hand
/// in golden/<name>.txt.
namespace statementfixtures {

/// A row to insert: columns and their values; QVariant() is Null.
using Row = QList<QPair<QString, QVariant>>;

void insertRow(const DataStore &store, const QString &table, const Row &row);
/// @p base with the values of @p changes put in (columns matched without regard to case).
Row merged(Row base, const Row &changes);

struct Fixture
{
    QString name;
    FormKind form;
    void (*build)(const DataStore &store);
    // What the writer reports for it.
    int challans;
    int annexureRows;
    int salaryRows;
    qint64 depositedRupees;
};

/// Every Statement is BasicIfoID 1 of company 1.
constexpr int basicInfoId = 1;

const QList<Fixture> &all();
const Fixture &named(const QString &name);

} // namespace statementfixtures
