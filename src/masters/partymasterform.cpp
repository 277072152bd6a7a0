#include "masters/partymasterform.h"

#include "core/commandbar.h"
#include "core/fieldchecks.h"
#include "core/keyfilters.h"
#include "core/masterbuttonbar.h"
#include "core/screenroutines.h"
#include "masters/partymaster.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeView>
#include <QValidator>

namespace {

// Upper-cases what is typed into a combo's text; a combo hands its keys to its line edit
// directly, past any event filter of the edit.
class UpperCaseValidator : public QValidator
{
public:
    UpperCaseValidator(int maxLength, QObject *parent) : QValidator(parent), m_max(maxLength) {}

    State validate(QString &input, int & /*pos*/) const override
    {
        input = input.toUpper();
        return input.size() <= m_max ? Acceptable : Invalid;
    }

private:
    int m_max;
};

} // namespace

PartyMasterForm::PartyMasterForm(PartyMaster &master, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_boxes(boxes),
      m_group(new QComboBox(this)),
      m_groupId(new QLineEdit(this)),
      m_id(new QLineEdit(this)),
      m_name(new QLineEdit(this)),
      m_pan(new QLineEdit(this)),
      m_panRef(new QLineEdit(this)),
      m_master(master)
{
    m_group->setObjectName(PartyMaster::groupField);
    // The group stays from one entry to the next: clearing the fields leaves it.
    m_group->setProperty("tag", QStringLiteral("PJ"));
    m_groupId->setObjectName(QStringLiteral("txtGrpId"));
    m_groupId->setProperty("tag", QStringLiteral("PJ"));
    m_groupId->setVisible(false);
    m_id->setReadOnly(true);
    m_id->setFocusPolicy(Qt::NoFocus);
    m_name->setMaxLength(75);
    keyfilters::install(m_name, {keyfilters::Rule::UpperCase});
    m_pan->setObjectName(PartyMaster::panField);
    m_pan->setMaxLength(10);
    keyfilters::install(m_pan, {keyfilters::Rule::UpperCase, keyfilters::Rule::Pan});
    m_panRef->setObjectName(PartyMaster::panRefField);
    m_panRef->setMaxLength(10);
    keyfilters::install(m_panRef, {keyfilters::Rule::UpperCase});
    m_panRef->setEnabled(false);
    fitWidth(m_id, 8);
    fitWidth(m_pan, 10);
    fitWidth(m_panRef, 10);
}

void PartyMasterForm::finishSetUp(const QString &idCaption, const QString &nameCaption,
                                  QGridLayout *ownFields, const QList<QWidget *> &ownOrder)
{
    // Made after the screen's own fields, so that Tab reaches the fields first, then the
    // buttons, then the list.
    m_bar = new MasterButtonBar(this, Qt::Vertical);
    for (int index = 0; index < MasterButtonBar::count; ++index)
        m_bar->button(index)->setAutoDefault(true); // Enter on a focused button presses it
    m_close = new QPushButton(QStringLiteral("Cl&ose"), this);
    m_close->setObjectName(QStringLiteral("cmdClose"));
    m_list = new QTreeView(this);
    m_list->setObjectName(PartyMaster::listField);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);

    auto *grid = new QGridLayout;
    const auto addRow = [grid, this](int row, const QString &caption, QWidget *field,
                                     int span = 3) {
        auto *label = new QLabel(caption, this);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1, 1, span);
    };
    addRow(0, QStringLiteral("&Group"), m_group);
    grid->addWidget(m_groupId, 0, 4);
    addRow(1, idCaption, m_id, 1);
    addRow(2, nameCaption, m_name);
    addRow(3, QStringLiteral("&PAN"), m_pan, 1);
    auto *panRefLabel = new QLabel(QStringLiteral("PAN &Ref"), this);
    panRefLabel->setBuddy(m_panRef);
    grid->addWidget(panRefLabel, 3, 2);
    grid->addWidget(m_panRef, 3, 3);
    grid->addLayout(ownFields, 4, 0, 1, 4);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_bar);
    buttons->addStretch();
    buttons->addWidget(m_close);

    auto *top = new QHBoxLayout;
    top->addLayout(grid, 1);
    top->addLayout(buttons);

    auto *listLabel = new QLabel(QStringLiteral("&List"), this);
    listLabel->setBuddy(m_list);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(listLabel);
    layout->addWidget(m_list, 1);

    QList<QWidget *> fieldOrder{m_group, m_name, m_pan, m_panRef};
    fieldOrder << ownOrder;
    m_keyboard = std::make_unique<PartyFormKeyboard>(
        this,
        PartyFormKeyboard::Controls{fieldOrder, m_pan, m_list,
                                    m_bar->button(MasterButtonBar::Save)},
        PartyFormKeyboard::Actions{[this](QWidget *field) { return leaveField(field); },
                                   [this] { loadListRow(); }, [this] { listDeleteKey(); }});

    m_list->setModel(&m_master.list());
    connect(&m_master.list(), &QAbstractItemModel::modelReset, this,
            &PartyMasterForm::selectListRow);
    connect(m_list, &QTreeView::doubleClicked, this, &PartyMasterForm::loadListRow);
    connect(m_bar, &MasterButtonBar::clicked, this, &PartyMasterForm::runCommand);
    connect(m_close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    connect(m_group, &QComboBox::currentIndexChanged, this, &PartyMasterForm::groupChosen);

    m_master.load();
    {
        const QSignalBlocker blocker(m_group);
        for (const PartyMaster::Group &group : m_master.groups())
            m_group->addItem(group.name, group.id);
    }
    // Only the parties' id, code, name and PAN are of use: the group is the combo's.
    const int columns = m_master.list().columnCount();
    m_list->setColumnHidden(columns - 1, true);
    m_list->setColumnHidden(columns - 2, true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(m_master.listNameColumn(), QHeaderView::Stretch);
    selectListRow();
    showAll();
    resize(640, 560);
}

bool PartyMasterForm::leaveOwnField(QWidget * /*field*/)
{
    return true;
}

void PartyMasterForm::startInAddMode()
{
    if (!isVisible())
        m_addOnShow = true;
    else if (m_bar->button(MasterButtonBar::AddNew)->isEnabled()) // not in the middle of an entry
        runCommand(MasterButtonBar::AddNew);
}

void PartyMasterForm::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_shown)
        return;
    m_shown = true;
    if (m_addOnShow) {
        m_addOnShow = false;
        runCommand(MasterButtonBar::AddNew);
    } else {
        m_list->setFocus();
    }
}

void PartyMasterForm::runCommand(int index)
{
    // The press that took the focus from a refused field is not a click of the button.
    if (m_keyboard->takeDroppedClick())
        return;
    // A command takes the field being typed in as left, as a click on a button always has;
    // Cancel throws the entry away and needs no check of it.
    QWidget *focused = m_keyboard->fieldOf(focusWidget());
    if (index != MasterButtonBar::Cancel && focused && !leaveField(focused))
        return;
    readFields();
    m_master.command(index);
    showAll();
}

void PartyMasterForm::loadListRow()
{
    if (!m_list->isEnabled())
        return;
    readFields();
    m_master.loadRow(m_master.selectedRow());
    showAll();
}

void PartyMasterForm::listDeleteKey()
{
    readFields();
    m_master.deleteKey();
    showAll();
}

void PartyMasterForm::groupChosen()
{
    readFields();
    m_master.groupChanged();
    showAll();
}

void PartyMasterForm::readFields()
{
    PartyFields &fields = m_master.fields();
    fields.groupName = m_group->currentText();
    fields.groupId = m_group->currentData().toInt();
    fields.id = m_id->text().toInt();
    fields.name = m_name->text();
    fields.pan = m_pan->text();
    fields.panRef = m_panRef->text();
    readOwnFields();
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    m_master.setSelectedRow(rows.isEmpty() ? -1 : rows.first().row());
}

void PartyMasterForm::showAll()
{
    showFields();
    showState();
}

void PartyMasterForm::showFields()
{
    const PartyFields &fields = m_master.fields();
    {
        const QSignalBlocker blocker(m_group);
        m_group->setCurrentIndex(m_group->findText(fields.groupName));
    }
    setText(m_groupId, fields.groupId ? QString::number(fields.groupId) : QString());
    setText(m_id, fields.id ? QString::number(fields.id) : QString());
    setText(m_name, fields.name);
    setText(m_pan, fields.pan);
    setText(m_panRef, fields.panRef);
    showOwnFields();
}

void PartyMasterForm::showState()
{
    m_keyboard->setShowing(true);
    switch (m_master.bar()) {
    case PartyMaster::Bar::Browse:
        commandbar::setCommandButtons(this, true);
        break;
    case PartyMaster::Bar::Editing:
        commandbar::setCommandButtons(this, false);
        break;
    case PartyMaster::Bar::AllEnabled:
        commandbar::enableCommands(this, QStringLiteral("True"), nullptr);
        break;
    }
    m_list->setEnabled(m_master.listEnabled());
    m_group->setEnabled(m_master.groupEnabled());
    m_panRef->setEnabled(m_master.panRefEnabled());
    const QString focus = m_master.takeFocus();
    if (!focus.isEmpty()) {
        if (auto *field = findChild<QWidget *>(focus)) {
            fieldchecks::focusIfPossible(field);
            if (QLineEdit *edit = PartyFormKeyboard::lineEditOf(field))
                edit->selectAll();
        }
    }
    m_keyboard->setShowing(false);
}

void PartyMasterForm::selectListRow()
{
    const int row = m_master.selectedRow();
    if (row < 0)
        return;
    const QModelIndex index = m_master.list().index(row, m_master.listNameColumn());
    m_list->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_list->scrollTo(index);
}

bool PartyMasterForm::leaveField(QWidget *field)
{
    readFields();
    bool accepted = true;
    if (field == m_pan)
        m_master.panLeft();
    else
        accepted = leaveOwnField(field);
    showAll();
    return accepted;
}

void PartyMasterForm::setText(QLineEdit *edit, const QString &text)
{
    if (edit->text() != text)
        edit->setText(text);
}

void PartyMasterForm::upperCaseCombo(QComboBox *combo, int maxLength)
{
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->lineEdit()->setMaxLength(maxLength);
    combo->setValidator(new UpperCaseValidator(maxLength, combo));
}

void PartyMasterForm::fitWidth(QWidget *field, int characters)
{
    field->setMaximumWidth(field->fontMetrics().horizontalAdvance(QLatin1Char('W')) * characters
                           + 24);
}
