#include "statements/challanblock.h"

#include "core/money.h"
#include "statements/challanentry.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

const char *const blockBoxes[] = {"txtDSection", "txtDBSRCode", "txtDChallanNo",
                                  "txtDTransferVoucherNo", "txtDChqNo", "txtDTotTax",
                                  "txtGrossTotaltaxDeposited"};
const char *const blockCaptions[] = {"Section", "BSR Code", "Challan No", "Trans Vou. No",
                                     "Cheque No.", "Challan Total", "Tax Deposited"};

} // namespace

ChallanBlock::ChallanBlock(QWidget *parent) : QGroupBox(QStringLiteral("Challan"), parent)
{
    auto *grid = new QGridLayout(this);
    for (int index = 0; index < int(std::size(blockBoxes)); ++index) {
        auto *line = new QLineEdit(this);
        line->setObjectName(QLatin1String(blockBoxes[index]));
        line->setReadOnly(true);
        line->setFocusPolicy(Qt::NoFocus);
        grid->addWidget(new QLabel(QLatin1String(blockCaptions[index]), this), index / 2,
                        index % 2 * 2);
        grid->addWidget(line, index / 2, index % 2 * 2 + 1);
    }
}

void ChallanBlock::showChallan(const ChallanEntry *challan, const QString &depositedSum)
{
    const QStringList texts = {challan ? challan->section : QString(),
                               challan ? challan->bankCode : QString(),
                               challan ? challan->challanNo : QString(),
                               challan ? challan->voucherNo : QString(),
                               challan ? challan->cheque : QString(),
                               challan ? Money::fromText(challan->total).toText() : QString(),
                               depositedSum};
    for (int index = 0; index < int(std::size(blockBoxes)); ++index)
        findChild<QLineEdit *>(QLatin1String(blockBoxes[index]))->setText(texts.at(index));
}
