#include "parties.h"
#include "support/testsuite.h"


Q_DECLARE_METATYPE(FormKind)

namespace {

const Message badPan{PartyMaster::badPanText, appTitle, MessageIcon::Critical};

} // namespace

class TestPartyMasters : public QObject
{
    Q_OBJECT

private slots:
    void panRules_data()
    {
        // panRef: whether leaving the field opens the PAN reference
        testsuite::columns<QString, QString, bool, bool, QString>("typed", "afterLeaving",
                                                                  "panRef", "passesSave",
                                                                  "stored");
        QTest::newRow("blanks") << "   " << "PANNOTAVBL" << true << true << "PANNOTAVBL";
        QTest::newRow("applied for") << "PANAPPLIED" << "PANNOTAVBL" << true << true
                                     << "PANAPPLIED";
        QTest::newRow("not available") << "PANNOTAVBL" << "PANNOTAVBL" << false << true
                                       << "PANNOTAVBL";
        QTest::newRow("invalid") << "PANINVALID" << "PANINVALID" << false << true
                                 << "PANINVALID";
        QTest::newRow("a PAN") << "ABCDE1234F" << "ABCDE1234F" << false << true << "ABCDE1234F";
        QTest::newRow("digit last") << "ABCDE12345" << "ABCDE12345" << false << false
                                    << "ABCDE12345";
        QTest::newRow("placeholder in lower case") << "pannotavbl" << "pannotavbl" << false
                                                   << false << "pannotavbl";
    }
    void panRules()
    {
        QFETCH(QString, typed);
        QFETCH(QString, afterLeaving);
        QFETCH(bool, passesSave);
        Parties p;
        p.deductees.fields().pan = typed;
        p.deductees.panLeft();
        QCOMPARE(p.deductees.fields().pan, afterLeaving);
        QTEST(p.deductees.panRefEnabled(), "panRef");
        QCOMPARE(PartyMaster::checkPan(typed),
                 passesSave ? std::nullopt
                            : std::optional<FieldFailure>({badPan, QStringLiteral("txtPAN")}));
        QTEST(PartyMaster::storedPan(typed), "stored");
    }

    void listOfTheChosenGroup()
    {
        Parties p;
        p.data.insert("mstEmployee", {{"GroupId", 1}, {"EmpID", 10}, {"EmpName", "anil"}});
        p.employees.load();
        QCOMPARE(p.employees.fields().groupId, 1);
        const PartyListModel &list = p.employees.list();
        // By name without regard to case, as the store compares names.
        QCOMPARE(QStringList({list.text(0, 1), list.text(1, 1), list.text(1, 2),
                              list.text(1, 4), list.text(2, 1)}),
                 QStringList({"anil", "RAVI KUMAR", "ABCDE1234F", "ALPHA GROUP", ""}));
        QCOMPARE(p.employees.selectedRow(), 0);
        p.employees.fields().groupName = QStringLiteral("BETA GROUP");
        p.employees.groupChanged();
        QCOMPARE(p.employees.fields().groupId, 2);
        QCOMPARE(list.rowCount(), 1);
        QCOMPARE(list.data(list.index(0, 0)).toString(), QStringLiteral("7"));
    }

    // A party named in a statement is kept; the confirmation comes first in every case.
    void deleteGuard_data()
    {
        // form: a FormKind with a row of the party, -1 for none
        testsuite::columns<bool, int, Answer, QString>("employee", "form", "answer", "last");
        const QString refusal = "Cannot delete the %1. Entry of the %1 exists in %2";
        QTest::newRow("employee, No") << true << -1 << Answer::No
                                      << "Are you sure to proceed with the Deletion?";
        QTest::newRow("employee") << true << -1 << Answer::Yes << "Deleted";
        QTest::newRow("employee in 24Q") << true << int(FormKind::Form24Q) << Answer::Yes
                                         << refusal.arg("Employee", "Form 24");
        QTest::newRow("deductee") << false << -1 << Answer::Yes << "Deleted";
        QTest::newRow("deductee in 27EQ") << false << int(FormKind::Form27EQ) << Answer::Yes
                                          << refusal.arg("Deductee", "Form 27E");
    }
    void deleteGuard()
    {
        QFETCH(bool, employee);
        QFETCH(int, form);
        QFETCH(Answer, answer);
        QFETCH(QString, last);
        Parties p;
        PartyMaster &master = p.master(employee);
        const int id = master.list().text(0, 0).toInt();
        if (form >= 0)
            p.addStatementRow(FormKind(form), 50, id, QStringLiteral("ANY"));
        const int before = master.list().rowCount();
        p.boxes.answerNext(answer);

        // The employees' rows go by the list's Delete key, which leaves every button usable.
        if (employee)
            master.deleteKey();
        else
            master.command(4);

        QCOMPARE(p.boxes.texts().first(),
                 QStringLiteral("Are you sure to proceed with the Deletion?"));
        QCOMPARE(p.boxes.texts().last(), last);
        const bool deleted = last == u"Deleted";
        QCOMPARE(master.list().rowCount(), before - deleted);
        QCOMPARE(p.stored("count(*)", employee, id), deleted ? "0" : "1");
        QCOMPARE(master.bar() == PartyMaster::Bar::AllEnabled, employee && deleted);
    }

    // Settled: whatever the button, the PAN field ends as "PANNOTAVBL" (and the employee's
    // category as "General"), even right after Edit has loaded a PAN; the PAN reference is not
    // opened by it.
    void commandTail()
    {
        for (const bool employee : {true, false}) {
            for (int index = 0; index < 5; ++index) {
                Parties p;
                PartyMaster &master = p.master(employee);
                master.setSelectedRow(0);
                master.fields().pan = QStringLiteral("ABCDE1234F");
                p.employees.fields().category = 0;
                master.command(index);
                QCOMPARE(master.fields().pan, QStringLiteral("PANNOTAVBL"));
                if (index != 1) // Edit takes it from the row it loads
                    QVERIFY(!master.panRefEnabled());
                QCOMPARE(p.employees.fields().category,
                         employee ? EmployeeMaster::generalCategory : 0);
            }
        }
    }

    // A list that cannot be read is reported as every failed read of the store has been.
    void unreadableList()
    {
        Parties p;
        p.data.store().exec("ALTER TABLE mstDeductee RENAME TO mstDeductee2");
        p.deductees.groupChanged();
        QCOMPARE(p.boxes.shown.value(0).icon, MessageIcon::Information);
        QVERIFY(p.boxes.texts().value(0).endsWith(" : :Error opening Recordset"));
    }

    // Without groups every command stops at the group, and no tail follows.
    void noGroupChosen()
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
                QCOMPARE(boxes.shown.last(), Message{QStringLiteral("Please select Group Name ")});
                QCOMPARE(master->takeFocus(), QStringLiteral("cmbGrp"));
                QCOMPARE(master->fields().pan, QStringLiteral("X"));
                QCOMPARE(master->operation().operationMode(), int(ClsOperation::IdleMode));
            }
        }
        // Both masters have always checked for deductees before printing.
        boxes.shown.clear();
        employees.operation().printRecord();
        QCOMPARE(boxes.shown, QList<Message>({{PartyMaster::noDataText, PartyMaster::noDataTitle,
                                               MessageIcon::Critical}}));
        QVERIFY(employees.operation().actionCancelled());
        data.insert("mstDeductee", {{"GroupId", 1}, {"DeducteeID", 1}});
        deductees.operation().printRecord();
        QVERIFY(!deductees.operation().actionCancelled());
        QCOMPARE(boxes.shown.size(), 1);
    }
};

KELVORA_TEST_OBJECT(TestPartyMasters);
#include "test_partymasters.moc"
