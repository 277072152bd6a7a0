#include "mastersstore.h"
#include "masters/groupmaster.h"
#include "support/testsuite.h"


class TestGroupMaster : public QObject
{
    Q_OBJECT

private slots:
    void check_data()
    {
        // text: empty: the save goes on
        testsuite::columns<int, QString, bool, QString>("id", "name", "isEdit", "text");
        const QString blank = GroupMaster::enterGroupText;
        const QString taken = GroupMaster::nameExistsText;
        QTest::newRow("blank") << 0 << "   " << false << blank;
        QTest::newRow("blank on an update") << 1 << "" << true << blank;
        QTest::newRow("new name") << 0 << "GAMMA" << false << "";
        QTest::newRow("taken, in another case") << 0 << "alpha group" << false << taken;
        QTest::newRow("taken, blanks around") << 0 << "  ALPHA GROUP " << false << taken;
        QTest::newRow("taken, with an apostrophe") << 0 << "o'neil group" << false << taken;
        QTest::newRow("own name unchanged") << 1 << "ALPHA GROUP" << true << "";
        QTest::newRow("renamed to another's") << 1 << "BETA GROUP" << true << taken;
    }
    void check()
    {
        QFETCH(int, id);
        QFETCH(QString, name);
        QFETCH(bool, isEdit);
        QFETCH(QString, text);
        const auto failure = GroupMaster(mastersStore().store()).check({id, name, isEdit});
        QCOMPARE(failure.has_value(), !text.isEmpty());
        if (text == GroupMaster::enterGroupText) {
            QCOMPARE(*failure, (FieldFailure{{text, appTitle, MessageIcon::Critical},
                                             "txtGrpName"}));
        } else if (failure) {
            QCOMPARE(*failure, (FieldFailure{{text, GroupMaster::cantSaveTitle}, "txtGrpName"}));
        }
    }

    // "%" and "_" are characters of a name, not wildcards.
    void namesStartingWith_data()
    {
        testsuite::columns<QString, QStringList>("typed", "names");
        QTest::newRow("lower case") << "al" << QStringList{"ALPHA GROUP", "ALPINE"};
        QTest::newRow("percent") << "100%" << QStringList{"100% PURE"};
        QTest::newRow("percent alone") << "%" << QStringList();
        QTest::newRow("underscore") << "A_" << QStringList{"A_B"};
        QTest::newRow("nothing typed") << "" << QStringList{"100% PURE", "A_B", "ALPHA GROUP",
                                                            "ALPINE", "BETA GROUP",
                                                            "O'NEIL GROUP"};
    }
    void namesStartingWith()
    {
        QFETCH(QString, typed);
        QTEST(GroupMaster(mastersStore().store()).namesStartingWith(typed), "names");
    }

    // A rename is warned about for the Statements of Forms 24Q and 26Q only.
    void questions_data()
    {
        testsuite::columns<int, bool, QStringList>("id", "isEdit", "asked");
        QTest::newRow("24Q and 26Q") << 1 << true
                                     << QStringList{"This Group Is Used In [Form 24] Like To "
                                                    "Update.",
                                                    "This Group Is Used In [Form 26] Like To "
                                                    "Update."};
        QTest::newRow("27Q and 27EQ") << 2 << true << QStringList();
        QTest::newRow("unused") << 3 << true << QStringList();
        QTest::newRow("an insert") << 1 << false << QStringList();
    }
    void questions()
    {
        QFETCH(int, id);
        QFETCH(bool, isEdit);
        QStringList texts;
        const auto asked =
            GroupMaster(mastersStore().store()).questions({id, QStringLiteral("X"), isEdit});
        for (const Message &question : asked) {
            QCOMPARE(question.buttons, MessageButtons::YesNo);
            texts << question.text;
        }
        QTEST(texts, "asked");
    }

    void deleteGuards_data()
    {
        testsuite::columns<int, QString>("id", "refusal");
        QTest::newRow("companies before deductees") << 1 << GroupMaster::hasCompaniesText;
        QTest::newRow("deductees") << 4 << GroupMaster::hasDeducteesText;
        QTest::newRow("employees do not hold it") << 5 << "";
        QTest::newRow("free") << 3 << "";
    }
    void deleteGuards()
    {
        QFETCH(int, id);
        QFETCH(QString, refusal);
        const TestStore data(mastersStore());
        const GroupMaster master(data.store());
        const std::optional<Message> message = master.deleteRefusal(id);
        QCOMPARE(message.has_value(), !refusal.isEmpty());
        if (message) {
            QCOMPARE(*message, (Message{refusal, GroupMaster::cannotDeleteTitle}));
            return;
        }
        master.remove(id);
        QCOMPARE(data.count("mstGroup"), 5);
        QCOMPARE(data.text("SELECT count(*) FROM mstGroup WHERE GroupID = ?", {id}), "0");
    }

    void saveTrimsAndKeepsTheApostrophe()
    {
        const TestStore data(mastersStore());
        const GroupMaster master(data.store());
        const int id = master.save({0, QStringLiteral(" D'SOUZA BROS "), false});
        QCOMPARE(id, 7);
        QVERIFY(master.groups().contains(GroupMaster::Group{7, "D'SOUZA BROS"}));
        QVERIFY(!master.check({id, QStringLiteral("d'souza bros"), true}));
        QCOMPARE(master.save({6, QStringLiteral("O'NEIL AND CO"), true}), 6);
        QCOMPARE(data.text("SELECT GroupName FROM mstGroup WHERE GroupID = 6"),
                 QStringLiteral("O'NEIL AND CO"));
        QCOMPARE(master.nextId(), 8);
    }
};

KELVORA_TEST_OBJECT(TestGroupMaster);
#include "test_groupmaster.moc"
