#pragma once

#include <QVariant>
#include <QWidget>

class MessageBoxes;
class QCheckBox;
class QComboBox;
class QListWidget;
class QPushButton;

/// One line of a pick list: what it shows and the key that the report is built from.
struct PickListRow
{
    QString text;
    QVariant key;
};

/**
 * A screen that prints the rows ticked in a list: an owner chosen in a combo (a group, a
 * company), its rows in the list, "Page Break", a button that selects or clears every row, OK
 * and Close. The screens built on it say what the owners and rows are and what OK prints.
 */
class PickListScreen : public QWidget
{
    Q_OBJECT

public:
    /// The OK button.
    virtual void showReport() = 0;

protected:
    struct Names
    {
        const char *screen;
        const char *title;
        const char *ownerLabel;
        const char *ownerName;
        const char *listLabel;
        const char *listName;
    };

    PickListScreen(const Names &names, MessageBoxes &boxes, QWidget *parent);

    /// Fills the owners' combo, none chosen; a store failure is said.
    void showOwners(const std::function<QStringList()> &owners);
    /// The rows of an owner; throws StoreError.
    virtual QList<PickListRow> rowsOf(const QString &owner) const = 0;

    QString owner() const;
    bool pageBreak() const;
    int rowCount() const;
    QVariantList tickedKeys() const;
    MessageBoxes &boxes() const { return m_boxes; }
    /// A store failure, as these screens have always said it.
    void fail() const;

private:
    void ownerChosen();
    void toggleSelection();

    MessageBoxes &m_boxes;
    QComboBox *m_owner;
    QListWidget *m_rows;
    QCheckBox *m_pageBreak;
    QPushButton *m_selectAll;
};
