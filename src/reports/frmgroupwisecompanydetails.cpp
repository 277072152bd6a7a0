#include "reports/frmgroupwisecompanydetails.h"

#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/storeerror.h"
#include "reports/reportpreview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using screenroutines::commandButton;

namespace {

const QString selectAllText = QStringLiteral("&Select All");
const QString deselectAllText = QStringLiteral("&DeselectAll");

} // namespace

FrmGroupWiseCompanyDetails::FrmGroupWiseCompanyDetails(const DataStore &store,
                                                       MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_details(store),
      m_boxes(boxes),
      m_group(new QComboBox(this)),
      m_companies(new QListWidget(this)),
      m_pageBreak(new QCheckBox(QStringLiteral("Page Break"), this)),
      m_selectAll(commandButton(selectAllText, QStringLiteral("CmdSelAll"), this))
{
    setObjectName(QStringLiteral("frmGroupWiseCompanyDetails"));
    setWindowTitle(QStringLiteral("Group Wise Company"));

    m_group->setObjectName(QStringLiteral("CmbGroup"));
    m_companies->setObjectName(QStringLiteral("LstCompany"));
    m_companies->setSelectionMode(QAbstractItemView::MultiSelection);
    m_pageBreak->setObjectName(QStringLiteral("ChkOption"));
    auto *ok = commandButton(QStringLiteral("&OK"), QStringLiteral("cmdOK"), this);
    auto *close = commandButton(QStringLiteral("&Close"), QStringLiteral("cmdClose"), this);

    auto *groupLabel = new QLabel(QStringLiteral("Select Group"), this);
    groupLabel->setBuddy(m_group);
    auto *companyLabel = new QLabel(QStringLiteral("Select Company"), this);
    companyLabel->setBuddy(m_companies);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_pageBreak);
    buttons->addStretch();
    buttons->addWidget(m_selectAll);
    buttons->addWidget(ok);
    buttons->addWidget(close);
    auto *layout = new QGridLayout(this);
    layout->addWidget(groupLabel, 0, 0);
    layout->addWidget(m_group, 0, 1);
    layout->addWidget(companyLabel, 1, 0, Qt::AlignTop);
    layout->addWidget(m_companies, 1, 1);
    layout->addLayout(buttons, 2, 0, 1, 2);
    layout->setColumnStretch(1, 1);

    connect(m_group, &QComboBox::activated, this, &FrmGroupWiseCompanyDetails::groupChosen);
    connect(m_selectAll, &QPushButton::clicked, this,
            &FrmGroupWiseCompanyDetails::toggleSelection);
    connect(ok, &QPushButton::clicked, this, &FrmGroupWiseCompanyDetails::showReport);
    connect(close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });

    try {
        m_group->addItems(m_details.groupNames());
        m_group->setCurrentIndex(-1);
    } catch (const StoreError &) {
        fail();
    }
    resize(460, 340);
}

void FrmGroupWiseCompanyDetails::showReport()
{
    if (m_companies->count() == 0) {
        m_boxes.show({CompanyDetails::noCompany, appTitle, MessageIcon::Information});
        return;
    }
    QStringList tans;
    for (int row = 0; row < m_companies->count(); ++row) {
        if (m_companies->item(row)->isSelected())
            tans.append(m_companies->item(row)->data(Qt::UserRole).toString());
    }
    if (tans.isEmpty()) {
        m_boxes.show({CompanyDetails::noneSelected, appTitle, MessageIcon::Information});
        return;
    }
    try {
        std::optional<Report> report = m_details.report(
            m_group->currentText(), tans, m_pageBreak->isChecked(), QDate::currentDate());
        if (!report) {
            m_boxes.show({CompanyDetails::noRecord, appTitle, MessageIcon::Information});
            return;
        }
        ReportPreview::open(this, std::make_shared<const Report>(std::move(*report)), m_boxes,
                            QStringLiteral("dRptGrpCmpny"));
    } catch (const StoreError &) {
        fail();
        return;
    }
    screenroutines::closeScreen(this);
}

void FrmGroupWiseCompanyDetails::groupChosen()
{
    m_companies->clear();
    try {
        for (const CompanyChoice &company : m_details.companies(m_group->currentText())) {
            auto *item = new QListWidgetItem(company.text, m_companies);
            item->setData(Qt::UserRole, company.tan);
        }
    } catch (const StoreError &) {
        fail();
    }
}

void FrmGroupWiseCompanyDetails::toggleSelection()
{
    // The button says what it does next: select all, then clear all, and so on.
    const bool select = m_selectAll->text() == selectAllText;
    for (int row = 0; row < m_companies->count(); ++row)
        m_companies->item(row)->setSelected(select);
    m_selectAll->setText(select ? deselectAllText : selectAllText);
}

void FrmGroupWiseCompanyDetails::fail()
{
    m_boxes.show({QStringLiteral("Error Detected."), appTitle, MessageIcon::Critical});
}
