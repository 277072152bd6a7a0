// The salary detail of a large employer's 24Q: 5,000 salary rows with their section rows in
// the fourth quarter, and 5,000 employees in the group. Times opening the panel, clicking a row
// into the boxes and saving a changed row and a new one, each with its four section tables.

#include "benchdata.h"
#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "statements/salarypanel.h"
#include "statements/statementsheet.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTextStream>

using namespace benchdata;

namespace {

constexpr int salaryRows = 5000;
constexpr int rounds = 5;

void build(const DataStore &store)
{
    const FormTraits &form = formTraits(FormKind::Form24Q);
    store.exec(QStringLiteral("INSERT INTO mstGroup VALUES (1, 'BENCH GROUP')"));
    addCompany(store, 1, QStringLiteral("BENCH EMPLOYER LTD"), QStringLiteral("E1"));
    addStatement(store, form, 1, 1, 0, 0);

    Inserter employee(store, QStringLiteral("mstEmployee"),
                      {"GroupId", "EmpID", "PAN", "PanRef", "EmpName", "Designation",
                       "FromDate", "Todate", "category"});
    QStringList columns = {"SalaryId", "EmpID", "BasicIfoID", "SrlNo", "EmpName", "PanRef",
                           "Pan", "Designation", "FromDate", "ToDate", "331", "332", "333",
                           "334Sec10Gross", "335", "336Sec16Gross", "339", "340SecViaGross",
                           "344", "351", "352", "355", "362"};
    Inserter salary(store, form.salaryTable, columns);
    const QStringList single = {"Secid", "SalaryId", "Empid", "SectionId", "TotalDeduction"};
    const QStringList three = {"Secid", "SalaryId", "Empid", "SectionId", "GrossAmt", "QfAmt",
                               "DedAmt"};
    Inserter sec10(store, form.section10Table, single);
    Inserter sec16(store, form.section16Table, single);
    Inserter via(store, form.chapterVIATable, three);
    Inserter sec88(store, form.section88Table, three);
    int section = 0;
    for (int s = 1; s <= salaryRows; ++s) {
        const QString name = QStringLiteral("EMPLOYEE %1").arg(s, 5, 10, QLatin1Char('0'));
        employee.row({1, s, pan(s, 'P'), QString(), name, "ENGINEER", "2026-04-01",
                      "2027-03-31", s % 3});
        const qint64 gross = 600000 + (s % 977) * 1000;
        const qint64 tax = (gross - 500000) / 10;
        salary.row({s, s, 1, s, name, QString(), pan(s, 'P'), "ENGINEER", "2026-04-01",
                    "2027-03-31", s % 3, gross, 2500, gross - 22500, 0, gross - 22500, 150000,
                    gross - 172500, tax, tax, tax, 0, 1600});
        ++section;
        sec10.row({section, s, s, "10(13A)", 20000});
        sec16.row({section, s, s, "16(iii)", 2500});
        via.row({section, s, s, "80CCE", 150000, 150000, 150000});
        sec88.row({section, s, s, "PPF", 70000, 70000, 70000});
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTextStream out(stdout);
    const FormTraits &form = formTraits(FormKind::Form24Q);
    try {
        QTemporaryDir folder;
        std::unique_ptr<DataStore> store = freshStore(folder);
        const double building = timed([&] {
            Transaction transaction(*store);
            build(*store);
            transaction.commit();
        });
        out << "Built a 24Q Statement of " << salaryRows << " salary rows and "
            << 4 * salaryRows << " section rows in " << QString::number(building / 1000, 'f', 1)
            << " s\n";

        Session session(*store);
        session.curGroupId = 1;
        session.curCompId = 1;
        session.curQuarter = QStringLiteral("Q4");
        session.curBasicInfoId = 1;
        QuietBoxes boxes;
        StatementSheet sheet(session, boxes, form);
        sheet.open();
        SalaryPanel panel(sheet, boxes);
        panel.resize(1050, 520);
        panel.show();

        std::vector<double> opening, clicking, changing, adding;
        for (int round = 0; round < rounds; ++round)
            opening.push_back(timed([&] { panel.open(); }));
        auto *list = panel.findChild<QTableView *>(QStringLiteral("lstvEmp"));
        auto *total = panel.findChild<QLineEdit *>(QStringLiteral("txt(205)"));
        auto *save = panel.findChild<QPushButton *>(QStringLiteral("cmdSaveEmployee"));
        auto *employee = panel.findChild<QComboBox *>(QStringLiteral("cmbEmpname"));
        for (int round = 0; round < rounds; ++round) {
            const QModelIndex row = list->model()->index(salaryRows / 2 + round, 0);
            clicking.push_back(timed([&] { emit list->clicked(row); }));
            total->setText(QString::number(123456 + round));
            changing.push_back(timed([&] { save->click(); }));
        }
        for (int round = 0; round < rounds; ++round) {
            panel.open();
            employee->setCurrentText(QStringLiteral("EMPLOYEE 00001"));
            panel.findChild<QLineEdit *>(QStringLiteral("txt(202)"))->setText(pan(1, 'P'));
            panel.findChild<QLineEdit *>(QStringLiteral("txt(3)"))->setText("ENGINEER");
            panel.findChild<QComboBox *>(QStringLiteral("cmbCat"))->setCurrentIndex(0);
            total->setText(QStringLiteral("650000"));
            adding.push_back(timed([&] { save->click(); }));
        }
        const int stored = store->scalar(QStringLiteral("SELECT count(*) FROM TranSalaryE24 "
                                                        "WHERE BasicIfoID = 1")).toInt();
        const int changed =
            store->scalar(QStringLiteral("SELECT count(*) FROM TranSalaryE24 "
                                         "WHERE \"332\" BETWEEN 123456 AND 123460")).toInt();
        out << "Open the panel (" << salaryRows << " rows in the list, " << salaryRows
            << " employees): " << figures(opening) << "\n";
        out << "Click a row into the boxes and grids: " << figures(clicking) << "\n";
        out << "Save a changed row with its section rows: " << figures(changing) << "\n";
        out << "Save a new row: " << figures(adding) << "\n";
        if (stored != salaryRows + rounds || changed != rounds) {
            out << "Unexpected: " << stored << " rows stored, " << changed << " changed\n";
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
