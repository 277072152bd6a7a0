#pragma once

#include <QHash>
#include <QWidget>

class FieldPath;
class MessageBoxes;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class StatementSheet;

/**
 * pctBasicInfo: the Statement's basic information. The deductor's particulars are copies of the
 * company master and read-only; the branch, the states, the declared counts, the two address
 * questions and the revised return are the user's. The decisions are the sheet's: the panel
 * copies its fields into it and shows what it holds.
 */
class BasicInfoPanel : public QWidget
{
    Q_OBJECT

public:
    BasicInfoPanel(StatementSheet &sheet, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// The fields into the sheet's basic information.
    void readInfo();
    /// The sheet's basic information into the fields.
    void showInfo();

    /// The field that the sheet asked for takes the focus, as the panel's own move.
    void showFocus();

    /// A field by its objectName, or null.
    QWidget *field(const QString &name) const { return m_fields.value(name); }

signals:
    /// Enter on the revised return: on to the challans.
    void challansAsked();

private:
    void buildFields(MessageBoxes &boxes);
    void layOut();
    void setUpPath();
    void connectFields();
    bool leaveField(QWidget *field);
    QLineEdit *edit(const QString &name) const;
    QComboBox *combo(const QString &name) const;

    StatementSheet &m_sheet;
    QHash<QString, QWidget *> m_fields;
    QRadioButton *m_addressChanged[2] = {};
    QRadioButton *m_personAddressChanged[2] = {};
    QComboBox *m_revised = nullptr;
    QLabel *m_tanReceiptLabel = nullptr;
    QLabel *m_revisedReceiptLabel = nullptr;
    FieldPath *m_path = nullptr;
    bool m_showing = false;
};
