#pragma once

#include "filingcheck/filingcheck.h"
#include "statements/rowlistmodel.h"

/// A finding as the list shows it: where, which field by its label, and what is wrong.
struct FindingEntry
{
    QString kind;     ///< "Error" or "Warning"
    QString challan;  ///< the challan's serial number; empty for the Statement
    QString row;      ///< the row's serial number; empty for a challan or the Statement
    QString field;    ///< the field's label on the screen, or the stored column's name
    QString message;
    filingcheck::Finding finding;
};

/// lstvFindings: the findings of the check, errors first.
class FindingListModel : public RowListModel<FindingEntry>
{
public:
    enum Column { KindColumn, ChallanColumn, RowColumn, FieldColumn, MessageColumn, ColumnCount };

    explicit FindingListModel(QObject *parent = nullptr);

    /// The findings, each labelled by @p label (the field that shows its column).
    void setFindings(const QList<filingcheck::Finding> &findings,
                     const std::function<QString(const filingcheck::Finding &)> &label);

    /// The message whole as a tip too, where its column is too narrow.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    QString cell(const FindingEntry &row, int column) const override;
    bool isNumber(int column) const override;
};

/// An amount that the Statement owes beyond its tax: interest on a challan, or the late fee.
struct DueEntry
{
    QString what;     ///< "Interest 201(1A)" (206C(7) for tax collected) or "Late fee 234E"
    QString where;    ///< "challan N" or "statement"
    QString due;
    QString paid;
    QString working;  ///< how it was worked out, a line each step
};

/// lstvDues: the interest of each challan that owes it, and the late fee.
class DueListModel : public RowListModel<DueEntry>
{
public:
    enum Column { WhatColumn, WhereColumn, DueColumn, PaidColumn, ColumnCount };

    explicit DueListModel(QObject *parent = nullptr);

    /// interestName: "Interest 201(1A)" for tax deducted, "Interest 206C(7)" for tax collected.
    void setResult(const filingcheck::CheckResult &result, const QString &interestName);

protected:
    QString cell(const DueEntry &row, int column) const override;
    bool isNumber(int column) const override;
};
