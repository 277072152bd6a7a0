#include "core/freshstore.h"

#include "core/datastore.h"
#include "core/schema.h"
#include "core/storecheck.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"
#include "core/transaction.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace freshstore {

namespace {

/// The rows of one reference file: tab-separated, a header line first.
QList<QStringList> referenceRows(const QString &name)
{
    QFile file(QStringLiteral(":/reference/%1").arg(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        throw StoreError({}, QStringLiteral("the reference list %1 cannot be read").arg(name));
    QList<QStringList> rows;
    bool header = true;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (header || line.isEmpty()) {
            header = false;
            continue;
        }
        rows.append(line.split(u'\t'));
    }
    return rows;
}

void seedFromFile(const DataStore &store, const QString &table, const QString &file)
{
    for (const QStringList &row : referenceRows(file)) {
        QVariantList values;
        for (const QString &value : row)
            values << value.trimmed();
        const QString marks = QStringList(values.size(), QStringLiteral("?")).join(", ");
        store.exec(QStringLiteral("INSERT INTO %1 VALUES (%2)").arg(table, marks), values);
    }
}

void seedAssessment(const DataStore &store, int firstYear)
{
    const auto yearPair = [](int year) {
        return QString::number(year) + QString::number(year + 1).right(2);
    };
    // The year is named by its two calendar years ("202627"); the assessment year follows it.
    store.exec(QStringLiteral("INSERT INTO mstAssessment VALUES (1, ?, ?, ?, ?, ?)"),
               {yearPair(firstYear + 1), yearPair(firstYear),
                QDate(firstYear, 4, 1).toString(Qt::ISODate),
                QDate(firstYear + 1, 3, 31).toString(Qt::ISODate),
                QDate(firstYear + 1, 5, 31).toString(Qt::ISODate)});
}

void fill(const QString &path, int firstYear)
{
    DataStore store(path, DataStore::OpenMode::CreateFile);
    Transaction transaction(store);
    schema::createAll(store, schema::Layout::Older);
    seedAssessment(store, firstYear);
    seedFromFile(store, QStringLiteral("mstState"), QStringLiteral("states.tsv"));
    seedFromFile(store, QStringLiteral("mstSections24"), QStringLiteral("sections24.tsv"));
    seedFromFile(store, QStringLiteral("mstSections26"), QStringLiteral("sections26.tsv"));
    seedFromFile(store, QStringLiteral("mstSections27"), QStringLiteral("sections27.tsv"));
    seedFromFile(store, QStringLiteral("mstCollectionCode"),
                 QStringLiteral("collectioncodes.tsv"));
    storecheck::mark(store);
    store.exec(QStringLiteral("PRAGMA user_version = %1").arg(storeupgrade::olderVersion));
    transaction.commit();
}

} // namespace

void create(const QString &path, int firstYear)
{
    if (QFileInfo::exists(path))
        throw StoreError({}, QStringLiteral("A data store is already there: %1").arg(path));
    const auto failure = [&path](const QString &why) {
        return StoreError({}, QStringLiteral("The data store %1 cannot be made: %2.")
                                  .arg(QDir::toNativeSeparators(path), why));
    };
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir()) {
        throw failure(QStringLiteral("its folder %1 is not there")
                          .arg(QDir::toNativeSeparators(folder)));
    }
    // Built under another name and put in place only when whole, so that a failure never
    // leaves a store that looks usable and is not.
    const QString building = path + QStringLiteral(".building");
    QFile::remove(building);
    try {
        fill(building, firstYear);
    } catch (const StoreError &error) {
        QFile::remove(building);
        throw failure(error.reason());
    } catch (...) {
        QFile::remove(building);
        throw;
    }
    if (!QFile::rename(building, path)) {
        QFile::remove(building);
        throw StoreError({}, QStringLiteral("The data store could not be written: %1").arg(path));
    }
}

int financialYearOf(const QDate &date)
{
    return date.month() >= 4 ? date.year() : date.year() - 1;
}

} // namespace freshstore
