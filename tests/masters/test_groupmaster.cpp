#include "companytestdata.h"
#include "masters/groupmaster.h"
#include "support/teststore.h"

#include <QtTest>

using namespace companytestdata;

class TestGroupMaster : public QObject
{
    Q_OBJECT

private slots:
    void nextId();
    void check_data();
    void check();
    void apostropheNameIsStoredAndFound();
    void questions_data();
    void questions();
    void namesStartingWith_data();
    void namesStartingWith();
    void deleteGuards_data();
    void deleteGuards();
};

void TestGroupMaster::nextId()
{
    TestStore data;
    const GroupMaster master(data.store());
    QCOMPARE(master.nextId(), 1);
    addGroup(data.store(), 41, QStringLiteral("FORTY ONE"));
    addGroup(data.store(), 7, QStringLiteral("SEVEN"));
    QCOMPARE(master.nextId(), 42);
    QCOMPARE(master.save({0, QStringLiteral("NEXT"), false}), 42);
}

void TestGroupMaster::check_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QString>("text"); // empty: the save goes on
    QTest::addColumn<QString>("title");

    const QString blank = GroupMaster::enterGroupText;
    const QString taken = GroupMaster::nameExistsText;
    const QString cantSave = GroupMaster::cantSaveTitle;
    QTest::newRow("blank") << 0 << "" << false << blank << "Kelvora";
    QTest::newRow("only blanks") << 0 << "   " << false << blank << "Kelvora";
    QTest::newRow("blank on an update") << 1 << "" << true << blank << "Kelvora";
    QTest::newRow("new name") << 0 << "GAMMA" << false << "" << "";
    QTest::newRow("taken") << 0 << "ALPHA" << false << taken << cantSave;
    QTest::newRow("taken in another case") << 0 << "alpha" << false << taken << cantSave;
    QTest::newRow("taken, with blanks around") << 0 << "  ALPHA " << false << taken << cantSave;
    QTest::newRow("taken, with an apostrophe") << 0 << "o'neil and sons" << false << taken
                                               << cantSave;
    QTest::newRow("own name unchanged") << 1 << "ALPHA" << true << "" << "";
    QTest::newRow("renamed to another's") << 1 << "BETA" << true << taken << cantSave;
    QTest::newRow("renamed to a new name") << 1 << "ALPHA ONE" << true << "" << "";
}

void TestGroupMaster::check()
{
    QFETCH(int, id);
    QFETCH(QString, name);
    QFETCH(bool, isEdit);
    QFETCH(QString, text);
    QFETCH(QString, title);
    TestStore data;
    addGroup(data.store(), 1, QStringLiteral("ALPHA"));
    addGroup(data.store(), 2, QStringLiteral("BETA"));
    addGroup(data.store(), 3, QStringLiteral("O'NEIL AND SONS"));

    const std::optional<FieldFailure> failure =
        GroupMaster(data.store()).check({id, name, isEdit});
    if (text.isEmpty()) {
        QVERIFY(!failure);
        return;
    }
    QVERIFY(failure);
    QCOMPARE(failure->message.text, text);
    QCOMPARE(failure->message.title, title);
    QCOMPARE(failure->field, QStringLiteral("txtGrpName"));
    if (text == GroupMaster::enterGroupText)
        QCOMPARE(failure->message.icon, MessageIcon::Critical);
}

void TestGroupMaster::apostropheNameIsStoredAndFound()
{
    TestStore data;
    const GroupMaster master(data.store());
    const int id = master.save({0, QStringLiteral(" O'NEIL AND SONS "), false});
    QCOMPARE(master.groups(), QList<GroupMaster::Group>({{id, "O'NEIL AND SONS"}}));
    QVERIFY(master.check({0, QStringLiteral("O'NEIL AND SONS"), false}));
    QVERIFY(!master.check({id, QStringLiteral("O'NEIL AND SONS"), true}));
    QCOMPARE(master.namesStartingWith(QStringLiteral("o'n")), QStringList({"O'NEIL AND SONS"}));

    master.save({id, QStringLiteral("D'SOUZA BROS"), true});
    QCOMPARE(master.groups(), QList<GroupMaster::Group>({{id, "D'SOUZA BROS"}}));
}

void TestGroupMaster::questions_data()
{
    QTest::addColumn<QStringList>("statementTables");
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<QStringList>("asked");

    const QString form24 = QStringLiteral("This Group Is Used In [Form 24] Like To Update.");
    const QString form26 = QStringLiteral("This Group Is Used In [Form 26] Like To Update.");
    QTest::newRow("unused") << QStringList() << true << QStringList();
    QTest::newRow("24Q") << QStringList{"TranBasicInfoE24"} << true << QStringList{form24};
    QTest::newRow("26Q") << QStringList{"TranBasicInfoE26"} << true << QStringList{form26};
    QTest::newRow("24Q and 26Q") << QStringList{"TranBasicInfoE26", "TranBasicInfoE24"} << true
                                 << QStringList{form24, form26};
    QTest::newRow("27Q and 27EQ are not asked about")
        << QStringList{"TranBasicInfoE27", "TranBasicInfoE27E"} << true << QStringList();
    QTest::newRow("an insert asks nothing") << QStringList{"TranBasicInfoE24"} << false
                                            << QStringList();
}

void TestGroupMaster::questions()
{
    QFETCH(QStringList, statementTables);
    QFETCH(bool, isEdit);
    QFETCH(QStringList, asked);
    TestStore data;
    addGroup(data.store(), 1, QStringLiteral("ALPHA"));
    addGroup(data.store(), 2, QStringLiteral("BETA"));
    addCompany(data.store(), 10, 1, QStringLiteral("MUMA12345B"));
    addCompany(data.store(), 20, 2, QStringLiteral("MUMB12345B"));
    // Another group's Statements never count.
    addStatement(data.store(), QStringLiteral("TranBasicInfoE24"), 1, 20);
    int basicInfoId = 10;
    for (const QString &table : statementTables)
        addStatement(data.store(), table, ++basicInfoId, 10);

    const QList<Message> questions =
        GroupMaster(data.store()).questions({1, QStringLiteral("ALPHA"), isEdit});
    QStringList texts;
    for (const Message &question : questions) {
        QCOMPARE(question.buttons, MessageButtons::YesNo);
        texts << question.text;
    }
    QCOMPARE(texts, asked);
}

void TestGroupMaster::namesStartingWith_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("prefix") << "AL" << QStringList{"ALPHA", "ALPINE"};
    QTest::newRow("lower case") << "alp" << QStringList{"ALPHA", "ALPINE"};
    QTest::newRow("whole name") << "ALPHA" << QStringList{"ALPHA"};
    QTest::newRow("nothing typed") << ""
                                   << QStringList{"100% PURE", "A_B", "ALPHA", "ALPINE", "BETA"};
    QTest::newRow("percent is a character") << "100%" << QStringList{"100% PURE"};
    QTest::newRow("percent matches no other") << "%" << QStringList();
    QTest::newRow("underscore is a character") << "A_" << QStringList{"A_B"};
    QTest::newRow("no match") << "Z" << QStringList();
}

void TestGroupMaster::namesStartingWith()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, names);
    TestStore data;
    int id = 0;
    for (const char *name : {"BETA", "ALPINE", "ALPHA", "A_B", "100% PURE"})
        addGroup(data.store(), ++id, QLatin1String(name));
    QCOMPARE(GroupMaster(data.store()).namesStartingWith(typed), names);
}

void TestGroupMaster::deleteGuards_data()
{
    QTest::addColumn<bool>("company");
    QTest::addColumn<bool>("deductee");
    QTest::addColumn<bool>("employee");
    QTest::addColumn<QString>("refusal");

    QTest::newRow("free") << false << false << false << "";
    QTest::newRow("companies") << true << false << false << GroupMaster::hasCompaniesText;
    QTest::newRow("deductees") << false << true << false << GroupMaster::hasDeducteesText;
    QTest::newRow("companies first") << true << true << false << GroupMaster::hasCompaniesText;
    QTest::newRow("employees do not hold it") << false << false << true << "";
}

void TestGroupMaster::deleteGuards()
{
    QFETCH(bool, company);
    QFETCH(bool, deductee);
    QFETCH(bool, employee);
    QFETCH(QString, refusal);
    TestStore data;
    const DataStore &store = data.store();
    addGroup(store, 1, QStringLiteral("ALPHA"));
    addGroup(store, 2, QStringLiteral("BETA"));
    // Rows of another group never hold this one.
    addCompany(store, 20, 2, QStringLiteral("MUMB12345B"));
    addDeductee(store, 20, 2);
    if (company)
        addCompany(store, 10, 1, QStringLiteral("MUMA12345B"));
    if (deductee)
        addDeductee(store, 10, 1);
    if (employee)
        addEmployee(store, 10, 1);

    const GroupMaster master(store);
    const std::optional<Message> message = master.deleteRefusal(1);
    if (!refusal.isEmpty()) {
        QVERIFY(message);
        QCOMPARE(message->text, refusal);
        QCOMPARE(message->title, GroupMaster::cannotDeleteTitle);
        return;
    }
    QVERIFY(!message);
    master.remove(1);
    QCOMPARE(master.groups(), QList<GroupMaster::Group>({{2, "BETA"}}));
}

QTEST_GUILESS_MAIN(TestGroupMaster)
#include "test_groupmaster.moc"
