#pragma once

#include "masters/groupmaster.h"

#include <QWidget>

class MessageBoxes;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
struct Session;

/// "Group Master": adds, renames and deletes the groups that companies, employees and
/// deductees belong to. The decisions are GroupMaster's; this screen wires the controls to it.
class FrmGroupMaster : public QWidget
{
    Q_OBJECT

public:
    FrmGroupMaster(Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addGroup();
    void editGroup();
    void saveGroup();
    void cancelEntry();
    void deleteGroup();

    void setCommandButtons(bool browse);
    void fillList(int selectId = 0);
    void showMatchingNames(const QString &typed);
    void reportStoreError(const QString &description);

    GroupMaster m_master;
    MessageBoxes &m_boxes;
    bool m_isEdit = false;

    QTreeWidget *m_list;
    QLineEdit *m_id;
    QLineEdit *m_name;
    QListWidget *m_matches;
    QPushButton *m_add;
    QPushButton *m_edit;
    QPushButton *m_save;
    QPushButton *m_cancel;
    QPushButton *m_delete;
    QPushButton *m_close;
};
