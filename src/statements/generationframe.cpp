#include "statements/generationframe.h"

#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "filingcheck/filingcheck.h"
#include "statements/statementsheet.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct Field
{
    const char *control;
    const char *caption;
    bool typed; ///< the user may change it
};

// In two columns, as the panel reads: who, when, which return, then the amounts.
const Field fields[] = {
    {"txtGroupId", "Group Id", false},           {"txtGroupNameFG", "Group Name", false},
    {"txtCompanyNameFG", "Company Name", false}, {"txtTANFG", "TAN", false},
    {"txtPANFG", "PAN", false},                  {"txtStatus", "Status", false},
    {"txtDType", "Deductor Type", false},        {"txtFileGenDt", "Date", false},
    {"txtDateFG", "Date of Generation", false},  {"txtFileGenTime", "Time", false},
    {"txtFormNoFG", "Form No.", false},          {"txtPeriodicityFG", "Periodicity", false},
    {"txtAssmntYrFG", "Assessment Year", false}, {"txtExistingAssessee", "Existing Assessee", false},
    {"txtTotDeducteeFG", "No. of Deductee Records", false},
    {"txtPreviousRctNoFg", "Previous Receipt No", false},
    {"txtTotAmountPaidFG", "Total Amount Paid", false}, {"txtTotTDSFG", "Tax Deducted", false},
    {"txtTotTaxDepositedFg", "Tax Deposited", false},
    {"txtAnnexures", "Number Of annexures", true}, {"txtOtherInf", "Other Information", true},
};

} // namespace

GenerationFrame::GenerationFrame(StatementSheet &statement, MessageBoxes &boxes,
                                 QWidget *parent)
    : QFrame(parent), m_statement(statement), m_boxes(boxes)
{
    setObjectName(QStringLiteral("FrameGen"));
    setFrameShape(QFrame::StyledPanel);
    const FormTraits &form = statement.form();
    auto *grid = new QGridLayout;
    int index = 0;
    for (const Field &entry : fields) {
        auto *line = new QLineEdit(this);
        line->setObjectName(QLatin1String(entry.control));
        line->setReadOnly(!entry.typed);
        m_fields.insert(line->objectName(), line);
        auto *caption = new QLabel(QLatin1String(entry.caption), this);
        caption->setBuddy(line);
        grid->addWidget(caption, index / 2, index % 2 * 2);
        grid->addWidget(line, index / 2, index % 2 * 2 + 1);
        ++index;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    auto *fileName = new QLineEdit(this);
    fileName->setObjectName(QStringLiteral("txtFileNameFG"));
    m_fields.insert(fileName->objectName(), fileName);
    auto *choose = screenroutines::commandButton(QStringLiteral("..."),
                                                 QStringLiteral("cmdFilePath"), this);
    connect(choose, &QPushButton::clicked, this, &GenerationFrame::chooseFile);
    auto *fileRow = new QHBoxLayout;
    auto *fileLabel = new QLabel(QStringLiteral("File Name"), this);
    fileLabel->setBuddy(fileName);
    fileRow->addWidget(fileLabel);
    fileRow->addWidget(fileName, 1);
    fileRow->addWidget(choose);

    const QString cover = form.collectsTax ? QStringLiteral("27B") : QStringLiteral("27A");
    m_ok = screenroutines::commandButton(QStringLiteral("Generate &Form ") + form.formType,
                                         QStringLiteral("cmdOK"), this);
    m_print = screenroutines::commandButton(QStringLiteral("P&rint Form ") + cover,
                                            QStringLiteral("cmdPrintForm27A"), this);
    m_export = screenroutines::commandButton(QStringLiteral("E&xport Form ") + cover,
                                             QStringLiteral("cmdExportForm27A"), this);
    auto *hide = screenroutines::commandButton(QStringLiteral("H&ide"),
                                               QStringLiteral("cmdHidefilegenration"), this);
    m_print->setEnabled(false);
    connect(m_ok, &QPushButton::clicked, this, &GenerationFrame::generate);
    connect(m_print, &QPushButton::clicked, this, [this] { emit coverFormAsked(false); });
    connect(m_export, &QPushButton::clicked, this, [this] { emit coverFormAsked(true); });
    connect(hide, &QPushButton::clicked, this, &GenerationFrame::hideAsked);
    m_checkSummary = new QLabel(this);
    m_checkSummary->setObjectName(QStringLiteral("lblCheckFG"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_checkSummary);
    buttons->addStretch();
    for (QPushButton *button : {m_ok, m_print, m_export, hide})
        buttons->addWidget(button);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(fileRow);
    layout->addStretch();
    layout->addLayout(buttons);
}

void GenerationFrame::showPanel(const GenerationPanel &panel, const QDateTime &now,
                                bool hasChallans)
{
    m_panel = panel;
    const QString noTotal = QStringLiteral("0.00");
    const QHash<QString, QString> values = {
        {"txtGroupId", QString::number(panel.groupId)},
        {"txtGroupNameFG", panel.groupName},
        {"txtCompanyNameFG", panel.companyName},
        {"txtTANFG", panel.tan},
        {"txtPANFG", panel.pan},
        {"txtFileGenDt", QLocale::system().toString(now.date(), QLocale::ShortFormat)},
        {"txtDateFG", now.date().toString(QStringLiteral("dd/MM/yyyy"))},
        {"txtFileGenTime", now.time().toString(QStringLiteral("hh:mm:ss"))},
        {"txtTotDeducteeFG", QString::number(panel.annexureRows)},
        {"txtFormNoFG", panel.formType},
        {"txtPeriodicityFG", panel.quarter},
        {"txtAssmntYrFG", panel.asstYear},
        {"txtExistingAssessee", panel.existingAssessee},
        {"txtFileNameFG", panel.fileName},
        // With no challan there is no sum, which has always shown without the leading zero.
        {"txtTotTaxDepositedFg", hasChallans ? panel.deposited.toPaddedText() : noTotal},
        {"txtTotAmountPaidFG", panel.amountPaid.toPaddedText()},
        {"txtTotTDSFG", panel.taxDeducted.toPaddedText()},
        {"txtPreviousRctNoFg", panel.previousReceiptNo},
        {"txtStatus", panel.deductorStatus},
        {"txtDType", panel.deductorType},
    };
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        field(value.key())->setText(value.value());
    checkStatement(panel.basicInfoId, now.date());
    m_ok->setFocus();
}

QString GenerationFrame::text(const QString &name) const
{
    return field(name)->text();
}

void GenerationFrame::checkStatement(int basicInfoId, QDate today)
{
    try {
        m_checkErrors = filingcheck::FilingCheck(m_statement.session().store, m_statement.form())
                            .run(basicInfoId, today)
                            .errors();
        m_checkSummary->setText(checkSummaryText.arg(m_checkErrors));
    } catch (const StoreError &error) {
        m_checkErrors = 0;
        m_checkSummary->clear();
        m_statement.reportStoreError(error);
    }
}

void GenerationFrame::generate()
{
    if (!m_panel)
        return;
    // The check's errors never stop the file, but it is written over them only on the user's
    // word.
    if (m_checkErrors > 0
        && m_boxes.show({anywayQuestion.arg(m_checkErrors), appTitle, MessageIcon::Question,
                         MessageButtons::YesNo, true})
               != Answer::Yes)
        return;
    GenerationPanel panel = *m_panel;
    // What stands in the name's field is what the file and the log take.
    panel.fileName = field(QStringLiteral("txtFileNameFG"))->text();
    const GenerationFlow flow(m_statement.session().store, m_statement.form());
    const GenerationOutcome outcome =
        flow.generate(panel, m_listedRows ? m_listedRows() : 0, m_boxes,
                      QDateTime::currentDateTime())
            .outcome;
    // The cover form reads the log row, which is there even when the file failed; a generation
    // declined or without its log row changes nothing.
    if (outcome != GenerationOutcome::Declined && outcome != GenerationOutcome::LogFailed)
        m_print->setEnabled(true);
}

void GenerationFrame::chooseFile()
{
    const QString chosen = QFileDialog::getSaveFileName(
        this, QString(), field(QStringLiteral("txtFileNameFG"))->text(),
        QStringLiteral("Text (*.txt)"));
    if (!chosen.trimmed().isEmpty())
        field(QStringLiteral("txtFileNameFG"))->setText(chosen);
}
