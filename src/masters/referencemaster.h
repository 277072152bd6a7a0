#pragma once

#include <QWidget>

class DataStore;
class MessageBoxes;
class QTreeWidget;

/// The read-only lists of the reference tables (states, deductor categories, ministries): one
/// screen, told which table it shows.
class ReferenceMaster : public QWidget
{
    Q_OBJECT

public:
    enum class Kind { State, Category, Ministry };

    ReferenceMaster(Kind kind, const DataStore &store, MessageBoxes &boxes,
                    QWidget *parent = nullptr);

    /// The objectName of the screen of a kind, as the menu opens it.
    static QString screenName(Kind kind);

    /// A code as the list shows it: a numeric code below 10 with a leading "0".
    static QString codeText(const QString &code);

private:
    void fill(const DataStore &store, const QString &statement, MessageBoxes &boxes);
    void sortByColumn(int column);

    QTreeWidget *m_list;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
