#include "reports/frmform16report.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/records.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "reports/form16afiles.h"
#include "reports/reportmessages.h"
#include "reports/reportpreview.h"

#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QProgressDialog>
#include <QPushButton>
#include <QTreeWidget>

using screenroutines::commandButton;

namespace {

const FormTraits *formOfReport(const QString &reportForm)
{
    for (const FormTraits &form : allForms()) {
        if (form.reportForm == reportForm && form.challanHasSection())
            return &form;
    }
    return nullptr;
}

QLineEdit *lineEdit(const QString &name, bool readOnly, QWidget *parent)
{
    auto *box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setReadOnly(readOnly);
    return box;
}

} // namespace

FrmForm16Report::FrmForm16Report(Session &session, MessageBoxes &boxes,
                                 const QString &quarterText, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_boxes(boxes),
      m_form(formOfReport(session.curReportForm)),
      m_tables(session.store),
      m_list(new QTreeWidget(this)),
      m_selectAll(new QCheckBox(QStringLiteral("Select - Deselect"), this))
{
    setObjectName(QStringLiteral("frmForm16Report"));
    setWindowTitle(session.curReportForm + QStringLiteral("Q :: TDS Certificate [Form 16A]"));
    auto *company = lineEdit(QStringLiteral("txtCompName"), true, this);
    auto *quarter = lineEdit(QStringLiteral("txtQuator"), true, this);
    quarter->setText(quarterText);
    m_list->setObjectName(QStringLiteral("lstDeductee"));
    m_list->setHeaderLabels({QStringLiteral("Deductee Name"), QStringLiteral("Deductee Id")});
    m_list->setRootIsDecorated(false);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_selectAll->setObjectName(QStringLiteral("chkSelect"));
    m_selectAll->installEventFilter(this);

    auto *grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("Company Name"), this), 0, 0);
    grid->addWidget(company, 0, 1, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Quarter"), this), 1, 0);
    grid->addWidget(quarter, 1, 1);
    grid->addWidget(m_list, 2, 0, 1, 4);
    grid->addWidget(m_selectAll, 3, 0, 1, 2);
    const QList<std::pair<const char *, const char *>> inputs = {
        {"txtAcknowledgementNo", "Acknowledgement No."}, {"txtPlace", "Place"},
        {"txtDate", "Date"}, {"txtFullName", "Full Name"}, {"txtDesignation", "Designation"},
        {"txtRemarks", "Remarks"}};
    for (int index = 0; index < inputs.size(); ++index) {
        QLineEdit *box = lineEdit(QLatin1String(inputs[index].first), false, this);
        box->installEventFilter(this);
        m_inputs << box;
        auto *label = new QLabel(QLatin1String(inputs[index].second), this);
        label->setBuddy(box);
        grid->addWidget(label, 4 + index / 2, (index % 2) * 2);
        grid->addWidget(box, 4 + index / 2, (index % 2) * 2 + 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    auto *pdfs = commandButton(QStringLiteral("Save as PDFs..."), QStringLiteral("cmdSavePdfs"),
                               this);
    auto *print = commandButton(QStringLiteral("Form No. 16A"), QStringLiteral("cmdFormNo16A"),
                                this);
    auto *cancel = commandButton(QStringLiteral("Cancel"), QStringLiteral("cmdCancel"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(pdfs);
    buttons->addStretch();
    buttons->addWidget(print);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);

    connect(m_selectAll, &QCheckBox::toggled, this, &FrmForm16Report::setAllTicks);
    // A click anywhere on a row turns its tick over.
    connect(m_list, &QTreeWidget::itemClicked, this, [](QTreeWidgetItem *item) {
        item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked
                                                                  : Qt::Checked);
    });
    connect(pdfs, &QPushButton::clicked, this, &FrmForm16Report::choosePdfFolder);
    connect(print, &QPushButton::clicked, this, &FrmForm16Report::printCertificates);
    connect(cancel, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });

    try {
        company->setText(records::lookupText(session.store, QStringLiteral("mstCompany"),
                                             QStringLiteral("CompID"),
                                             QStringLiteral("CompName"), session.curCompId));
    } catch (const StoreError &error) {
        showStoreError(error.description());
    }
    fillList();
    resize(520, 440);
}

void FrmForm16Report::printCertificates()
{
    const QList<int> ids = tickedIds();
    if (ids.isEmpty() || !m_form)
        return;
    try {
        const QStringList shared = m_tables.sharedNames(m_session.curCompId,
                                                        m_session.curQuarter, ids,
                                                        m_session.curGroupId);
        if (!shared.isEmpty()) {
            m_boxes.show({sharedNamesText.arg(shared.join(u'\n')), appTitle,
                          MessageIcon::Warning});
        }
        Form16ACertificateReader reader(
            m_tables.certificateRows(m_session.curCompId, m_session.curQuarter, ids,
                                     m_session.curGroupId),
            Form16ACertificateReader::Deductee::ByName);
        QList<Form16ACertificate> certificates;
        for (QList<Form16ACertificate> next = reader.nextDeductee(); !next.isEmpty();
             next = reader.nextDeductee())
            certificates += next;
        if (certificates.isEmpty()) {
            m_boxes.show({reportmessages::noRecord, appTitle, MessageIcon::Information});
            return;
        }
        ReportPreview::open(this,
                            std::make_shared<const Report>(
                                form16adocument::build(certificates, heading())),
                            m_boxes, QStringLiteral("FrmCrpt"));
    } catch (const StoreError &error) {
        showStoreError(error.description());
    }
}

int FrmForm16Report::savePdfs(const QString &folder)
{
    const QList<int> ids = tickedIds();
    if (ids.isEmpty() || !m_form)
        return 0;
    QProgressDialog progress(QStringLiteral("Saving the certificates..."), QStringLiteral("Stop"),
                             0, int(ids.size()), this);
    progress.setWindowTitle(form16adocument::caption);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    Form16AFiles files(m_tables, heading());
    Form16AFiles::Outcome outcome;
    int saved = 0;
    try {
        outcome = files.write(folder, m_session.curCompId, m_session.curQuarter, ids,
                              m_session.curGroupId, [&](const Form16AFiles::Written &) {
                                  progress.setValue(++saved);
                                  return !progress.wasCanceled();
                              });
    } catch (const StoreError &error) {
        showStoreError(error.description());
        return 0;
    }
    progress.reset();
    if (!outcome.error.isEmpty()) {
        m_boxes.show({outcome.error, appTitle, MessageIcon::Critical});
    } else if (outcome.written == 0) {
        m_boxes.show({reportmessages::noRecord, appTitle, MessageIcon::Information});
    } else {
        const QString what = outcome.stopped ? QStringLiteral("Stopped after %1 of the files: %2")
                                             : QStringLiteral("%1 files saved in %2");
        m_boxes.show({what.arg(outcome.written).arg(QDir::toNativeSeparators(folder)), appTitle,
                      MessageIcon::Information});
    }
    return outcome.written;
}

bool FrmForm16Report::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_selectAll
        && (event->type() == QEvent::Enter || event->type() == QEvent::Leave)) {
        // The pointer over the box turns its text blue.
        QPalette palette = m_selectAll->palette();
        palette.setColor(QPalette::WindowText,
                         event->type() == QEvent::Enter ? Qt::blue : Qt::black);
        m_selectAll->setPalette(palette);
    } else if (screenroutines::isEnterKey(event) && m_inputs.contains(watched)) {
        focusNextChild();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FrmForm16Report::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (auto *frame = qobject_cast<QMdiSubWindow *>(parentWidget()))
        frame->move(0, 0);
}

void FrmForm16Report::fillList()
{
    m_list->clear();
    if (!m_form)
        return;
    try {
        m_tables.prepare();
    } catch (const StoreError &error) {
        m_boxes.show({QStringLiteral("ERROR NUMBER : %1  ERROR DESCRIPTION : %2")
                          .arg(error.code(), error.description()),
                      appTitle, MessageIcon::Critical});
        return;
    }
    try {
        m_tables.fill(*m_form);
        for (const Form16AWorkTables::Deductee &deductee :
             m_tables.deductees(m_session.curCompId, m_session.curQuarter)) {
            auto *item = new QTreeWidgetItem(m_list, {deductee.name.trimmed(),
                                                      QString::number(deductee.id)});
            // The row's click turns the tick over, the box alone would turn it twice.
            item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
            item->setCheckState(0, Qt::Unchecked);
        }
    } catch (const StoreError &error) {
        showStoreError(error.description());
    }
}

void FrmForm16Report::setAllTicks(bool ticked)
{
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
        m_list->topLevelItem(row)->setCheckState(0, ticked ? Qt::Checked : Qt::Unchecked);
}

void FrmForm16Report::choosePdfFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Save the certificates in"), QDir::homePath());
    if (!folder.isEmpty())
        savePdfs(folder);
}

QList<int> FrmForm16Report::tickedIds()
{
    QList<int> ids;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_list->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            ids << item->text(1).toInt();
    }
    // The words of the last print go first, whether or not anything is ticked.
    try {
        m_tables.fillWords(m_session.curCompId, m_session.curQuarter, ids);
    } catch (const StoreError &error) {
        showStoreError(error.description());
        return {};
    }
    if (ids.isEmpty()) {
        m_boxes.show({noTickText, appTitle, MessageIcon::Information});
        m_list->setFocus();
    }
    return ids;
}

Form16AHeading FrmForm16Report::heading() const
{
    Form16AInputs inputs;
    QString *const fields[] = {&inputs.acknowledgementNo, &inputs.place, &inputs.date,
                               &inputs.fullName, &inputs.designation, &inputs.remarks};
    for (int index = 0; index < m_inputs.size(); ++index)
        *fields[index] = m_inputs[index]->text().trimmed();
    return {form16APeriod(m_session.curQuarter, m_session.asstFaYearStart), inputs,
            m_form && m_form->collectsTax};
}

void FrmForm16Report::showStoreError(const QString &description)
{
    m_boxes.show({description, appTitle, MessageIcon::Critical});
}
