#include "statements/annexurepanel.h"

#include "core/datebox.h"
#include "core/fieldpath.h"
#include "core/formtraits.h"
#include "core/keyfilters.h"
#include "core/money.h"
#include "core/records.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "statements/annexuresavecheck.h"
#include "statements/annexuresheet.h"
#include "statements/rowlistview.h"
#include "statements/statementsheet.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
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

const char *const blockBoxes[] = {"txtDSection", "txtDBSRCode", "txtDChallanNo",
                                  "txtDTransferVoucherNo", "txtDChqNo", "txtDTotTax",
                                  "txtGrossTotaltaxDeposited"};
const char *const blockCaptions[] = {"Section", "BSR Code", "Challan No", "Trans Vou. No",
                                     "Cheque No.", "Challan Total", "Tax Deposited"};

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

    for (int index = 0; index < int(std::size(blockBoxes)); ++index) {
        auto *line = new QLineEdit(this);
        line->setObjectName(QLatin1String(blockBoxes[index]));
        line->setReadOnly(true);
        line->setFocusPolicy(Qt::NoFocus);
        m_challanBlock.insert(line->objectName(), line);
    }

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

QString AnnexurePanel::label(const QString &text, int item) const
{
    return item ? text.arg(item) : text;
}

void AnnexurePanel::layOut()
{
    const FormTraits &form = m_statement.form();
    const bool employees = form.salaryLayout;
    const auto item = [&form](AnnexureItem which) { return form.annexureItem(which); };

    auto *block = new QGroupBox(QStringLiteral("Challan"), this);
    auto *blockGrid = new QGridLayout(block);
    for (int index = 0; index < int(std::size(blockBoxes)); ++index) {
        blockGrid->addWidget(new QLabel(QLatin1String(blockCaptions[index]), block), index / 2,
                             index % 2 * 2);
        blockGrid->addWidget(m_challanBlock.value(QLatin1String(blockBoxes[index])), index / 2,
                             index % 2 * 2 + 1);
    }
    auto *top = new QHBoxLayout;
    top->addWidget(m_challans, 3);
    top->addWidget(block, 2);

    // Three columns: who the party is, where, and what was paid and deducted.
    auto *grid = new QGridLayout;
    const auto place = [this, grid](const QString &caption, QWidget *field, int row, int column) {
        auto *text = new QLabel(caption, this);
        text->setBuddy(field);
        grid->addWidget(text, row, column * 2);
        grid->addWidget(field, row, column * 2 + 1);
    };
    const QString party = form.partyWord;
    place(party + QStringLiteral(" Srl No"), box("txtDeducteeSrlNo"), 0, 0);
    place(label(party + QStringLiteral(" Name [%1]"), item(AnnexureItem::Name)), m_party, 1, 0);
    place(label(QStringLiteral("PAN  [%1]"), item(AnnexureItem::Pan)), box("txtPANDeductee"), 2,
          0);
    place(QStringLiteral("PAN  REF."), box("txtPanRefDeductee"), 3, 0);
    if (employees) {
        place(QStringLiteral("Designation"), box("txtEmpDesignation"), 4, 0);
        place(QStringLiteral("From Date"), m_fromDate, 0, 1);
        place(QStringLiteral("To Date"), m_toDate, 1, 1);
    } else {
        place(label(QStringLiteral("Deductee Code [%1]"), item(AnnexureItem::Code)),
              box("txtDeducteeCode"), 4, 0);
        const char *addresses[] = {"txtAdd1", "txtAdd2", "txtAdd3", "txtAdd4", "txtAdd5"};
        for (int line = 0; line < 5; ++line)
            place(line == 0 ? QStringLiteral("Address ") : QString(),
                  box(QLatin1String(addresses[line])), line, 1);
        auto *state = new QHBoxLayout;
        state->addWidget(m_state, 1);
        state->addWidget(box("txtDStateCode"));
        box("txtDStateCode")->setMaximumWidth(36);
        auto *stateLabel = new QLabel(QStringLiteral("State"), this);
        stateLabel->setBuddy(m_state);
        grid->addWidget(stateLabel, 5, 2);
        grid->addLayout(state, 5, 3);
        place(QStringLiteral("PIN"), box("txtDPin"), 6, 1);
    }
    place(label(QStringLiteral(" Date [%1]"), item(AnnexureItem::Date)), m_date, 0, 2);
    place(label(QStringLiteral("Amount [%1]"), item(AnnexureItem::Amount)), box("txt104"), 1, 2);
    int row = 2;
    if (!employees)
        place(label(QStringLiteral("Rate[%1]"), item(AnnexureItem::Rate)), box("txt106"), row++,
              2);
    place(label(QStringLiteral("Tax[%1]"), item(AnnexureItem::Tax)), box("txtdedTax"), row++, 2);
    place(label(QStringLiteral("Surcharge[%1]"), item(AnnexureItem::Surcharge)),
          box("txtdedSurcharge"), row++, 2);
    place(label(QStringLiteral("Cess[%1]"), item(AnnexureItem::Cess)), box("txtdedCess"), row++,
          2);
    place(label(QStringLiteral("Total[%1]"), item(AnnexureItem::Total)), box("txtdedTotal"),
          row++, 2);
    place(label(QStringLiteral("Tax Deposited [%1]"), item(AnnexureItem::Deposited)),
          box("txt107"), row++, 2);
    if (!form.purchaseColumn.isEmpty())
        place(label(QStringLiteral("Total Value Of Purchase [%1]"), item(AnnexureItem::Extra)),
              box("txtValOfPurchase"), row++, 2);
    if (!form.grossingUpColumn.isEmpty())
        place(label(QStringLiteral("Grossing Up Indicator[%1] :"), item(AnnexureItem::Extra)),
              m_grossingUp, row++, 2);
    for (int column : {1, 3, 5})
        grid->setColumnStretch(column, 1);
    for (const char *only : {"txtDeducteeCode", "txtAdd1", "txtAdd2", "txtAdd3", "txtAdd4",
                             "txtAdd5", "txtDStateCode", "txtDPin", "txt106"})
        box(QLatin1String(only))->setVisible(!employees);
    m_state->setVisible(!employees);
    box("txtEmpDesignation")->setVisible(employees);
    box("txtValOfPurchase")->setVisible(!form.purchaseColumn.isEmpty());
    m_grossingUp->setVisible(!form.grossingUpColumn.isEmpty());
    m_fromDate->setVisible(employees);
    m_toDate->setVisible(employees);

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
    const QStringList block = {challan ? challan->section : QString(),
                               challan ? challan->bankCode : QString(),
                               challan ? challan->challanNo : QString(),
                               challan ? challan->voucherNo : QString(),
                               challan ? challan->cheque : QString(),
                               challan ? Money::fromText(challan->total).toText() : QString(),
                               m_sheet.depositedSum()};
    for (int index = 0; index < int(std::size(blockBoxes)); ++index)
        m_challanBlock.value(QLatin1String(blockBoxes[index]))->setText(block.at(index));
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

