#pragma once

#include <QString>
#include <span>

/// The four returns. What differs between them lives in FormTraits; everything else is shared.
enum class FormKind { Form24Q, Form26Q, Form27Q, Form27EQ };

/**
 * The differences between the four forms, in one table: table names, the names the menu and
 * the selection use, and the literals of the return file. Table names reach SQL text only from
 * here.
 */
struct FormTraits
{
    FormKind kind;
    QString formType;       ///< "24Q": the session's form type, the file name, BH field 5
    QString reportForm;     ///< "Form24": the family of printouts
    QString screenName;     ///< objectName of the statement screen
    QString basicInfoTable; ///< one row per Statement
    QString challanTable;
    QString annexureTable;  ///< the employee or deductee rows under each challan
    QString sectionTable;   ///< the sections or collection codes offered
    QString fileType;       ///< FH field 3: "SL1", "NS1" or "TC1"
    bool hasSalaryDetail;   ///< 24Q's salary rows with their section tables

    // The return file's further differences.
    QString annexureKey;       ///< key of an annexure row: "EmpID" or "DeducteeID"
    QString partyNameColumn;   ///< DD field 13: "EmpName" or "DeducteeName"
    /// 24Q: CD field 21 is "92A" or "92B" by the deductor type and the challan has no section;
    /// DD rows carry the serial number and the deposit date, and no deductee code or rate.
    bool salaryLayout;
    QString grossingUpColumn;  ///< DD field 27 (27Q only)
    QString purchaseColumn;    ///< DD field 21, the total purchase value (27EQ only)
    QString salaryTable;       ///< SD rows (24Q only), with the two tables of their sub-lines:
    QString section16Table;    ///< S16 lines
    QString chapterVIATable;   ///< C6A lines

    QString messageName; ///< "Form 24": the form as the masters' messages name it
};

/// The traits of the four forms, in menu order.
std::span<const FormTraits> allForms();

const FormTraits &formTraits(FormKind kind);

/// The traits of a form type such as "26Q"; nullptr for any other text.
const FormTraits *findForm(const QString &formType);
