#pragma once

#include "core/companyselection.h"

#include <QWidget>

class MessageBoxes;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
struct Session;

/// "Select Company": the choice of group, company and quarter before a statement or a printout.
/// The decisions are CompanySelection's; this screen collects the choice and reports the outcome.
class FrmLogin : public QWidget
{
    Q_OBJECT

public:
    FrmLogin(Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

    /// GetQuarter: the code of the chosen quarter; sets the session's quarter dates and the
    /// period label, or shows the invalid-choice box and empties the label.
    QString getQuarter();

signals:
    /// A selection that leads to a screen; the selection screen closes right after.
    void selected(const CompanySelection::Outcome &outcome);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillGroups();
    void groupChanged();
    void fillCompanies();
    void runSelection();

    CompanySelection m_selection;
    QComboBox *m_group;
    QLineEdit *m_groupId;
    QTreeWidget *m_companies;
    QComboBox *m_quarter;
    QLabel *m_quarterLabel;
    QPushButton *m_select;
    QPushButton *m_cancel;
};
