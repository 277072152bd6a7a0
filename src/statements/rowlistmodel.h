#pragma once

#include "core/numbers.h"

#include <QAbstractTableModel>
#include <QList>

#include <algorithm>
#include <span>

/**
 * A list of a panel's entries read from the store in one pass and shown as a table: the panels'
 * lists of challans and of annexure rows. The panel searches it for a numbered entry and takes
 * the next number from it, as the lists have always been the working copy of the rows.
 */
template<typename Row>
class RowListModel : public QAbstractTableModel
{
public:
    explicit RowListModel(std::span<const char *const> headers, QObject *parent = nullptr)
        : QAbstractTableModel(parent), m_headers(headers)
    {
    }

    void setRows(QList<Row> rows)
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }
    const QList<Row> &rows() const { return m_rows; }
    /// One row changed, added or taken out, without reading the others again.
    void replaceRow(int index, Row row)
    {
        m_rows[index] = std::move(row);
        emit dataChanged(this->index(index, 0), this->index(index, columnCount() - 1));
    }
    void appendRow(Row row)
    {
        beginInsertRows({}, int(m_rows.size()), int(m_rows.size()));
        m_rows.append(std::move(row));
        endInsertRows();
    }
    void takeRow(int index)
    {
        beginRemoveRows({}, index, index);
        m_rows.removeAt(index);
        endRemoveRows();
    }
    const Row &row(int index) const { return m_rows.at(index); }

    /// The first row whose number (a text member) is @p number, or -1.
    int find(QString Row::*member, int number) const
    {
        for (int index = 0; index < m_rows.size(); ++index) {
            if (int(numbers::val(m_rows.at(index).*member)) == number)
                return index;
        }
        return -1;
    }
    /// The highest number of the list plus one; 1 for an empty list.
    int nextNumber(QString Row::*member) const
    {
        int highest = 0;
        for (const Row &row : m_rows)
            highest = std::max(highest, int(numbers::val(row.*member)));
        return highest + 1;
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_headers.size());
    }
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        if (!index.isValid() || index.row() >= m_rows.size())
            return {};
        if (role == Qt::DisplayRole)
            return cell(m_rows.at(index.row()), index.column());
        if (role == Qt::TextAlignmentRole && isNumber(index.column()))
            return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0
            || section >= int(m_headers.size()))
            return {};
        return QLatin1String(m_headers[section]);
    }

protected:
    virtual QString cell(const Row &row, int column) const = 0;
    /// Numbers and amounts stand to the right.
    virtual bool isNumber(int column) const = 0;

    QList<Row> m_rows;

private:
    std::span<const char *const> m_headers;
};
