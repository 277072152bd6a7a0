#include "statements/salarylistmodel.h"

#include "core/numbers.h"

namespace {

const char *const fixedHeads[SalaryListModel::FirstAmountColumn] = {
    "Srl No", "Employee Name", "Salary Id", "PAN", "PAN REF", "Designation", "From", "To",
    "Category"};

QString listAmount(const QString &text)
{
    return text.isEmpty() ? text : Money::fromText(text).toPaddedText();
}

QString listDate(const QDate &date)
{
    return date.toString(QStringLiteral("dd/MM/yyyy"));
}

/// A box's label without its item number and the doubled ampersands of a caption.
QString head(const char *label)
{
    QString text = QString::fromLatin1(label);
    const qsizetype bracket = text.indexOf(u'[');
    if (bracket > 0)
        text.truncate(bracket);
    return text.replace(QStringLiteral("&&"), QStringLiteral("&")).simplified();
}

} // namespace

SalaryListModel::SalaryListModel(QObject *parent) : QAbstractTableModel(parent)
{
    for (const SalaryEntry::Box &box : SalaryEntry::boxes()) {
        if (box.column && box.isAmount())
            m_amounts << box.index;
    }
    const auto perks = SalaryEntry::perkBoxes();
    for (int i = 0; i < int(perks.size()); ++i) {
        if (perks[i].column)
            m_amounts << -1 - i;
    }
}

void SalaryListModel::setRows(QList<SalaryEntry> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void SalaryListModel::setRow(int index, const SalaryEntry &entry)
{
    m_rows[index] = entry;
    emit dataChanged(this->index(index, 0), this->index(index, columnCount() - 1));
}

void SalaryListModel::append(const SalaryEntry &entry)
{
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size()));
    m_rows.append(entry);
    endInsertRows();
}

int SalaryListModel::findSalaryId(int salaryId) const
{
    for (int index = 0; index < m_rows.size(); ++index) {
        if (int(numbers::val(m_rows.at(index).salaryId)) == salaryId)
            return index;
    }
    return -1;
}

int SalaryListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int SalaryListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : FirstAmountColumn + int(m_amounts.size());
}

QVariant SalaryListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const int column = index.column();
    if (role == Qt::TextAlignmentRole && (column >= FirstAmountColumn || column == 0))
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const SalaryEntry &row = m_rows.at(index.row());
    switch (column) {
    case SerialColumn: return row.box(201);
    case NameColumn: return row.empName;
    case IdColumn: return row.salaryId;
    case PanColumn: return row.box(202);
    case PanRefColumn: return row.box(2);
    case DesignationColumn: return row.box(3);
    case FromColumn: return listDate(row.fromDate);
    case ToColumn: return listDate(row.toDate);
    case CategoryColumn: return SalaryEntry::categoryCodes.value(row.category);
    default: break;
    }
    const int amount = m_amounts.value(column - FirstAmountColumn);
    return listAmount(amount >= 0 ? row.box(amount) : row.perk.at(-1 - amount));
}

QVariant SalaryListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0
        || section >= columnCount())
        return {};
    if (section < FirstAmountColumn)
        return QLatin1String(fixedHeads[section]);
    const int amount = m_amounts.at(section - FirstAmountColumn);
    if (amount < 0)
        return head(SalaryEntry::perkBoxes()[-1 - amount].label);
    for (const SalaryEntry::Box &box : SalaryEntry::boxes()) {
        if (box.index == amount)
            return head(box.label);
    }
    return {};
}
