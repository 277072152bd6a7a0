#pragma once

#include "core/formtraits.h"

#include <QString>
#include <array>

/**
 * What Form 27A shows from a statement screen, as it stands when the button is pressed: the
 * fields of the basic information and generation panels and the session's quarter. The sheet
 * shows these values, not those of the generation log.
 */
struct Form27AValues
{
    FormKind form = FormKind::Form26Q;
    QString compId;          ///< txtCompId, read as a number
    QString quarterFrom;     ///< the session's first day of the quarter, dd/mm/yyyy
    QString quarterTo;       ///< the session's last day of the quarter
    QString tan;             ///< txtTan
    QString pan;             ///< txtPAN
    QString financialYear;   ///< txtFAYear
    QString assessmentYear;  ///< TxtAssesment
    QString revisedReceiptNo; ///< txtRevisedReceiptNo
    QString compName;        ///< txtCompName
    QString branch;          ///< txtBranch
    QString deductorType;    ///< txtDType
    QString email;           ///< txtEmail
    std::array<QString, 5> address; ///< txtAddress1 to txtAddress5
    QString state;           ///< the text of cmbState
    QString pincode;         ///< txtPincode
    QString phone;           ///< txtPhone
    QString personName;      ///< txtPersonName
    QString designation;     ///< txtDesignation
    QString personEmail;     ///< txtPemail
    QString totalAmountPaid; ///< txtTotAmountPaidFG
    QString totalTds;        ///< txtTotTDSFG
    QString totalDeposited;  ///< txtTotTaxDepositedFg
    QString annexures;       ///< txtAnnexures
    QString otherInformation; ///< txtOtherInf
    QString deductees;       ///< txtNoDeductee
};
