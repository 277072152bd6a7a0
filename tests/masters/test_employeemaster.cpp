#include "core/datastore.h"
#include "core/session.h"
#include "masters/employeemaster.h"
#include "partymastertestdata.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QtTest>

using namespace partymastertestdata;

namespace {

// A store with two groups; RAVI KUMAR (id 4) in the first, MEERA (id 7) in the second.
struct Fixture
{
    Fixture()
    {
        addGroup(store(), 1, QStringLiteral("ALPHA GROUP"));
        addGroup(store(), 2, QStringLiteral("BETA GROUP"));
        addEmployee(store(), 1, 4, QStringLiteral("RAVI KUMAR"), QStringLiteral("ABCDE1234F"));
        addEmployee(store(), 2, 7, QStringLiteral("MEERA"), QStringLiteral("PANNOTAVBL"));
        master.load();
    }

    DataStore &store() { return data.store(); }

    // Add New, then a complete entry.
    void startEntry(const QString &name = QStringLiteral("ASHA RAO"),
                    const QString &pan = QStringLiteral("PQRST6789K"))
    {
        master.command(0);
        master.fields().name = name;
        master.fields().pan = pan;
        master.fields().category = 0;
        master.takeFocus();
    }

    // The double click on the list row of an employee.
    void edit(int id)
    {
        for (int row = 0; row < master.list().rowCount(); ++row) {
            if (master.list().text(row, 0).toInt() == id) {
                master.loadRow(row);
                master.takeFocus();
                return;
            }
        }
        QFAIL("employee not in the list");
    }

    QString storedName(int id)
    {
        return store()
            .scalar(QStringLiteral("SELECT EmpName FROM mstEmployee WHERE EmpID = ?"), {id})
            .toString();
    }

    TestStore data;
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    EmployeeMaster master{session, boxes};
};

} // namespace

class TestEmployeeMaster : public QObject
{
    Q_OBJECT

private slots:
    void saveChecksInOrder_data();
    void saveChecksInOrder();
    void addWritesTheEmployee();
    void duplicatePan_data();
    void duplicatePan();
    void changeReachesForm24_data();
    void changeReachesForm24();
    void failedPropagationLeavesEverything();
    void duplicateKeyFailure();
};

void TestEmployeeMaster::saveChecksInOrder_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("pan");
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("field");

    const QString app = appTitle;
    const int info = int(MessageIcon::Information);
    const int critical = int(MessageIcon::Critical);
    QTest::newRow("no group") << "" << "" << "12" << -1 << "Please select the Group" << app
                              << info << "cmbGrp";
    QTest::newRow("blank name before a bad PAN") << "ALPHA GROUP" << "   " << "12" << -1
                                                 << "Please Enter Employee Name" << app << info
                                                 << "txtEmpName";
    QTest::newRow("bad PAN before no category") << "ALPHA GROUP" << "ASHA" << "ABCDE12345" << -1
                                                << "Please correct the Pan." << app << critical
                                                << "txtPAN";
    QTest::newRow("PAN in lower case") << "ALPHA GROUP" << "ASHA" << "abcde1234f" << 0
                                       << "Please correct the Pan." << app << critical
                                       << "txtPAN";
    QTest::newRow("short PAN") << "ALPHA GROUP" << "ASHA" << "ABCDE123" << 0
                               << "Please correct the Pan." << app << critical << "txtPAN";
    QTest::newRow("no category before a duplicate name")
        << "ALPHA GROUP" << "RAVI KUMAR" << "PANINVALID" << -1
        << "Please enter employee category." << "Alert Message" << info << "cmbCat";
    QTest::newRow("duplicate name, any case") << "ALPHA GROUP" << "ravi kumar " << "PANAPPLIED"
                                              << 1 << "Employee Name Already Exists. " << app
                                              << info << "txtEmpName";
    QTest::newRow("name of another group's employee") << "ALPHA GROUP" << "MEERA"
                                                       << "PQRST6789K" << 2 << "" << "" << 0
                                                       << "";
    QTest::newRow("apostrophe") << "ALPHA GROUP" << "O'NEIL AND SONS" << "PANNOTAVBL" << 2 << ""
                                << "" << 0 << "";
}

// Each check fires alone, in its place, with its text and focus; nothing is written.
void TestEmployeeMaster::saveChecksInOrder()
{
    QFETCH(QString, group);
    QFETCH(QString, name);
    QFETCH(QString, pan);
    QFETCH(int, category);
    QFETCH(QString, text);
    QFETCH(QString, title);
    QFETCH(int, icon);
    QFETCH(QString, field);
    Fixture f;
    f.startEntry(name, pan);
    f.master.fields().category = category;
    f.master.fields().groupName = group;
    const int before = rowCount(f.store(), QStringLiteral("mstEmployee"));

    f.master.operation().saveRecord();

    if (text.isEmpty()) {
        QCOMPARE(f.boxes.texts(), QStringList());
        QCOMPARE(rowCount(f.store(), QStringLiteral("mstEmployee")), before + 1);
        QCOMPARE(f.storedName(8), name.trimmed());
        return;
    }
    QCOMPARE(f.boxes.shown.size(), 1);
    QCOMPARE(f.boxes.shown.first(),
             (Message{text, title, MessageIcon(icon), MessageButtons::Ok}));
    QCOMPARE(f.master.takeFocus(), field);
    QVERIFY(f.master.operation().actionCancelled());
    QCOMPARE(f.master.operation().operationMode(), int(ClsOperation::AddMode));
    QCOMPARE(rowCount(f.store(), QStringLiteral("mstEmployee")), before);
}

void TestEmployeeMaster::addWritesTheEmployee()
{
    Fixture f;
    f.master.command(0);
    QCOMPARE(f.master.fields().id, 8);
    QCOMPARE(f.master.fields().fromDate, QDate(2026, 4, 1));
    QCOMPARE(f.master.fields().toDate, QDate(2027, 3, 31));
    QCOMPARE(f.master.takeFocus(), QStringLiteral("txtEmpName"));
    QVERIFY(!f.master.listEnabled());
    QVERIFY(f.master.groupEnabled());
    QCOMPARE(f.master.bar(), PartyMaster::Bar::Editing);

    f.master.fields().name = QStringLiteral("  ASHA RAO ");
    f.master.fields().pan.clear(); // a PAN field emptied and never left
    f.master.fields().panRef = QStringLiteral("REF-1");
    f.master.fields().designation = QStringLiteral("ACCOUNTANT");
    f.master.fields().category = 0;
    f.master.command(2);

    QCOMPARE(f.boxes.texts(), QStringList());
    const QSqlQuery row = [&] {
        QSqlQuery query = f.store().exec(QStringLiteral(
            "SELECT GroupId, PAN, PanRef, EmpName, Designation, FromDate, Todate, category "
            "FROM mstEmployee WHERE EmpID = 8"));
        query.next();
        return query;
    }();
    QCOMPARE(row.value(0).toInt(), 1);
    QCOMPARE(row.value(1).toString(), QStringLiteral("PANNOTAVBL"));
    QCOMPARE(row.value(2).toString(), QStringLiteral("REF-1"));
    QCOMPARE(row.value(3).toString(), QStringLiteral("ASHA RAO"));
    QCOMPARE(row.value(4).toString(), QStringLiteral("ACCOUNTANT"));
    QCOMPARE(row.value(5).toString(), QStringLiteral("2026-04-01"));
    QCOMPARE(row.value(6).toString(), QStringLiteral("2027-03-31"));
    QCOMPARE(row.value(7).toInt(), 0);
    // Back to browsing, with a fresh id and the list reloaded by name.
    QCOMPARE(f.master.bar(), PartyMaster::Bar::Browse);
    QVERIFY(f.master.listEnabled());
    QCOMPARE(f.master.fields().id, 9);
    QCOMPARE(f.master.fields().name, QString());
    QCOMPARE(f.master.list().rowCount(), 2);
    QCOMPARE(f.master.list().text(0, 1), QStringLiteral("ASHA RAO"));
}

void TestEmployeeMaster::duplicatePan_data()
{
    QTest::addColumn<bool>("editing");
    QTest::addColumn<QString>("pan");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("asked");
    QTest::addColumn<bool>("saved");

    QTest::newRow("same PAN, Yes") << false << "ABCDE1234F" << int(Answer::Yes) << true << true;
    QTest::newRow("same PAN, No") << false << "ABCDE1234F" << int(Answer::No) << true << false;
    QTest::newRow("other PAN") << false << "ABCDE1234G" << int(Answer::No) << false << true;
    QTest::newRow("PAN applied for") << false << "PANAPPLIED" << int(Answer::No) << false << true;
    QTest::newRow("own PAN when editing") << true << "ABCDE1234F" << int(Answer::No) << false
                                          << true;
}

void TestEmployeeMaster::duplicatePan()
{
    QFETCH(bool, editing);
    QFETCH(QString, pan);
    QFETCH(int, answer);
    QFETCH(bool, asked);
    QFETCH(bool, saved);
    Fixture f;
    if (editing)
        f.edit(4);
    else
        f.startEntry(QStringLiteral("ASHA RAO"), pan);
    f.master.fields().pan = pan;
    f.master.fields().name = QStringLiteral("ASHA RAO");
    f.boxes.answerNext(Answer(answer));

    f.master.operation().saveRecord();

    const Message question{QStringLiteral("This  PAN Already exists. Want to Save?"), appTitle,
                           MessageIcon::Question, MessageButtons::YesNo};
    QCOMPARE(f.boxes.shown.contains(question), asked);
    const int id = editing ? 4 : 8;
    QCOMPARE(f.storedName(id) == QStringLiteral("ASHA RAO"), saved);
    if (!saved)
        QCOMPARE(f.master.takeFocus(), QStringLiteral("txtPAN"));
}

void TestEmployeeMaster::changeReachesForm24_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << int(Answer::Yes);
    QTest::newRow("No") << int(Answer::No);
}

// Only the employee's rows take the change; their own keys stay.
void TestEmployeeMaster::changeReachesForm24()
{
    QFETCH(int, answer);
    Fixture f;
    addEmployee(f.store(), 1, 5, QStringLiteral("SUNIL"), QStringLiteral("PANNOTAVBL"));
    addStatementRow(f.store(), FormKind::Form24Q, 11, 4, QStringLiteral("RAVI KUMAR"));
    addStatementRow(f.store(), FormKind::Form24Q, 12, 4, QStringLiteral("RAVI KUMAR"));
    addStatementRow(f.store(), FormKind::Form24Q, 13, 5, QStringLiteral("SUNIL"));
    f.master.load();
    f.edit(4);
    f.master.fields().name = QStringLiteral("RAVI K. SHARMA");
    f.master.fields().designation = QStringLiteral("MANAGER");
    f.master.fields().pan = QStringLiteral("ABCDE9999Z");
    f.boxes.answerNext(Answer(answer));

    f.master.command(2);

    QCOMPARE(f.boxes.texts().first(),
             QStringLiteral("Entry of the Employee exists in Form 24 like to update."));
    const bool yes = Answer(answer) == Answer::Yes;
    const QString expected = yes ? QStringLiteral("RAVI K. SHARMA") : QStringLiteral("RAVI KUMAR");
    QCOMPARE(f.storedName(4), expected);
    QCOMPARE(statementName(f.store(), FormKind::Form24Q, 11), expected);
    QCOMPARE(statementName(f.store(), FormKind::Form24Q, 12), expected);
    QCOMPARE(statementName(f.store(), FormKind::Form24Q, 13), QStringLiteral("SUNIL"));
    const QVariant pan = f.store().scalar(
        QStringLiteral("SELECT PAN FROM TranEmployeeE24 WHERE EmpID = 12 AND EmpNo = 4"));
    QCOMPARE(pan.toString(), yes ? QStringLiteral("ABCDE9999Z") : QStringLiteral("OLDPN1234X"));
    QCOMPARE(f.master.bar(), yes ? PartyMaster::Bar::Browse : PartyMaster::Bar::Editing);
}

void TestEmployeeMaster::failedPropagationLeavesEverything()
{
    Fixture f;
    addStatementRow(f.store(), FormKind::Form24Q, 11, 4, QStringLiteral("RAVI KUMAR"));
    blockStatementUpdates(f.store(), FormKind::Form24Q);
    f.edit(4);
    f.master.fields().name = QStringLiteral("RAVI K. SHARMA");
    f.boxes.answerNext(Answer::Yes);

    f.master.command(2);

    const QString question =
        QStringLiteral("Entry of the Employee exists in Form 24 like to update.");
    QCOMPARE(f.boxes.texts(), (QStringList{question, QStringLiteral("statement rows are locked"),
                                           PartyMaster::unableToSaveText}));
    QCOMPARE(f.storedName(4), QStringLiteral("RAVI KUMAR"));
    QCOMPARE(statementName(f.store(), FormKind::Form24Q, 11), QStringLiteral("RAVI KUMAR"));
    // The screen stays in editing with what was typed.
    QCOMPARE(f.master.bar(), PartyMaster::Bar::Editing);
    QCOMPARE(f.master.operation().operationMode(), int(ClsOperation::ModifyMode));
    QCOMPARE(f.master.fields().name, QStringLiteral("RAVI K. SHARMA"));
    QCOMPARE(f.master.fields().id, 4);
}

void TestEmployeeMaster::duplicateKeyFailure()
{
    Fixture f;
    // A store that refuses a second employee of the same name anywhere.
    f.store().exec(QStringLiteral("CREATE UNIQUE INDEX OneName ON mstEmployee (EmpName)"));
    f.startEntry(QStringLiteral("MEERA"));

    f.master.operation().saveRecord();

    QCOMPARE(f.boxes.shown.size(), 2);
    QCOMPARE(f.boxes.shown.at(1), (Message{QStringLiteral("Can not enter duplicate Broker Code"),
                                           QStringLiteral("Sorry")}));
    QCOMPARE(f.master.takeFocus(), QStringLiteral("txtEmpName"));
    QCOMPARE(f.master.fields().id, 8);
    QCOMPARE(rowCount(f.store(), QStringLiteral("mstEmployee")), 2);
}

QTEST_GUILESS_MAIN(TestEmployeeMaster)
#include "test_employeemaster.moc"
