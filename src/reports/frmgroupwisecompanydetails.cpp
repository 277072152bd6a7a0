#include "reports/frmgroupwisecompanydetails.h"

#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/storeerror.h"
#include "reports/reportpreview.h"

FrmGroupWiseCompanyDetails::FrmGroupWiseCompanyDetails(const DataStore &store,
                                                       MessageBoxes &boxes, QWidget *parent)
    : PickListScreen({"frmGroupWiseCompanyDetails", "Group Wise Company", "Select Group",
                      "CmbGroup", "Select Company", "LstCompany"},
                     boxes, parent),
      m_details(store)
{
    showOwners([this] { return m_details.groupNames(); });
}

void FrmGroupWiseCompanyDetails::showReport()
{
    if (rowCount() == 0) {
        boxes().show({CompanyDetails::noCompany, appTitle, MessageIcon::Information});
        return;
    }
    QStringList tans;
    for (const QVariant &key : tickedKeys())
        tans.append(key.toString());
    if (tans.isEmpty()) {
        boxes().show({CompanyDetails::noneSelected, appTitle, MessageIcon::Information});
        return;
    }
    try {
        std::optional<Report> report =
            m_details.report(owner(), tans, pageBreak(), QDate::currentDate());
        if (!report) {
            boxes().show({CompanyDetails::noRecord, appTitle, MessageIcon::Information});
            return;
        }
        ReportPreview::open(this, std::make_shared<const Report>(std::move(*report)), boxes(),
                            QStringLiteral("dRptGrpCmpny"));
    } catch (const StoreError &) {
        fail();
        return;
    }
    screenroutines::closeScreen(this);
}

QList<PickListRow> FrmGroupWiseCompanyDetails::rowsOf(const QString &group) const
{
    QList<PickListRow> rows;
    for (const CompanyChoice &company : m_details.companies(group))
        rows.append({company.text, company.tan});
    return rows;
}
