#include "reports/frmreport.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/records.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "reports/basicinfoprintout.h"
#include "reports/reportmessages.h"
#include "reports/reportpreview.h"
#include "reports/salaryannexure.h"
#include "reports/statementannexures.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QVBoxLayout>

using screenroutines::commandButton;

namespace {

const FormTraits *formOfReport(const QString &reportForm)
{
    for (const FormTraits &form : allForms()) {
        if (form.reportForm == reportForm)
            return &form;
    }
    return nullptr;
}

} // namespace

FrmReport::FrmReport(Session &session, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_boxes(boxes),
      m_form(formOfReport(session.curReportForm)),
      m_company(new QLineEdit(this)),
      m_panel(new QWidget(this))
{
    setObjectName(QStringLiteral("FrmReport"));
    setWindowTitle(QStringLiteral("Report"));
    m_company->setObjectName(QStringLiteral("txtCompName"));
    m_company->setReadOnly(true);
    auto *head = new QLabel(QStringLiteral("Company Name"), this);
    head->setObjectName(QStringLiteral("lblHd"));

    const bool salaryForm = m_form && m_form->hasSalaryDetail;
    auto *basic = commandButton(QStringLiteral("Basic Info"), QStringLiteral("cmdBasic"), this);
    auto *challans = commandButton(QStringLiteral("Challan"), QStringLiteral("cmdChalln"), this);
    auto *rows = commandButton(salaryForm ? QStringLiteral("&Employee")
                                          : QStringLiteral("&Deductee"),
                               QStringLiteral("cmdEmployee"), this);
    auto *salary = commandButton(QStringLiteral("Annexure"), QStringLiteral("cmdPreq"), this);
    salary->setEnabled(salaryForm && session.curQuarter == u"Q4");
    auto *form16A =
        commandButton(QStringLiteral("Form No. 16A"), QStringLiteral("cmdFormNo16A"), this);
    for (QPushButton *button : {basic, challans, rows})
        button->setEnabled(m_form != nullptr);

    // The lower panel takes the certificate's inputs; the certificates themselves are printed
    // from the Form 16A screens, so what is typed here goes nowhere.
    auto *panelForm = new QFormLayout;
    const QList<std::pair<const char *, const char *>> panelFields = {
        {"txtAcknowledgementNo", "Acknowledgement No."}, {"txtPlace", "Place"},
        {"txtDate", "Date"}, {"txtFullName", "Full Name"}, {"txtDesignation", "Designation"}};
    for (const auto &[name, label] : panelFields) {
        QLineEdit *box = textBox(QLatin1String(name));
        panelForm->addRow(QLatin1String(label), box);
        box->installEventFilter(this);
        m_panelBoxes << box;
    }
    auto *ok = commandButton(QStringLiteral("OK"), QStringLiteral("cmdOK"), m_panel);
    auto *cancel = commandButton(QStringLiteral("Cancel"), QStringLiteral("cmdCancel"), m_panel);
    auto *panelButtons = new QHBoxLayout;
    panelButtons->addStretch();
    panelButtons->addWidget(ok);
    panelButtons->addWidget(cancel);
    auto *panelLayout = new QVBoxLayout(m_panel);
    panelLayout->setContentsMargins(0, 0, 0, 0);
    panelLayout->addLayout(panelForm);
    panelLayout->addLayout(panelButtons);
    m_panel->setVisible(false);

    auto *buttons = new QGridLayout;
    const QList<QPushButton *> all = {basic, challans, rows, salary, form16A};
    for (int index = 0; index < all.size(); ++index)
        buttons->addWidget(all[index], index / 3, index % 3);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(head);
    layout->addWidget(m_company);
    layout->addLayout(buttons);
    layout->addWidget(m_panel);
    layout->addStretch();

    connect(basic, &QPushButton::clicked, this, &FrmReport::printBasicInfo);
    connect(challans, &QPushButton::clicked, this, &FrmReport::printChallans);
    connect(rows, &QPushButton::clicked, this, &FrmReport::printAnnexure);
    connect(salary, &QPushButton::clicked, this, &FrmReport::printSalaryAnnexure);
    connect(form16A, &QPushButton::clicked, this, [this] { showPanel(true); });
    connect(cancel, &QPushButton::clicked, this, [this] { showPanel(false); });

    try {
        m_company->setText(records::lookupText(session.store, QStringLiteral("mstCompany"),
                                               QStringLiteral("CompID"),
                                               QStringLiteral("CompName"), session.curCompId));
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical});
    }
    // The screen stands at the top left of the main window's area.
    screenroutines::setPlacement(this, screenroutines::Placement::TopLeft);
    resize(420, 160);
}

bool FrmReport::eventFilter(QObject *watched, QEvent *event)
{
    if (screenroutines::isEnterKey(event) && m_panelBoxes.contains(watched)) {
        focusNextChild();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

QLineEdit *FrmReport::textBox(const QString &name)
{
    auto *box = new QLineEdit(m_panel);
    box->setObjectName(name);
    return box;
}

void FrmReport::print(const QString &name, const Build &build, bool saysWhenEmpty)
{
    const PrintoutHeading heading{m_company->text(), m_session.asstStartDt, m_session.asstEndDt,
                                  QDate::currentDate()};
    try {
        std::optional<Report> report = build(heading);
        if (!report) {
            if (saysWhenEmpty)
                m_boxes.show({reportmessages::noRecord, appTitle, MessageIcon::Information});
            return;
        }
        ReportPreview::open(this, std::make_shared<const Report>(std::move(*report)), m_boxes,
                            name);
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical});
    }
}

void FrmReport::printBasicInfo()
{
    // A Statement that is not there prints nothing, without a word.
    print(QStringLiteral("Drpt%1Basic").arg(m_form->reportForm.mid(4)),
          [this](const PrintoutHeading &heading) {
              return basicinfoprintout::build(m_session.store, *m_form, m_session.curCompId,
                                              m_session.curBasicInfoId, m_session.curQuarter,
                                              heading);
          },
          false);
}

void FrmReport::printChallans()
{
    print(QStringLiteral("crChallan%1").arg(m_form->reportForm.mid(4)),
          [this](const PrintoutHeading &heading) {
              return statementannexures::challans(m_session.store, *m_form,
                                                  m_session.curBasicInfoId, heading);
          },
          true);
}

void FrmReport::printAnnexure()
{
    print(QStringLiteral("crAnnexure%1").arg(m_form->reportForm.mid(4)),
          [this](const PrintoutHeading &heading) {
              return statementannexures::annexure(m_session.store, *m_form,
                                                  m_session.curBasicInfoId, heading);
          },
          true);
}

void FrmReport::printSalaryAnnexure()
{
    print(QStringLiteral("crSalary24"),
          [this](const PrintoutHeading &heading) -> std::optional<Report> {
              return salaryannexure::build(m_session.store, heading);
          },
          true);
}

void FrmReport::showPanel(bool shown)
{
    m_panel->setVisible(shown);
    if (shown)
        m_panelBoxes.first()->setFocus();
    // The window grows or shrinks to the panel, keeping its width.
    QWidget *window = qobject_cast<QMdiSubWindow *>(parentWidget()) ? parentWidget() : this;
    const int width = window->width();
    window->adjustSize();
    window->resize(width, window->height());
}
