#include "reports/picklistscreen.h"

#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/storeerror.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using screenroutines::commandButton;

namespace {

const QString selectAllText = QStringLiteral("&Select All");
const QString deselectAllText = QStringLiteral("&DeselectAll");

} // namespace

PickListScreen::PickListScreen(const Names &names, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_boxes(boxes),
      m_owner(new QComboBox(this)),
      m_rows(new QListWidget(this)),
      m_pageBreak(new QCheckBox(QStringLiteral("Page Break"), this)),
      m_selectAll(commandButton(selectAllText, QStringLiteral("CmdSelAll"), this))
{
    setObjectName(QLatin1String(names.screen));
    setWindowTitle(QLatin1String(names.title));
    m_owner->setObjectName(QLatin1String(names.ownerName));
    m_rows->setObjectName(QLatin1String(names.listName));
    m_rows->setSelectionMode(QAbstractItemView::MultiSelection);
    m_pageBreak->setObjectName(QStringLiteral("ChkOption"));
    auto *ok = commandButton(QStringLiteral("&OK"), QStringLiteral("cmdOK"), this);
    auto *close = commandButton(QStringLiteral("&Close"), QStringLiteral("cmdClose"), this);

    auto *ownerLabel = new QLabel(QLatin1String(names.ownerLabel), this);
    ownerLabel->setBuddy(m_owner);
    auto *listLabel = new QLabel(QLatin1String(names.listLabel), this);
    listLabel->setBuddy(m_rows);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_pageBreak);
    buttons->addStretch();
    buttons->addWidget(m_selectAll);
    buttons->addWidget(ok);
    buttons->addWidget(close);
    auto *layout = new QGridLayout(this);
    layout->addWidget(ownerLabel, 0, 0);
    layout->addWidget(m_owner, 0, 1);
    layout->addWidget(listLabel, 1, 0, Qt::AlignTop);
    layout->addWidget(m_rows, 1, 1);
    layout->addLayout(buttons, 2, 0, 1, 2);
    layout->setColumnStretch(1, 1);

    connect(m_owner, &QComboBox::activated, this, &PickListScreen::ownerChosen);
    connect(m_selectAll, &QPushButton::clicked, this, &PickListScreen::toggleSelection);
    connect(ok, &QPushButton::clicked, this, &PickListScreen::showReport);
    connect(close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    resize(460, 340);
}

void PickListScreen::showOwners(const std::function<QStringList()> &owners)
{
    try {
        m_owner->addItems(owners());
        m_owner->setCurrentIndex(-1);
    } catch (const StoreError &) {
        fail();
    }
}

QString PickListScreen::owner() const
{
    return m_owner->currentText();
}

bool PickListScreen::pageBreak() const
{
    return m_pageBreak->isChecked();
}

int PickListScreen::rowCount() const
{
    return m_rows->count();
}

QVariantList PickListScreen::tickedKeys() const
{
    QVariantList keys;
    for (int row = 0; row < m_rows->count(); ++row) {
        if (m_rows->item(row)->isSelected())
            keys.append(m_rows->item(row)->data(Qt::UserRole));
    }
    return keys;
}

void PickListScreen::fail() const
{
    m_boxes.show({QStringLiteral("Error Detected."), appTitle, MessageIcon::Critical});
}

void PickListScreen::ownerChosen()
{
    m_rows->clear();
    try {
        for (const PickListRow &row : rowsOf(m_owner->currentText())) {
            auto *item = new QListWidgetItem(row.text, m_rows);
            item->setData(Qt::UserRole, row.key);
        }
    } catch (const StoreError &) {
        fail();
    }
}

void PickListScreen::toggleSelection()
{
    // The button says what it does next: select all, then clear all, and so on.
    const bool select = m_selectAll->text() == selectAllText;
    for (int row = 0; row < m_rows->count(); ++row)
        m_rows->item(row)->setSelected(select);
    m_selectAll->setText(select ? deselectAllText : selectAllText);
}
