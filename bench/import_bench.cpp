// The import of last year's masters on an office's scale: 500 companies, 5,000 employees and
// 50,000 deductees, timed beside sqlite3 copying the same tables with INSERT INTO ... SELECT
// over the attached source in one transaction, in the same run on the same machine.

#include "benchdata.h"
#include "core/datastore.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "exchange/importerror.h"
#include "exchange/masterimport.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

#include <stdexcept>
#include <vector>

namespace {

constexpr int groupCount = 50;
constexpr int companyCount = 500;
constexpr int employeeCount = 5000;
constexpr int deducteeCount = 50000;
constexpr int rounds = 5;

int groupOf(int id)
{
    return 1 + id % groupCount;
}

void fill(const DataStore &store)
{
    Transaction transaction(store);
    benchdata::Inserter groups(store, QStringLiteral("mstGroup"), {"GroupID", "GroupName"});
    for (int id = 1; id <= groupCount; ++id)
        groups.row({id, QStringLiteral("GROUP %1").arg(id)});
    benchdata::Inserter companies(store, QStringLiteral("mstCompany"),
                                  {"AsstID", "GroupID", "CompID", "TanNO", "PanNo", "CompName",
                                   "Address1", "Address5", "StateCode", "PersonName", "Pincode",
                                   "Status", "DStatus", "DStateID", "MinistryID"});
    for (int id = 1; id <= companyCount; ++id) {
        companies.row({1, groupOf(id), id, QStringLiteral("PNEA%1B").arg(id, 5, 10, QChar(u'0')),
                       benchdata::pan(id, 'C'), QStringLiteral("COMPANY %1 LTD").arg(id),
                       "MAIN ROAD", "PUNE", "19", "R D'SOUZA", "411001", " ", "K", 0, 0});
    }
    benchdata::Inserter employees(store, QStringLiteral("mstEmployee"),
                                  {"GroupId", "EmpID", "PAN", "PanRef", "EmpName", "Designation",
                                   "FromDate", "Todate", "category"});
    for (int id = 1; id <= employeeCount; ++id) {
        employees.row({groupOf(id), id, benchdata::pan(id, 'P'), "",
                       QStringLiteral("EMPLOYEE %1").arg(id), "CLERK", "2025-04-01",
                       "2026-03-31", 2});
    }
    benchdata::Inserter deductees(store, QStringLiteral("mstDeductee"),
                                  {"GroupId", "DeducteeID", "PAN", "PanRef", "DeducteeName",
                                   "Address1", "Address2", "Address5", "DeducteeCode", "State",
                                   "StateCode", "PIN", "InWords"});
    for (int id = 1; id <= deducteeCount; ++id) {
        deductees.row({groupOf(id), id, benchdata::pan(id, 'P'), "",
                       QStringLiteral("DEDUCTEE %1").arg(id), QStringLiteral("%1 SHOP").arg(id),
                       "MAIN ROAD", "PUNE", "02", "MAHARASHTRA", "19", "411001", ""});
    }
    transaction.commit();
}

/// The milliseconds that sqlite3 takes to replace the four tables of target with the source's.
double sqliteCopy(const QString &sqlite3, const QString &target, const QString &source)
{
    QString sql = QStringLiteral("ATTACH '%1' AS source; BEGIN;").arg(source);
    for (const QString &table : MasterImport::tables)
        sql += QStringLiteral(" DELETE FROM %1; INSERT INTO main.%1 SELECT * FROM source.%1;")
                   .arg(table);
    sql += QStringLiteral(" COMMIT;");
    QProcess process;
    QElapsedTimer timer;
    timer.start();
    process.start(sqlite3, {target, sql});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        throw std::runtime_error("sqlite3 failed: "
                                 + process.readAllStandardError().toStdString());
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    try {
        QTemporaryDir sourceFolder, targetFolder, besideFolder;
        const QString source = benchdata::freshStore(sourceFolder)->path();
        fill(DataStore(source));
        const auto store = benchdata::freshStore(targetFolder);
        const QString beside = benchdata::freshStore(besideFolder)->path();
        const QString sqlite3 = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));

        const MasterImport import(*store);
        std::vector<double> importing, copying;
        int reports = 0;
        for (int round = 0; round < rounds; ++round) {
            importing.push_back(benchdata::timed([&] {
                import.run(source, QDate(2026, 4, 1), QDate(2027, 3, 31),
                           [&](const QString &, qint64, qint64) { ++reports; });
            }));
            if (!sqlite3.isEmpty())
                copying.push_back(sqliteCopy(sqlite3, beside, source));
        }
        const qint64 rows =
            store->scalar(QStringLiteral("SELECT (SELECT count(*) FROM mstCompany) + "
                                        "(SELECT count(*) FROM mstEmployee) + "
                                        "(SELECT count(*) FROM mstDeductee) + "
                                        "(SELECT count(*) FROM mstGroup)"))
                .toLongLong();
        out << "Import of " << rows << " master rows (" << reports / rounds
            << " progress reports each): " << benchdata::figures(importing) << "\n";
        if (copying.empty())
            out << "sqlite3 not found: nothing to compare with\n";
        else
            out << "sqlite3 INSERT INTO ... SELECT of the same tables: "
                << benchdata::figures(copying) << "\n";
    } catch (const ImportError &error) {
        out << "Import failed: " << error.reason() << "\n";
        return 1;
    } catch (const StoreError &error) {
        out << "Store failure: " << error.description() << "\n";
        return 1;
    } catch (const std::exception &error) {
        out << error.what() << "\n";
        return 1;
    }
    return 0;
}
