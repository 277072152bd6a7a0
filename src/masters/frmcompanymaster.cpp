#include "masters/frmcompanymaster.h"

#include "core/messageboxes.h"
#include "core/numbers.h"
#include "core/recordsetfailure.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/widgetroutines.h"
#include "masters/companyfieldspanel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using screenroutines::isEnterKey;
using screenroutines::commandButton;

namespace {

enum Column { NameColumn, TanColumn, PanColumn, OfficerColumn, PrefixColumn, GroupColumn,
              IdColumn };

} // namespace

FrmCompanyMaster::FrmCompanyMaster(Session &session, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_boxes(boxes),
      m_master(session),
      m_validation(session.store),
      m_group(new QComboBox(this)),
      m_list(new QTreeWidget(this)),
      m_fields(new CompanyFieldsPanel(m_master, boxes, this)),
      m_add(commandButton(QStringLiteral("Add &New"), QStringLiteral("cmdAdd"), this)),
      m_edit(commandButton(QStringLiteral("&Edit"), QStringLiteral("cmdEdit"), this)),
      m_save(commandButton(QStringLiteral("&Save"), QStringLiteral("cmdSave"), this)),
      m_cancel(commandButton(QStringLiteral("&Cancel"), QStringLiteral("cmdCancel"), this)),
      m_delete(commandButton(QStringLiteral("&Delete"), QStringLiteral("cmdDelete"), this)),
      m_close(commandButton(QStringLiteral("Cl&ose"), QStringLiteral("cmdClose"), this))
{
    setObjectName(QStringLiteral("frmCompanyMaster"));
    setWindowTitle(QStringLiteral("Company Master"));

    m_group->setObjectName(QStringLiteral("cmbGrp"));
    m_group->setEditable(true);
    m_group->setInsertPolicy(QComboBox::NoInsert);
    // The group the list shows is kept when the fields are cleared for a new company.
    m_group->setProperty("tag", QStringLiteral("PJ"));
    m_list->setObjectName(QStringLiteral("lstvComp"));
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setHeaderLabels({QStringLiteral("Company Name"), QStringLiteral("TAN"),
                             QStringLiteral("PAN"), QStringLiteral("A.O. Code"),
                             QStringLiteral("File Prefix"), QStringLiteral("Group Name"),
                             QStringLiteral("Company ID")});
    m_list->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_list->header()->setStretchLastSection(false);
    m_list->installEventFilter(this);
    m_fields->setLeavingExempt({m_cancel, m_close});

    auto *groupLabel = new QLabel(QStringLiteral("&Group"), this);
    groupLabel->setBuddy(m_group);
    auto *top = new QHBoxLayout;
    top->addWidget(groupLabel);
    top->addWidget(m_group, 1);
    top->addStretch(2);
    auto *buttons = new QHBoxLayout;
    for (QPushButton *button : {m_add, m_edit, m_save, m_cancel, m_delete})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(m_close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_fields);
    layout->addLayout(buttons);

    // Group, list, the fields in their order, then the buttons.
    setTabOrder(m_group, m_list);
    setTabOrder(m_list, m_fields->control(QStringLiteral("cmbGroupName")));
    QWidget *previous = m_fields->control(QStringLiteral("txtDDORegNo"));
    for (QPushButton *button : {m_add, m_edit, m_save, m_cancel, m_delete, m_close}) {
        setTabOrder(previous, button);
        previous = button;
    }

    connect(m_add, &QPushButton::clicked, this, &FrmCompanyMaster::addCompany);
    connect(m_edit, &QPushButton::clicked, this, &FrmCompanyMaster::editCompany);
    connect(m_save, &QPushButton::clicked, this, &FrmCompanyMaster::saveCompany);
    connect(m_cancel, &QPushButton::clicked, this, &FrmCompanyMaster::cancelEntry);
    connect(m_delete, &QPushButton::clicked, this, &FrmCompanyMaster::deleteCompany);
    connect(m_close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &FrmCompanyMaster::editCompany);

    setCommandButtons(true);
    try {
        m_group->addItems(m_master.groupNames());
    } catch (const StoreError &error) {
        reportStoreError(error.description());
    }
    if (m_group->count() > 0)
        m_group->setCurrentIndex(0);
    connect(m_group, &QComboBox::currentTextChanged, this, &FrmCompanyMaster::filterGroupChanged);
    filterGroupChanged();
    m_list->setFocus();
    resize(1000, 720);
}

bool FrmCompanyMaster::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && isEnterKey(event)) {
        editCompany();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FrmCompanyMaster::addCompany()
{
    const QString groupId = groupIdField()->text();
    if (numbers::val(groupId) == 0) {
        m_boxes.show({CompanyMaster::noGroupText, CompanyMaster::beforeAddingTitle,
                      MessageIcon::Information});
        m_group->setFocus();
        return;
    }
    widgetroutines::clearControls(this);
    m_fields->setEntry(CompanyMaster::newEntry(m_group->currentText(), groupId));
    m_isEdit = false;
    setCommandButtons(false);
    m_fields->control(QStringLiteral("txtTan"))->setFocus();
}

void FrmCompanyMaster::editCompany()
{
    const QTreeWidgetItem *row = m_list->currentItem();
    if (!row || !m_list->isEnabled())
        return;
    std::optional<CompanyEntry> entry;
    try {
        entry = m_master.load(row->text(IdColumn).toInt());
    } catch (const StoreError &error) {
        m_boxes.show(recordsetFailure(error));
        return;
    }
    if (!entry)
        return;
    m_fields->setEntry(*entry);
    m_isEdit = true;
    setCommandButtons(false);
    m_fields->control(QStringLiteral("txtTan"))->setFocus();
}

void FrmCompanyMaster::saveCompany()
{
    if (!m_editing)
        return;
    const CompanyEntry entry = m_fields->entry();
    int compId = 0;
    try {
        const CompanyValidation::Verdict verdict = m_validation.validate(entry, m_boxes);
        if (verdict.refusal) {
            m_fields->refuse(*verdict.refusal);
            return;
        }
        if (verdict.declined)
            return;
        compId = m_master.save(entry, m_boxes);
    } catch (const StoreError &error) {
        // Nothing of the save was kept; the entry stays on the screen to be put right.
        reportStoreError(error.description());
        return;
    }
    auto *compIdField = qobject_cast<QLineEdit *>(m_fields->control(QStringLiteral("txtCompId")));
    compIdField->setText(QString::number(compId));
    m_isEdit = false;
    setCommandButtons(true);
    // A company moved to another group leaves the list's group as the one to add to.
    groupIdField()->setText(QString::number(m_filterGroupId));
    fillList(compId);
    m_list->setFocus();
}

void FrmCompanyMaster::cancelEntry()
{
    m_isEdit = false;
    setCommandButtons(true);
    groupIdField()->setText(QString::number(m_filterGroupId));
    m_list->setFocus();
}

void FrmCompanyMaster::deleteCompany()
{
    if (m_list->topLevelItemCount() == 0) {
        m_boxes.show({CompanyMaster::emptyListText, CompanyMaster::informationTitle,
                      MessageIcon::Information});
        return;
    }
    if (m_boxes.show({CompanyMaster::confirmDeleteText, CompanyMaster::confirmationTitle,
                      MessageIcon::Question, MessageButtons::YesNo, true})
        != Answer::Yes)
        return;
    const QTreeWidgetItem *row = m_list->currentItem();
    if (!row)
        row = m_list->topLevelItem(0);
    const int compId = row->text(IdColumn).toInt();
    try {
        if (const std::optional<Message> refusal = m_master.deleteRefusal(compId)) {
            m_boxes.show(*refusal);
            return;
        }
        m_master.remove(compId);
    } catch (const StoreError &error) {
        reportStoreError(error.description());
        return;
    }
    m_boxes.show({CompanyMaster::deletedText});
    fillList();
    m_list->setFocus();
}

void FrmCompanyMaster::setCommandButtons(bool browse)
{
    m_editing = !browse;
    m_add->setEnabled(browse);
    m_edit->setEnabled(browse);
    m_delete->setEnabled(browse);
    m_save->setEnabled(!browse);
    m_cancel->setEnabled(!browse);
    m_fields->setEditing(!browse, m_isEdit);
    m_list->setEnabled(browse);
    m_group->setEnabled(browse);
}

void FrmCompanyMaster::filterGroupChanged()
{
    if (m_editing)
        return;
    m_filterGroupId = 0;
    try {
        m_filterGroupId = m_master.groupId(m_group->currentText());
    } catch (const StoreError &error) {
        reportStoreError(error.description());
    }
    groupIdField()->setText(QString::number(m_filterGroupId));
    fillList();
}

void FrmCompanyMaster::fillList(int selectCompId)
{
    QList<CompanyMaster::Row> rows;
    try {
        if (m_filterGroupId != 0)
            rows = m_master.companies(m_filterGroupId);
    } catch (const StoreError &error) {
        m_boxes.show(recordsetFailure(error));
    }
    m_list->clear();
    QList<QTreeWidgetItem *> items;
    items.reserve(rows.size());
    QTreeWidgetItem *current = nullptr;
    for (const CompanyMaster::Row &row : std::as_const(rows)) {
        auto *item = new QTreeWidgetItem({row.name, row.tan, row.pan, row.assessingOfficerCode,
                                          row.filePrefix, row.groupName,
                                          QString::number(row.compId)});
        if (!current || row.compId == selectCompId)
            current = item;
        items.append(item);
    }
    m_list->addTopLevelItems(items);
    // A row always stands selected, so that Edit and Delete act on it without the mouse.
    if (current)
        m_list->setCurrentItem(current);
}

QLineEdit *FrmCompanyMaster::groupIdField() const
{
    return qobject_cast<QLineEdit *>(m_fields->control(QStringLiteral("txtGrpId")));
}

void FrmCompanyMaster::reportStoreError(const QString &description)
{
    m_boxes.show({description, appTitle, MessageIcon::Critical});
}
