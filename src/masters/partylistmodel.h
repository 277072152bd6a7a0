#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QVariantList>

#include <vector>

class DataStore;

/**
 * The rows of a master list (employees or deductees of a group) as the list statement returns
 * them, all columns as text. A group can hold tens of thousands of parties: the rows are read in
 * one forward pass into one flat array, and the view asks only for the rows it paints.
 */
class PartyListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit PartyListModel(const QStringList &headers, QObject *parent = nullptr);

    /// Replaces the rows with those of the statement, whose columns match the headers. A store
    /// failure passes to the caller and leaves the list empty.
    void load(const DataStore &store, const QString &statement, const QVariantList &values);
    void clear();

    /// The text of a cell, trimmed; empty outside the rows.
    QString text(int row, int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QStringList m_headers;
    std::vector<QString> m_cells; ///< row after row
    int m_rows = 0;
};
