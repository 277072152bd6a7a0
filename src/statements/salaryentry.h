#pragma once

#include "core/money.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <array>
#include <span>

/**
 * One employee's annual salary statement as the salary panel holds it: the boxes of the txt
 * control array by index (the serial number, PAN, PAN reference, designation and the amounts),
 * the perquisite boxes txtPerk(0) to txtPerk(12), and the rest by name. Amounts are texts as
 * typed or computed ("0.00"); the tables of boxes tie each to its label and its column.
 */
struct SalaryEntry
{
    /// The number of txt boxes.
    static constexpr int boxCount = 24;

    /// The texts of the txt boxes, by the control's index; an index without a box reads empty.
    class Texts
    {
    public:
        QString &operator[](int index);
        const QString &value(int index) const;

    private:
        std::array<QString, boxCount> m_texts;
    };

    Texts txt;
    std::array<QString, 13> perk;
    QString empName;        ///< cmbEmpname
    QDate fromDate;         ///< DTP204From
    QDate toDate;           ///< DTP204To
    int category = -1;      ///< the row of cmbCat, -1 for none; stored as the row number
    QString flag212 = QStringLiteral("N"); ///< txt212Flag: "P" for a positive other income
    QString salaryId;       ///< txtSalaryid, the key
    QString employeeId;     ///< txtEmployeeID, EmpID of the master

    QString box(int index) const { return txt.value(index); }
    Money amount(int index) const { return Money::fromText(txt.value(index)); }
    Money perkAmount(int index) const { return Money::fromText(perk.at(index)); }

    enum class Kind {
        Serial,       ///< the serial number, given by the panel
        Text,         ///< a text filled from the master, editable
        Amount,       ///< an amount, typed or filled by the chain or a pop-up's OK
        SignedAmount, ///< an amount that may be typed negative
        Total,        ///< an amount shown only: a pop-up's total
    };

    struct Box
    {
        int index;          ///< txt(index)
        const char *column; ///< column of the salary table; nullptr for a box never stored
        const char *label;
        int maxLength;
        Kind kind;

        bool isAmount() const { return kind != Kind::Serial && kind != Kind::Text; }
        bool locked() const { return kind == Kind::Serial || kind == Kind::Total; }
    };

    struct PerkBox
    {
        const char *column; ///< nullptr for txtPerk(0), which only feeds the computation
        const char *label;
        bool computed;      ///< locked, computed from the others
    };

    /// The txt boxes in the order of the panel's three columns of figures, after the four
    /// texts of the employee.
    static std::span<const Box> boxes();
    /// txtPerk(0) to txtPerk(12), by index.
    static std::span<const PerkBox> perkBoxes();

    /// The codes of cmbCat in the order of its rows: the stored row number indexes this list.
    static const QStringList categoryCodes;
    /// What lblCat shows for a row of cmbCat; empty for none.
    static QString categoryName(int row);
};
