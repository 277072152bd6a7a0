#include "masters/frmgroupmaster.h"

#include "core/fieldchecks.h"
#include "core/keyfilters.h"
#include "core/messageboxes.h"
#include "core/recordsetfailure.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/storeerror.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using screenroutines::isEnterKey;
using screenroutines::commandButton;

namespace {

enum Column { CodeColumn, NameColumn };

constexpr int nameLength = 30;

} // namespace

FrmGroupMaster::FrmGroupMaster(Session &session, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_master(session.store),
      m_boxes(boxes),
      m_list(new QTreeWidget(this)),
      m_id(new QLineEdit(this)),
      m_name(new QLineEdit(this)),
      m_matches(new QListWidget(this)),
      m_add(commandButton(QStringLiteral("Add &New"), QStringLiteral("cmdAdd"), this)),
      m_edit(commandButton(QStringLiteral("&Edit"), QStringLiteral("cmdEdit"), this)),
      m_save(commandButton(QStringLiteral("&Save"), QStringLiteral("cmdSave"), this)),
      m_cancel(commandButton(QStringLiteral("&Cancel"), QStringLiteral("cmdCancel"), this)),
      m_delete(commandButton(QStringLiteral("&Delete"), QStringLiteral("cmdDelete"), this)),
      m_close(commandButton(QStringLiteral("Cl&ose"), QStringLiteral("cmdClose"), this))
{
    setObjectName(QStringLiteral("frmGroupMaster"));
    setWindowTitle(QStringLiteral("Group Master"));

    m_list->setObjectName(QStringLiteral("lstvGrp"));
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setSelectionMode(QAbstractItemView::SingleSelection);
    m_list->setHeaderLabels({QStringLiteral("Group Code"), QStringLiteral("Group Description")});
    m_list->header()->setStretchLastSection(true);
    m_list->installEventFilter(this);

    m_id->setObjectName(QStringLiteral("txtGID"));
    m_id->setReadOnly(true);
    m_id->setFocusPolicy(Qt::NoFocus);
    m_name->setObjectName(QStringLiteral("txtGrpName"));
    m_name->setMaxLength(nameLength);
    m_name->setEnabled(false);
    keyfilters::install(m_name, {keyfilters::Rule::UpperCase});
    m_name->installEventFilter(this);

    // Only shows what exists already; the keyboard stays in the name field.
    m_matches->setObjectName(QStringLiteral("lstGrp"));
    m_matches->setFocusPolicy(Qt::NoFocus);
    // Its place is kept while hidden, so that the list above does not jump when it shows.
    m_matches->setFixedHeight(120);
    QSizePolicy keepPlace = m_matches->sizePolicy();
    keepPlace.setRetainSizeWhenHidden(true);
    m_matches->setSizePolicy(keepPlace);
    m_matches->hide();

    auto *codeLabel = new QLabel(QStringLiteral("Group Code"), this);
    auto *nameLabel = new QLabel(QStringLiteral("Group Name"), this);

    auto *fields = new QGridLayout;
    fields->addWidget(codeLabel, 0, 0);
    fields->addWidget(m_id, 0, 1);
    fields->addWidget(nameLabel, 1, 0);
    fields->addWidget(m_name, 1, 1);
    fields->addWidget(m_matches, 1, 2, 2, 1, Qt::AlignTop);
    fields->setColumnStretch(1, 2);
    fields->setColumnStretch(2, 1);
    fields->setRowStretch(2, 1);

    auto *buttons = new QHBoxLayout;
    for (QPushButton *button : {m_add, m_edit, m_save, m_cancel, m_delete})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(m_close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(fields);
    layout->addLayout(buttons);

    setTabOrder(m_list, m_name);
    setTabOrder(m_name, m_add);
    setTabOrder(m_add, m_edit);
    setTabOrder(m_edit, m_save);
    setTabOrder(m_save, m_cancel);
    setTabOrder(m_cancel, m_delete);
    setTabOrder(m_delete, m_close);

    connect(m_add, &QPushButton::clicked, this, &FrmGroupMaster::addGroup);
    connect(m_edit, &QPushButton::clicked, this, &FrmGroupMaster::editGroup);
    connect(m_save, &QPushButton::clicked, this, &FrmGroupMaster::saveGroup);
    connect(m_cancel, &QPushButton::clicked, this, &FrmGroupMaster::cancelEntry);
    connect(m_delete, &QPushButton::clicked, this, &FrmGroupMaster::deleteGroup);
    connect(m_close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &FrmGroupMaster::editGroup);
    connect(m_name, &QLineEdit::textEdited, this, &FrmGroupMaster::showMatchingNames);

    setCommandButtons(true);
    fillList();
    m_list->setFocus();
    resize(520, 420);
}

bool FrmGroupMaster::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list && isEnterKey(event)) {
        if (m_list->isEnabled())
            editGroup();
        return true;
    }
    if (watched == m_name) {
        if (isEnterKey(event)) {
            focusNextChild();
            return true;
        }
        if (event->type() == QEvent::FocusOut)
            m_matches->hide();
    }
    return QWidget::eventFilter(watched, event);
}

void FrmGroupMaster::addGroup()
{
    try {
        m_id->setText(QString::number(m_master.nextId()));
    } catch (const StoreError &error) {
        m_boxes.show(recordsetFailure(error));
        return;
    }
    m_name->clear();
    m_list->setEnabled(false);
    setCommandButtons(false);
    m_isEdit = false;
    m_name->setFocus();
}

void FrmGroupMaster::editGroup()
{
    const QTreeWidgetItem *row = m_list->currentItem();
    if (!row)
        return;
    m_id->setText(row->text(CodeColumn));
    m_name->setText(row->text(NameColumn));
    m_list->setEnabled(false);
    m_isEdit = true;
    setCommandButtons(false);
    m_name->setFocus();
    m_name->selectAll();
}

void FrmGroupMaster::saveGroup()
{
    const GroupMaster::Entry entry{m_id->text().toInt(), m_name->text(), m_isEdit};
    int id = 0;
    try {
        if (const std::optional<FieldFailure> failure = m_master.check(entry)) {
            fieldchecks::report(m_boxes, *failure, m_name);
            return;
        }
        const QList<Message> questions = m_master.questions(entry);
        for (const Message &question : questions) {
            if (m_boxes.show(question) == Answer::No) {
                fieldchecks::focusIfPossible(m_name);
                return;
            }
        }
        m_name->setText(m_name->text().trimmed());
        id = m_master.save(entry);
    } catch (const StoreError &error) {
        reportStoreError(error.description());
        return;
    }
    m_id->setText(QString::number(id));
    m_isEdit = false;
    setCommandButtons(true);
    m_list->setEnabled(true);
    m_matches->hide();
    fillList(id);
    m_list->setFocus();
}

void FrmGroupMaster::cancelEntry()
{
    m_isEdit = false;
    setCommandButtons(true);
    m_list->setEnabled(true);
    m_list->raise();
    m_matches->hide();
    m_list->setFocus();
}

void FrmGroupMaster::deleteGroup()
{
    const QTreeWidgetItem *row = m_list->currentItem();
    if (!row)
        return;
    const int id = row->text(CodeColumn).toInt();
    const Message confirm{GroupMaster::confirmDeleteText, GroupMaster::confirmationTitle,
                          MessageIcon::Question, MessageButtons::YesNo, true};
    if (m_boxes.show(confirm) != Answer::Yes)
        return;
    try {
        if (const std::optional<Message> refusal = m_master.deleteRefusal(id)) {
            m_boxes.show(*refusal);
            return;
        }
        m_master.remove(id);
    } catch (const StoreError &error) {
        reportStoreError(error.description());
        return;
    }
    m_boxes.show({GroupMaster::deletedText});
    fillList();
    m_list->setFocus();
}

void FrmGroupMaster::setCommandButtons(bool browse)
{
    m_add->setEnabled(browse);
    m_edit->setEnabled(browse);
    m_delete->setEnabled(browse);
    m_save->setEnabled(!browse);
    m_cancel->setEnabled(!browse);
    m_name->setEnabled(!browse);
}

void FrmGroupMaster::fillList(int selectId)
{
    QList<GroupMaster::Group> groups;
    try {
        groups = m_master.groups();
    } catch (const StoreError &error) {
        m_boxes.show(recordsetFailure(error));
        return;
    }
    m_list->clear();
    QList<QTreeWidgetItem *> items;
    items.reserve(groups.size());
    QTreeWidgetItem *current = nullptr;
    for (const GroupMaster::Group &group : groups) {
        auto *item = new QTreeWidgetItem({QString::number(group.id), group.name});
        if (group.id == selectId || !current)
            current = item;
        items.append(item);
    }
    m_list->addTopLevelItems(items);
    // A row always stands selected, so that Edit and Delete act on it without the mouse.
    if (current)
        m_list->setCurrentItem(current);
}

void FrmGroupMaster::showMatchingNames(const QString &typed)
{
    QStringList names;
    try {
        names = m_master.namesStartingWith(typed);
    } catch (const StoreError &error) {
        m_boxes.show(recordsetFailure(error));
        return;
    }
    m_matches->clear();
    m_matches->addItems(names);
    m_matches->setVisible(!names.isEmpty());
}

void FrmGroupMaster::reportStoreError(const QString &description)
{
    m_boxes.show({description, appTitle, MessageIcon::Critical});
}
