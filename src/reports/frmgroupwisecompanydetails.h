#pragma once

#include "reports/companydetails.h"

#include <QWidget>

class MessageBoxes;
class QCheckBox;
class QComboBox;
class QListWidget;
class QPushButton;

/// Chooses the companies of a group whose details are printed, one after another or each on
/// a page of its own.
class FrmGroupWiseCompanyDetails : public QWidget
{
    Q_OBJECT

public:
    FrmGroupWiseCompanyDetails(const DataStore &store, MessageBoxes &boxes,
                               QWidget *parent = nullptr);

    /// The OK button: the report of the chosen companies, shown beside this screen, which
    /// then closes; a message and nothing else when there is nothing to show.
    void showReport();

private:
    void groupChosen();
    void toggleSelection();
    void fail();

    CompanyDetails m_details;
    MessageBoxes &m_boxes;
    QComboBox *m_group;
    QListWidget *m_companies;
    QCheckBox *m_pageBreak;
    QPushButton *m_selectAll;
};
