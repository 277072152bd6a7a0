#pragma once

#include "statements/salaryentry.h"

#include <QAbstractTableModel>
#include <QList>

/**
 * lstvEmp: the salary rows of the Statement in the order of their keys, amounts "00.00" and
 * dates dd/mm/yyyy. The key stands in the third column, where the save looks for it.
 */
class SalaryListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        SerialColumn, NameColumn, IdColumn, PanColumn, PanRefColumn, DesignationColumn,
        FromColumn, ToColumn, CategoryColumn, FirstAmountColumn
    };

    explicit SalaryListModel(QObject *parent = nullptr);

    void setRows(QList<SalaryEntry> rows);
    const QList<SalaryEntry> &rows() const { return m_rows; }
    const SalaryEntry &row(int index) const { return m_rows.at(index); }
    void setRow(int index, const SalaryEntry &entry);
    void append(const SalaryEntry &entry);

    /// The row with this key, or -1.
    int findSalaryId(int salaryId) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    /// The stored amounts after the fixed columns: txt(index) for a box, -1 - i for txtPerk(i).
    QList<int> m_amounts;
    QList<SalaryEntry> m_rows;
};
