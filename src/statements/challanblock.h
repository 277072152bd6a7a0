#pragma once

#include <QGroupBox>

struct ChallanEntry;

/**
 * Beside the annexure panel's grid of challans, the chosen challan's particulars, read-only: its
 * section, BSR code, challan and voucher numbers, cheque, total, and the tax its rows deposit.
 */
class ChallanBlock : public QGroupBox
{
    Q_OBJECT

public:
    explicit ChallanBlock(QWidget *parent = nullptr);

    /// The challan's particulars, or empty boxes for none; @p depositedSum: its rows' tax
    /// deposited, "0.00".
    void showChallan(const ChallanEntry *challan, const QString &depositedSum);
};
