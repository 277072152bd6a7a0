#include "core/frmlogin.h"

#include "core/screenroutines.h"
#include "core/session.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Column { NameColumn, IdColumn, StatusColumn };

} // namespace

FrmLogin::FrmLogin(Session &session, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent),
      m_selection(session, boxes),
      m_group(new QComboBox(this)),
      m_groupId(new QLineEdit(this)),
      m_companies(new QTreeWidget(this)),
      m_quarter(new QComboBox(this)),
      m_quarterLabel(new QLabel(this)),
      m_select(new QPushButton(QStringLiteral("&Select"), this)),
      m_cancel(new QPushButton(QStringLiteral("&Cancel"), this))
{
    setObjectName(QStringLiteral("frmLogin"));
    setWindowTitle(QStringLiteral("Select Company"));

    m_group->setObjectName(QStringLiteral("CmbGroup"));
    m_group->setEditable(true);
    m_group->setInsertPolicy(QComboBox::NoInsert);
    m_groupId->setObjectName(QStringLiteral("txtGroup"));
    m_groupId->setVisible(false);

    m_companies->setObjectName(QStringLiteral("lstvComp"));
    m_companies->setRootIsDecorated(false);
    m_companies->setAllColumnsShowFocus(true);
    m_companies->setSelectionMode(QAbstractItemView::SingleSelection);
    m_companies->setHeaderLabels({QStringLiteral("Company Name"), QStringLiteral("CompanyID"),
                                  QStringLiteral("Status")});
    m_companies->header()->setStretchLastSection(false);
    m_companies->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_companies->installEventFilter(this);

    m_quarter->setObjectName(QStringLiteral("cmbQuarter"));
    m_quarterLabel->setObjectName(QStringLiteral("lblQuarter"));
    m_select->setObjectName(QStringLiteral("cmdSelect"));
    m_cancel->setObjectName(QStringLiteral("cmdCancel"));

    auto *groupLabel = new QLabel(QStringLiteral("&Group"), this);
    groupLabel->setBuddy(m_group);
    auto *quarterLabel = new QLabel(QStringLiteral("&Quarter"), this);
    quarterLabel->setBuddy(m_quarter);

    auto *grid = new QGridLayout;
    grid->addWidget(groupLabel, 0, 0);
    grid->addWidget(m_group, 0, 1, 1, 2);
    grid->addWidget(m_companies, 1, 0, 1, 3);
    grid->addWidget(quarterLabel, 2, 0);
    grid->addWidget(m_quarter, 2, 1);
    grid->addWidget(m_quarterLabel, 2, 2);
    grid->setColumnStretch(2, 1);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_select);
    buttons->addWidget(m_cancel);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);

    setTabOrder(m_group, m_companies);
    setTabOrder(m_companies, m_quarter);
    setTabOrder(m_quarter, m_select);
    setTabOrder(m_select, m_cancel);

    // The user comes back, as a rule, for the same group and quarter as the last time.
    fillGroups();
    groupChanged();
    m_quarter->addItems(quarter::names());
    m_quarter->setCurrentIndex(m_selection.lastQuarterIndex());
    getQuarter();

    connect(m_group, &QComboBox::currentTextChanged, this, &FrmLogin::groupChanged);
    connect(m_quarter, &QComboBox::currentIndexChanged, this, &FrmLogin::getQuarter);
    connect(m_companies, &QTreeWidget::itemDoubleClicked, this, &FrmLogin::runSelection);
    connect(m_select, &QPushButton::clicked, this, &FrmLogin::runSelection);
    connect(m_cancel, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });
    auto *escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, [this] { screenroutines::closeScreen(this); });

    // The user comes here to pick a company: the list has the focus when the screen shows.
    m_companies->setFocus();
    resize(520, 380);
}

QString FrmLogin::getQuarter()
{
    const quarter::Period period = m_selection.applyQuarter(m_quarter->currentIndex());
    m_quarterLabel->setText(quarter::labelText(period));
    return period.code;
}

bool FrmLogin::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_companies && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            runSelection();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FrmLogin::fillGroups()
{
    m_group->clear();
    const QStringList names = m_selection.groupNames();
    m_group->addItems(names);
    if (m_group->count() > 0)
        m_group->setCurrentIndex(m_selection.lastGroupIndex(names));
}

void FrmLogin::groupChanged()
{
    m_groupId->setText(QString::number(m_selection.groupId(m_group->currentText())));
    fillCompanies();
}

void FrmLogin::fillCompanies()
{
    m_companies->clear();
    const auto companies = m_selection.companies(m_groupId->text().toInt());
    for (const CompanySelection::Company &company : companies) {
        new QTreeWidgetItem(m_companies, {company.name, QString::number(company.compId),
                                          company.status});
    }
    // As the list has always done, the first company stands selected, so Enter takes it.
    if (m_companies->topLevelItemCount() > 0)
        m_companies->setCurrentItem(m_companies->topLevelItem(0));
}

void FrmLogin::runSelection()
{
    CompanySelection::Choice choice;
    choice.groupText = m_group->currentText();
    choice.groupIdText = m_groupId->text();
    const QList<QTreeWidgetItem *> rows = m_companies->selectedItems();
    if (!rows.isEmpty()) {
        const QTreeWidgetItem *row = rows.first();
        choice.company = CompanySelection::Company{row->text(NameColumn),
                                                   row->text(IdColumn).toInt(),
                                                   row->text(StatusColumn)};
    }
    choice.quarterIndex = m_quarter->currentIndex();
    choice.quarterText = m_quarter->currentText();

    const CompanySelection::Outcome outcome = m_selection.select(choice);
    if (!outcome.focus.isEmpty()) {
        if (auto *field = findChild<QWidget *>(outcome.focus))
            field->setFocus();
    }
    if (outcome.next != CompanySelection::Next::Nothing)
        emit selected(outcome);
    if (outcome.closeSelection)
        screenroutines::closeScreen(this);
}
