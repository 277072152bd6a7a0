#include "teststore.h"

#include "core/freshstore.h"
#include "core/storeupgrade.h"

#include <QFile>

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Made and upgraded once per program; every store of the program starts as a copy of it.
const QByteArray &upgradedStore()
{
    static const QByteArray bytes = [] {
        QTemporaryDir dir;
        const QString path = dir.filePath(DataStore::fileName);
        freshstore::create(path, 2026);
        storeupgrade::run(DataStore(path));
        return bytesOf(path);
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
    open(bytesOf(source.store().path()));
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
