#pragma once

#include <QString>
#include <span>

/**
 * The basic information of a Statement as its panel holds it: the deductor's particulars copied
 * from the company master, the person responsible, the declared counts and the revised return.
 * Texts are as the fields show them; the table of fields ties each member to its control, its
 * column and its length, so that the panel, the load and the writes walk one list.
 */
struct BasicInfo
{
    QString basicInfoId; ///< "0" or empty until the Statement has a row
    QString compId;
    QString quarter;
    QString asstYear;
    QString faYear;
    QString tan;
    QString pan;
    QString branch;
    QString compName;
    QString address1, address2, address3, address4, address5;
    QString state;       ///< the state's name as cmbState shows it
    QString stateId;
    QString stateCode;
    QString pincode;
    QString phone;
    QString stdCode;
    QString email;
    bool addressChanged = false; ///< "Has Address changed since filing the last return"

    QString personName;
    QString designation;
    QString pAddress1, pAddress2, pAddress3, pAddress4, pAddress5;
    QString pState;
    QString pStateId;
    QString pStateCode;
    QString pPincode;
    QString pPhone;
    QString pStdCode;
    QString pEmail;
    bool personAddressChanged = false;

    QString noChallan;          ///< declared number of challans
    QString noDeductee;         ///< declared number of annexure rows
    QString revisedReturn = QStringLiteral("R"); ///< "C" for a revised return, "R" otherwise
    QString revisedReceiptNo;
    QString tanReceiptNo;       ///< the application's receipt while the TAN is applied for
    QString deductorStatus;     ///< DStatus of the company, shown only
    QString deductorStatusText; ///< its category's description
    QString tdsCircle;          ///< carried from the company into the Statement unchanged

    bool isRevised() const { return revisedReturn == QStringLiteral("C"); }

    /// How a field takes part in the panel.
    enum class Kind {
        Hidden,   ///< a key or code behind another field
        Shown,    ///< a copy of the company master, read-only but on the Enter path
        Editable,
        Count,    ///< a declared count: digits, its whole text selected on entry
        Receipt,  ///< a receipt number: digits only
    };

    struct Field
    {
        const char *control; ///< objectName
        const char *column;  ///< column of the basic information table; nullptr: not stored
        QString BasicInfo::*member;
        int maxLength;       ///< 0 where the panel sets no limit
        Kind kind;
    };

    /// Every text field of the panel, in the order of the table's columns where stored.
    static std::span<const Field> fields();
    static const Field *field(const QString &control);

    static inline const QString tanApplied = QStringLiteral("TANAPPLIED");
};
