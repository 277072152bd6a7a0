#pragma once

#include <QHash>
#include <QWidget>

class ChallanSheet;
class DateBox;
class FieldPath;
class MessageBoxes;
class QComboBox;
class QLineEdit;
class QPushButton;
class RowListView;
class StatementSheet;

/**
 * pctChallan: one challan at a time in the boxes above, the Statement's challans in the list
 * below. Enter walks the boxes in the order a challan counterfoil is read and saves from the
 * remarks; a click on the list loads a challan to change it; Delete removes one. The decisions
 * are the challan sheet's.
 */
class ChallanPanel : public QWidget
{
    Q_OBJECT

public:
    ChallanPanel(StatementSheet &statement, ChallanSheet &challans, MessageBoxes &boxes,
                 QWidget *parent = nullptr);

    /// The panel comes to the front: cleared boxes, the list afresh.
    void open();
    /// The boxes into the sheet, and back.
    void readEntry();
    void showEntry();
    /// The field that the sheet asked for takes the focus, as the panel's own move: the field
    /// that loses it is not checked.
    void showFocus();

signals:
    /// End in the interest box or the section: on to the annexure rows.
    void annexureAsked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildBoxes(MessageBoxes &boxes);
    void layOut();
    void setUpPath();
    bool leaveBox(QWidget *box);
    void save();
    void boxEdited();
    QLineEdit *box(const QString &name) const;

    StatementSheet &m_statement;
    ChallanSheet &m_challans;
    QHash<QString, QLineEdit *> m_boxes;
    QComboBox *m_section = nullptr;
    QLineEdit *m_sectionDescription = nullptr;
    DateBox *m_date = nullptr;
    QPushButton *m_save = nullptr;
    RowListView *m_list = nullptr;
    FieldPath *m_path = nullptr;
    bool m_showing = false;
};
