// The pre-filing check over a practitioner's largest 26Q, the Statement of the statement bench:
// 1,000 challans over 200,000 deductee rows. Times the whole check, the rules of every row,
// challan and the Statement with the interest of each challan and the late fee, as the
// generation panel and kelvora-returns --check run it.

#include "benchdata.h"
#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "filingcheck/filingcheck.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>

using namespace benchdata;

namespace {

constexpr int challans = 1000;
constexpr int rowsPerChallan = 200;
constexpr int rounds = 5;

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const FormTraits &form = formTraits(FormKind::Form26Q);
    try {
        QTemporaryDir folder;
        std::unique_ptr<DataStore> store = freshStore(folder);
        const double building = timed([&] {
            Transaction transaction(*store);
            store->exec(QStringLiteral("INSERT INTO mstGroup VALUES (1, 'BENCH GROUP')"));
            int nextRowId = 1;
            build26Q(*store, 1, 1, challans, rowsPerChallan, nextRowId);
            transaction.commit();
        });
        out << "Built a 26Q Statement of " << challans << " challans and "
            << challans * rowsPerChallan << " deductee rows in "
            << QString::number(building / 1000, 'f', 1) << " s\n";

        const filingcheck::FilingCheck check(*store, form);
        std::vector<double> checking;
        filingcheck::CheckResult result;
        for (int round = 0; round < rounds; ++round)
            checking.push_back(timed([&] { result = check.run(1, QDate(2026, 11, 17)); }));
        out << "The check over " << challans * rowsPerChallan << " rows: " << figures(checking)
            << "\n";
        out << "  found " << result.errors() << " errors and " << result.warnings()
            << " warnings, interest on " << result.interest.size() << " challans, a late fee of "
            << result.lateFee.due.toText() << "\n";
    } catch (const StoreError &error) {
        out << "Store failure: " << error.description() << "\n";
        return 1;
    } catch (const std::exception &error) {
        out << "Failure: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
