#pragma once

#include "reports/companydetails.h"
#include "reports/picklistscreen.h"

/// Chooses the companies of a group whose details are printed, one after another or each on
/// a page of its own.
class FrmGroupWiseCompanyDetails : public PickListScreen
{
    Q_OBJECT

public:
    FrmGroupWiseCompanyDetails(const DataStore &store, MessageBoxes &boxes,
                               QWidget *parent = nullptr);

    /// The OK button: the report of the chosen companies, shown beside this screen, which
    /// then closes; a message and nothing else when there is nothing to show.
    void showReport() override;

private:
    QList<PickListRow> rowsOf(const QString &group) const override;

    CompanyDetails m_details;
};
