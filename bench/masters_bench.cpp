// The deductee master on an office's scale: a group of 20,000 deductees, one of whom has 10,000
// rows in the statements of Forms 26Q, 27Q and 27EQ. Times opening the group's list, loading a
// row for editing, and saving a change that the statements take over.

#include "core/datastore.h"
#include "core/freshstore.h"
#include "core/messageboxes.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/storeupgrade.h"
#include "core/transaction.h"
#include "masters/deducteemaster.h"
#include "benchdata.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <vector>

using benchdata::figures;
using benchdata::timed;

namespace {

constexpr int deducteeCount = 20000;
constexpr int statementRows = 10000;
constexpr int rounds = 5;
constexpr int chosenId = 12345;

// Says Yes to every question of the save, as a user who means the change does.
class YesBoxes : public MessageBoxes
{
public:
    Answer show(const Message &message) override
    {
        if (message.buttons == MessageButtons::YesNo)
            return Answer::Yes;
        unexpected << message.text;
        return Answer::Ok;
    }

    QStringList unexpected;
};

void fill(const DataStore &store)
{
    Transaction transaction(store);
    store.exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (1, 'BENCH')"));
    QSqlQuery insert(store.database());
    insert.prepare(QStringLiteral(
        "INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, PanRef, DeducteeName, Address1, "
        "Address2, Address3, Address4, Address5, DeducteeCode, State, StateCode, PIN, InWords) "
        "VALUES (1, ?, ?, '', ?, ?, 'MAIN ROAD', '', '', 'PUNE', '02', 'MAHARASHTRA', '19', "
        "'411001', '')"));
    for (int id = 1; id <= deducteeCount; ++id) {
        // Names in another order than the ids, so that the list's sort has work to do.
        const int scrambled = (id * 7919) % 100003;
        insert.addBindValue(id);
        insert.addBindValue(QStringLiteral("AAAPA%1A").arg(id % 10000, 4, 10, QLatin1Char('0')));
        insert.addBindValue(QStringLiteral("DEDUCTEE %1").arg(scrambled, 6, 10, QLatin1Char('0')));
        insert.addBindValue(QStringLiteral("%1 SHOP").arg(id));
        if (!insert.exec())
            throw StoreError({}, QStringLiteral("could not fill mstDeductee"));
    }
    for (int row = 1; row <= statementRows; ++row) {
        const FormKind kind = row % 3 == 0   ? FormKind::Form26Q
                              : row % 3 == 1 ? FormKind::Form27Q
                                             : FormKind::Form27EQ;
        store.exec(QStringLiteral("INSERT INTO %1 (DeducteeID, BasicIfoID, CompID, AsstID, "
                                  "ChallanId, SrlNo, DeducteeNo, DeducteeName, PAN, "
                                  "AmtOfPayment, Total) VALUES (?, 1, 1, 1, ?, ?, ?, ?, ?, "
                                  "1000, 100)")
                       .arg(formTraits(kind).annexureTable),
                   {row, 1 + row / 100, row, chosenId, QStringLiteral("OLD NAME"),
                    QStringLiteral("AAAPA2345A")});
    }
    transaction.commit();
}

int rowOf(const DeducteeMaster &master, int id)
{
    for (int row = 0; row < master.list().rowCount(); ++row) {
        if (master.list().text(row, 0).toInt() == id)
            return row;
    }
    return -1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    try {
        QTemporaryDir dir;
        const QString path = dir.filePath(DataStore::fileName);
        freshstore::create(path, 2026);
        DataStore store(path);
        storeupgrade::run(store);
        const double fillTime = timed([&] { fill(store); });
        out << "Filled " << deducteeCount << " deductees and " << statementRows
            << " statement rows in " << QString::number(fillTime, 'f', 0) << " ms\n";

        Session session(store);
        YesBoxes boxes;
        DeducteeMaster master(session, boxes);

        std::vector<double> opening, loading, saving;
        for (int round = 0; round < rounds; ++round)
            opening.push_back(timed([&] { master.load(); }));
        const int row = rowOf(master, chosenId);
        for (int round = 0; round < rounds; ++round)
            loading.push_back(timed([&] { master.loadRow(row); }));
        for (int round = 0; round < rounds; ++round) {
            master.loadRow(rowOf(master, chosenId));
            master.fields().name = QStringLiteral("RENAMED DEDUCTEE %1").arg(round);
            saving.push_back(timed([&] { master.command(2); }));
        }

        const QString lastName = QStringLiteral("RENAMED DEDUCTEE %1").arg(rounds - 1);
        int carried = 0;
        for (const FormKind kind : {FormKind::Form26Q, FormKind::Form27Q, FormKind::Form27EQ})
            carried += store
                           .scalar(QStringLiteral("SELECT count(*) FROM %1 WHERE DeducteeName = ?")
                                       .arg(formTraits(kind).annexureTable),
                                   {lastName})
                           .toInt();
        out << "Open the group's list (" << master.list().rowCount()
            << " rows): " << figures(opening) << "\n";
        out << "Load one row for editing: " << figures(loading) << "\n";
        out << "Save a change into " << carried << " statement rows: " << figures(saving)
            << "\n";
        if (carried != statementRows || !boxes.unexpected.isEmpty()) {
            out << "Unexpected: " << boxes.unexpected.join(QStringLiteral(" | ")) << "\n";
            return 1;
        }
    } catch (const StoreError &error) {
        out << "Store failure: " << error.description() << "\n";
        return 1;
    }
    return 0;
}
