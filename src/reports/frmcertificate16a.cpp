#include "reports/frmcertificate16a.h"

#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "reports/reportmessages.h"
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

FrmCertificate16A::FrmCertificate16A(const Session &session, MessageBoxes &boxes,
                                     QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_certificates(session.store),
      m_boxes(boxes),
      m_company(new QComboBox(this)),
      m_deductees(new QListWidget(this)),
      m_pageBreak(new QCheckBox(QStringLiteral("Page Break"), this)),
      m_selectAll(commandButton(selectAllText, QStringLiteral("CmdSelAll"), this))
{
    setObjectName(QStringLiteral("frmCertificate16A"));
    setWindowTitle(QStringLiteral("Form 16 A"));
    m_company->setObjectName(QStringLiteral("cmbCompany"));
    m_deductees->setObjectName(QStringLiteral("lstDeductee"));
    m_deductees->setSelectionMode(QAbstractItemView::MultiSelection);
    m_pageBreak->setObjectName(QStringLiteral("ChkOption"));
    auto *ok = commandButton(QStringLiteral("&OK"), QStringLiteral("cmdOK"), this);
    auto *close = commandButton(QStringLiteral("&Close"), QStringLiteral("cmdClose"), this);

    auto *companyLabel = new QLabel(QStringLiteral("Company"), this);
    companyLabel->setBuddy(m_company);
    auto *deducteeLabel = new QLabel(QStringLiteral("Deductee"), this);
    deducteeLabel->setBuddy(m_deductees);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_pageBreak);
    buttons->addStretch();
    buttons->addWidget(m_selectAll);
    buttons->addWidget(ok);
    buttons->addWidget(close);
    auto *layout = new QGridLayout(this);
    layout->addWidget(companyLabel, 0, 0);
    layout->addWidget(m_company, 0, 1);
    layout->addWidget(deducteeLabel, 1, 0, Qt::AlignTop);
    layout->addWidget(m_deductees, 1, 1);
    layout->addLayout(buttons, 2, 0, 1, 2);
    layout->setColumnStretch(1, 1);

    connect(m_company, &QComboBox::activated, this, &FrmCertificate16A::companyChosen);
    connect(m_selectAll, &QPushButton::clicked, this, &FrmCertificate16A::toggleSelection);
    connect(ok, &QPushButton::clicked, this, &FrmCertificate16A::showCertificates);
    connect(close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });

    try {
        m_company->addItems(m_certificates.companyNames());
        m_company->setCurrentIndex(-1);
    } catch (const StoreError &) {
        fail();
    }
    resize(460, 340);
}

void FrmCertificate16A::showCertificates()
{
    if (m_deductees->count() == 0) {
        m_boxes.show({Certificate16A::noDeductee, appTitle, MessageIcon::Information});
        return;
    }
    QList<int> keys;
    for (int row = 0; row < m_deductees->count(); ++row) {
        if (m_deductees->item(row)->isSelected())
            keys << m_deductees->item(row)->data(Qt::UserRole).toInt();
    }
    if (keys.isEmpty()) {
        m_boxes.show({Certificate16A::noneSelected, appTitle, MessageIcon::Information});
        return;
    }
    try {
        std::optional<Report> report = m_certificates.report(
            keys, m_pageBreak->isChecked(), m_session.asstStartDt, m_session.asstEndDt);
        if (!report) {
            m_boxes.show({reportmessages::noRecord, appTitle, MessageIcon::Information});
            return;
        }
        ReportPreview::open(this, std::make_shared<const Report>(std::move(*report)), m_boxes,
                            QStringLiteral("crCertificate16A"));
    } catch (const StoreError &) {
        fail();
    }
}

void FrmCertificate16A::companyChosen()
{
    m_deductees->clear();
    try {
        for (const Certificate16A::Row &row :
             m_certificates.deductees(m_company->currentText())) {
            auto *item = new QListWidgetItem(row.name, m_deductees);
            item->setData(Qt::UserRole, row.id);
        }
    } catch (const StoreError &) {
        fail();
    }
}

void FrmCertificate16A::toggleSelection()
{
    // The button says what it does next: select all, then clear all, and so on.
    const bool select = m_selectAll->text() == selectAllText;
    for (int row = 0; row < m_deductees->count(); ++row)
        m_deductees->item(row)->setSelected(select);
    m_selectAll->setText(select ? deselectAllText : selectAllText);
}

void FrmCertificate16A::fail()
{
    m_boxes.show({QStringLiteral("Error Detected."), appTitle, MessageIcon::Critical});
}
