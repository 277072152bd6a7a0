#include "statements/frmstatement.h"

#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "returnfile/form27aactions.h"
#include "statements/annexurepanel.h"
#include "statements/basicinfopanel.h"
#include "statements/coverformvalues.h"
#include "statements/generationframe.h"
#include "statements/salarypanel.h"
#include "statements/challanpanel.h"
#include "statements/panelbuttons.h"
#include "statements/check/findingfields.h"
#include "statements/check/statementcheck.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

using Panel = StatementSheet::Panel;

int indexOf(Panel panel)
{
    return static_cast<int>(panel) - 1;
}

} // namespace

FrmStatement::FrmStatement(const FormTraits &form, Session &session, MessageBoxes &boxes,
                           QWidget *parent)
    : QWidget(parent),
      m_sheet(session, boxes, form),
      m_challans(m_sheet),
      m_annexureRows(m_sheet),
      m_boxes(boxes),
      m_basicInfo(new BasicInfoPanel(m_sheet, boxes, this)),
      m_challan(new ChallanPanel(m_sheet, m_challans, boxes, this)),
      m_panels(new QStackedWidget(this)),
      m_annexure(new AnnexurePanel(m_sheet, m_annexureRows, boxes, this)),
      m_salary(new SalaryPanel(m_sheet, boxes, this)),
      m_generation(new GenerationFrame(m_sheet, boxes, this)),
      m_buttons(new PanelButtons(form, this)),
      m_check(new StatementCheck(this, m_sheet, boxes)),
      m_formCaption(new QLabel(QStringLiteral("     Form ") + form.formType, this)),
      m_companyName(new QLabel(this)),
      m_headCaption(new QLabel(this))
{
    setObjectName(form.screenName);
    setWindowTitle(QStringLiteral("Form ") + form.formType);
    m_formCaption->setObjectName(QStringLiteral("lblFormCaption"));
    m_companyName->setObjectName(QStringLiteral("lblCompanyName"));
    m_headCaption->setObjectName(QStringLiteral("lblHeadeCaption"));
    QFont big = m_formCaption->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    m_formCaption->setFont(big);
    m_companyName->setFont(big);

    m_panels->addWidget(m_basicInfo);
    m_panels->addWidget(m_challan);
    m_panels->addWidget(m_annexure);
    m_panels->addWidget(m_salary);
    m_panels->addWidget(m_generation);
    buildButtons();
    layOut();

    connect(m_buttons, &PanelButtons::panelChosen, this, &FrmStatement::showPanel);
    connect(m_buttons, &PanelButtons::makeFileAsked, this, &FrmStatement::makeFile);
    connect(m_buttons, &PanelButtons::checkAsked, this, &FrmStatement::openCheck);
    connect(m_check, &StatementCheck::findingChosen, this, &FrmStatement::showFinding);
    connect(m_basicInfo, &BasicInfoPanel::challansAsked, this,
            [this] { m_buttons->press(Panel::Challan); });
    connect(m_generation, &GenerationFrame::hideAsked, this,
            [this] { showGenerationFrame(false); });
    connect(m_generation, &GenerationFrame::coverFormAsked, this, &FrmStatement::coverForm);
    m_generation->setListedRows([this] { return m_annexureRows.rows().rowCount(); });
    connect(m_annexure, &AnnexurePanel::challansMade, this, [this] { m_challans.reload(); });
    connect(m_challan, &ChallanPanel::annexureAsked, this,
            [this] { m_buttons->press(Panel::Annexure); });
}

void FrmStatement::buildButtons()
{
    const FormTraits &form = m_sheet.form();
    const QString master = form.hasSalaryDetail ? QStringLiteral("&Employee Master")
                                                : QStringLiteral("Deductee &Master");
    const QStringList commands = {"&Add", "&Save Form", master, "&Delete", "Cl&ose"};
    for (int index = 0; index < 5; ++index) {
        m_cmd[index] = screenroutines::commandButton(
            commands.at(index), QStringLiteral("cmd(%1)").arg(index), this);
        connect(m_cmd[index], &QPushButton::clicked, this, [this, index] { command(index); });
    }
}

void FrmStatement::layOut()
{
    auto *head = new QHBoxLayout;
    head->addWidget(m_formCaption);
    head->addSpacing(24);
    head->addWidget(m_companyName, 1);

    auto *middle = new QHBoxLayout;
    middle->addWidget(m_buttons);
    middle->addWidget(m_panels, 1);

    auto *commands = new QHBoxLayout;
    commands->addStretch();
    for (QPushButton *button : m_cmd)
        commands->addWidget(button);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(m_headCaption);
    layout->addLayout(middle, 1);
    layout->addLayout(commands);
    resize(1180, 600);
}

void FrmStatement::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_opened)
        return;
    // Only the first activation loads: coming back from another screen reloads nothing.
    m_opened = true;
    m_sheet.open();
    // The challans of a stored Statement are listed at once: generation counts them.
    if (m_sheet.basicInfoId() != 0)
        m_challans.reload();
    m_basicInfo->showInfo();
    showAll();
}

void FrmStatement::closeEvent(QCloseEvent *event)
{
    if (!m_noPrompt) {
        syncBasicInfo();
        if (!m_sheet.mayClose()) {
            event->ignore();
            showAll();
            return;
        }
    }
    m_sheet.closed();
    event->accept();
}

void FrmStatement::command(int index)
{
    syncBasicInfo();
    switch (index) {
    case 0:
        m_sheet.operation().addRecord();
        m_challans.list().setRows({});
        m_basicInfo->showInfo();
        showPanel(Panel::BasicInfo);
        return;
    case 1:
        m_sheet.save();
        m_basicInfo->showInfo();
        break;
    case 2:
        emit partyMasterAsked(m_sheet.form().partyMaster);
        return;
    case 3:
        if (m_sheet.deleteStatement()) {
            m_noPrompt = true;
            screenroutines::closeScreen(this);
            return;
        }
        break;
    case 4:
        screenroutines::closeScreen(this);
        return;
    }
    showAll();
}

void FrmStatement::showPanel(Panel panel)
{
    // Choosing a panel hides the generation frame and brings the command buttons back.
    showGenerationFrame(false);
    syncBasicInfo();
    m_sheet.showPanel(panel);
    // The panel shows before it opens, so that its first field can take the focus.
    m_panels->setCurrentIndex(indexOf(m_sheet.panel()));
    if (panel == Panel::Challan)
        m_challan->open();
    else if (panel == Panel::Annexure)
        m_annexure->open();
    else if (panel == Panel::Salary)
        m_salary->open();
    else
        m_basicInfo->showInfo();
    showAll();
}

void FrmStatement::showAll()
{
    const BasicInfo &info = m_sheet.info();
    m_companyName->setText(info.compName + QStringLiteral(" [") + info.asstYear
                           + QStringLiteral("]"));
    m_buttons->showPanels(m_sheet);
    m_cmd[3]->setEnabled(m_sheet.deleteEnabled());
    m_panels->setCurrentIndex(indexOf(m_sheet.panel()));
    const QString form = m_sheet.form().formType;
    switch (m_sheet.panel()) {
    case Panel::Challan:
        m_headCaption->setText(
            QStringLiteral("CHALLAN DETAIL RECORD FOR TDS ANNUAL RETURN [FORM - %1]").arg(form));
        break;
    case Panel::Annexure:
        m_headCaption->setText(QStringLiteral("%1 DETAIL RECORD FOR TDS ANNUAL RETURN [FORM - %2]")
                                   .arg(m_sheet.form().partyWord.toUpper(), form));
        break;
    default:
        m_headCaption->clear();
        break;
    }
    showFocus();
}

void FrmStatement::showFocus()
{
    const QString focus = m_sheet.takeFocus();
    if (focus.isEmpty())
        return;
    if (auto *field = findChild<QWidget *>(focus))
        field->setFocus(Qt::OtherFocusReason);
}

void FrmStatement::syncBasicInfo()
{
    // The panel in front has the user's last word; the other panels change the counts only
    // through the sheet.
    if (m_panels->currentWidget() == m_basicInfo)
        m_basicInfo->readInfo();
    else
        m_basicInfo->showInfo();
}

void FrmStatement::makeFile()
{
    syncBasicInfo();
    const BasicInfo &info = m_sheet.info();
    GenerationRequest request;
    request.groupId = m_sheet.session().curGroupId;
    request.compId = m_sheet.compId();
    request.quarter = m_sheet.session().curQuarter;
    request.basicInfoId = info.basicInfoId;
    request.declaredDeductees = info.noDeductee;
    request.declaredChallans = info.noChallan;
    request.listedAnnexureRows = m_annexureRows.rows().rowCount();
    request.listedChallans = m_challans.list().rowCount();
    GenerationPreparation preparation;
    try {
        preparation = GenerationFlow(m_sheet.session().store, m_sheet.form())
                          .prepare(request, [this] { return saveForFile(); });
    } catch (const StoreError &error) {
        m_sheet.reportStoreError(error);
        return;
    }
    if (preparation.failure) {
        m_boxes.show(preparation.failure->message);
        if (auto *field = findChild<QWidget *>(preparation.failure->field))
            field->setFocus();
        return;
    }
    if (!preparation.panel)
        return;
    m_generation->showPanel(*preparation.panel, QDateTime::currentDateTime(),
                            m_sheet.storedChallans() > 0);
    showGenerationFrame(true);
}

bool FrmStatement::saveForFile()
{
    // What stands on the screen is saved first, as the Save button saves it.
    const bool saved = m_sheet.save();
    m_basicInfo->showInfo();
    showAll();
    return saved;
}

void FrmStatement::openCheck()
{
    syncBasicInfo();
    if (m_sheet.basicInfoId() == 0) {
        m_boxes.show({GenerationFlow::notSavedText, appTitle, MessageIcon::Critical});
        return;
    }
    if (!saveForFile())
        return;
    m_check->show();
}

void FrmStatement::showFinding(const filingcheck::Finding &finding)
{
    if (auto *frame = qobject_cast<QMdiSubWindow *>(parentWidget()))
        frame->mdiArea()->setActiveSubWindow(frame);
    // The field takes the focus as the panel's own move: leaving the name would read the
    // master's particulars over the row's own.
    const QString control = findingfields::controlOf(m_sheet.form(), finding);
    if (finding.challan == 0 && finding.row == 0) {
        showPanel(Panel::BasicInfo);
        m_sheet.requestFocus(control);
        m_basicInfo->showFocus();
    } else if (finding.row == 0) {
        showPanel(Panel::Challan);
        m_challans.loadRow(m_challans.list().find(&ChallanEntry::slNo, finding.challan));
        m_challan->showEntry();
        m_sheet.requestFocus(control);
        m_challan->showFocus();
    } else {
        showPanel(Panel::Annexure);
        const int grid = m_annexureRows.challans().find(&ChallanEntry::slNo, finding.challan);
        if (grid >= 0)
            m_annexureRows.chooseChallan(grid);
        m_annexureRows.loadRow(m_annexureRows.rows().find(&AnnexureEntry::srlNo, finding.row));
        m_annexure->showEntry();
        m_sheet.requestFocus(control);
        m_annexure->showFocus();
    }
}

void FrmStatement::showGenerationFrame(bool shown)
{
    for (QPushButton *button : m_cmd)
        button->setVisible(!shown);
    if (shown) {
        m_panels->setCurrentWidget(m_generation);
        m_generation->setFocus();
    } else {
        m_panels->setCurrentIndex(indexOf(m_sheet.panel()));
    }
}

void FrmStatement::coverForm(bool exportIt)
{
    syncBasicInfo();
    const Form27AValues values = coverFormValues(m_sheet.form().kind, m_sheet.info(),
                                                 m_sheet.session(), *m_generation);
    if (exportIt)
        form27aactions::exportForm27A(this, m_sheet.session().store, m_boxes, values);
    else
        form27aactions::printForm27A(this, m_sheet.session().store, m_boxes, values);
}
