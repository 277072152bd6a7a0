#include "masters/partylistmodel.h"

#include "core/datastore.h"
#include "core/records.h"

#include <QSqlQuery>

PartyListModel::PartyListModel(const QStringList &headers, QObject *parent)
    : QAbstractTableModel(parent), m_headers(headers)
{
}

void PartyListModel::load(const DataStore &store, const QString &statement,
                          const QVariantList &values)
{
    beginResetModel();
    m_cells.clear();
    m_rows = 0;
    try {
        QSqlQuery query = store.exec(statement, values);
        const int columns = static_cast<int>(m_headers.size());
        while (query.next()) {
            for (int column = 0; column < columns; ++column)
                m_cells.push_back(records::nullToText(query.value(column)));
            ++m_rows;
        }
    } catch (...) {
        m_cells.clear();
        m_rows = 0;
        endResetModel();
        throw;
    }
    endResetModel();
}

void PartyListModel::clear()
{
    beginResetModel();
    m_cells.clear();
    m_rows = 0;
    endResetModel();
}

QString PartyListModel::text(int row, int column) const
{
    if (row < 0 || row >= m_rows || column < 0 || column >= m_headers.size())
        return {};
    return m_cells[static_cast<std::size_t>(row) * m_headers.size() + column];
}

int PartyListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int PartyListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
}

QVariant PartyListModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    return text(index.row(), index.column());
}

QVariant PartyListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0
        || section >= m_headers.size())
        return {};
    return m_headers.at(section);
}
