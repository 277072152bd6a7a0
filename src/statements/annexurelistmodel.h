#pragma once

#include "statements/annexureentry.h"
#include "statements/rowlistmodel.h"

/// lstvDedt: the annexure rows of the chosen challan, by their numbers.
class AnnexureListModel : public RowListModel<AnnexureEntry>
{
public:
    enum Column {
        IdColumn, SerialColumn, NameColumn, CodeColumn, PanColumn, AmountColumn, DateColumn,
        RateColumn, TaxColumn, SurchargeColumn, CessColumn, TotalColumn, DepositedColumn,
        FlagColumn, ColumnCount
    };

    explicit AnnexureListModel(QObject *parent = nullptr);

protected:
    QString cell(const AnnexureEntry &row, int column) const override;
    bool isNumber(int column) const override;
};
