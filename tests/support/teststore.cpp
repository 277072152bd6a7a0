#include "teststore.h"

#include "core/freshstore.h"
#include "core/storeupgrade.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QSysInfo>
#include <QtEndian>

namespace {

// Made and upgraded once per program; every store of the program starts as a copy of it.
const QByteArray &upgradedStore()
{
    static const QByteArray bytes = [] {
        QTemporaryDir dir;
        const QString path = dir.filePath(DataStore::fileName);
        freshstore::create(path, 2026);
        storeupgrade::run(DataStore(path));
        return contentsOf(path);
    }();
    return bytes;
}

} // namespace

TestStore::TestStore()
{
    open(upgradedStore());
}

TestStore::TestStore(const TestStore &source)
{
    open(contentsOf(source.store().path()));
}

void TestStore::open(const QByteArray &bytes)
{
    const QString path = m_dir.filePath(DataStore::fileName);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("the test store could not be written");
    file.close();
    m_store = std::make_unique<DataStore>(path);
}

void TestStore::insert(const QString &table, const Row &row) const
{
    QStringList columns;
    QVariantList values;
    for (const auto &[column, value] : row) {
        columns << column;
        values << value;
    }
    insert(table, columns, {values});
}

void TestStore::insert(const QString &table, const QStringList &columns,
                       const QList<QVariantList> &rows) const
{
    const QString sql = QStringLiteral("INSERT INTO %1 (\"%2\") VALUES (%3)")
                            .arg(table, columns.join(QStringLiteral("\",\"")),
                                 QStringList(columns.size(), QStringLiteral("?")).join(u','));
    for (const QVariantList &values : rows)
        m_store->exec(sql, values);
}

QString TestStore::text(const QString &sql, const QVariantList &values) const
{
    return m_store->scalar(sql, values).toString();
}

int TestStore::count(const QString &table) const
{
    return m_store->scalar(QStringLiteral("SELECT count(*) FROM %1").arg(table)).toInt();
}

TestStore::Row merged(TestStore::Row base, const TestStore::Row &changes)
{
    for (const auto &[column, value] : changes) {
        bool found = false;
        for (auto &entry : base) {
            if (entry.first.compare(column, Qt::CaseInsensitive) == 0) {
                entry.second = value;
                found = true;
            }
        }
        if (!found)
            base.append({column, value});
    }
    return base;
}

void TestStore::overwritePages() const
{
    QFile file(m_store->path());
    if (!file.open(QIODevice::ReadWrite))
        qFatal("the test store could not be opened");
    const quint16 pageSize = qFromBigEndian<quint16>(file.read(18).constData() + 16);
    QSqlQuery roots = m_store->exec(
        QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name IN "
                       "('mstState', 'mstSections26', 'mstSections27')"));
    while (roots.next()) {
        file.seek((roots.value(0).toLongLong() - 1) * pageSize);
        file.write(QByteArray(pageSize, '\xa5'));
    }
}

void TestStore::cutShort() const
{
    if (!QFile::resize(m_store->path(), QFileInfo(m_store->path()).size() / 2))
        qFatal("the test store could not be cut short");
}

void TestStore::cutOffMidSave() const
{
    const QString path = m_store->path();
    const QTemporaryDir dir;
    const QString saving = dir.filePath(DataStore::fileName);
    if (!QFile::copy(path, saving))
        qFatal("the test store could not be copied");
    const DataStore store(saving);
    // A cache of one page makes SQLite write changed pages into the file before the commit.
    store.exec(QStringLiteral("PRAGMA cache_size = 1"));
    store.exec(QStringLiteral("BEGIN"));
    store.exec(QStringLiteral("UPDATE mstState SET StateName = 'CUT OFF'"));
    store.exec(QStringLiteral("CREATE TABLE spill AS SELECT randomblob(3000) FROM mstState AS a, "
                              "mstState AS b"));
    for (const QString &suffix : {QString(), QStringLiteral("-journal")}) {
        QFile file(path + suffix);
        const QByteArray bytes = contentsOf(saving + suffix);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("the store cut off in the middle of a save could not be written");
    }
    store.exec(QStringLiteral("ROLLBACK"));
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QMap<QString, QByteArray> &leftLocks()
{
    static const QMap<QString, QByteArray> locks = {
        {"crashed", "2147483647\nkelvora\n" + QSysInfo::machineHostName().toUtf8() + '\n'},
        {"power cut (empty)", ""},
        {"power cut (garbled)", QByteArray(24, '\0')},
        {"other machine", "4242\nkelvora\nOTHER-PC\n"}};
    return locks;
}
