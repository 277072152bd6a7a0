#pragma once

#include <QString>
#include <array>
#include <span>

/// The four returns. What differs between them lives in FormTraits; everything else is shared.
enum class FormKind { Form24Q, Form26Q, Form27Q, Form27EQ };

/// The boxes of the challan panel that carry an item number of the form on their labels.
enum class ChallanItem {
    Serial, Section, Tds, Surcharge, Cess, Interest, Others, Total, Cheque, Bank, Date,
    ChallanNo, VoucherNo, Count
};

/// The boxes of the annexure panel that carry an item number of the form on their labels; Extra
/// is 27Q's grossing-up indicator or 27EQ's value of purchase.
enum class AnnexureItem {
    Code, Pan, Name, Amount, Date, Rate, Tax, Surcharge, Cess, Total, Deposited, Extra, Count
};

/**
 * The differences between the four forms, in one table: table names, the names the menu and
 * the selection use, the words and item numbers of the statement screens, and the literals of
 * the return file. Table names reach SQL text only from here.
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
    QString sectionColumn;  ///< the section master's name column: "SectionName", "CollectionCode"
    QString fileType;       ///< FH field 3: "SL1", "NS1" or "TC1"
    bool hasSalaryDetail;   ///< 24Q's salary rows with their section tables

    // The statement screens' differences.
    bool collectsTax;       ///< 27EQ: a collector, and Form 27B in place of Form 27A
    QString partyWord;      ///< "Employee" or "Deductee": panel buttons, counts, the master
    QString partyMaster;    ///< objectName of the master that the screen's cmd(2) opens
    /// The item number on each label of the challan panel, by ChallanItem; 0 for a box the form
    /// lacks (24Q's challans have no section).
    std::array<int, static_cast<int>(ChallanItem::Count)> challanItems;
    /// The same for the annexure panel, by AnnexureItem; 0 for a box the form lacks (24Q's
    /// employee rows have no deductee code and no rate).
    std::array<int, static_cast<int>(AnnexureItem::Count)> annexureItems;
    /// How an empty amount of an annexure row is written on leaving it and saving: "00.00" on
    /// 24Q and 26Q, "0.00" on 27Q and 27EQ.
    QString annexureZero;

    // The return file's further differences.
    QString annexureKey;       ///< key of an annexure row: "EmpID" or "DeducteeID"
    QString partyNameColumn;   ///< DD field 13: "EmpName" or "DeducteeName"
    /// 24Q: CD field 21 is "92A" or "92B" by the deductor type and the challan has no section;
    /// DD rows carry the serial number and the deposit date, and no deductee code or rate.
    bool salaryLayout;
    QString grossingUpColumn{}; ///< DD field 27 (27Q only)
    QString purchaseColumn{};   ///< DD field 21, the total purchase value (27EQ only)
    QString salaryTable{};      ///< SD rows (24Q only), with the tables of their sections:
    QString section10Table{};
    QString section16Table{};   ///< S16 lines
    QString section88Table{};
    QString chapterVIATable{};  ///< C6A lines

    QString messageName; ///< "Form 24": the form as the masters' messages name it

    /// Whether the challans carry a section (or a collection code): all forms but 24Q.
    bool challanHasSection() const { return challanItems[int(ChallanItem::Section)] != 0; }
    int challanItem(ChallanItem item) const { return challanItems[static_cast<int>(item)]; }
    int annexureItem(AnnexureItem item) const { return annexureItems[static_cast<int>(item)]; }
    /// The four section tables under a salary row, in the order they are emptied; none but on
    /// 24Q.
    std::array<QString, 4> salarySectionTables() const
    {
        return {section10Table, section16Table, section88Table, chapterVIATable};
    }
};

/// The traits of the four forms, in menu order.
std::span<const FormTraits> allForms();

const FormTraits &formTraits(FormKind kind);

/// The traits of a form type such as "26Q"; nullptr for any other text.
const FormTraits *findForm(const QString &formType);
