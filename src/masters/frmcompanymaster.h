#pragma once

#include "masters/companymaster.h"
#include "masters/companyvalidation.h"

#include <QWidget>

class CompanyFieldsPanel;
class MessageBoxes;
class QComboBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;
struct Session;

/// "Company Master": the deductors of a group with every particular the returns carry. The
/// decisions are CompanyMaster's and CompanyValidation's; this screen runs the list, the buttons
/// and the save, and CompanyFieldsPanel the fields.
class FrmCompanyMaster : public QWidget
{
    Q_OBJECT

public:
    FrmCompanyMaster(Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addCompany();
    void editCompany();
    void saveCompany();
    void cancelEntry();
    void deleteCompany();

    void setCommandButtons(bool browse);
    void filterGroupChanged();
    void fillList(int selectCompId = 0);
    QLineEdit *groupIdField() const;
    void reportStoreError(const QString &description);

    MessageBoxes &m_boxes;
    CompanyMaster m_master;
    CompanyValidation m_validation;
    bool m_isEdit = false;
    bool m_editing = false;
    int m_filterGroupId = 0; // the group whose companies the list shows

    QComboBox *m_group;
    QTreeWidget *m_list;
    CompanyFieldsPanel *m_fields;
    QPushButton *m_add;
    QPushButton *m_edit;
    QPushButton *m_save;
    QPushButton *m_cancel;
    QPushButton *m_delete;
    QPushButton *m_close;
};
