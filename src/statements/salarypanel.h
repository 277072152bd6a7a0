#pragma once

#include "statements/salarysheet.h"

#include <QHash>
#include <QWidget>

class DateBox;
class FieldPath;
class MessageBoxes;
class PerkFrame;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;
class SectionFrame;
class StatementSheet;

/**
 * pctEmp, the salary detail of Form 24Q: one employee's annual statement in the boxes, its
 * sections and perquisites in pop-up frames, and the Statement's salary rows in the list below.
 * A click on the list loads a row to change it; Delete removes one. The decisions are the
 * salary sheet's.
 */
class SalaryPanel : public QWidget
{
    Q_OBJECT

public:
    SalaryPanel(StatementSheet &sheet, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// The user turns to the panel: the employees and rows afresh, empty boxes for a new row.
    void open();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildEmployee();
    void buildFigures(MessageBoxes &boxes);
    void buildFrames(MessageBoxes &boxes);
    void buildList();
    void layOut();
    void setUpPath();
    QWidget *figuresBlock();

    bool leaveField(QWidget *field);
    void boxEdited(int index);
    void perkEdited();
    void frameClosed(SectionFrame *frame, bool ok);
    void perkFrameClosed(bool ok);
    void save();
    void readEntry();
    void showEntry();
    void showFocus();
    QLineEdit *box(int index) const { return m_txt.value(index); }

    StatementSheet &m_statement;
    SalarySheet m_salary;
    QHash<int, QLineEdit *> m_txt;
    QHash<int, QPushButton *> m_details; ///< the button beside a total box
    QComboBox *m_employee = nullptr;
    QComboBox *m_category = nullptr;
    QLabel *m_categoryName = nullptr;
    DateBox *m_from = nullptr;
    DateBox *m_to = nullptr;
    QLineEdit *m_flag = nullptr;
    QLineEdit *m_salaryId = nullptr;
    QLineEdit *m_employeeId = nullptr;
    QPushButton *m_save = nullptr;
    QTableView *m_list = nullptr;
    QList<SectionFrame *> m_frames;
    PerkFrame *m_perks = nullptr;
    FieldPath *m_path = nullptr;
    bool m_showing = false;
};
