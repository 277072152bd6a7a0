#include "core/storeupgrade.h"

#include "core/datastore.h"
#include "core/schema.h"
#include "core/storecheck.h"
#include "core/transaction.h"

#include <QStringList>

namespace storeupgrade {

namespace {

struct Category
{
    int id;
    const char *code;
    const char *description;
};

const Category categories[] = {
    {1, "A", "Central Government"},
    {2, "S", "State Government"},
    {3, "D", "Statutory body (Central Govt.)"},
    {4, "E", "Statutory body (State Govt.)"},
    {5, "G", "Autonomous body (Central Govt.)"},
    {6, "H", "Autonomous body (State Govt.)"},
    {7, "L", "Local Authority (Central Govt.)"},
    {8, "N", "Local Authority (State Govt.)"},
    {9, "K", "Company"},
    {10, "M", "Branch / Division of Company"},
    {11, "P", "Association of Person (AOP)"},
    {12, "T", "Association of Person (Trust)"},
    {13, "J", "Artificial Juridical Person"},
    {14, "B", "Body of Individuals"},
    {15, "Q", "Individual/HUF"},
    {16, "F", "Firm"},
};

// Ministry names as the authority lists them, spellings included. Ids run 1 to 57, then 99.
const char *const ministries[] = {
    "Agriculture", "Atomic Energy", "Fertilizers", "Chemicals and Petrochemicals",
    "Civil Aviation and Tourism", "Coal", "Consumer Affairs, Food and Public Distribution",
    "Commerce and Textiles", "Environment and Forests and Ministry of Earth Science",
    "External Affairs and Overseas Indian Affairs", "Finance", "Central Board of Direct Taxes",
    "Central Board of Excise and Customs", "Contoller of Aid Accounts and Audit",
    "Central Pension Accounting Office", "Food Processing Industries",
    "Health and Family Welfare", "Home Affairs and Developement of North Eastern Region",
    "Human Resource Development", "Industry", "Information and Broadcasting",
    "Telecommunication and Information Technology", "Labour",
    "Law and Justice and Company Affairs", "Personnel, Public Grievances and Pesions",
    "Petroleum and Natural Gas", "Planning, Statistics and programme Implementation", "Power",
    "New and Renewable Energy", "Rural Development and Panchayati Raj",
    "Science And Technology", "Space", "Steel", "Mines", "Social Justice and Empowerment",
    "Tribal Affairs", "D/o Commerce (Supply Division)",
    "Shipping and Road Transport and Highways",
    "Urban Development, Urban Employment and Poverty Alleviation", "Water Resources",
    "President's Secretariat", "Lok Sabha Secretariat", "Rajya Sabha Secretariat",
    "Election Commission", "Ministry of Defence (Controller General of Defence Accounts)",
    "Ministry of Railways", "Department of Posts", "Department of Telecommunications",
    "Andaman and Nicobar Islands Administration", "Chandigarh Administration",
    "Dadra and Nagar Haveli", "Goa, Daman and Diu", "Lakshadweep",
    "Pondicherry Administraion", "Pay and Accounts Officers (Audit)",
    "Ministry of Non-conventional energy sources", "Government Of NCT of Delhi",
};
constexpr int otherMinistryId = 99;

/// A column the upgrade adds, and the value it writes into the rows that were already there.
struct AddedColumn
{
    const char *table;
    const char *column;
    bool fillExistingWithZero;
};

const AddedColumn addedColumns[] = {
    {"mstCompany", "DStatus", false},
    {"mstCompany", "DStateID", true},
    {"mstCompany", "DStateCode", false},
    {"mstCompany", "MinistryID", true},
    {"mstCompany", "MinistryCode", false},
    {"mstCompany", "MinistryOther", false},
    {"mstCompany", "PAOCode", false},
    {"mstCompany", "DDOCode", false},
    {"mstCompany", "PAORegNo", false},
    {"mstCompany", "DDORegNo", false},
    // Challans saved before the transfer voucher existed read "0", which the return file
    // takes as a book entry of the old kind.
    {"TranChallanE24", "TransferVoucherNo", true},
    {"TranChallanE26", "TransferVoucherNo", true},
    {"TranChallanE27", "TransferVoucherNo", true},
    {"TranChallanE27E", "TransferVoucherNo", true},
};

bool hasChapterViaSections(const DataStore &store)
{
    return store.hasRows(QStringLiteral("SELECT 1 FROM mstSections24 WHERE SectionType = ?"),
                         {QStringLiteral("CHAPVIAU")});
}

void seedChapterViaSections(const DataStore &store)
{
    Transaction transaction(store);
    if (!hasChapterViaSections(store)) {
        // Both rows carry the same description; that is the data as the forms expect it.
        const QString insert = QStringLiteral("INSERT INTO mstSections24 VALUES (?, ?, ?)");
        store.exec(insert, {"CHAPVIAU", "80CCE", "DEDUCTION FOR RENT PAID"});
        store.exec(insert, {"CHAPVIAU", "OTHERS", "DEDUCTION FOR RENT PAID"});
    }
    transaction.commit();
}

// Table and rows go in together, so that a start interrupted in between never leaves a list
// with rows missing behind a table that the next start would take as done.
void addMinistries(const DataStore &store)
{
    if (store.tableExists(QStringLiteral("mstMinistry")))
        return;
    Transaction transaction(store);
    schema::createTable(store, QStringLiteral("mstMinistry"));
    const QString insert = QStringLiteral("INSERT INTO mstMinistry VALUES (?, ?, ?)");
    int id = 0;
    for (const char *name : ministries) {
        ++id;
        store.exec(insert, {id, QStringLiteral("%1").arg(id, 2, 10, QLatin1Char('0')),
                            QString::fromLatin1(name)});
    }
    store.exec(insert, {otherMinistryId, QString::number(otherMinistryId), "Others"});
    transaction.commit();
}

void addCategories(const DataStore &store)
{
    if (store.tableExists(QStringLiteral("mstCategory")))
        return;
    Transaction transaction(store);
    schema::createTable(store, QStringLiteral("mstCategory"));
    for (const Category &category : categories) {
        store.exec(QStringLiteral("INSERT INTO mstCategory VALUES (?, ?, ?)"),
                   {category.id, QString::fromLatin1(category.code),
                    QString::fromLatin1(category.description)});
    }
    transaction.commit();
}

void addColumns(const DataStore &store)
{
    for (const AddedColumn &added : addedColumns) {
        const QString table = QLatin1String(added.table);
        const QString column = QLatin1String(added.column);
        if (store.columnExists(table, column))
            continue;
        Transaction transaction(store);
        store.exec(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2")
                       .arg(table, schema::columnDefinition(table, column)));
        if (added.fillExistingWithZero)
            store.exec(QStringLiteral("UPDATE %1 SET %2 = 0").arg(table, column));
        transaction.commit();
    }
}

void upgrade(const DataStore &store)
{
    seedChapterViaSections(store);
    // The amounts of the 27Q and 27EQ challans and rows were once whole numbers and had to be
    // widened to doubles. SQLite keeps any number in any numeric column, so there is nothing to
    // widen here.
    addMinistries(store);
    addCategories(store);
    addColumns(store);
    for (const QString &table : schema::tableNames(schema::Layout::Current))
        schema::createIndexes(store, table);
}

} // namespace

std::optional<QVariant> addedColumnValue(const QString &table, const QString &column)
{
    for (const AddedColumn &added : addedColumns) {
        if (table.compare(QLatin1String(added.table), Qt::CaseInsensitive) == 0
            && column.compare(QLatin1String(added.column), Qt::CaseInsensitive) == 0)
            return added.fillExistingWithZero ? QVariant(0) : QVariant();
    }
    return std::nullopt;
}

int version(const DataStore &store)
{
    return store.scalar(QStringLiteral("PRAGMA user_version")).toInt();
}

bool isDue(const DataStore &store)
{
    return version(store) < currentVersion || !hasChapterViaSections(store);
}

void run(const DataStore &store)
{
    // Writing only when something is due keeps an unchanged store's bytes as they were, and
    // lets a read-only store that is up to date be opened at all.
    const bool due = isDue(store);
    if (!due && (store.isViewOnly() || storecheck::isMarked(store)))
        return;
    if (due)
        upgrade(store);
    Transaction transaction(store);
    storecheck::mark(store);
    store.exec(QStringLiteral("PRAGMA user_version = %1").arg(currentVersion));
    transaction.commit();
}

} // namespace storeupgrade
