// Times the generation of large return files against sqlite3's own CSV export of the same rows
// from the same store, and shows the peak resident memory as the Statement grows. A deductor
// with hundreds of thousands of rows a quarter must not wait or swap for its file.

#include "core/datastore.h"
#include "core/freshstore.h"
#include "core/messageboxes.h"
#include "core/money.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"
#include "core/transaction.h"
#include "benchdata.h"
#include "returnfile/generationflow.h"
#include "core/formtraits.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <stdexcept>

using namespace benchdata;

namespace {

constexpr int challansPerStatement = 200;
constexpr int rowsPerChallan = 1000;
constexpr int salaryRows = 5000;
constexpr int salaryChallans = 10;
constexpr int runs = 3;

QTextStream out(stdout);

/// A 24Q Statement of the fourth quarter with its employee rows and salary detail.
void build24Q(const DataStore &store, int statement, int compId)
{
    const FormTraits &form = formTraits(FormKind::Form24Q);
    addCompany(store, compId, QStringLiteral("BENCH EMPLOYER %1 LTD").arg(compId),
               QStringLiteral("E%1").arg(compId));
    addStatement(store, form, statement, compId, salaryChallans, salaryRows);

    Inserter challan(store, form.challanTable, challanColumns);
    Inserter employee(store, form.annexureTable,
                      {"EmpID", "BasicIfoID", "CompID", "AsstID", "ChallanId", "SrlNo", "EmpNo",
                       "PAN", "PANRef", "EmpName", "Designation", "FromDate", "ToDate",
                       "AmtOfPayment", "PaymentDt", "TaxAmount", "TaxDeductDt", "TaxPaidToCGDt",
                       "BankBranchCode", "BankChallanNo", "NonDeductionflg", "BookEntry", "Tax",
                       "Surcharge", "Cess", "Total"});
    const int perChallan = salaryRows / salaryChallans;
    for (int c = 1; c <= salaryChallans; ++c) {
        const int challanId = statement * 10000 + c;
        Money challanTotal;
        for (int r = 1; r <= perChallan; ++r) {
            const int serial = (c - 1) * perChallan + r;
            const Money paid = amountFor(serial);
            const qint64 tax = paid.paise() / 1000; // whole rupees, as 24Q keeps them
            challanTotal += Money::fromRupees(tax);
            employee.row({serial, statement, compId, 1, challanId, r, serial,
                          pan(serial, 'P'), QString(), QStringLiteral("EMPLOYEE %1").arg(serial),
                          "ENGINEER", "2026-04-01", "2027-03-31", paid.toDouble(), "2027-01-31",
                          static_cast<double>(tax), "2027-01-31", "2027-02-07", "0510308",
                          QString::number(20000 + c), "", "N", tax, 0, 0, tax});
        }
        challan.row(challanValues(challanId, statement, compId, c, challanTotal));
    }

    QStringList salaryColumns = {"SalaryId", "EmpID", "BasicIfoID", "SrlNo", "EmpName",
                                 "PanRef", "Pan", "Designation", "FromDate", "ToDate"};
    salaryColumns << "331" << "332" << "333" << "334Sec10Gross" << "335" << "336Sec16Gross"
                  << "339" << "340SecViaGross" << "344" << "345" << "346Sec88Gross" << "350"
                  << "351" << "352" << "355";
    Inserter salary(store, QStringLiteral("TranSalaryE24"), salaryColumns);
    Inserter sec16(store, QStringLiteral("TranSec16E24"),
                   {"Secid", "SalaryId", "Empid", "SectionId", "TotalDeduction"});
    Inserter via(store, QStringLiteral("TranSecViAE24"),
                 {"Secid", "SalaryId", "Empid", "SectionId", "GrossAmt", "QfAmt", "DedAmt"});
    int sectionId = 0;
    for (int s = 1; s <= salaryRows; ++s) {
        const qint64 gross = 600000 + (s % 977) * 1000;
        salary.row({s, s, statement, s, QStringLiteral("EMPLOYEE %1").arg(s), QString(),
                    pan(s, 'P'), "ENGINEER", "2026-04-01", "2027-03-31", s % 3, gross, 0, 0,
                    gross, 52500, gross - 52500, 150000, 150000, gross - 202500, 0,
                    (gross - 852500) / 10, 0, 0, (gross - 852500) / 10});
        sec16.row({++sectionId, s, s, "16(ia)", 50000});
        sec16.row({++sectionId, s, s, "16(iii)", 2500});
        via.row({++sectionId, s, s, "80C", 150000, 150000, 150000});
        via.row({++sectionId, s, s, "80D", 25000, 25000, 25000});
        via.row({++sectionId, s, s, "80G", 10000, 5000, 5000});
    }
}

/// Peak resident memory in KiB since the last reset.
long peakResidentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly | QIODevice::Text))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

/// Brings the peak back to the present size, so that each Statement's own peak is seen.
bool resetPeak()
{
    QFile clearRefs(QStringLiteral("/proc/self/clear_refs"));
    return clearRefs.open(QIODevice::WriteOnly) && clearRefs.write("5") == 1;
}

struct Generation
{
    qint64 nanoseconds = 0;
    qint64 checksNanoseconds = 0; ///< the checks and the panel's totals, before the log and file
    ReturnFileSummary summary;
};

Generation generate(const DataStore &store, const FormTraits &form, int statement, int compId,
                    const QString &quarter, int challans, int rows)
{
    const GenerationFlow flow(store, form);
    GenerationRequest request;
    request.groupId = 1;
    request.compId = compId;
    request.quarter = quarter;
    request.basicInfoId = QString::number(statement);
    request.declaredChallans = QString::number(challans);
    request.declaredDeductees = QString::number(rows);
    request.listedAnnexureRows = rows;
    request.listedChallans = challans;

    QuietBoxes boxes;
    QElapsedTimer timer;
    timer.start();
    const GenerationPreparation preparation = flow.prepare(request);
    if (!preparation.panel)
        throw std::runtime_error(preparation.failure->message.text.toStdString());
    const qint64 checks = timer.nsecsElapsed();
    const GenerationResult result = flow.generate(*preparation.panel, 0, boxes,
                                                  QDateTime::currentDateTime(),
                                                  GenerationFlow::Confirmation::Given);
    if (result.outcome != GenerationOutcome::Generated)
        throw std::runtime_error(result.error.toStdString());
    return {timer.nsecsElapsed(), checks, result.summary};
}

/// sqlite3's CSV export of the given statements into a file; -1 when sqlite3 is not there.
qint64 exportCsv(const QString &sqlite3, const QString &storePath, const QString &sql,
                 const QString &target)
{
    if (sqlite3.isEmpty())
        return -1;
    QProcess process;
    process.setStandardOutputFile(target);
    QElapsedTimer timer;
    timer.start();
    process.start(sqlite3, {QStringLiteral("-csv"), storePath, sql});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        throw std::runtime_error("sqlite3 failed: "
                                 + process.readAllStandardError().toStdString());
    return timer.nsecsElapsed();
}

QString seconds(qint64 nanoseconds)
{
    return QString::number(static_cast<double>(nanoseconds) / 1e9, 'f', 3) + QStringLiteral(" s");
}

QString mebibytes(long kib)
{
    return kib < 0 ? QStringLiteral("n/a") : QString::number(kib / 1024.0, 'f', 1) + " MiB";
}

void compare(const QString &label, const QList<Generation> &runs, const QList<qint64> &csv)
{
    const auto fastest = std::min_element(runs.begin(), runs.end(),
                                          [](const Generation &a, const Generation &b) {
                                              return a.nanoseconds < b.nanoseconds;
                                          });
    const qint64 best = fastest->nanoseconds;
    out << "  generation      " << seconds(best) << "  (best of " << runs.size() << "; checks"
        << " and totals " << seconds(fastest->checksNanoseconds) << ", log row and file "
        << seconds(best - fastest->checksNanoseconds) << ")\n";
    if (csv.first() < 0) {
        out << "  sqlite3 -csv    not found on this machine: no ratio\n";
        return;
    }
    const qint64 bestCsv = *std::min_element(csv.begin(), csv.end());
    out << "  sqlite3 -csv    " << seconds(bestCsv) << "  (best of " << csv.size() << ")\n"
        << "  " << label << " ratio     "
        << QString::number(static_cast<double>(best) / static_cast<double>(bestCsv), 'f', 2)
        << " (generation / export)\n";
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir folder;
    const QString storePath = QDir(folder.path()).filePath(DataStore::fileName);
    const QString sqlite3 = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));
    const FormTraits &form26 = formTraits(FormKind::Form26Q);
    const FormTraits &form24 = formTraits(FormKind::Form24Q);

    try {
        freshstore::create(storePath, 2026);
        DataStore store(storePath);
        storeupgrade::run(store);
        QDir(folder.path()).mkdir(QStringLiteral("eReturns"));

        // Three 26Q Statements of 20%, 60% and 100% of the full size, and one 24Q.
        const int fractions[] = {20, 60, 100};
        QElapsedTimer building;
        building.start();
        {
            Transaction transaction(store);
            store.exec(QStringLiteral("INSERT INTO mstGroup VALUES (1, 'BENCH GROUP')"));
            int nextRowId = 1;
            for (int i = 0; i < 3; ++i) {
                build26Q(store, i + 1, i + 1, challansPerStatement * fractions[i] / 100,
                         rowsPerChallan, nextRowId);
            }
            build24Q(store, 1, 4);
            transaction.commit();
        }
        out << "Kelvora return file benchmark\n"
            << "Test data built in " << seconds(building.nsecsElapsed()) << "\n\n";

        out << "Peak resident memory (VmHWM) while generating 26Q Statements:\n";
        const bool reset = resetPeak();
        for (int i = 0; i < 3; ++i) {
            const int challans = challansPerStatement * fractions[i] / 100;
            const int rows = challans * rowsPerChallan;
            if (reset)
                resetPeak();
            const Generation run = generate(store, form26, i + 1, i + 1, "Q2", challans, rows);
            out << QStringLiteral("  %1% %2 rows  %3  (%4)\n")
                       .arg(fractions[i], 3)
                       .arg(rows, 7)
                       .arg(mebibytes(peakResidentKiB()), 9)
                       .arg(seconds(run.nanoseconds));
        }
        if (!reset)
            out << "  (the peak could not be reset: each figure includes the ones before)\n";
        out.flush();

        const int rows26 = challansPerStatement * rowsPerChallan;
        QList<Generation> generation26;
        QList<qint64> csv26;
        ReturnFileSummary summary26;
        const QString select26 = QStringLiteral(
            "SELECT * FROM TranDeducteeE26 WHERE BasicIfoID = 3 ORDER BY ChallanId, SrlNo;");
        const QString csvPath = QDir(folder.path()).filePath(QStringLiteral("export.csv"));
        for (int i = 0; i < runs; ++i) {
            const Generation run =
                generate(store, form26, 3, 3, "Q2", challansPerStatement, rows26);
            generation26 << run;
            summary26 = run.summary;
            csv26 << exportCsv(sqlite3, storePath, select26, csvPath);
        }
        out << "\n26Q: " << summary26.challans << " challans, " << summary26.annexureRows
            << " deductee rows\n";
        compare(QStringLiteral("26Q"), generation26, csv26);

        QList<Generation> generation24;
        QList<qint64> csv24;
        ReturnFileSummary summary24;
        const QString select24 = QStringLiteral(
            "SELECT * FROM TranEmployeeE24 WHERE BasicIfoID = 1 ORDER BY ChallanId, SrlNo;"
            "SELECT * FROM TranSalaryE24 WHERE BasicIfoID = 1 ORDER BY SrlNo;"
            "SELECT s.* FROM TranSec16E24 s JOIN TranSalaryE24 t ON s.SalaryId = t.SalaryId "
            "WHERE t.BasicIfoID = 1;"
            "SELECT s.* FROM TranSecViAE24 s JOIN TranSalaryE24 t ON s.SalaryId = t.SalaryId "
            "WHERE t.BasicIfoID = 1;");
        for (int i = 0; i < runs; ++i) {
            const Generation run =
                generate(store, form24, 1, 4, "Q4", salaryChallans, salaryRows);
            generation24 << run;
            summary24 = run.summary;
            csv24 << exportCsv(sqlite3, storePath, select24, csvPath);
        }
        out << "\n24Q: " << summary24.challans << " challans, " << summary24.annexureRows
            << " employee rows, " << summary24.salaryRows << " salary rows\n";
        compare(QStringLiteral("24Q"), generation24, csv24);
    } catch (const StoreError &error) {
        QTextStream(stderr) << "returnfile_bench: " << error.description() << '\n';
        return 1;
    } catch (const std::exception &error) {
        QTextStream(stderr) << "returnfile_bench: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
