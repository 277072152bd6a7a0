#pragma once

#include "statements/challanentry.h"
#include "statements/rowlistmodel.h"

/**
 * GrdChallan: the Statement's challans from which the annexure panel takes the one whose rows
 * are entered. A click on a column head sorts by it, always ascending.
 */
class ChallanGridModel : public RowListModel<ChallanEntry>
{
public:
    enum Column {
        IdColumn, SectionColumn, DateColumn, BankColumn, ChallanNoColumn, VoucherNoColumn,
        ChequeColumn, TotalColumn, DepositedColumn, ColumnCount
    };

    explicit ChallanGridModel(QObject *parent = nullptr);

    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

protected:
    QString cell(const ChallanEntry &row, int column) const override;
    bool isNumber(int column) const override;
};
