#include "statements/sectiongrid.h"

#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/storeerror.h"
#include "statements/sectionrecords.h"

namespace {

using Traits = SectionGrid::Traits;

const Traits traitsTable[] = {
    {SectionKind::Section10, &FormTraits::section10Table, "Sec10", nullptr, {},
     {"Section Name", "Deduction Rs."}, "Fram1", "Section 10", "Gdsec", "CmdSec10",
     "cmdSecOk", "cmdseccancel", 206, 1},
    {SectionKind::Section16, &FormTraits::section16Table, "Sec16", "16(i)",
     {"16(ii)", "16(iii)"}, {"Section Name", "Deduction Rs."}, "Fram2", "Section 16",
     "gdsec16", "cmdDetails16", "cmdSec16Ok", "cmdSec16Cancel", 210, 1},
    {SectionKind::ChapterVIA, &FormTraits::chapterVIATable, "CHAPVIAU", nullptr,
     {"80CCE", "OTHERS"}, {"Section Name", "Amount", "Qualifying Amt.", "Deduct Amt."},
     "Fram3", "Chapter VI A", "gdsecvia", "cmdDetailsvia", "cmdokvia", "cmdcancelvia", 217, 3},
    {SectionKind::Section88, &FormTraits::section88Table, "Sec88", nullptr, {},
     {"Section Name", "Gross Amt.", "Qualifying Amt.", "Deduct Amt."}, "Fram4", "Section 88",
     "gdSec88", "cmddetails88", "cmdok88", "cmdcancel88", 220, 3},
};

bool sameSection(const QString &one, const QString &other)
{
    return one.trimmed().compare(other.trimmed(), Qt::CaseInsensitive) == 0;
}

} // namespace

bool SectionRow::hasAmount() const
{
    for (const QString &amount : amounts) {
        if (!amount.trimmed().isEmpty())
            return true;
    }
    return false;
}

const SectionGrid::Traits &SectionGrid::traits(SectionKind kind)
{
    return traitsTable[static_cast<int>(kind)];
}

bool SectionGrid::isNumericKey(QChar key)
{
    return key.isDigit() || key == u'.';
}

SectionGrid::SectionGrid(SectionKind kind, const SectionRecords &records, MessageBoxes &boxes,
                         QObject *parent)
    : QAbstractTableModel(parent), m_kind(kind), m_records(records), m_boxes(boxes)
{
    m_rows.append(SectionRow());
}

void SectionGrid::setRows(QList<SectionRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_rows.append(SectionRow());
    endResetModel();
}

QList<SectionRow> SectionGrid::enteredRows() const
{
    QList<SectionRow> entered;
    for (const SectionRow &row : m_rows) {
        if (!row.section.isEmpty() && row.hasAmount())
            entered.append(row);
    }
    return entered;
}

Money SectionGrid::total() const
{
    Money sum;
    for (const SectionRow &row : m_rows)
        sum += Money::fromText(row.amounts.at(traits().amountColumns - 1));
    return sum;
}

Money SectionGrid::deductionOf(const QString &section) const
{
    for (const SectionRow &row : m_rows) {
        if (sameSection(row.section, section))
            return Money::fromText(row.amounts.at(traits().amountColumns - 1));
    }
    return {};
}

std::optional<QString> SectionGrid::amountRefusal() const
{
    if (traits().amountColumns < 3)
        return std::nullopt;
    for (const SectionRow &row : m_rows) {
        const Money gross = Money::fromText(row.amounts[0]);
        const Money qualifying = Money::fromText(row.amounts[1]);
        const Money deduction = Money::fromText(row.amounts[2]);
        if (qualifying > gross)
            return qualifyingText;
        if (deduction > qualifying || deduction > gross)
            return deductionText;
    }
    return std::nullopt;
}

int SectionGrid::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int SectionGrid::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1 + traits().amountColumns;
}

QVariant SectionGrid::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const SectionRow &row = m_rows.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return index.column() == 0 ? row.section : row.amounts.at(index.column() - 1);
    if (role == Qt::TextAlignmentRole && index.column() > 0)
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

bool SectionGrid::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || index.row() >= m_rows.size())
        return false;
    const QString text = value.toString().trimmed();
    if (index.column() == 0)
        return setSection(index.row(), text);
    QString &amount = m_rows[index.row()].amounts[index.column() - 1];
    amount = text.isEmpty() ? QString() : Money::fromText(text).toText();
    emit dataChanged(index, index);
    return true;
}

bool SectionGrid::setSection(int row, const QString &section)
{
    if (section == m_rows.at(row).section)
        return true;
    std::optional<QString> known;
    try {
        known = m_records.masterName(section);
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical});
        return false;
    }
    if (!known)
        return refuse(invalidSectionText);
    for (int other = 0; other < m_rows.size(); ++other) {
        if (other != row && sameSection(m_rows.at(other).section, section))
            return refuse(duplicateSectionText);
    }
    // Spelled as the master spells it: the return file carries the name.
    m_rows[row].section = *known;
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    if (row == m_rows.size() - 1) {
        beginInsertRows({}, int(m_rows.size()), int(m_rows.size()));
        m_rows.append(SectionRow());
        endInsertRows();
    }
    return true;
}

bool SectionGrid::refuse(const QString &text) const
{
    m_boxes.show({text, appTitle, MessageIcon::Information});
    return false;
}

Qt::ItemFlags SectionGrid::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    // An amount needs its section first, so that no amount is written without one.
    if (index.column() == 0 || !m_rows.at(index.row()).section.isEmpty())
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant SectionGrid::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0
        || section >= columnCount())
        return {};
    return QLatin1String(traits().heads.at(section));
}
