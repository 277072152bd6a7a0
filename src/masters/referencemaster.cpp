#include "masters/referencemaster.h"

#include "core/datastore.h"
#include "core/messageboxes.h"
#include "core/records.h"
#include "core/recordsetfailure.h"
#include "core/screenroutines.h"
#include "core/storeerror.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

struct Traits
{
    const char *screen;
    const char *caption;
    const char *list;
    const char *statement;
    const char *codeHeader;
    const char *nameHeader;
};

const Traits &traitsOf(ReferenceMaster::Kind kind)
{
    static const Traits traits[] = {
        {"frmStateMaster", "State Master ", "lstvState",
         "SELECT StateCode, StateName FROM mstState ORDER BY StateName", "State Code",
         "State Name"},
        {"frmCategoryMaster", "Category Master ", "lstvCategory",
         "SELECT CategoryCode, CategoryDescription FROM mstCategory ORDER BY CategoryCode",
         "Category Code", "Category Name"},
        {"frmMinistryMaster", "Ministry Master ", "lstvMinistry",
         "SELECT MinistryCode, MinistryName FROM mstMinistry ORDER BY MinistryCode",
         "Ministry Code", "Ministry Name"},
    };
    return traits[int(kind)];
}

} // namespace

ReferenceMaster::ReferenceMaster(Kind kind, const DataStore &store, MessageBoxes &boxes,
                                 QWidget *parent)
    : QWidget(parent), m_list(new QTreeWidget(this))
{
    const Traits &traits = traitsOf(kind);
    setObjectName(QLatin1String(traits.screen));
    setWindowTitle(QLatin1String(traits.caption));

    m_list->setObjectName(QLatin1String(traits.list));
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setHeaderLabels({QLatin1String(traits.codeHeader), QLatin1String(traits.nameHeader)});
    m_list->header()->setSectionsClickable(true);
    m_list->header()->setStretchLastSection(true);
    connect(m_list->header(), &QHeaderView::sectionClicked, this,
            &ReferenceMaster::sortByColumn);

    auto *close = new QPushButton(QStringLiteral("&Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(close, &QPushButton::clicked, this, [this] { screenroutines::closeScreen(this); });

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addLayout(buttons);

    fill(store, QLatin1String(traits.statement), boxes);
    resize(480, 400);
}

QString ReferenceMaster::screenName(Kind kind)
{
    return QLatin1String(traitsOf(kind).screen);
}

QString ReferenceMaster::codeText(const QString &code)
{
    const QString trimmed = code.trimmed();
    bool numeric = false;
    const int value = trimmed.toInt(&numeric);
    if (numeric && value >= 0 && value < 10)
        return QStringLiteral("0") + QString::number(value);
    return trimmed;
}

void ReferenceMaster::fill(const DataStore &store, const QString &statement,
                           MessageBoxes &boxes)
{
    try {
        QSqlQuery query = store.exec(statement);
        while (query.next()) {
            new QTreeWidgetItem(m_list, {codeText(records::nullToText(query.value(0))),
                                         records::nullToText(query.value(1))});
        }
    } catch (const StoreError &error) {
        boxes.show(recordsetFailure(error));
    }
}

void ReferenceMaster::sortByColumn(int column)
{
    // A second click on the same header turns the order round.
    if (column == m_sortColumn && m_sortOrder == Qt::AscendingOrder)
        m_sortOrder = Qt::DescendingOrder;
    else
        m_sortOrder = Qt::AscendingOrder;
    m_sortColumn = column;
    m_list->header()->setSortIndicatorShown(true);
    m_list->header()->setSortIndicator(column, m_sortOrder);
    m_list->sortItems(column, m_sortOrder);
}
