#include "core/datastore.h"
#include "core/freshstore.h"
#include "core/schema.h"
#include "core/storeupgrade.h"
#include "exchange/importerror.h"
#include "exchange/importsource.h"
#include "exchange/masterimport.h"
#include "exchange/tablecopy.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// rows groups, companies, employees and deductees; keys equal the rowids.
void fillMasters(const DataStore &store, int rows)
{
    for (const char *table : {"mstGroup (GroupID, GroupName)", "mstCompany (CompID, CompName)",
                              "mstEmployee (EmpID, EmpName)", "mstDeductee (DeducteeID, PAN)"}) {
        store.exec(QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                                  "WHERE i < ?) INSERT INTO %1 SELECT i, 'NAME ' || i FROM n "
                                  "WHERE i <= ?").arg(table),
                   {rows, rows});
    }
}

QString typed(const QVariant &value)
{
    return value.isNull() ? QStringLiteral("<null>")
                          : value.typeName() + (':' + value.toString());
}

/// Every row in stored order, each value with its type, so that Null differs from empty.
QStringList contents(const DataStore &store, const QStringList &tables)
{
    QStringList rows;
    for (const QString &table : tables) {
        QSqlQuery query = store.exec("SELECT * FROM " + table + " ORDER BY rowid");
        while (query.next()) {
            QString row = table;
            for (int i = 0; i < query.record().count(); ++i)
                row += u'|' + typed(query.value(i));
            rows << row;
        }
    }
    return rows;
}

QByteArray checksum(const QString &path)
{
    QFile file(path);
    return QCryptographicHash::hash(file.open(QIODevice::ReadOnly) ? file.readAll() : "",
                                    QCryptographicHash::Sha256);
}

} // namespace

class TestMasterImport : public QObject
{
    Q_OBJECT

    QString path(const QString &name) const { return m_dir->filePath(name + ".db"); }

    /// A copy of a store made once, "older" or "upgraded", with rows masters added.
    std::unique_ptr<DataStore> copy(const QString &made, const QString &name, int rows = 0) const
    {
        QFile::copy(m_made.filePath(made), path(name));
        auto store = std::make_unique<DataStore>(path(name));
        fillMasters(*store, rows);
        return store;
    }

    /// The reason of a refusal or failure, or empty; a source written to fails every check.
    QString import(const DataStore &target, const QString &source)
    {
        const QByteArray before = checksum(source);
        QString reason;
        try {
            MasterImport(target).run(source, QDate(2026, 4, 1), QDate(2027, 3, 31));
        } catch (const ImportError &error) {
            reason = error.reason();
        }
        return checksum(source) == before ? reason : QStringLiteral("source written");
    }

    QTemporaryDir m_made;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<DataStore> m_target;

private slots:
    void initTestCase()
    {
        freshstore::create(m_made.filePath("older"), 2025);
        QFile::copy(m_made.filePath("older"), m_made.filePath("upgraded"));
        storeupgrade::run(DataStore(m_made.filePath("upgraded")));
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_target = copy("upgraded", "current", 2);
        m_target->exec("INSERT INTO TranEmployeeE24 (EmpID, EmpNo) VALUES (1, 2)");
    }

    void copiesValuesByTheProgramsRules_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("apostrophe") << "mstDeductee" << "DeducteeName"
                                    << QVariant("D'SOUZA & SONS") << "QString:D'SOUZA & SONS";
        QTest::newRow("blanks around") << "mstGroup" << "GroupName" << QVariant(" NORTH ")
                                       << "QString:NORTH";
        QTest::newRow("blanks only") << "mstDeductee" << "PIN" << QVariant("  ") << "QString:";
        QTest::newRow("null text") << "mstCompany" << "PersonName" << QVariant() << "QString:";
        QTest::newRow("status blank") << "mstCompany" << "Status" << QVariant(" ") << "QString: ";
        QTest::newRow("status mark") << "mstCompany" << "Status" << QVariant("x") << "QString: ";
        QTest::newRow("null date") << "mstEmployee" << "FromDate" << QVariant()
                                   << "QString:2026-04-01";
        QTest::newRow("blank number") << "mstCompany" << "StateID" << QVariant("  ") << "<null>";
    }

    void copiesValuesByTheProgramsRules()
    {
        QFETCH(QString, table);
        QFETCH(QString, column);
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        copy("upgraded", "source", 3)->exec(
            QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = 2").arg(table, column), {value});
        QCOMPARE(import(*m_target, path("source")), QString());
        const QString read = QStringLiteral("SELECT %2 FROM %1 WHERE rowid = 2").arg(table,
                                                                                       column);
        QCOMPARE(typed(m_target->scalar(read)), expected);
    }

    void olderLayoutImportsAsIfUpgraded_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("without the upgrade's columns") << QString();
        QTest::newRow("without amounts in words") << "ALTER TABLE mstDeductee DROP COLUMN InWords";
        QTest::newRow("with company ids") << "ALTER TABLE mstDeductee ADD COLUMN CompID";
    }

    void olderLayoutImportsAsIfUpgraded()
    {
        QFETCH(QString, change);
        const auto old = copy("older", "old", 3);
        QVERIFY(QFile::copy(path("old"), path("upgraded")));
        storeupgrade::run(DataStore(path("upgraded")));
        if (!change.isEmpty())
            old->exec(change);
        const QStringList statements = contents(*m_target, {"TranEmployeeE24"});
        // The masters the target held are replaced, not merged; its statements stay.
        const auto fromUpgraded = copy("upgraded", "from upgraded");
        QCOMPARE(import(*fromUpgraded, path("upgraded")), QString());
        QCOMPARE(import(*m_target, path("old")), QString());
        QCOMPARE(contents(*m_target, MasterImport::tables),
                 contents(*fromUpgraded, MasterImport::tables));
        QCOMPARE(contents(*m_target, {"TranEmployeeE24"}), statements);
    }

    void failedRowLeavesStoreUnchanged_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("failing");
        QTest::newRow("second company") << "mstCompany" << "CompID" << 2;
        QTest::newRow("middle employee") << "mstEmployee" << "EmpID" << 700;
        QTest::newRow("second run of deductees") << "mstDeductee" << "DeducteeID" << 1100;
        QTest::newRow("last group") << "mstGroup" << "GroupID" << 1200;
    }

    void failedRowLeavesStoreUnchanged()
    {
        QFETCH(QString, table);
        QFETCH(QString, key);
        QFETCH(int, failing);
        const QStringList tables = schema::tableNames(schema::Layout::Current);
        const QStringList before = contents(*m_target, tables);
        const auto source = copy("upgraded", "faulty", 1200);
        // A store whose key lost its index can hold a key twice; the current store refuses it.
        source->exec(QStringLiteral("DROP INDEX \"%1_%2\"").arg(table, key));
        source->exec(QStringLiteral("UPDATE %1 SET %2 = %2 - 1 WHERE rowid = ?").arg(table, key),
                     {failing});
        QCOMPARE(import(*m_target, path("faulty")),
                 TableCopy::rowFailureText.arg(
                     QString::number(failing), table,
                     QStringLiteral(" (%1 %2)").arg(key).arg(failing - 1),
                     QStringLiteral("UNIQUE constraint failed: %1.%2").arg(table, key)));
        QCOMPARE(contents(*m_target, tables), before);
    }

    void refusesBeforeWriting_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("reason");
        QTest::newRow("current store") << "current" << ImportSource::currentStoreText;
        QTest::newRow("text") << "text" << ImportSource::foreign("file is not a database");
        QTest::newRow("other database") << "other" << ImportSource::foreign("no table mstCompany");
        QTest::newRow("column missing")
            << "lacking"
            << ImportSource::foreign(TableCopy::missingColumnText.arg("mstEmployee", "EmpName"));
        QTest::newRow("damaged") << "damaged" << ImportSource::damagedText.section(u'%', 0, 0);
    }

    void refusesBeforeWriting()
    {
        QFETCH(QString, kind);
        QFETCH(QString, reason);
        QFile file(path(kind));
        if (kind == u"text" && file.open(QIODevice::WriteOnly))
            file.write("GroupID,GroupName\r\n1,NORTH ZONE\r\n");
        if (kind == u"other")
            DataStore(path(kind), DataStore::OpenMode::CreateFile).exec("CREATE TABLE t (id)");
        if (kind == u"lacking")
            copy("upgraded", kind)->exec("ALTER TABLE mstEmployee DROP COLUMN EmpName");
        if (kind == u"damaged") {
            copy("upgraded", kind, 300);
            file.resize(file.size() - 4096);
        }
        file.close();
        const QStringList before = contents(*m_target, MasterImport::tables);
        const QString source = kind == u"current" ? m_target->path() : path(kind);
        const QString refused = import(*m_target, source);
        QVERIFY2(refused.startsWith(reason), qPrintable(refused));
        QCOMPARE(contents(*m_target, MasterImport::tables), before);
    }
};

QTEST_GUILESS_MAIN(TestMasterImport)
#include "test_masterimport.moc"
