#include "statements/challanpanel.h"

#include "core/datebox.h"
#include "core/fieldpath.h"
#include "core/formtraits.h"
#include "core/keyfilters.h"
#include "core/screenroutines.h"
#include "statements/challansheet.h"
#include "statements/rowlistview.h"
#include "statements/statementsheet.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The words of each labelled box; the form's item number follows them.
struct Caption
{
    ChallanItem item;
    const char *control;
    const char *text; ///< with %1 for the item number
};

const Caption captions[] = {
    {ChallanItem::Serial, "txtCh(115)", "Serial No.[%1]"},
    {ChallanItem::Tds, "txtCh(117)", "Tds [%1]"},
    {ChallanItem::Surcharge, "txtCh(118)", "Surcharge [%1]"},
    {ChallanItem::Cess, "txtCh(119)", "Education cess [%1]"},
    {ChallanItem::Interest, "txtCh(120)", "Interest[%1]"},
    {ChallanItem::Others, "txtCh(121)", "Others [%1]"},
    {ChallanItem::Total, "txtCh(122)", "Total tax [%1]"},
    {ChallanItem::Cheque, "txtCh(123)", "Cheque No. [%1]"},
    {ChallanItem::Bank, "txtCh(124)", "Bank-Branch Code [%1]"},
    {ChallanItem::Date, "dtp119", "Date Of payment [%1]"},
    {ChallanItem::ChallanNo, "txtCh(125)", "Challan No [%1]"},
    {ChallanItem::VoucherNo, "txtCh(126)", "Trans Vou. No [%1]"},
};

// The control totals are summed from the annexure rows; only these two are typed beside them.
const char *const controlBoxes[] = {"txtTotTaxDeposited", "txtTotIncomeTax", "txtTotSurcharge",
                                    "txtTotCess", "txtCtrlTot"};
const char *const controlCaptions[] = {"Total Tax Deposited", "Tds / Tcs - Income Tax",
                                       "Tds / Tcs - Surcharge", "Tds / Tcs - Cess",
                                       "Tds / Tcs - Total"};

bool isAmountBox(const QString &name)
{
    static const QStringList amounts = {"txtCh(117)", "txtCh(118)", "txtCh(119)", "txtCh(120)",
                                        "txtCh(121)"};
    return amounts.contains(name);
}

} // namespace

ChallanPanel::ChallanPanel(StatementSheet &statement, ChallanSheet &challans,
                           MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent), m_statement(statement), m_challans(challans)
{
    setObjectName(QStringLiteral("pctChallan"));
    buildBoxes(boxes);
    layOut();
    setUpPath();
}

void ChallanPanel::buildBoxes(MessageBoxes &boxes)
{
    for (const ChallanEntry::Box &entry : ChallanEntry::boxes()) {
        const QString name = QLatin1String(entry.control);
        auto *line = new QLineEdit(this);
        line->setObjectName(name);
        if (entry.maxLength > 0)
            line->setMaxLength(entry.maxLength);
        if (entry.amount)
            line->setAlignment(Qt::AlignRight);
        m_boxes.insert(name, line);
        connect(line, &QLineEdit::textEdited, this, &ChallanPanel::boxEdited);
    }
    box("txtChallanID")->setVisible(false);
    box("txtCh(115)")->setReadOnly(true);
    box("txtCh(122)")->setReadOnly(true);
    for (const char *control : controlBoxes)
        box(QLatin1String(control))->setEnabled(false);
    for (const char *name : {"txtCh(117)", "txtCh(118)", "txtCh(119)", "txtCh(120)",
                             "txtCh(121)", "txtCh(123)", "txtCh(124)", "txtCh(125)",
                             "txtCh(126)", "txtExInterest", "txtExOther"}) {
        keyfilters::installNumeric(box(name), boxes);
        keyfilters::selectOnEntry(box(name));
    }
    keyfilters::install(box("txtRemarks"), {keyfilters::Rule::UpperCase});

    m_section = new QComboBox(this);
    m_section->setObjectName(QStringLiteral("cmb116"));
    m_section->setEditable(true);
    m_section->setInsertPolicy(QComboBox::NoInsert);
    keyfilters::install(m_section->lineEdit(), {keyfilters::Rule::Alnum});
    m_section->addItems(m_challans.sections());
    m_section->setCurrentIndex(-1);
    m_sectionDescription = new QLineEdit(this);
    m_sectionDescription->setObjectName(QStringLiteral("txtSectionDesc"));
    m_sectionDescription->setReadOnly(true);
    m_sectionDescription->setFocusPolicy(Qt::NoFocus);
    const bool hasSection = m_statement.form().challanHasSection();
    m_section->setVisible(hasSection);
    m_sectionDescription->setVisible(hasSection);
    connect(m_section, &QComboBox::currentTextChanged, this, [this] {
        if (m_showing)
            return;
        readEntry();
        m_challans.sectionChanged();
        m_sectionDescription->setText(m_challans.sectionDescription());
        m_sectionDescription->setCursorPosition(0);
    });

    m_date = new DateBox(QStringLiteral("dtp119"), this);
    m_date->setDate(m_challans.entry().date);

    m_save = screenroutines::commandButton(QStringLiteral("Save Record"),
                                           QStringLiteral("cmdSavechallan"), this);
    connect(m_save, &QPushButton::clicked, this, &ChallanPanel::save);

    m_list = new RowListView(QStringLiteral("lstvChallan"), &m_challans.list(), this);
    m_list->setColumnHidden(ChallanListModel::RawDateColumn, true);
    m_list->setColumnHidden(ChallanListModel::IdColumn, true);
    m_list->setColumnHidden(ChallanListModel::SectionColumn, !hasSection);
    m_list->installEventFilter(this);
    connect(m_list, &QTableView::clicked, this, [this](const QModelIndex &index) {
        m_challans.loadRow(index.row());
        showEntry();
    });
}

void ChallanPanel::layOut()
{
    const FormTraits &form = m_statement.form();
    auto *entryBox = new QGroupBox(QStringLiteral("Challan"), this);
    auto *grid = new QGridLayout(entryBox);
    const auto place = [&](const Caption &caption, int row, int column) {
        QWidget *field = caption.item == ChallanItem::Date
                             ? static_cast<QWidget *>(m_date)
                             : box(QLatin1String(caption.control));
        auto *label = new QLabel(
            QString::fromLatin1(caption.text).arg(form.challanItem(caption.item)), entryBox);
        label->setBuddy(field);
        grid->addWidget(label, row, column * 2);
        grid->addWidget(field, row, column * 2 + 1);
    };
    // Read as a counterfoil is: the serial and section, the amounts, then the payment.
    place(captions[0], 0, 0);
    if (form.challanHasSection()) {
        const QString label = form.collectsTax ? QStringLiteral("Collection Code [%1]")
                                               : QStringLiteral("Section [%1]");
        auto *caption = new QLabel(label.arg(form.challanItem(ChallanItem::Section)), entryBox);
        caption->setBuddy(m_section);
        grid->addWidget(caption, 0, 2);
        grid->addWidget(m_section, 0, 3);
        grid->addWidget(m_sectionDescription, 0, 4, 1, 2);
    }
    for (int index = 1; index < int(std::size(captions)); ++index)
        place(captions[index], 1 + (index - 1) / 3, (index - 1) % 3);
    for (int column : {1, 3, 5})
        grid->setColumnStretch(column, 1);

    auto *totals = new QGroupBox(QStringLiteral("Control Totals"), this);
    auto *totalsGrid = new QGridLayout(totals);
    for (int index = 0; index < int(std::size(controlBoxes)); ++index) {
        totalsGrid->addWidget(new QLabel(QLatin1String(controlCaptions[index]), totals), 0,
                              index);
        totalsGrid->addWidget(box(QLatin1String(controlBoxes[index])), 1, index);
    }
    const auto typed = [&](const QString &caption, const QString &name, int column) {
        auto *label = new QLabel(caption, totals);
        label->setBuddy(box(name));
        totalsGrid->addWidget(label, 2, column);
        totalsGrid->addWidget(box(name), 3, column);
    };
    typed(QStringLiteral("Interest"), QStringLiteral("txtExInterest"), 0);
    typed(QStringLiteral("Others"), QStringLiteral("txtExOther"), 1);
    typed(QStringLiteral("Remarks :"), QStringLiteral("txtRemarks"), 2);
    totalsGrid->addWidget(m_save, 3, 4);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(entryBox);
    layout->addWidget(totals);
    layout->addWidget(m_list, 1);
}

void ChallanPanel::setUpPath()
{
    m_path = new FieldPath(this);
    QList<QWidget *> order;
    if (m_statement.form().challanHasSection())
        order << m_section;
    order << m_date;
    for (const char *name : {"txtCh(124)", "txtCh(125)", "txtCh(126)", "txtCh(123)",
                             "txtCh(117)", "txtCh(118)", "txtCh(119)", "txtCh(120)",
                             "txtCh(121)", "txtExInterest", "txtExOther", "txtRemarks"})
        order << box(QLatin1String(name));
    m_path->setOrder(order);
    const auto enabledOr = [this](const char *first, const char *otherwise) {
        return [this, first, otherwise]() -> QWidget * {
            QLineEdit *wanted = box(QLatin1String(first));
            return wanted->isEnabled() ? wanted : box(QLatin1String(otherwise));
        };
    };
    m_path->setJump(box("txtCh(124)"), enabledOr("txtCh(125)", "txtCh(123)"));
    m_path->setJump(box("txtCh(125)"), enabledOr("txtCh(126)", "txtCh(123)"));
    m_path->setJump(box("txtCh(126)"), [this] { return box("txtCh(123)"); });
    m_path->setJump(box("txtCh(123)"), [this] { return box("txtCh(117)"); });
    m_path->setAction(box("txtRemarks"), [this] { save(); });
    m_path->setLeaveCheck([this](QWidget *left) { return leaveBox(left); });
    for (QWidget *watched : {static_cast<QWidget *>(box("txtCh(117)")),
                             static_cast<QWidget *>(box("txtCh(120)")),
                             static_cast<QWidget *>(m_section->lineEdit())})
        watched->installEventFilter(this);
}

void ChallanPanel::open()
{
    m_challans.open();
    showEntry();
    showFocus();
}

bool ChallanPanel::leaveBox(QWidget *left)
{
    readEntry();
    bool accepted = true;
    if (isAmountBox(left->objectName()))
        accepted = m_challans.amountLeft(left->objectName().mid(6, 3).toInt());
    else if (left == m_section)
        accepted = m_challans.sectionLeft();
    else if (left == m_date)
        accepted = m_challans.dateLeft();
    showEntry();
    m_statement.takeFocus();
    return accepted;
}

void ChallanPanel::save()
{
    readEntry();
    m_challans.save();
    showEntry();
    showFocus();
}

void ChallanPanel::boxEdited()
{
    if (m_showing)
        return;
    readEntry();
    m_challans.boxChanged();
    showEntry();
}

void ChallanPanel::readEntry()
{
    ChallanEntry &entry = m_challans.entry();
    for (const ChallanEntry::Box &entryBox : ChallanEntry::boxes())
        entry.*(entryBox.member) = box(QLatin1String(entryBox.control))->text();
    entry.section = m_section->currentText();
    entry.date = m_date->date();
}

void ChallanPanel::showEntry()
{
    m_showing = true;
    const ChallanEntry &entry = m_challans.entry();
    for (const ChallanEntry::Box &entryBox : ChallanEntry::boxes()) {
        QLineEdit *line = box(QLatin1String(entryBox.control));
        if (line->text() != entry.*(entryBox.member))
            line->setText(entry.*(entryBox.member));
    }
    if (m_section->currentText() != entry.section)
        m_section->setCurrentText(entry.section);
    m_sectionDescription->setText(m_challans.sectionDescription());
    m_sectionDescription->setCursorPosition(0);
    m_date->setDate(entry.date);
    const challanrules::NumberBoxes numbers = m_challans.numberBoxes();
    box("txtCh(125)")->setEnabled(numbers.challanNo);
    box("txtCh(126)")->setEnabled(numbers.voucherNo);
    m_showing = false;
}

void ChallanPanel::showFocus()
{
    m_path->focus(m_statement.takeFocus());
}

bool ChallanPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == m_list && key == Qt::Key_Delete) {
        const QModelIndex current = m_list->currentIndex();
        if (current.isValid()) {
            m_challans.deleteRow(current.row());
            showEntry();
            showFocus();
        }
        return true;
    }
    const bool endsEntry = watched == box("txtCh(120)") || watched == m_section->lineEdit();
    if (key == Qt::Key_End && endsEntry) {
        emit annexureAsked();
        return true;
    }
    if (key == Qt::Key_PageDown && watched != m_list) {
        m_list->setFocus();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

QLineEdit *ChallanPanel::box(const QString &name) const
{
    return m_boxes.value(name);
}
