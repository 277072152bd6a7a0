#pragma once

#include <QDate>
#include <QString>
#include <span>

/**
 * One challan as the challan panel and its list hold it: amounts as text ("00.00" in the
 * list), the date as a date. The table of boxes ties each text to its control, its column and
 * its length, so that the panel, the list and the writes walk one list.
 */
struct ChallanEntry
{
    QString slNo;       ///< txtCh(115), the serial number within the Statement
    QString section;    ///< cmb116; empty on Form 24Q
    QString tds;        ///< txtCh(117)
    QString surcharge;  ///< txtCh(118)
    QString cess;       ///< txtCh(119)
    QString interest;   ///< txtCh(120)
    QString others;     ///< txtCh(121)
    QString total;      ///< txtCh(122), computed
    QString cheque;     ///< txtCh(123)
    QString bankCode;   ///< txtCh(124), the BSR code
    QDate date;         ///< dtp119
    QString challanNo;  ///< txtCh(125)
    QString voucherNo;  ///< txtCh(126), the transfer voucher of a government deductor
    QString challanId;  ///< txtChallanID, the key
    QString bookEntry;  ///< "C" for a challan entered here
    // The control totals, summed from the annexure rows, and two amounts entered beside them.
    QString totTax, totIncomeTax, totSurcharge, totCess, ctrlTot;
    QString exInterest, exOthers;
    QString remarks;

    struct Box
    {
        const char *control; ///< objectName
        const char *column;  ///< column of the challan table
        QString ChallanEntry::*member;
        int maxLength;
        bool amount;         ///< an amount, shown "00.00" and written as a number
    };

    /// The text boxes of the panel (all but the section combo and the date), in the order of
    /// the list's columns after them.
    static std::span<const Box> boxes();
};
