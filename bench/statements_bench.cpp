// The statement screen on a practitioner's largest 26Q: 1,000 challans over 200,000 deductee
// rows. Times opening the screen on that Statement, saving one challan, whose bank details the
// save carries into its 200 rows, and the totals of the generation panel; then, on a challan of
// 20,000 rows, choosing it and saving one of its rows with the challan's control totals.

#include "benchdata.h"
#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "returnfile/generationflow.h"
#include "statements/frmstatement.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextStream>

using namespace benchdata;

namespace {

constexpr int challans = 1000;
constexpr int rowsPerChallan = 200;
constexpr int rounds = 5;
constexpr int bigChallanRows = 20000;

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
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
            // A second Statement: one challan of 20,000 rows and one of a single row.
            build26Q(*store, 2, 2, 1, bigChallanRows, nextRowId);
            build26Q(*store, 3, 3, 1, 1, nextRowId);
            store->exec(QStringLiteral("UPDATE TranChallanE26 SET BasicIfoID = 2, CompID = 2, "
                                       "SlNo = 2 WHERE BasicIfoID = 3"));
            store->exec(QStringLiteral("UPDATE TranDeducteeE26 SET BasicIfoID = 2, CompID = 2 "
                                       "WHERE BasicIfoID = 3"));
            transaction.commit();
        });
        out << "Built a 26Q Statement of " << challans << " challans and "
            << challans * rowsPerChallan << " deductee rows in "
            << QString::number(building / 1000, 'f', 1) << " s\n";

        Session session(*store);
        session.curGroupId = 1;
        session.curCompId = 1;
        session.curQuarter = QStringLiteral("Q2");
        session.quarterFromDt = QStringLiteral("01/07/2026");
        session.quarterToDt = QStringLiteral("30/09/2026");
        QuietBoxes boxes;

        std::vector<double> opening, saving;
        std::unique_ptr<FrmStatement> screen;
        for (int round = 0; round < rounds; ++round) {
            screen.reset();
            session.curBasicInfoId = 1;
            opening.push_back(timed([&] {
                screen = std::make_unique<FrmStatement>(form, session, boxes);
                screen->show();
                screen->findChild<QPushButton *>(QStringLiteral("cmdChallan"))->click();
            }));
        }
        auto *list = screen->findChild<QTableView *>(QStringLiteral("lstvChallan"));
        auto *bank = screen->findChild<QLineEdit *>(QStringLiteral("txtCh(124)"));
        auto *save = screen->findChild<QPushButton *>(QStringLiteral("cmdSavechallan"));
        for (int round = 0; round < rounds; ++round) {
            list->clicked(list->model()->index(challans / 2, 0));
            bank->setText(QStringLiteral("05%1").arg(10000 + round));
            saving.push_back(timed([&] { save->click(); }));
        }
        const int carried =
            store->scalar(QStringLiteral("SELECT count(*) FROM TranDeducteeE26 "
                                         "WHERE BankBranchCode = ?"),
                          {QStringLiteral("05%1").arg(10000 + rounds - 1)})
                .toInt();
        out << "Open the screen on it, with its challan list (" << list->model()->rowCount()
            << " rows): " << figures(opening) << "\n";
        out << "Save one challan, carried into " << carried << " rows: " << figures(saving)
            << "\n";
        if (carried != rowsPerChallan) {
            out << "Unexpected: the challan's rows did not take the change\n";
            return 1;
        }

        std::vector<double> totalling;
        const GenerationFlow flow(*store, form);
        GenerationRequest request;
        request.groupId = 1;
        request.compId = 1;
        request.quarter = session.curQuarter;
        request.basicInfoId = QStringLiteral("1");
        request.declaredChallans = QString::number(challans);
        request.declaredDeductees = QString::number(challans * rowsPerChallan);
        for (int round = 0; round < rounds; ++round) {
            totalling.push_back(timed([&] {
                if (!flow.prepare(request).panel)
                    throw std::runtime_error("the generation panel was refused");
            }));
        }
        out << "The generation panel's checks and totals over " << challans * rowsPerChallan
            << " rows: " << figures(totalling) << "\n";

        // The challan of 20,000 rows, on the annexure panel of the second Statement.
        screen.reset();
        session.curCompId = 2;
        session.curBasicInfoId = 2;
        screen = std::make_unique<FrmStatement>(form, session, boxes);
        screen->show();
        screen->findChild<QPushButton *>(QStringLiteral("cmdDeducteeDetails"))->click();
        auto *grid = screen->findChild<QTableView *>(QStringLiteral("GrdChallan"));
        auto *rows = screen->findChild<QTableView *>(QStringLiteral("lstvDedt"));
        std::vector<double> choosing, savingRow;
        for (int round = 0; round < rounds; ++round) {
            grid->selectRow(1);
            choosing.push_back(timed([&] { grid->selectRow(0); }));
        }
        auto *saveRow = screen->findChild<QPushButton *>(QStringLiteral("cmdSaveDeductee"));
        for (int round = 0; round < rounds; ++round) {
            // Rows paid on or before the challan's date, the 7th of the month.
            rows->clicked(rows->model()->index(28 * (round + 1), 0));
            savingRow.push_back(timed([&] { saveRow->click(); }));
        }
        out << "Choose a challan of " << rows->model()->rowCount()
            << " rows and list them: " << figures(choosing) << "\n";
        out << "Save one of its rows with the challan's control totals: " << figures(savingRow)
            << "\n";
        if (!boxes.shown.isEmpty()) {
            out << "Unexpected: " << boxes.shown.join(QStringLiteral(" | ")) << "\n";
            return 1;
        }
    } catch (const StoreError &error) {
        out << "Store failure: " << error.description() << "\n";
        return 1;
    } catch (const std::exception &error) {
        out << "Failure: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
