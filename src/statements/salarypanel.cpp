#include "statements/salarypanel.h"

#include "core/datebox.h"
#include "core/fieldpath.h"
#include "core/keyfilters.h"
#include "core/screenroutines.h"
#include "statements/perkframe.h"
#include "statements/salarylistview.h"
#include "statements/sectionframe.h"
#include "statements/statementsheet.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

// The figures in three columns, each read down in the order the chain runs.
const int figureColumns[3][7] = {
    {205, 206, 207, 209, 210, 211, 212},
    {213, 217, 337, 338, 218, 219, 342},
    {343, 220, 224, 225, 346, 347, 0},
};

QLabel *labelFor(QWidget *field, const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setBuddy(field); // a buddy makes "&&" show as one "&"
    label->setWordWrap(true);
    return label;
}

QString labelOf(int index)
{
    for (const SalaryEntry::Box &entry : SalaryEntry::boxes()) {
        if (entry.index == index)
            return QLatin1String(entry.label);
    }
    return {};
}

DateBox *dateBox(const QString &name, const QString &tip, QWidget *parent)
{
    auto *date = new DateBox(name, parent);
    date->setToolTip(tip);
    return date;
}

} // namespace

SalaryPanel::SalaryPanel(StatementSheet &sheet, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent), m_statement(sheet), m_salary(sheet)
{
    setObjectName(QStringLiteral("pctEmp"));
    buildEmployee();
    buildFigures(boxes);
    buildFrames(boxes);
    buildList();
    layOut();
    setUpPath();
}

void SalaryPanel::buildEmployee()
{
    for (const SalaryEntry::Box &entry : SalaryEntry::boxes()) {
        auto *line = new QLineEdit(this);
        line->setObjectName(QStringLiteral("txt(%1)").arg(entry.index));
        line->setMaxLength(entry.maxLength);
        line->setReadOnly(entry.locked());
        if (entry.isAmount())
            line->setAlignment(Qt::AlignRight);
        m_txt.insert(entry.index, line);
    }
    box(202)->setToolTip(QStringLiteral("PAN of the employee"));
    for (int index : {202, 2, 3})
        keyfilters::install(box(index), {keyfilters::Rule::UpperCase});

    m_employee = new QComboBox(this);
    m_employee->setObjectName(QStringLiteral("cmbEmpname"));
    m_employee->setEditable(true);
    m_employee->setInsertPolicy(QComboBox::NoInsert);
    keyfilters::install(m_employee->lineEdit(), {keyfilters::Rule::UpperCase});

    m_from = dateBox(QStringLiteral("DTP204From"),
                     QStringLiteral("Date from employed from (during the financial year)"), this);
    m_to = dateBox(QStringLiteral("DTP204To"),
                   QStringLiteral("Date to employed (during the financial year)"), this);

    m_category = new QComboBox(this);
    m_category->setObjectName(QStringLiteral("cmbCat"));
    m_category->addItems(SalaryEntry::categoryCodes);
    m_categoryName = new QLabel(this);
    m_categoryName->setObjectName(QStringLiteral("lblCat"));
    connect(m_category, &QComboBox::currentIndexChanged, this, [this](int row) {
        m_categoryName->setText(SalaryEntry::categoryName(row));
    });

    m_flag = new QLineEdit(this);
    m_flag->setObjectName(QStringLiteral("txt212Flag"));
    m_salaryId = new QLineEdit(this);
    m_salaryId->setObjectName(QStringLiteral("txtSalaryid"));
    m_employeeId = new QLineEdit(this);
    m_employeeId->setObjectName(QStringLiteral("txtEmployeeID"));
    for (QLineEdit *hidden : {m_flag, m_salaryId, m_employeeId})
        hidden->setVisible(false);
}

void SalaryPanel::buildFigures(MessageBoxes &boxes)
{
    for (const SalaryEntry::Box &entry : SalaryEntry::boxes()) {
        if (!entry.isAmount())
            continue;
        QLineEdit *line = box(entry.index);
        if (!entry.locked()) {
            keyfilters::installNumeric(line, boxes,
                                       entry.kind != SalaryEntry::Kind::SignedAmount);
            keyfilters::selectOnEntry(line);
        }
        connect(line, &QLineEdit::textEdited, this,
                [this, index = entry.index] { boxEdited(index); });
    }
}

void SalaryPanel::buildFrames(MessageBoxes &boxes)
{
    for (SectionKind kind : SectionGrid::kinds) {
        auto *frame = new SectionFrame(m_salary.grid(kind), boxes, this);
        m_frames.append(frame);
        const SectionGrid::Traits &traits = SectionGrid::traits(kind);
        auto *button = new QPushButton(QStringLiteral("..."), this);
        button->setObjectName(QLatin1String(traits.button));
        m_details.insert(traits.totalBox, button);
        connect(button, &QPushButton::clicked, frame, &SectionFrame::open);
        connect(frame, &PopupFrame::okClicked, this, [this, frame] { frameClosed(frame, true); });
        connect(frame, &PopupFrame::cancelClicked, this,
                [this, frame] { frameClosed(frame, false); });
    }
    m_perks = new PerkFrame(boxes, this);
    auto *perkButton = new QPushButton(QStringLiteral("..."), this);
    perkButton->setObjectName(QStringLiteral("cmdDetailsPerk"));
    m_details.insert(207, perkButton);
    connect(perkButton, &QPushButton::clicked, m_perks, &PerkFrame::open);
    connect(m_perks, &PerkFrame::perkEdited, this, &SalaryPanel::perkEdited);
    connect(m_perks, &PopupFrame::okClicked, this, [this] { perkFrameClosed(true); });
    connect(m_perks, &PopupFrame::cancelClicked, this, [this] { perkFrameClosed(false); });
    for (QPushButton *button : std::as_const(m_details))
        button->setFixedWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("...")) + 16);
}

void SalaryPanel::buildList()
{
    m_save = screenroutines::commandButton(QStringLiteral("Sa&ve Record"),
                                           QStringLiteral("cmdSaveEmployee"), this);
    connect(m_save, &QPushButton::clicked, this, &SalaryPanel::save);

    m_list = new SalaryListView(&m_salary.list(), this);
    m_list->installEventFilter(this);
    connect(m_list, &QTableView::clicked, this, [this](const QModelIndex &index) {
        m_salary.loadRow(index.row());
        showEntry();
    });
}

QWidget *SalaryPanel::figuresBlock()
{
    auto *figures = new QGroupBox(this);
    auto *grid = new QGridLayout(figures);
    grid->setVerticalSpacing(2);
    for (int column = 0; column < 3; ++column) {
        for (int row = 0; row < 7; ++row) {
            const int index = figureColumns[column][row];
            if (index == 0)
                continue;
            QLineEdit *line = box(index);
            grid->addWidget(labelFor(line, labelOf(index), figures), row, column * 4);
            grid->addWidget(line, row, column * 4 + 1);
            if (QPushButton *details = m_details.value(index))
                grid->addWidget(details, row, column * 4 + 2);
        }
        grid->setColumnStretch(column * 4, 1);
        grid->setColumnMinimumWidth(column * 4 + 1, 110);
        if (column < 2)
            grid->setColumnMinimumWidth(column * 4 + 3, 12);
    }
    return figures;
}

void SalaryPanel::layOut()
{
    auto *employee = new QGroupBox(this);
    auto *top = new QGridLayout(employee);
    top->setVerticalSpacing(2);
    const auto place = [&](QWidget *field, const QString &caption, int row, int column) {
        top->addWidget(labelFor(field, caption, employee), row, column * 2);
        top->addWidget(field, row, column * 2 + 1);
    };
    place(box(201), labelOf(201), 0, 0);
    place(m_employee, QStringLiteral("Employee Name [329]"), 0, 1);
    place(box(202), labelOf(202), 0, 2);
    place(box(2), labelOf(2), 1, 0);
    place(box(3), labelOf(3), 1, 1);
    auto *category = new QHBoxLayout;
    category->addWidget(m_category);
    category->addWidget(m_categoryName, 1);
    auto *categoryLabel = labelFor(m_category, QStringLiteral("Emply. Category [330]"), employee);
    top->addWidget(categoryLabel, 1, 4);
    top->addLayout(category, 1, 5);
    place(m_from, QStringLiteral("Period of Employment From  [331]"), 2, 0);
    place(m_to, QStringLiteral("To  [331]"), 2, 1);
    top->addWidget(m_save, 2, 5, Qt::AlignRight);
    for (int column : {1, 3, 5})
        top->setColumnStretch(column, 1);
    top->setColumnStretch(3, 2);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(employee);
    layout->addWidget(figuresBlock());
    layout->addWidget(m_list, 1);
}

void SalaryPanel::setUpPath()
{
    m_path = new FieldPath(this);
    QList<QWidget *> order = {m_employee, box(202), box(2), box(3), m_from, m_to, m_category};
    for (int index : {205, 206, 207, 212, 337, 338, 219, 342, 343, 224, 346})
        order << box(index);
    m_path->setOrder(order);
    m_path->setJump(box(346), [this] { return m_save; });
    m_path->setLeaveCheck([this](QWidget *field) { return leaveField(field); });
}

void SalaryPanel::open()
{
    m_salary.open();
    m_showing = true;
    m_employee->clear();
    m_employee->addItems(m_salary.employeeNames());
    m_showing = false;
    for (SectionFrame *frame : std::as_const(m_frames)) {
        frame->hide();
        frame->setOffered(m_salary.offered(frame->grid().traits().kind));
    }
    m_perks->hide();
    showEntry();
    showFocus();
}

bool SalaryPanel::leaveField(QWidget *field)
{
    if (field != m_employee && field != m_from && field != m_to)
        return true;
    readEntry();
    const bool accepted = field == m_employee ? m_salary.employeeLeft()
                                              : m_salary.periodLeft(field->objectName());
    showEntry();
    m_statement.takeFocus(); // the path keeps the focus in a refused field
    return accepted;
}

void SalaryPanel::boxEdited(int index)
{
    if (m_showing)
        return;
    readEntry();
    m_salary.boxChanged(index);
    showEntry();
}

void SalaryPanel::perkEdited()
{
    readEntry();
    m_salary.perkChanged();
    showEntry();
}

void SalaryPanel::frameClosed(SectionFrame *frame, bool ok)
{
    frame->finishEditing();
    readEntry();
    const SectionKind kind = frame->grid().traits().kind;
    if (ok && !m_salary.gridOk(kind))
        return; // a refused row keeps the frame open
    if (!ok)
        m_salary.gridCancelled(kind);
    frame->hide();
    showEntry();
    showFocus();
}

void SalaryPanel::perkFrameClosed(bool ok)
{
    readEntry();
    if (ok)
        m_salary.perkOk();
    else
        m_salary.perkCancelled();
    m_perks->hide();
    showEntry();
}

void SalaryPanel::save()
{
    readEntry();
    m_salary.save();
    showEntry();
    showFocus();
}

void SalaryPanel::readEntry()
{
    SalaryEntry &entry = m_salary.entry();
    for (auto line = m_txt.cbegin(); line != m_txt.cend(); ++line)
        entry.txt[line.key()] = line.value()->text();
    m_perks->readPerks(entry);
    entry.empName = m_employee->currentText();
    entry.fromDate = m_from->date();
    entry.toDate = m_to->date();
    entry.category = m_category->currentIndex();
    entry.flag212 = m_flag->text();
    entry.salaryId = m_salaryId->text();
    entry.employeeId = m_employeeId->text();
}

void SalaryPanel::showEntry()
{
    m_showing = true;
    const SalaryEntry &entry = m_salary.entry();
    for (auto line = m_txt.cbegin(); line != m_txt.cend(); ++line) {
        if (line.value()->text() != entry.box(line.key()))
            line.value()->setText(entry.box(line.key()));
    }
    m_perks->showPerks(entry);
    if (m_employee->currentText() != entry.empName)
        m_employee->setCurrentText(entry.empName);
    m_from->setDate(entry.fromDate);
    m_to->setDate(entry.toDate);
    m_category->setCurrentIndex(entry.category);
    m_categoryName->setText(SalaryEntry::categoryName(entry.category));
    m_flag->setText(entry.flag212);
    m_salaryId->setText(entry.salaryId);
    m_employeeId->setText(entry.employeeId);
    m_showing = false;
}

void SalaryPanel::showFocus()
{
    m_path->focus(m_statement.takeFocus());
}

bool SalaryPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        const QModelIndex current = m_list->currentIndex();
        if (current.isValid()) {
            m_salary.deleteRow(current.row());
            showEntry();
            showFocus();
        }
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
