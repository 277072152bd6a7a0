#include "statements/annexurepanel.h"

#include "core/datebox.h"
#include "core/fieldpath.h"
#include "core/formtraits.h"
#include "core/keyfilters.h"
#include "core/records.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "statements/annexurerowlayout.h"
#include "statements/annexuresavecheck.h"
#include "statements/annexuresheet.h"
#include "statements/challanblock.h"
#include "statements/rowlistview.h"
#include "statements/statementsheet.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace {

using Box = annexurerules::Box;

// The boxes whose leaving formats or checks them, with the rule that does it.
const QHash<QString, Box> leftBoxes = {
    {"txtDeducteeCode", Box::Code},   {"txtPANDeductee", Box::Pan},
    {"txt104", Box::Amount},          {"txt106", Box::Rate},
    {"txtdedTax", Box::Tax},          {"txtdedSurcharge", Box::Surcharge},
    {"txtdedCess", Box::Cess},        {"txt107", Box::Deposited},
    {"txtValOfPurchase", Box::Purchase},
};

const char *const flagCodes[] = {"A", "B", " "};

} // namespace

AnnexurePanel::AnnexurePanel(StatementSheet &statement, AnnexureSheet &rows,
                             MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent), m_statement(statement), m_sheet(rows)
{
    setObjectName(QStringLiteral("pctDedt"));
    buildBoxes(boxes);
    buildLists();
    layOut();
    setUpPath();
    connectBoxes();
}

void AnnexurePanel::buildBoxes(MessageBoxes &boxes)
{
    const FormTraits &form = m_statement.form();
    const bool employees = form.salaryLayout;
    for (const AnnexureEntry::Box &entry : AnnexureEntry::boxes()) {
        const QString name = QLatin1String(entry.control);
        auto *line = new QLineEdit(this);
        line->setObjectName(name);
        if (employees && name == u"txtDeducteeID")
            line->setObjectName(QStringLiteral("txtEmpID"));
        if (employees && name == u"txtDeducteeNo")
            line->setObjectName(QStringLiteral("txtEmpNo"));
        if (entry.maxLength > 0)
            line->setMaxLength(entry.maxLength);
        m_boxes.insert(name, line);
    }
    for (const char *hidden : {"txtDeducteeID", "txtDeducteeNo", "txtDStId"})
        box(QLatin1String(hidden))->setVisible(false);
    for (const char *shown : {"txtDeducteeSrlNo", "txtPanRefDeductee", "txtDStateCode",
                              "txtdedTotal", "txtEmpDesignation"})
        box(QLatin1String(shown))->setReadOnly(true);
    for (const char *amount : {"txt104", "txt106", "txtdedTax", "txtdedSurcharge", "txtdedCess",
                               "txt107", "txtValOfPurchase", "txtdedTotal"}) {
        box(QLatin1String(amount))->setAlignment(Qt::AlignRight);
        keyfilters::installNumeric(box(QLatin1String(amount)), boxes);
        keyfilters::selectOnEntry(box(QLatin1String(amount)));
    }
    keyfilters::installNumeric(box("txtDPin"), boxes, true, true);
    // The deductee code takes the digits of "01" and "02" only.
    box("txtDeducteeCode")->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[012]*")), box("txtDeducteeCode")));
    keyfilters::install(box("txtPANDeductee"), {keyfilters::Rule::Alnum, keyfilters::Rule::Pan});
    for (const char *address : {"txtAdd1", "txtAdd2", "txtAdd3", "txtAdd4", "txtAdd5"})
        keyfilters::install(box(QLatin1String(address)), {keyfilters::Rule::UpperCase});

    m_party = new QComboBox(this);
    m_party->setObjectName(QStringLiteral("cmbDeductee"));
    m_party->setEditable(true);
    m_party->setInsertPolicy(QComboBox::NoInsert);
    keyfilters::install(m_party->lineEdit(), {keyfilters::Rule::UpperCase});
    m_state = new QComboBox(this);
    m_state->setObjectName(QStringLiteral("cmbDState"));
    try {
        m_state->addItems(records::comboTexts(m_statement.session().store,
                                              QStringLiteral("mstState"),
                                              QStringLiteral("StateName"), true));
    } catch (const StoreError &error) {
        m_statement.reportStoreError(error);
    }
    m_grossingUp = new QComboBox(this);
    m_grossingUp->setObjectName(QStringLiteral("cmbGrossUpIndicator"));
    m_grossingUp->addItems({QStringLiteral("Yes"), QStringLiteral("No"), QStringLiteral("Na")});

    m_date = new DateBox(QStringLiteral("dtp105"), this);
    m_date->setDate(m_sheet.entry().date);
    // The employee's period comes from the master and is only shown here.
    m_fromDate = new DateBox(QStringLiteral("dtpFromDate"), this);
    m_toDate = new DateBox(QStringLiteral("DtpToDate"), this);
    m_fromDate->setEnabled(false);
    m_toDate->setEnabled(false);

    const QStringList flagCaptions = {"Lower Deduction/No Deduction ", "No Deduction", "Normal"};
    auto *flags = new QButtonGroup(this);
    for (int index = 0; index < 3; ++index) {
        m_flags[index] = new QRadioButton(flagCaptions.at(index), this);
        m_flags[index]->setObjectName(QStringLiteral("optNonDeductionFlg(%1)").arg(index));
        flags->addButton(m_flags[index]);
    }
    m_flags[2]->setChecked(true);

    m_challanBlock = new ChallanBlock(this);

    m_save = screenroutines::commandButton(QStringLiteral("Save Record"),
                                           QStringLiteral("cmdSaveDeductee"), this);
    connect(m_save, &QPushButton::clicked, this, &AnnexurePanel::save);
    if (employees) {
        m_transfer = screenroutines::commandButton(QStringLiteral("Create Challans from Ro&ws"),
                                                   QStringLiteral("cmdAutoTransfer"), this);
        m_transfer->setToolTip(QStringLiteral(
            "Makes one challan for each employee row entered while the Statement had no "
            "challan; fill in each challan's bank details afterwards."));
        connect(m_transfer, &QPushButton::clicked, this, [this] {
            readEntry();
            const bool made = m_sheet.transferToChallans();
            showEntry();
            showFocus();
            if (made)
                emit challansMade();
        });
    }
}

void AnnexurePanel::buildLists()
{
    m_challans = new RowListView(QStringLiteral("GrdChallan"), &m_sheet.challans(), this);
    m_challans->setColumnHidden(ChallanGridModel::SectionColumn,
                                !m_statement.form().challanHasSection());
    connect(m_challans->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { m_sheet.challans().sort(column); });
    connect(m_challans->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (m_showing || !current.isValid())
                    return;
                m_sheet.chooseChallan(current.row());
                showEntry();
            });
    m_rows = new RowListView(QStringLiteral("lstvDedt"), &m_sheet.rows(), this);
    const bool employees = m_statement.form().salaryLayout;
    m_rows->setColumnHidden(AnnexureListModel::CodeColumn, employees);
    m_rows->setColumnHidden(AnnexureListModel::RateColumn, employees);
    connect(m_rows, &QTableView::clicked, this, [this](const QModelIndex &index) {
        m_sheet.loadRow(index.row());
        showEntry();
    });
    for (QTableView *list : {m_challans, m_rows})
        list->installEventFilter(this);
}

void AnnexurePanel::layOut()
{
    auto *top = new QHBoxLayout;
    top->addWidget(m_challans, 3);
    top->addWidget(m_challanBlock, 2);

    QGridLayout *grid = layOutAnnexureRow(
        this, m_statement.form(),
        {[this](const char *control) { return box(QLatin1String(control)); }, m_party, m_state,
         m_grossingUp, m_date, m_fromDate, m_toDate});

    auto *actions = new QHBoxLayout;
    for (QRadioButton *flag : m_flags)
        actions->addWidget(flag);
    actions->addStretch();
    if (m_transfer)
        actions->addWidget(m_transfer);
    actions->addWidget(m_save);

    auto *heading = new QLabel(annexuresavecheck::chooseChallanText, this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading);
    layout->addLayout(top, 2);
    layout->addLayout(grid);
    layout->addLayout(actions);
    layout->addWidget(m_rows, 3);
}

void AnnexurePanel::setUpPath()
{
    m_path = new FieldPath(this);
    QList<QWidget *> order = {m_party};
    if (!m_statement.form().salaryLayout) {
        for (const char *name : {"txtDeducteeCode", "txtPANDeductee", "txtAdd1", "txtAdd2",
                                 "txtAdd3", "txtAdd4", "txtAdd5"})
            order << box(QLatin1String(name));
        order << m_state << box("txtDPin");
    } else {
        order << box("txtPANDeductee");
    }
    order << m_date;
    for (const char *name : {"txt104", "txt106", "txtdedTax", "txtdedSurcharge", "txtdedCess",
                             "txt107", "txtValOfPurchase"})
        order << box(QLatin1String(name));
    order << m_grossingUp << m_flags[2] << m_flags[0] << m_flags[1];
    m_path->setOrder(order);
    // Past the tax deposited the row is complete: Enter on a deduction option saves it.
    for (QRadioButton *flag : m_flags)
        m_path->setAction(flag, [this] { save(); });
    m_path->setLeaveCheck([this](QWidget *left) { return leaveBox(left); });
}

void AnnexurePanel::connectBoxes()
{
    const auto onEdit = [this](const char *name, void (AnnexureSheet::*step)()) {
        connect(box(QLatin1String(name)), &QLineEdit::textEdited, this,
                [this, step] { changed(step); });
    };
    onEdit("txt104", &AnnexureSheet::amountChanged);
    onEdit("txt106", &AnnexureSheet::rateChanged);
    for (const char *name : {"txtdedTax", "txtdedSurcharge", "txtdedCess"})
        onEdit(name, &AnnexureSheet::taxPartChanged);
    connect(m_state, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_showing)
            changed(&AnnexureSheet::stateChosen);
    });
}

void AnnexurePanel::open()
{
    m_showing = true;
    m_party->clear();
    m_party->addItems(m_sheet.partyNames());
    m_party->setCurrentIndex(-1);
    m_showing = false;
    readEntry();
    m_sheet.open();
    showEntry();
    FieldPath::enter(m_sheet.challan() ? static_cast<QWidget *>(m_party) : m_challans);
}

bool AnnexurePanel::leaveBox(QWidget *left)
{
    readEntry();
    bool accepted = true;
    if (left == m_party)
        accepted = m_sheet.partyLeft();
    else if (left == m_state)
        accepted = m_sheet.stateLeft();
    else if (left == m_date)
        accepted = m_sheet.dateLeft();
    else if (const auto rule = leftBoxes.constFind(left->objectName());
             rule != leftBoxes.constEnd())
        accepted = m_sheet.boxLeft(*rule);
    showEntry();
    m_statement.takeFocus();
    return accepted;
}

void AnnexurePanel::save()
{
    readEntry();
    m_sheet.save();
    showEntry();
    showFocus();
}

void AnnexurePanel::changed(void (AnnexureSheet::*step)())
{
    if (m_showing)
        return;
    readEntry();
    (m_sheet.*step)();
    showEntry();
}

void AnnexurePanel::readEntry()
{
    AnnexureEntry &entry = m_sheet.entry();
    for (const AnnexureEntry::Box &entryBox : AnnexureEntry::boxes())
        entry.*(entryBox.member) = box(QLatin1String(entryBox.control))->text();
    entry.partyName = m_party->currentText();
    entry.state = m_state->currentText();
    entry.date = m_date->date();
    for (int index = 0; index < 3; ++index) {
        if (m_flags[index]->isChecked())
            entry.flag = QLatin1String(flagCodes[index]);
    }
    const QStringList grossingCodes = {"Y", "N", ""};
    entry.grossingUp = grossingCodes.value(m_grossingUp->currentIndex());
}

void AnnexurePanel::showEntry()
{
    m_showing = true;
    const AnnexureEntry &entry = m_sheet.entry();
    for (const AnnexureEntry::Box &entryBox : AnnexureEntry::boxes()) {
        QLineEdit *line = box(QLatin1String(entryBox.control));
        if (line->text() != entry.*(entryBox.member))
            line->setText(entry.*(entryBox.member));
    }
    if (m_party->currentText() != entry.partyName)
        m_party->setCurrentText(entry.partyName);
    m_state->setCurrentIndex(m_state->findText(entry.state, Qt::MatchFixedString));
    m_date->setDate(entry.date);
    m_fromDate->setDate(entry.fromDate);
    m_toDate->setDate(entry.toDate);
    for (int index = 0; index < 3; ++index)
        m_flags[index]->setChecked(entry.flag == QLatin1String(flagCodes[index]));
    m_grossingUp->setCurrentIndex(entry.grossingUp == u"Y" ? 0 : entry.grossingUp == u"N" ? 1
                                                                                          : 2);

    const ChallanEntry *challan = m_sheet.challan();
    m_challanBlock->showChallan(challan, m_sheet.depositedSum());
    const int chosen = challan ? m_sheet.challans().find(&ChallanEntry::challanId,
                                                         challan->challanId.toInt())
                               : -1;
    if (chosen != m_challans->currentIndex().row())
        m_challans->selectRow(chosen);
    m_showing = false;
}

void AnnexurePanel::showFocus()
{
    m_path->focus(m_statement.takeFocus());
}

bool AnnexurePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == m_rows && key == Qt::Key_Delete) {
        if (m_rows->currentIndex().isValid()) {
            m_sheet.deleteRow(m_rows->currentIndex().row());
            showEntry();
            showFocus();
        }
        return true;
    }
    if (watched == m_challans && screenroutines::isEnterKey(event)) {
        m_sheet.chooseChallan(m_challans->currentIndex().row());
        showEntry();
        FieldPath::enter(m_party);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

QLineEdit *AnnexurePanel::box(const QString &name) const
{
    return m_boxes.value(name);
}

