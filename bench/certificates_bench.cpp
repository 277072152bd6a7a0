// Form 16A of a 26Q Statement of 2,000 deductees, each under two sections, as one PDF per
// deductee: what kelvora-certificates does, step by step, with the resident memory as the files
// are written. Offices send each deductee its own certificate, hundreds a quarter.

#include "benchdata.h"
#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/transaction.h"
#include "reports/form16afiles.h"
#include "reports/form16aworktables.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextStream>

#include <sys/resource.h>

using namespace benchdata;

namespace {

constexpr int deducteeCount = 2000;
constexpr int challanCount = 40; // even ones 94C, odd ones 94J
constexpr int statementId = 1;
constexpr int companyId = 1;

/// The deductee masters, and three rows of each deductee: two under 94C, one under 94J.
void fill(const DataStore &store)
{
    Transaction transaction(store);
    const FormTraits &form = formTraits(FormKind::Form26Q);
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (1, 'BENCH')"));
    addCompany(store, companyId, QStringLiteral("BENCH DEDUCTOR LTD"), QStringLiteral("BDL"));
    addStatement(store, form, statementId, companyId, challanCount, deducteeCount * 3);

    Inserter master(store, QStringLiteral("mstDeductee"),
                    {"GroupId", "DeducteeID", "PAN", "DeducteeName", "PIN"});
    for (int id = 1; id <= deducteeCount; ++id)
        master.row({1, id, pan(id, 'P'), QStringLiteral("DEDUCTEE %1 & SONS").arg(id), "560100"});

    Inserter row(store, form.annexureTable,
                 {"DeducteeID", "BasicIfoID", "CompID", "AsstID", "ChallanId", "SrlNo",
                  "Section", "DeducteeNo", "PAN", "DeducteeName", "Address1", "Address5",
                  "State", "AmtOfPayment", "PaymentDt", "Tax", "Surcharge", "Cess", "Total"});
    QList<Money> challanTotals(challanCount);
    for (int serial = 0; serial < deducteeCount * 3; ++serial) {
        const int deductee = serial / 3 + 1;
        const int challan = (serial % 3 == 2 ? 1 : 0) + 2 * (deductee % (challanCount / 2));
        const Money paid = amountFor(serial);
        const Money tax = Money::fromPaise(paid.paise() / 10);
        challanTotals[challan] += tax;
        row.row({serial + 1, statementId, companyId, 1, challan + 1, serial + 1,
                 challan % 2 ? "94J" : "94C", deductee, pan(deductee, 'P'),
                 QStringLiteral("DEDUCTEE %1 & SONS").arg(deductee), "SHOP 4", "BENGALURU",
                 "KARNATAKA", paid.toDouble(),
                 QStringLiteral("2026-0%1-%2").arg(7 + serial % 3).arg(1 + serial % 28, 2, 10,
                                                                       QLatin1Char('0')),
                 tax.toDouble(), 0, 0, tax.toDouble()});
    }
    QStringList columns = challanColumns;
    columns.insert(5, QStringLiteral("Section"));
    Inserter challan(store, form.challanTable, columns);
    for (int c = 0; c < challanCount; ++c) {
        QVariantList values =
            challanValues(c + 1, statementId, companyId, c + 1, challanTotals[c]);
        values.insert(5, c % 2 ? "94J" : "94C");
        challan.row(values);
    }
    transaction.commit();
}

/// Resident memory now, in KiB.
long residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly | QIODevice::Text))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return -1;
}

/// Processor time of every thread so far, in milliseconds.
double processorMs()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto ms = [](const timeval &time) { return time.tv_sec * 1e3 + time.tv_usec / 1e3; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QTextStream out(stdout);

    QTemporaryDir folder;
    const std::unique_ptr<DataStore> store = freshStore(folder);
    fill(*store);
    out << "Form 16A of a 26Q Statement of " << deducteeCount << " deductees, "
        << deducteeCount * 3 << " rows under 94C and 94J\n";

    const Form16AWorkTables tables(*store);
    QList<int> ids;
    const double prepare = timed([&] {
        tables.prepare();
        tables.fill(formTraits(FormKind::Form26Q));
        for (const Form16AWorkTables::Deductee &deductee : tables.deductees(companyId, "Q2"))
            ids << deductee.id;
    });

    Form16AFiles files(tables, {QStringLiteral("From 01/07/2026 To 30/09/2026"), {}, false});
    QList<long> memory;
    int written = 0;
    const double processorBefore = processorMs();
    const double writing = timed([&] {
        const Form16AFiles::Outcome outcome = files.write(
            folder.filePath(QStringLiteral("pdf")), companyId, "Q2", ids, 1,
            [&](const Form16AFiles::Written &) {
                if (++written % (deducteeCount / 10) == 0)
                    memory << residentKiB();
                return true;
            });
        if (!outcome.error.isEmpty())
            qFatal("%s", qPrintable(outcome.error));
    });
    const double processor = processorMs() - processorBefore;
    const QFileInfoList pdfs =
        QDir(folder.filePath(QStringLiteral("pdf"))).entryInfoList(QDir::Files);
    qint64 bytes = 0;
    for (const QFileInfo &pdf : pdfs)
        bytes += pdf.size();

    out << "  work tables and deductee list: " << QString::number(prepare, 'f', 0) << " ms\n";
    out << "  " << pdfs.size() << " PDFs (" << bytes / pdfs.size() / 1024 << " KiB each):     "
        << QString::number(writing, 'f', 0) << " ms (processor time of all threads "
        << QString::number(processor, 'f', 0) << " ms)\n";
    out << "  total:                         "
        << QString::number(prepare + writing, 'f', 0) << " ms\n";
    out << "  resident memory after each tenth of the files (MiB):";
    for (const long kib : memory)
        out << ' ' << kib / 1024;
    out << '\n';
    return 0;
}
