#include "statements/salaryentry.h"

#include <stdexcept>

namespace {

using Box = SalaryEntry::Box;
using Kind = SalaryEntry::Kind;
using PerkBox = SalaryEntry::PerkBox;

// The labels carry the return's item numbers, which differ from the columns' own numbers.
const Box boxTable[] = {
    {201, "SrlNo", "Employee Srl No [327]", 5, Kind::Serial},
    {202, "Pan", "Employee PAN[328]", 10, Kind::Text},
    {2, "PanRef", "PAN REF", 10, Kind::Text},
    {3, "Designation", "Designation", 15, Kind::Text},
    {205, "332", "Total Salary [331]", 15, Kind::Amount},
    {206, nullptr, "Total HRA && Others [332]", 15, Kind::Amount},
    {207, nullptr, "Perquisites && PF  [333]", 15, Kind::Amount},
    {209, nullptr, "Total 331+332+333 [335]", 15, Kind::Amount},
    {210, "333", "Gross Total Salary - Sec 16  [333]", 15, Kind::Total},
    {211, "334Sec10Gross", "Income chargeble under head Salaries [334]", 15, Kind::Amount},
    {212, "335", "Any Income other than Salary [335]", 14, Kind::SignedAmount},
    {213, "336Sec16Gross", "Gross Total Income [336]", 15, Kind::Amount},
    {337, "337", "80CCE", 15, Kind::Amount},
    {338, "338", "Others", 15, Kind::Amount},
    {217, "339", "Gross Total Amt Deductible - Ch VI-A [339]", 15, Kind::Total},
    {218, "340SecViaGross", "Total Taxable Income [340]", 15, Kind::Amount},
    {219, "344", "Income Tax On Total Income [341]", 15, Kind::Amount},
    {342, "345", "Surcharge [342]", 15, Kind::Amount},
    {343, "346Sec88Gross", "Education Cess [343]", 15, Kind::Amount},
    {220, nullptr, "Gross Total Amt Rebate - Sec 88 [346]", 15, Kind::Amount},
    {224, "350", "Income Tax relief under section 89 [344]", 15, Kind::Amount},
    {225, "351", "Net Tax Payable [345]", 15, Kind::Amount},
    {346, "352", "Total TDS Deducted [346]", 15, Kind::Amount},
    {347, "355", "Shortfall Excess/Deduction of Tax [347]", 15, Kind::Amount},
};

// Column 355 holds the shortfall, so the first perquisite box has no column of its own.
const PerkBox perkTable[] = {
    {nullptr, "Perk un furnished [355]", false},
    {"356", "Perk - Furnished - Value [356]", false},
    {"357", "Cost of furniture [357]", false},
    {"358", "Perquisite value of furniture  [358]", true},
    {"359", "Perk Furnished Total [359]", true},
    {"360", "Rent paid by employee [360]", false},
    {"361", "Value of perquisite [361]", true},
    {"362", "Value of conveyance [362]", false},
    {"363", "Remunaration paid by employer [363]", false},
    {"364", "Value of free or concessional [364]", false},
    {"365", "Estimated Value of any other benefit [365]", false},
    {"366", "Employers contribution to PF [366]", false},
    {"367", "Interest credited to the assessees [367]", false},
};

static_assert(std::size(boxTable) == SalaryEntry::boxCount);
static_assert(std::size(perkTable) == std::tuple_size_v<decltype(SalaryEntry::perk)>);

/// Where a box's text is kept: its place in the table of boxes, or -1.
int slotOf(int index)
{
    for (int slot = 0; slot < int(std::size(boxTable)); ++slot) {
        if (boxTable[slot].index == index)
            return slot;
    }
    return -1;
}

} // namespace

QString &SalaryEntry::Texts::operator[](int index)
{
    const int slot = slotOf(index);
    if (slot < 0)
        throw std::out_of_range("no txt box of that index");
    return m_texts[slot];
}

const QString &SalaryEntry::Texts::value(int index) const
{
    static const QString none;
    const int slot = slotOf(index);
    return slot < 0 ? none : m_texts[slot];
}

const QStringList SalaryEntry::categoryCodes = {QStringLiteral("W"), QStringLiteral("S"),
                                                QStringLiteral("G")};

std::span<const SalaryEntry::Box> SalaryEntry::boxes()
{
    return boxTable;
}

std::span<const SalaryEntry::PerkBox> SalaryEntry::perkBoxes()
{
    return perkTable;
}

QString SalaryEntry::categoryName(int row)
{
    static const QStringList names = {QStringLiteral("Woman"), QStringLiteral("Senior Citizen"),
                                      QStringLiteral("Others")};
    return names.value(row);
}
