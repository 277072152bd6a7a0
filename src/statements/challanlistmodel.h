#pragma once

#include "statements/challanentry.h"
#include "statements/rowlistmodel.h"

/// lstvChallan: the challans of the Statement, one row each, by serial number.
class ChallanListModel : public RowListModel<ChallanEntry>
{
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

    explicit ChallanListModel(QObject *parent = nullptr);

protected:
    QString cell(const ChallanEntry &row, int column) const override;
    bool isNumber(int column) const override;
};
