#pragma once

#include <QString>
#include <span>

/**
 * The fields of the company screen as the user has filled them: texts as typed, ids as the
 * hidden fields hold them (read with numbers::val). The table of fields ties each member to its
 * control, its column of mstCompany and its length, so that the screen, the load and the writes
 * walk one list.
 */
struct CompanyEntry
{
    bool isEdit = false; ///< an update of the company loaded, rather than a new one

    QString groupName; ///< cmbGroupName
    QString groupId;
    QString compId;
    QString tan;
    QString pan;
    QString name;
    QString branch;
    QString address1, address2, address3, address4, address5;
    QString state; ///< the state's name as cmbState shows it
    QString stateId;
    QString stateCode;
    QString pincode;
    QString stdCode;
    QString phone;
    QString email;

    // The person responsible for deducting tax, with his own address block.
    QString personName;
    QString designation;
    QString pAddress1, pAddress2, pAddress3, pAddress4, pAddress5;
    QString pState;
    QString pStateId;
    QString pStateCode;
    QString pPincode;
    QString pStdCode;
    QString pPhone;
    QString pEmail;

    QString assessingOfficerCode;
    QString tdsCircle;
    QString filePrefix;

    QString deductorType; ///< a CategoryCode of mstCategory
    QString status;       ///< "C" Central Government or "O" others; steers the spreading only
    QString dState;       ///< state of a State Government deductor
    QString dStateId;
    QString dStateCode;
    QString ministry;
    QString ministryId;
    QString ministryCode;
    QString ministryOther;
    QString paoCode;
    QString paoRegNo;
    QString ddoCode;
    QString ddoRegNo;

    /// One field of the screen.
    struct Field
    {
        const char *control; ///< objectName
        const char *column;  ///< column of mstCompany; nullptr for what is not stored
        QString CompanyEntry::*member;
        int maxLength;       ///< 0 where the screen sets no limit
        bool number;         ///< stored as a number, the text read with numbers::val
    };

    /// Every field in screen order.
    static std::span<const Field> fields();
    /// The field of a control, nullptr for an unknown name.
    static const Field *field(const QString &control);

    QString value(const QString &control) const;
    void setValue(const QString &control, const QString &text);

    /// The name of the "Others" row of the ministries, which asks for a name of its own.
    static inline const QString otherMinistry = QStringLiteral("Others");
    static inline const QString panNotRequired = QStringLiteral("PANNOTREQD");
    static inline const QString tanApplied = QStringLiteral("TANAPPLIED");
};
