#pragma once

#include <QDate>
#include <QString>
#include <span>

/**
 * One annexure row as the annexure panel and its list hold it: a payment to a deductee (26Q,
 * 27Q, 27EQ) or an employee's deduction (24Q) under a challan. Amounts are texts as typed
 * ("00.00" in the list); the table of boxes ties each text to its control.
 */
struct AnnexureEntry
{
    QString rowId;        ///< txtDeducteeID or txtEmpID: the row's number within its challan
    QString srlNo;        ///< txtDeducteeSrlNo
    QString partyName;    ///< cmbDeductee: the deductee's or employee's name
    QString partyNo;      ///< txtDeducteeNo or txtEmpNo: the master's id
    QString deducteeCode; ///< "01" company, "02" other than company
    QString pan;
    QString panRef;
    QString address1, address2, address3, address4, address5;
    QString state;        ///< cmbDState
    QString stateCode;
    QString stateId;
    QString pin;
    QString designation;  ///< an employee's, from the master
    QDate fromDate;       ///< an employee's period, from the master
    QDate toDate;
    QDate date;           ///< dtp105: the date of payment and of deduction
    QString amount;       ///< txt104
    QString rate;         ///< txt106
    QString tax;
    QString surcharge;
    QString cess;
    QString total;
    QString deposited;    ///< txt107, the tax deposited
    QString flag = QStringLiteral(" "); ///< "A" lower or no deduction, "B" no deduction, " "
    QString grossingUp = QStringLiteral("N"); ///< 27Q: "Y", "N", or empty for "Na"
    QString purchaseValue; ///< 27EQ: the total value of purchase

    struct Box
    {
        const char *control; ///< objectName
        QString AnnexureEntry::*member;
        int maxLength;
    };

    /// The text boxes of the panel.
    static std::span<const Box> boxes();
};
