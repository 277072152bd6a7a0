#include "statements/check/frmfilingcheck.h"

#include "core/datebox.h"
#include "core/formtraits.h"
#include "core/fieldrules.h"
#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/storeerror.h"
#include "reports/reportexport.h"
#include "reports/reportpreview.h"
#include "statements/check/findinglistmodel.h"
#include "statements/check/findingsreport.h"
#include "statements/rowlistview.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int measuredFindings = 1000;

constexpr reportexport::Filter exportFilters[] = {
    {"Excel File (*.xlsx)", reportfile::Format::Workbook},
    {"PDF File (*.pdf)", reportfile::Format::Pdf},
};

QString summaryOf(const filingcheck::CheckResult &result)
{
    if (result.findings.isEmpty())
        return QStringLiteral("Nothing found that the authority's validation would refuse.");
    return QStringLiteral("Errors: %1    Warnings: %2")
        .arg(result.errors())
        .arg(result.warnings());
}

} // namespace

FrmFilingCheck::FrmFilingCheck(const DataStore &store, const FormTraits &form, int basicInfoId,
                               const QStringList &heading, FieldLabel fieldLabel,
                               MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_store(store),
      m_form(form),
      m_basicInfoId(basicInfoId),
      m_heading(heading),
      m_fieldLabel(std::move(fieldLabel)),
      m_boxes(boxes),
      m_findings(new FindingListModel(this)),
      m_dues(new DueListModel(this)),
      m_filedOn(new DateBox(QStringLiteral("dtpFiledOn"), this)),
      m_summary(new QLabel(this)),
      m_findingList(new RowListView(QStringLiteral("lstvFindings"), m_findings, this)),
      m_dueList(new RowListView(QStringLiteral("lstvDues"), m_dues, this)),
      m_working(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("frmFilingCheck"));
    setWindowTitle(findingsreport::title + QStringLiteral(" - Form ") + form.formType);
    m_filedOn->setDate(QDate::currentDate());
    m_summary->setObjectName(QStringLiteral("lblSummary"));
    m_working->setObjectName(QStringLiteral("txtWorking"));
    m_working->setReadOnly(true);
    // What is wrong reads whole: its column takes the width that is left, and wraps.
    m_findingList->horizontalHeader()->setSectionResizeMode(FindingListModel::MessageColumn,
                                                            QHeaderView::Stretch);
    m_findingList->setWordWrap(true);
    m_findingList->installEventFilter(this);
    connect(m_findingList, &QTableView::doubleClicked, this,
            [this](const QModelIndex &index) { chooseFinding(index.row()); });
    connect(m_dueList->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { showWorking(current.row()); });
    layOut();
    resize(1000, 560);
}

void FrmFilingCheck::layOut()
{
    auto *heading = new QLabel(m_heading.join(QStringLiteral("    ")), this);
    heading->setObjectName(QStringLiteral("lblHeading"));
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);

    auto *dateLabel = new QLabel(QStringLiteral("&Filing date"), this);
    dateLabel->setBuddy(m_filedOn);
    auto *recheck = screenroutines::commandButton(QStringLiteral("Re&check"),
                                                  QStringLiteral("cmdRecheck"), this);
    connect(recheck, &QPushButton::clicked, this, &FrmFilingCheck::run);
    auto *top = new QHBoxLayout;
    top->addWidget(dateLabel);
    top->addWidget(m_filedOn);
    top->addWidget(recheck);
    top->addSpacing(24);
    top->addWidget(m_summary, 1);

    auto *dues = new QHBoxLayout;
    dues->addWidget(m_dueList, 1);
    dues->addWidget(m_working, 1);

    auto *print = screenroutines::commandButton(QStringLiteral("&Print"),
                                                QStringLiteral("cmdPrint"), this);
    auto *exportButton = screenroutines::commandButton(QStringLiteral("E&xport..."),
                                                       QStringLiteral("cmdExport"), this);
    auto *close = screenroutines::commandButton(QStringLiteral("Cl&ose"),
                                                QStringLiteral("cmdClose"), this);
    connect(print, &QPushButton::clicked, this, &FrmFilingCheck::print);
    connect(exportButton, &QPushButton::clicked, this, &FrmFilingCheck::exportList);
    connect(close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton *button : {print, exportButton, close})
        buttons->addWidget(button);

    auto *findingsLabel = new QLabel(QStringLiteral("F&indings (double-click one to go to it)"),
                                     this);
    findingsLabel->setBuddy(m_findingList);
    auto *duesLabel = new QLabel(QStringLiteral("&Due before filing"), this);
    duesLabel->setBuddy(m_dueList);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addLayout(top);
    layout->addWidget(findingsLabel);
    layout->addWidget(m_findingList, 3);
    layout->addWidget(duesLabel);
    layout->addLayout(dues, 1);
    layout->addLayout(buttons);
}

bool FrmFilingCheck::run()
{
    const QDate filedOn = m_filedOn->date();
    if (const auto refusal = fieldrules::checkDateGiven(filedOn, m_filedOn->objectName())) {
        m_boxes.show(refusal->failure.message);
        m_filedOn->setFocus();
        return false;
    }
    try {
        m_result = filingcheck::FilingCheck(m_store, m_form).run(m_basicInfoId, filedOn);
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical});
        return false;
    }
    m_findings->setFindings(m_result.findings, m_fieldLabel);
    // Rows are measured for their wrapped messages only while they are few enough to be quick.
    if (m_findings->rowCount() <= measuredFindings)
        m_findingList->resizeRowsToContents();
    m_dues->setResult(m_result, m_form.collectsTax ? QStringLiteral("Interest 206C(7)")
                                                   : QStringLiteral("Interest 201(1A)"));
    m_summary->setText(summaryOf(m_result));
    m_dueList->setCurrentIndex(m_dues->index(0, 0));
    showWorking(0);
    return true;
}

void FrmFilingCheck::chooseFinding(int row)
{
    if (row >= 0 && row < m_findings->rowCount())
        emit findingChosen(m_findings->row(row).finding);
}

void FrmFilingCheck::showWorking(int row)
{
    m_working->setPlainText(row >= 0 && row < m_dues->rowCount() ? m_dues->row(row).working
                                                                 : QString());
}

void FrmFilingCheck::print()
{
    ReportPreview::open(this,
                        std::make_shared<const Report>(findingsreport::build(
                            m_heading, m_filedOn->date(), m_findings->rows(), m_dues->rows(),
                            QDate::currentDate())),
                        m_boxes, QStringLiteral("drptFilingCheck"));
}

void FrmFilingCheck::exportList()
{
    const Report report = findingsreport::build(m_heading, m_filedOn->date(), m_findings->rows(),
                                                m_dues->rows(), QDate::currentDate());
    reportexport::exportReport(this, findingsreport::title, report, m_boxes, exportFilters);
}

bool FrmFilingCheck::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_findingList && screenroutines::isEnterKey(event)) {
        chooseFinding(m_findingList->currentIndex().row());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
