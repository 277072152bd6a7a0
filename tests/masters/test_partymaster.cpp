#include "core/datastore.h"
#include "core/session.h"
#include "masters/deducteemaster.h"
#include "masters/employeemaster.h"
#include "partymastertestdata.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QtTest>

using namespace partymastertestdata;

namespace {

// One group with an employee (id 4) and a deductee (id 3), and the master of either.
struct Fixture
{
    explicit Fixture(bool employee)
    {
        addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
        addEmployee(data.store(), 1, 4, QStringLiteral("RAVI KUMAR"),
                    QStringLiteral("ABCDE1234F"));
        addDeductee(data.store(), 1, 3, QStringLiteral("SHAH TRADERS"),
                    QStringLiteral("AAAFS1234K"));
        if (employee)
            master = std::make_unique<EmployeeMaster>(session, boxes);
        else
            master = std::make_unique<DeducteeMaster>(session, boxes);
        master->load();
    }

    TestStore data;
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    std::unique_ptr<PartyMaster> master;
};

} // namespace

class TestPartyMaster : public QObject
{
    Q_OBJECT

private slots:
    void panRules_data();
    void panRules();
    void listOfTheChosenGroup();
    void deleteGuard_data();
    void deleteGuard();
    void commandTail_data();
    void commandTail();
    void noGroupChosen();
    void printNeedsDeductees();
};

void TestPartyMaster::panRules_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("afterLeaving");
    QTest::addColumn<bool>("panRefEnabled");
    QTest::addColumn<bool>("passesSave");
    QTest::addColumn<QString>("stored");

    QTest::newRow("blank") << "" << "PANNOTAVBL" << true << true << "PANNOTAVBL";
    QTest::newRow("blanks") << "   " << "PANNOTAVBL" << true << true << "PANNOTAVBL";
    QTest::newRow("applied for") << "PANAPPLIED" << "PANNOTAVBL" << true << true << "PANAPPLIED";
    QTest::newRow("not available") << "PANNOTAVBL" << "PANNOTAVBL" << true << true
                                   << "PANNOTAVBL";
    QTest::newRow("invalid") << "PANINVALID" << "PANINVALID" << false << true << "PANINVALID";
    QTest::newRow("a PAN") << "ABCDE1234F" << "ABCDE1234F" << false << true << "ABCDE1234F";
    QTest::newRow("nine characters") << "ABCDE1234" << "ABCDE1234" << false << false
                                     << "ABCDE1234";
    QTest::newRow("digit in the letters") << "ABCD11234F" << "ABCD11234F" << false << false
                                          << "ABCD11234F";
    QTest::newRow("letter in the digits") << "ABCDE12X4F" << "ABCDE12X4F" << false << false
                                          << "ABCDE12X4F";
    QTest::newRow("digit last") << "ABCDE12345" << "ABCDE12345" << false << false
                                << "ABCDE12345";
    QTest::newRow("placeholder in lower case") << "pannotavbl" << "pannotavbl" << false << false
                                               << "pannotavbl";
}

void TestPartyMaster::panRules()
{
    QFETCH(QString, typed);
    QFETCH(QString, afterLeaving);
    QFETCH(bool, panRefEnabled);
    QFETCH(bool, passesSave);
    QFETCH(QString, stored);

    QCOMPARE(PartyMaster::panAfterLeaving(typed), afterLeaving);
    QCOMPARE(PartyMaster::isPanNotAvailable(afterLeaving), panRefEnabled);
    const std::optional<FieldFailure> failure = PartyMaster::checkPan(typed);
    QCOMPARE(!failure.has_value(), passesSave);
    if (failure) {
        QCOMPARE(failure->message, (Message{QStringLiteral("Please correct the Pan."), appTitle,
                                            MessageIcon::Critical}));
        QCOMPARE(failure->field, QStringLiteral("txtPAN"));
    }
    QCOMPARE(PartyMaster::storedPan(typed), stored);
}

void TestPartyMaster::listOfTheChosenGroup()
{
    TestStore data;
    addGroup(data.store(), 1, QStringLiteral("ALPHA"));
    addGroup(data.store(), 2, QStringLiteral("BETA"));
    addEmployee(data.store(), 1, 1, QStringLiteral("ZOYA"), QStringLiteral("PANNOTAVBL"));
    addEmployee(data.store(), 2, 2, QStringLiteral("BHARAT"), QStringLiteral("PANNOTAVBL"));
    addEmployee(data.store(), 1, 3, QStringLiteral("anil"), QStringLiteral("ABCDE1234F"));
    Session session(data.store());
    ScriptedMessageBoxes boxes;
    EmployeeMaster master(session, boxes);

    master.load();

    QCOMPARE(master.groups().size(), 2);
    QCOMPARE(master.fields().groupName, QStringLiteral("ALPHA"));
    QCOMPARE(master.fields().groupId, 1);
    const PartyListModel &list = master.list();
    QCOMPARE(list.rowCount(), 2);
    // By name without regard to case, as the store compares names.
    QCOMPARE(list.text(0, 1), QStringLiteral("anil"));
    QCOMPARE(list.text(1, 1), QStringLiteral("ZOYA"));
    QCOMPARE(list.text(0, 2), QStringLiteral("ABCDE1234F"));
    QCOMPARE(list.text(0, 4), QStringLiteral("ALPHA"));
    QCOMPARE(list.text(2, 1), QString());
    QCOMPARE(master.selectedRow(), 0);

    master.fields().groupName = QStringLiteral("BETA");
    master.groupChanged();
    QCOMPARE(master.fields().groupId, 2);
    QCOMPARE(list.rowCount(), 1);
    QCOMPARE(list.data(list.index(0, 0)).toString(), QStringLiteral("2"));
    QCOMPARE(list.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Employee Name"));
}

void TestPartyMaster::deleteGuard_data()
{
    QTest::addColumn<bool>("employee");
    QTest::addColumn<int>("form"); // FormKind with rows of the party, -1 for none
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("last");

    const int yes = int(Answer::Yes);
    const QString confirm = QStringLiteral("Are you sure to proceed with the Deletion?");
    const QString refusal = QStringLiteral("Cannot delete the %1. Entry of the %1 exists in %2");
    QTest::newRow("employee, No") << true << -1 << int(Answer::No) << confirm;
    QTest::newRow("employee, Yes") << true << -1 << yes << "Deleted";
    QTest::newRow("employee in 24Q") << true << int(FormKind::Form24Q) << yes
                                     << refusal.arg("Employee", "Form 24");
    QTest::newRow("deductee, Yes") << false << -1 << yes << "Deleted";
    QTest::newRow("deductee in 26Q") << false << int(FormKind::Form26Q) << yes
                                     << refusal.arg("Deductee", "Form 26");
    QTest::newRow("deductee in 27Q") << false << int(FormKind::Form27Q) << yes
                                     << refusal.arg("Deductee", "Form 27");
    QTest::newRow("deductee in 27EQ") << false << int(FormKind::Form27EQ) << yes
                                      << refusal.arg("Deductee", "Form 27E");
}

// A party named in a statement is kept; the confirmation comes first in every case.
void TestPartyMaster::deleteGuard()
{
    QFETCH(bool, employee);
    QFETCH(int, form);
    QFETCH(int, answer);
    QFETCH(QString, last);
    Fixture f(employee);
    const int id = employee ? 4 : 3;
    if (form >= 0)
        addStatementRow(f.data.store(), FormKind(form), 50, id, QStringLiteral("ANY"));
    f.master->setSelectedRow(0);
    f.boxes.answerNext(Answer(answer));

    f.master->command(4);

    QCOMPARE(f.boxes.texts().first(),
             QStringLiteral("Are you sure to proceed with the Deletion?"));
    QCOMPARE(f.boxes.texts().last(), last);
    const bool deleted = last == QLatin1String("Deleted");
    QCOMPARE(f.master->list().rowCount(), deleted ? 0 : 1);
    const QString table = employee ? QStringLiteral("mstEmployee") : QStringLiteral("mstDeductee");
    QCOMPARE(rowCount(f.data.store(), table), deleted ? 0 : 1);
}

void TestPartyMaster::commandTail_data()
{
    QTest::addColumn<bool>("employee");
    QTest::addColumn<int>("index");
    const char *const names[] = {"Add New", "Edit", "Save refused", "Cancel", "Delete, No"};
    for (const bool employee : {true, false}) {
        for (int index = 0; index < 5; ++index) {
            QTest::addRow("%s, %s", employee ? "employee" : "deductee", names[index])
                << employee << index;
        }
    }
}

// Settled: whatever the button, the PAN field ends as "PANNOTAVBL" (and the employee's
// category as "General"), even right after Edit has loaded a PAN.
void TestPartyMaster::commandTail()
{
    QFETCH(bool, employee);
    QFETCH(int, index);
    Fixture f(employee);
    f.master->setSelectedRow(0);
    f.master->fields().pan = QStringLiteral("ABCDE1234F");
    if (employee)
        static_cast<EmployeeMaster &>(*f.master).fields().category = 0;

    f.master->command(index);

    QCOMPARE(f.master->fields().pan, QStringLiteral("PANNOTAVBL"));
    QVERIFY(f.master->panRefEnabled());
    if (employee) {
        QCOMPARE(static_cast<EmployeeMaster &>(*f.master).fields().category,
                 EmployeeMaster::generalCategory);
    }
}

void TestPartyMaster::noGroupChosen()
{
    TestStore data;
    Session session(data.store());
    ScriptedMessageBoxes boxes;
    EmployeeMaster employees(session, boxes);
    DeducteeMaster deductees(session, boxes);
    for (PartyMaster *master : {static_cast<PartyMaster *>(&employees),
                                static_cast<PartyMaster *>(&deductees)}) {
        master->load();
        for (int index = 0; index < 5; ++index) {
            master->fields().pan = QStringLiteral("X");
            master->command(index);
            QCOMPARE(boxes.shown.last(), (Message{QStringLiteral("Please select Group Name ")}));
            QCOMPARE(master->takeFocus(), QStringLiteral("cmbGrp"));
            QCOMPARE(master->fields().pan, QStringLiteral("X")); // no tail either
            QCOMPARE(master->operation().operationMode(), int(ClsOperation::IdleMode));
        }
    }
    QCOMPARE(boxes.shown.size(), 10);
}

// Both masters have always checked for deductees before printing; nothing else prints here.
void TestPartyMaster::printNeedsDeductees()
{
    TestStore data;
    Session session(data.store());
    ScriptedMessageBoxes boxes;
    EmployeeMaster employees(session, boxes);
    DeducteeMaster deductees(session, boxes);

    employees.operation().printRecord();
    deductees.operation().printRecord();

    const Message noData{QStringLiteral("No data Found"), QStringLiteral("Indication"),
                         MessageIcon::Critical};
    QCOMPARE(boxes.shown, (QList<Message>{noData, noData}));
    QVERIFY(employees.operation().actionCancelled());

    addGroup(data.store(), 1, QStringLiteral("ALPHA"));
    addDeductee(data.store(), 1, 1, QStringLiteral("ANY"), QStringLiteral("PANNOTAVBL"));
    employees.operation().printRecord();
    QVERIFY(!employees.operation().actionCancelled());
    QCOMPARE(boxes.shown.size(), 2);
}

QTEST_GUILESS_MAIN(TestPartyMaster)
#include "test_partymaster.moc"
