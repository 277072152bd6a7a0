#pragma once

#include <QHash>
#include <QWidget>

class AnnexureSheet;
class ChallanBlock;
class DateBox;
class FieldPath;
class MessageBoxes;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class RowListView;
class StatementSheet;

/**
 * pctDedt: the challans of the Statement in a grid above, the chosen challan's particulars
 * beside it, the row being entered below, and the challan's rows in a list at the bottom. A
 * deductee's (or an employee's) particulars come from the master as the name is left; Enter
 * walks the row and saves from the deduction options. The decisions are the annexure sheet's.
 */
class AnnexurePanel : public QWidget
{
    Q_OBJECT

public:
    AnnexurePanel(StatementSheet &statement, AnnexureSheet &rows, MessageBoxes &boxes,
                  QWidget *parent = nullptr);

    /// The panel comes to the front: the challans and the parties afresh.
    void open();
    void readEntry();
    void showEntry();
    /// The field that the sheet asked for takes the focus, as the panel's own move: the field
    /// that loses it is not checked.
    void showFocus();

signals:
    /// Form 24Q's rows were turned into challans: the Statement's challans are new.
    void challansMade();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildBoxes(MessageBoxes &boxes);
    void buildLists();
    void layOut();
    void setUpPath();
    void connectBoxes();
    bool leaveBox(QWidget *box);
    void save();
    void changed(void (AnnexureSheet::*step)());
    QLineEdit *box(const QString &name) const;

    StatementSheet &m_statement;
    AnnexureSheet &m_sheet;
    QHash<QString, QLineEdit *> m_boxes;
    ChallanBlock *m_challanBlock = nullptr;
    QComboBox *m_party = nullptr;
    QComboBox *m_state = nullptr;
    QComboBox *m_grossingUp = nullptr;
    DateBox *m_date = nullptr;
    DateBox *m_fromDate = nullptr;
    DateBox *m_toDate = nullptr;
    QRadioButton *m_flags[3] = {};
    QPushButton *m_save = nullptr;
    QPushButton *m_transfer = nullptr;
    RowListView *m_challans = nullptr;
    RowListView *m_rows = nullptr;
    FieldPath *m_path = nullptr;
    bool m_showing = false;
};
