// What the check of the store's pages costs every start of the program and of the batch front
// ends, on a store of an office's size (about 60 MB): SQLite's quick check, its full integrity
// check, and the whole look that a start takes before it writes anything.

#include "benchdata.h"
#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/storeaccess.h"
#include "core/storeerror.h"
#include "core/transaction.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <functional>
#include <memory>
#include <vector>

using namespace benchdata;

namespace {

constexpr qint64 storeBytes = 60 * 1024 * 1024;
constexpr int challansPerStatement = 20;
constexpr int rowsPerChallan = 1000;
constexpr int rounds = 7;

QTextStream out(stdout);

/// Statements of 20,000 deductee rows each until the file holds at least storeBytes.
void fill(const DataStore &store)
{
    int nextRowId = 1;
    for (int statement = 1; QFileInfo(store.path()).size() < storeBytes; ++statement) {
        Transaction transaction(store);
        build26Q(store, statement, statement, challansPerStatement, rowsPerChallan, nextRowId);
        transaction.commit();
    }
}

void time(const QString &name, const std::function<void()> &step)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(timed(step));
    out << name << ": " << figures(times) << Qt::endl;
}

void pragma(const QString &path, const QString &check)
{
    const DataStore store(path, DataStore::OpenMode::ReadOnly);
    const QString result = store.scalar(QStringLiteral("PRAGMA %1").arg(check)).toString();
    if (result != u"ok")
        throw StoreError({}, check + QStringLiteral(" found: ") + result);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    try {
        QTemporaryDir folder;
        QString path;
        {
            const std::unique_ptr<DataStore> store = freshStore(folder);
            path = store->path();
            fill(*store);
            const qint64 rows = store->scalar(
                QStringLiteral("SELECT count(*) FROM TranDeducteeE26")).toLongLong();
            out << "store of " << QFileInfo(path).size() / (1024 * 1024) << " MiB, " << rows
                << " deductee rows" << Qt::endl;
        }
        time(QStringLiteral("PRAGMA quick_check"), [&] { pragma(path, "quick_check"); });
        time(QStringLiteral("PRAGMA integrity_check"), [&] { pragma(path, "integrity_check"); });
        time(QStringLiteral("the start's look (version, check, upgrade due)"),
             [&] { storeaccess::inspect(path); });
    } catch (const StoreError &error) {
        QTextStream(stderr) << error.description() << Qt::endl;
        return 1;
    }
    return 0;
}
