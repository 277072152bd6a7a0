#include "core/datastore.h"
#include "core/session.h"
#include "masters/deducteemaster.h"
#include "partymastertestdata.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QtTest>

using namespace partymastertestdata;

namespace {

const FormKind deducteeForms[] = {FormKind::Form26Q, FormKind::Form27Q, FormKind::Form27EQ};

// One group with O'NEIL AND SONS (id 3) and another deductee, SHAH TRADERS (id 9).
struct Fixture
{
    Fixture()
    {
        addGroup(store(), 1, QStringLiteral("ALPHA GROUP"));
        addDeductee(store(), 1, 3, QStringLiteral("O'NEIL AND SONS"),
                    QStringLiteral("AAACO1234Q"));
        addDeductee(store(), 1, 9, QStringLiteral("SHAH TRADERS"), QStringLiteral("PANNOTAVBL"));
        master.load();
    }

    DataStore &store() { return data.store(); }

    void startEntry()
    {
        master.command(0);
        DeducteeFields &values = master.fields();
        values.name = QStringLiteral("MEHTA AND CO");
        values.pan = QStringLiteral("AAAFM4321B");
        values.code = QStringLiteral("01");
        values.address[0] = QStringLiteral("12 MG ROAD");
        values.state = QStringLiteral("karnataka");
        values.pin = QStringLiteral("560001");
        master.takeFocus();
    }

    void edit(int id)
    {
        for (int row = 0; row < master.list().rowCount(); ++row) {
            if (master.list().text(row, 0).toInt() == id) {
                master.loadRow(row);
                master.takeFocus();
                return;
            }
        }
        QFAIL("deductee not in the list");
    }

    QString stored(const QString &column, int id)
    {
        return store()
            .scalar(QStringLiteral("SELECT %1 FROM mstDeductee WHERE DeducteeID = ?").arg(column),
                    {id})
            .toString();
    }

    TestStore data;
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    DeducteeMaster master{session, boxes};
};

QString question(const char *form)
{
    return QStringLiteral("Entry of the Deductee exists in Form %1 like to update.")
        .arg(QLatin1String(form));
}

} // namespace

class TestDeducteeMaster : public QObject
{
    Q_OBJECT

private slots:
    void saveChecksInOrder_data();
    void saveChecksInOrder();
    void addWritesTheDeductee();
    void questionsPerForm_data();
    void questionsPerForm();
    void failureOfTheLastFormRollsBack();
    void stateAndCode_data();
    void stateAndCode();
    void withoutPan();
};

void TestDeducteeMaster::saveChecksInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("pan");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("pin");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("field");

    const int info = int(MessageIcon::Information);
    QTest::newRow("blank name") << "" << "BAD" << "" << "" << "" << "Please Enter Deduatee Name"
                                << info << "txtDeducteeName";
    QTest::newRow("bad PAN") << "X" << "AAAFM4321" << "" << "" << ""
                             << "Please correct the Pan." << int(MessageIcon::Critical)
                             << "txtPAN";
    QTest::newRow("no code") << "X" << "PANINVALID" << " " << "" << ""
                             << "Please enter Deductee Code" << info << "cmbDeducteeCode";
    QTest::newRow("unknown state") << "X" << "PANAPPLIED" << "02" << "MYSORE STATE" << ""
                                   << "Please select proper State Name" << info << "cmbState";
    QTest::newRow("no PIN") << "SHAH TRADERS" << "" << "02" << "GOA" << " "
                            << "Please enter Pin Code" << info << "txtPincode";
    QTest::newRow("duplicate name with an apostrophe") << "o'neil and sons" << "" << "02"
                                                       << "GOA" << "403001"
                                                       << "Deductee Name Already Exists. "
                                                       << info << "txtDeducteeName";
}

void TestDeducteeMaster::saveChecksInOrder()
{
    QFETCH(QString, name);
    QFETCH(QString, pan);
    QFETCH(QString, code);
    QFETCH(QString, state);
    QFETCH(QString, pin);
    QFETCH(QString, text);
    QFETCH(int, icon);
    QFETCH(QString, field);
    Fixture f;
    f.startEntry();
    DeducteeFields &values = f.master.fields();
    values.name = name;
    values.pan = pan;
    values.code = code;
    values.state = state;
    values.pin = pin;

    f.master.operation().saveRecord();

    QCOMPARE(f.boxes.shown, (QList<Message>{{text, appTitle, MessageIcon(icon)}}));
    QCOMPARE(f.master.takeFocus(), field);
    QCOMPARE(rowCount(f.store(), QStringLiteral("mstDeductee")), 2);
}

void TestDeducteeMaster::addWritesTheDeductee()
{
    Fixture f;
    f.startEntry();
    QCOMPARE(f.master.fields().id, 10);

    f.master.command(2);

    QCOMPARE(f.boxes.texts(), QStringList());
    QSqlQuery row = f.store().exec(QStringLiteral(
        "SELECT GroupId, PAN, DeducteeName, Address1, DeducteeCode, State, StateCode, PIN, "
        "InWords FROM mstDeductee WHERE DeducteeID = 10"));
    QVERIFY(row.next());
    QCOMPARE(row.value(0).toInt(), 1);
    QCOMPARE(row.value(1).toString(), QStringLiteral("AAAFM4321B"));
    QCOMPARE(row.value(2).toString(), QStringLiteral("MEHTA AND CO"));
    QCOMPARE(row.value(3).toString(), QStringLiteral("12 MG ROAD"));
    QCOMPARE(row.value(4).toString(), QStringLiteral("01"));
    QCOMPARE(row.value(5).toString(), QStringLiteral("KARNATAKA"));
    QCOMPARE(row.value(6).toString(), QStringLiteral("15"));
    QCOMPARE(row.value(7).toString(), QStringLiteral("560001"));
    QCOMPARE(row.value(8).toString(), QString());
    QCOMPARE(f.master.list().rowCount(), 3);
    QCOMPARE(f.master.list().text(0, 2), QStringLiteral("MEHTA AND CO"));

    // The apostrophe is found again when the name is searched.
    f.edit(3);
    QCOMPARE(f.master.fields().name, QStringLiteral("O'NEIL AND SONS"));
    QCOMPARE(f.master.fields().address[0], QStringLiteral("LINE 1"));
    QCOMPARE(f.master.fields().stateCode, QStringLiteral("15"));
}

void TestDeducteeMaster::questionsPerForm_data()
{
    QTest::addColumn<QList<int>>("formsWithRows"); // indexes into deducteeForms
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<bool>("saved");

    const int yes = int(Answer::Yes);
    const int no = int(Answer::No);
    QTest::newRow("all three, Yes to each") << QList<int>{0, 1, 2} << QList<int>{yes, yes, yes}
                                            << QStringList{question("26"), question("27"),
                                                           question("27E")}
                                            << true;
    QTest::newRow("all three, No to the second")
        << QList<int>{0, 1, 2} << QList<int>{yes, no}
        << QStringList{question("26"), question("27")} << false;
    QTest::newRow("all three, No to the last")
        << QList<int>{0, 1, 2} << QList<int>{yes, yes, no}
        << QStringList{question("26"), question("27"), question("27E")} << false;
    QTest::newRow("27E only") << QList<int>{2} << QList<int>{yes} << QStringList{question("27E")}
                              << true;
    QTest::newRow("no statement rows") << QList<int>{} << QList<int>{} << QStringList{} << true;
}

// A change is asked about once per form with rows, and reaches the party's rows only.
void TestDeducteeMaster::questionsPerForm()
{
    QFETCH(QList<int>, formsWithRows);
    QFETCH(QList<int>, answers);
    QFETCH(QStringList, asked);
    QFETCH(bool, saved);
    Fixture f;
    for (const int form : formsWithRows) {
        addStatementRow(f.store(), deducteeForms[form], 20 + form, 3, "O'NEIL AND SONS");
        addStatementRow(f.store(), deducteeForms[form], 30 + form, 9, "SHAH TRADERS");
    }
    for (const int answer : answers)
        f.boxes.answerNext(Answer(answer));
    f.edit(3);
    f.master.fields().name = QStringLiteral("O'NEIL & SONS LLP");
    f.master.fields().state = QStringLiteral("FOREIGN");

    f.master.command(2);

    QCOMPARE(f.boxes.texts(), asked);
    const QString expected = saved ? "O'NEIL & SONS LLP" : "O'NEIL AND SONS";
    QCOMPARE(f.stored(QStringLiteral("DeducteeName"), 3), expected);
    for (const int form : formsWithRows) {
        QCOMPARE(statementName(f.store(), deducteeForms[form], 20 + form), expected);
        QCOMPARE(statementName(f.store(), deducteeForms[form], 30 + form),
                 QStringLiteral("SHAH TRADERS"));
        const QString table = formTraits(deducteeForms[form]).annexureTable;
        const QVariant state = f.store().scalar(
            QStringLiteral("SELECT StateCode FROM %1 WHERE DeducteeID = ?").arg(table),
            {20 + form});
        QCOMPARE(state.toString(), saved ? QStringLiteral("99") : QString());
    }
}

void TestDeducteeMaster::failureOfTheLastFormRollsBack()
{
    Fixture f;
    for (const FormKind form : deducteeForms)
        addStatementRow(f.store(), form, 40, 3, "O'NEIL AND SONS");
    blockStatementUpdates(f.store(), FormKind::Form27EQ);
    f.edit(3);
    f.master.fields().name = QStringLiteral("RENAMED");
    for (int i = 0; i < 3; ++i)
        f.boxes.answerNext(Answer::Yes);

    f.master.command(2);

    QCOMPARE(f.boxes.texts().mid(3),
             (QStringList{QStringLiteral("statement rows are locked"),
                          PartyMaster::unableToSaveText}));
    QCOMPARE(f.stored(QStringLiteral("DeducteeName"), 3), QStringLiteral("O'NEIL AND SONS"));
    for (const FormKind form : deducteeForms)
        QCOMPARE(statementName(f.store(), form, 40), QStringLiteral("O'NEIL AND SONS"));
    QCOMPARE(f.master.bar(), PartyMaster::Bar::Editing);
    QCOMPARE(f.master.fields().name, QStringLiteral("RENAMED"));
}

void TestDeducteeMaster::stateAndCode_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("stateAccepted");
    QTest::addColumn<QString>("stateCode");
    QTest::addColumn<QString>("pin");
    QTest::addColumn<QString>("code");
    QTest::addColumn<bool>("codeAccepted");
    QTest::addColumn<QString>("caption");

    QTest::newRow("company in Goa") << "goa" << true << "10" << "560001" << "01" << true
                                    << "DEDUCTEE - COMPANY";
    QTest::newRow("foreign non-company") << "Foreign" << true << "99" << "999999" << "02" << true
                                         << "DEDUCTEE - NON COMPANY";
    QTest::newRow("unknown state, code 03") << "GOA STATE" << false << "" << "560001" << "03"
                                            << false << "";
    QTest::newRow("blank state and code") << "" << true << "" << "560001" << "" << true << "";
}

void TestDeducteeMaster::stateAndCode()
{
    QFETCH(QString, state);
    QFETCH(bool, stateAccepted);
    QFETCH(QString, stateCode);
    QFETCH(QString, pin);
    QFETCH(QString, code);
    QFETCH(bool, codeAccepted);
    QFETCH(QString, caption);
    Fixture f;
    f.startEntry();
    f.master.fields().state = state;
    f.master.fields().code = code;

    QCOMPARE(f.master.stateLeft(), stateAccepted);
    QCOMPARE(f.master.fields().stateCode, stateCode);
    QCOMPARE(f.master.fields().pin, pin);
    QCOMPARE(f.master.codeLeft(), codeAccepted);
    QCOMPARE(DeducteeMaster::codeCaption(code), caption);
    QStringList texts;
    if (!stateAccepted)
        texts << QStringLiteral("Please select proper State Name");
    if (!codeAccepted)
        texts << QStringLiteral("Enter 01 for Companies / 02 for other than Companies");
    QCOMPARE(f.boxes.texts(), texts);
}

void TestDeducteeMaster::withoutPan()
{
    Fixture f;
    f.startEntry();
    f.master.fields().pan = QStringLiteral("AAAFM4321B");
    f.master.panLeft();
    QVERIFY(!f.master.panRefEnabled());
    f.master.fields().pan = QStringLiteral(" ");
    f.master.panLeft();
    QCOMPARE(f.master.fields().pan, QStringLiteral("PANNOTAVBL"));
    QVERIFY(f.master.panRefEnabled());
    // Settled: a second deductee without a PAN in the group is asked about.
    f.boxes.answerNext(Answer::Yes);
    f.master.command(2);
    QCOMPARE(f.boxes.texts(),
             QStringList{QStringLiteral("This  PAN Already exists. Want to Save?")});
    QCOMPARE(f.stored(QStringLiteral("PAN"), 10), QStringLiteral("PANNOTAVBL"));
}

QTEST_GUILESS_MAIN(TestDeducteeMaster)
#include "test_deducteemaster.moc"
