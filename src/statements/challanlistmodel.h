#pragma once

#include "statements/challanentry.h"

#include <QAbstractTableModel>
#include <QList>

/**
 * lstvChallan: the challans of the Statement, one row each, read from the store in one pass.
 * It is what the panel searches for a serial number and what the next number is taken from.
 */
class ChallanListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The columns in the list's order; the raw date and the key are there for the panel and
    /// hidden from view.
    enum Column {
        SerialColumn, SectionColumn, AmountColumn, ChallanNoColumn, VoucherNoColumn,
        DateColumn, BankColumn, RawDateColumn, IdColumn, SurchargeColumn, CessColumn,
        InterestColumn, OthersColumn, TotalColumn, ChequeColumn, BookEntryColumn,
        TotTaxColumn, TotIncomeTaxColumn, TotSurchargeColumn, TotCessColumn, CtrlTotColumn,
        ExInterestColumn, ExOthersColumn, RemarksColumn, ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setRows(QList<ChallanEntry> rows);
    const QList<ChallanEntry> &rows() const { return m_rows; }
    const ChallanEntry &row(int index) const { return m_rows.at(index); }

    /// The row with this serial number, or -1.
    int findSerial(int serial) const;
    /// The highest serial number of the list plus one; 1 for an empty list.
    int nextSerial() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QList<ChallanEntry> m_rows;
};
