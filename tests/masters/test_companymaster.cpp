#include "companytestdata.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "masters/companymaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QtTest>

using namespace companytestdata;

namespace {

const QStringList basicInfoTables = {"TranBasicInfoE24", "TranBasicInfoE26", "TranBasicInfoE27",
                                     "TranBasicInfoE27E"};

struct MarkedTable
{
    const char *table;
    const char *key;
    bool resetForOthers; ///< Form 27Q keeps its marks
};

const MarkedTable markedTables[] = {
    {"TranChallanE24", "ChallnID", true},     {"TranChallanE26", "ChallnID", true},
    {"TranDeducteeE26", "DeducteeID", true},  {"TranChallanE27E", "ChallnID", true},
    {"TranChallanE27", "ChallnID", false},    {"TranDeducteeE27", "DeducteeID", false},
    {"TranDeducteeE27E", "DeducteeID", false},
};

const int editedId = 5;
const int otherId = 6;

/// Company 5 with a Statement in each form, a challan or deductee row in each marked table, and
/// company 6 with the same rows, which no save of company 5 may touch.
void addEditedCompanyWithStatements(const DataStore &store)
{
    addGroup(store, 1, QStringLiteral("ALPHA GROUP"));
    addCompany(store, editedId, 1, QStringLiteral("OLDT12345A"), QStringLiteral("OLD NAME"));
    addCompany(store, otherId, 1, QStringLiteral("OTHR12345A"), QStringLiteral("OTHER"));
    int id = 0;
    for (const QString &table : basicInfoTables) {
        addStatement(store, table, ++id, editedId);
        addStatement(store, table, ++id, otherId, QStringLiteral("OTHER"));
    }
    for (const MarkedTable &marked : markedTables) {
        addBookEntryRow(store, QLatin1String(marked.table), QLatin1String(marked.key), 1,
                        editedId);
        addBookEntryRow(store, QLatin1String(marked.table), QLatin1String(marked.key), 2,
                        otherId);
    }
}

CompanyEntry editedEntry()
{
    CompanyEntry entry = validEntry();
    entry.isEdit = true;
    entry.compId = QString::number(editedId);
    entry.name = QStringLiteral("NEW NAME");
    return entry;
}

QString statementName(const DataStore &store, const QString &table, int compId)
{
    return columnOf(store, table, QStringLiteral("CompName"), QStringLiteral("CompID = ?"),
                    {compId})
        .toString();
}

QString bookEntry(const DataStore &store, const MarkedTable &marked, int compId)
{
    return columnOf(store, QLatin1String(marked.table), QStringLiteral("BookEntry"),
                    QStringLiteral("CompID = ?"), {compId})
        .toString();
}

} // namespace

class TestCompanyMaster : public QObject
{
    Q_OBJECT

private slots:
    void deductorTypeFields_data();
    void deductorTypeFields();
    void copyAddressToPerson();
    void insertAndLoadEveryField();
    void updateWritesStatusAndMovesGroup();
    void loadFindsStateByCodeWhenIdMissing();
    void spreading_data();
    void spreading();
    void spreadingCopiesTheParticulars();
    void noStatementsNoQuestion();
    void failedSaveRollsBack_data();
    void failedSaveRollsBack();
    void deleteGuards_data();
    void deleteGuards();
};

void TestCompanyMaster::deductorTypeFields_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("deductorState");
    QTest::addColumn<bool>("ministry");
    QTest::addColumn<bool>("paoDdo");
    QTest::addColumn<QString>("enterTarget");

    const QString state = QStringLiteral("cmbDState");
    const QString ministry = QStringLiteral("cmbMinistry");
    QTest::newRow("A") << "A" << false << true << true << ministry;
    QTest::newRow("S") << "S" << true << false << true << state;
    QTest::newRow("D") << "D" << false << true << true << ministry;
    QTest::newRow("E") << "E" << true << true << true << state;
    QTest::newRow("G") << "G" << false << true << true << ministry;
    QTest::newRow("H") << "H" << true << true << true << state;
    QTest::newRow("L") << "L" << false << true << true << ministry;
    QTest::newRow("N") << "N" << true << true << true << state;
    for (const char *type : {"K", "M", "P", "T", "J", "B", "Q", "F", ""})
        QTest::newRow(type) << type << false << false << false << ministry;
    QTest::newRow("lower case s") << "s" << true << false << true << state;
}

void TestCompanyMaster::deductorTypeFields()
{
    QFETCH(QString, type);
    QFETCH(bool, deductorState);
    QFETCH(bool, ministry);
    QFETCH(bool, paoDdo);
    QFETCH(QString, enterTarget);
    QCOMPARE(CompanyMaster::fieldsFor(type),
             CompanyMaster::DeductorTypeFields({deductorState, ministry, paoDdo}));
    QCOMPARE(CompanyMaster::enterTarget(type), enterTarget);
}

void TestCompanyMaster::copyAddressToPerson()
{
    CompanyEntry entry = validEntry();
    for (QString *field : {&entry.pAddress1, &entry.pAddress5, &entry.pState, &entry.pStateId,
                           &entry.pStateCode, &entry.pPhone, &entry.pEmail, &entry.pStdCode})
        field->clear();
    entry.pPincode = QStringLiteral("400050"); // already typed: kept

    CompanyEntry edited = entry;
    edited.isEdit = true;
    QVERIFY(!CompanyMaster::copyAddressToPerson(edited));
    QCOMPARE(edited.pAddress1, QString());
    CompanyEntry unnamed = entry;
    unnamed.personName = QStringLiteral("  ");
    QVERIFY(!CompanyMaster::copyAddressToPerson(unnamed));

    QVERIFY(CompanyMaster::copyAddressToPerson(entry));
    QCOMPARE(entry.pAddress1, entry.address1);
    QCOMPARE(entry.pAddress2, entry.address2);
    QCOMPARE(entry.pAddress5, entry.address5);
    QCOMPARE(entry.pState, QStringLiteral("MAHARASHTRA"));
    QCOMPARE(entry.pStateId, QStringLiteral("19"));
    QCOMPARE(entry.pStateCode, QStringLiteral("19"));
    QCOMPARE(entry.pPincode, QStringLiteral("400050"));
    QCOMPARE(entry.pPhone, entry.phone);
    QCOMPARE(entry.pEmail, entry.email);
    QCOMPARE(entry.pStdCode, entry.stdCode);
}

void TestCompanyMaster::insertAndLoadEveryField()
{
    TestStore data;
    addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
    addCompany(data.store(), 41, 1, QStringLiteral("MUMX12345B"));
    Session session(data.store());
    const CompanyMaster master(session);

    // A Central Government office with every field filled, an apostrophe in its name.
    CompanyEntry entry = validEntry();
    entry.name = QStringLiteral("O'NEIL AND SONS");
    entry.deductorType = QStringLiteral("A");
    entry.ministry = QStringLiteral("Others");
    entry.ministryId = QStringLiteral("99");
    entry.ministryCode = QStringLiteral("99");
    entry.ministryOther = QStringLiteral("BOARD OF TRADE");
    entry.paoCode = QStringLiteral("PAO1");
    entry.paoRegNo = QStringLiteral("1234567");
    entry.ddoCode = QStringLiteral("DDO1");
    entry.ddoRegNo = QStringLiteral("DR12");
    entry.address3 = QStringLiteral("  PADDED  ");
    entry.address4 = QStringLiteral("FLOOR 4");
    for (QString *field : {&entry.pAddress2, &entry.pAddress3, &entry.pAddress4})
        *field = QStringLiteral("P LINE");

    const int id = master.write(entry, {});
    QCOMPARE(id, 42);
    const std::optional<CompanyEntry> loaded = master.load(id);
    QVERIFY(loaded);
    QVERIFY(loaded->isEdit);
    entry.compId = QStringLiteral("42");
    entry.address3 = QStringLiteral("PADDED"); // stored trimmed
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        const QString control = QLatin1String(field.control);
        if (control == u"cmbStatus")
            continue;
        // An id never chosen is stored as 0.
        QString expected = entry.value(control);
        if (field.number && expected.isEmpty())
            expected = QStringLiteral("0");
        QVERIFY2(loaded->value(control) == expected, field.control);
    }
    const DataStore &store = data.store();
    const QString where = QStringLiteral("CompID = 42");
    QCOMPARE(columnOf(store, "mstCompany", "AsstID", where, {}).toInt(), 1);
    QCOMPARE(columnOf(store, "mstCompany", "StateID", where, {}).toInt(), 19);
    QVERIFY(columnOf(store, "mstCompany", "Status", where, {}).isNull());
}

void TestCompanyMaster::updateWritesStatusAndMovesGroup()
{
    TestStore data;
    addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
    addGroup(data.store(), 2, QStringLiteral("BETA GROUP"));
    addCompany(data.store(), 7, 1, QStringLiteral("OLDT12345A"));
    data.store().exec(QStringLiteral("UPDATE mstCompany SET Status = 'X'"));
    Session session(data.store());
    const CompanyMaster master(session);

    CompanyEntry entry = validEntry();
    entry.isEdit = true;
    entry.compId = QStringLiteral("7");
    entry.groupName = QStringLiteral("BETA GROUP");
    entry.groupId = QStringLiteral("2");
    QCOMPARE(master.write(entry, {}), 7);
    const QString where = QStringLiteral("CompID = 7");
    QCOMPARE(columnOf(data.store(), "mstCompany", "Status", where, {}).toString(),
             QStringLiteral(" "));
    QCOMPARE(columnOf(data.store(), "mstCompany", "TanNO", where, {}).toString(),
             QStringLiteral("MUMA12345B"));
    QCOMPARE(master.companies(1).size(), 0);
    QCOMPARE(master.companies(2).size(), 1);
    QCOMPARE(master.companies(2).first().groupName, QStringLiteral("BETA GROUP"));
}

void TestCompanyMaster::loadFindsStateByCodeWhenIdMissing()
{
    TestStore data;
    addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
    data.store().exec(QStringLiteral("INSERT INTO mstCompany (AsstID, GroupID, CompID, "
                                     "StateCode, pStateCode, DStateCode, MinistryCode) "
                                     "VALUES (1, 1, 3, '99', '19', '', '11')"));
    data.store().exec(QStringLiteral("INSERT INTO mstCompany (AsstID, GroupID, CompID) "
                                     "VALUES (2, 1, 4)"));
    Session session(data.store());
    const CompanyMaster master(session);
    const std::optional<CompanyEntry> entry = master.load(3);
    QVERIFY(entry);
    QCOMPARE(entry->state, QStringLiteral("FOREIGN"));
    QCOMPARE(entry->stateId, QStringLiteral("36"));
    QCOMPARE(entry->pState, QStringLiteral("MAHARASHTRA"));
    QCOMPARE(entry->dState, QString());
    QCOMPARE(entry->ministry, QStringLiteral("Finance"));
    QCOMPARE(entry->ministryId, QStringLiteral("11"));
    QCOMPARE(entry->groupName, QStringLiteral("ALPHA GROUP"));
    // A company of another assessment period is not loaded.
    QVERIFY(!master.load(4));
}

void TestCompanyMaster::spreading_data()
{
    QTest::addColumn<QList<Answer>>("answers");
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("generated");
    QTest::addColumn<int>("questions");
    QTest::addColumn<bool>("spread");
    QTest::addColumn<bool>("reset");

    using L = QList<Answer>;
    QTest::newRow("No") << L{Answer::No} << "O" << false << 1 << false << false;
    QTest::newRow("No, generated") << L{Answer::No} << "O" << true << 1 << false << false;
    QTest::newRow("Yes, all forms") << L{Answer::Yes, Answer::No} << "O" << false << 2 << true
                                    << true;
    QTest::newRow("Yes, all forms, generated") << L{Answer::Yes, Answer::No} << "O" << true << 2
                                               << true << true;
    QTest::newRow("Yes, exclude, not generated") << L{Answer::Yes, Answer::Yes} << "O" << false
                                                 << 2 << true << true;
    QTest::newRow("Yes, exclude, generated") << L{Answer::Yes, Answer::Yes} << "O" << true << 2
                                             << false << true;
    QTest::newRow("Central Government") << L{Answer::Yes, Answer::No} << "C" << false << 2
                                        << true << false;
}

void TestCompanyMaster::spreading()
{
    QFETCH(QList<Answer>, answers);
    QFETCH(QString, status);
    QFETCH(bool, generated);
    QFETCH(int, questions);
    QFETCH(bool, spread);
    QFETCH(bool, reset);
    TestStore data;
    const DataStore &store = data.store();
    addEditedCompanyWithStatements(store);
    // Another company's generated file never holds this one back.
    addGenerationLog(store, 1, otherId);
    if (generated)
        addGenerationLog(store, 2, editedId);

    Session session(data.store());
    ScriptedMessageBoxes boxes;
    for (const Answer answer : answers)
        boxes.answerNext(answer);
    CompanyEntry entry = editedEntry();
    entry.status = status;
    QCOMPARE(CompanyMaster(session).save(entry, boxes), editedId);

    const QStringList asked = {CompanyPropagation::updateFormsText,
                               CompanyPropagation::excludeGeneratedText};
    QCOMPARE(boxes.texts(), asked.mid(0, questions));
    QCOMPARE(statementName(store, "mstCompany", editedId), QStringLiteral("NEW NAME"));
    for (const QString &table : basicInfoTables) {
        QCOMPARE(statementName(store, table, editedId),
                 spread ? QStringLiteral("NEW NAME") : QStringLiteral("OLD NAME"));
        QCOMPARE(statementName(store, table, otherId), QStringLiteral("OTHER"));
    }
    for (const MarkedTable &marked : markedTables) {
        QCOMPARE(bookEntry(store, marked, editedId),
                 reset && marked.resetForOthers ? QStringLiteral("C") : QStringLiteral("O"));
        QCOMPARE(bookEntry(store, marked, otherId), QStringLiteral("O"));
    }
}

void TestCompanyMaster::spreadingCopiesTheParticulars()
{
    TestStore data;
    const DataStore &store = data.store();
    addEditedCompanyWithStatements(store);
    Session session(data.store());
    CompanyEntry entry = editedEntry();
    entry.address4 = QStringLiteral("D'SOUZA LANE");
    CompanyMaster(session).write(entry, {true, false});

    const QList<std::pair<const char *, QString>> copied = {
        {"TanNO", entry.tan},           {"PanNo", entry.pan},
        {"CompName", entry.name},       {"Address1", entry.address1},
        {"Address4", entry.address4},   {"Address5", entry.address5},
        {"StateCode", entry.stateCode}, {"Pincode", entry.pincode},
        {"phone", entry.phone},         {"Std", entry.stdCode},
        {"email", entry.email},         {"PersonName", entry.personName},
        {"Designation", entry.designation}, {"pAddress1", entry.pAddress1},
        {"pStateCode", entry.pStateCode}, {"pPincode", entry.pPincode},
        {"pPhone", entry.pPhone},       {"pStd", entry.pStdCode},
        {"pEmail", entry.pEmail},       {"TDSCircle", entry.tdsCircle},
        {"BranchDiv", "OLD BRANCH"}, // the Statement keeps its own branch
    };
    for (const QString &table : basicInfoTables) {
        for (const auto &[column, value] : copied) {
            QCOMPARE(columnOf(store, table, QLatin1String(column), QStringLiteral("CompID = ?"),
                              {editedId})
                         .toString(),
                     value);
        }
    }
}

void TestCompanyMaster::noStatementsNoQuestion()
{
    TestStore data;
    addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
    addCompany(data.store(), editedId, 1, QStringLiteral("OLDT12345A"));
    addStatement(data.store(), QStringLiteral("TranBasicInfoE26"), 1, otherId);
    Session session(data.store());
    ScriptedMessageBoxes boxes;
    CompanyMaster(session).save(editedEntry(), boxes);
    QVERIFY(boxes.shown.isEmpty());
    QCOMPARE(statementName(data.store(), "mstCompany", editedId), QStringLiteral("NEW NAME"));
}

// A statement of the save that fails takes back every one before it.
void TestCompanyMaster::failedSaveRollsBack_data()
{
    QTest::addColumn<QString>("failingTable");
    QTest::newRow("first Statement") << "TranBasicInfoE24";
    QTest::newRow("second Statement") << "TranBasicInfoE26";
    QTest::newRow("last book entry") << "TranChallanE27E";
}

void TestCompanyMaster::failedSaveRollsBack()
{
    QFETCH(QString, failingTable);
    TestStore data;
    const DataStore &store = data.store();
    addEditedCompanyWithStatements(store);
    store.exec(QStringLiteral("CREATE TRIGGER refuseUpdate BEFORE UPDATE ON %1 "
                              "BEGIN SELECT RAISE(ABORT, 'the row is locked'); END")
                   .arg(failingTable));
    Session session(data.store());
    ScriptedMessageBoxes boxes;
    boxes.answerNext(Answer::Yes);
    boxes.answerNext(Answer::No);

    try {
        CompanyMaster(session).save(editedEntry(), boxes);
        QFAIL("the save went through");
    } catch (const StoreError &error) {
        QVERIFY2(error.description().contains(QStringLiteral("the row is locked")),
                 qPrintable(error.description()));
    }
    QCOMPARE(statementName(store, "mstCompany", editedId), QStringLiteral("OLD NAME"));
    QVERIFY(columnOf(store, "mstCompany", "Status", "CompID = ?", {editedId}).isNull());
    for (const QString &table : basicInfoTables)
        QCOMPARE(statementName(store, table, editedId), QStringLiteral("OLD NAME"));
    for (const MarkedTable &marked : markedTables)
        QCOMPARE(bookEntry(store, marked, editedId), QStringLiteral("O"));
    // The store takes the next save: no transaction was left open.
    store.exec(QStringLiteral("DROP TRIGGER refuseUpdate"));
    CompanyMaster(session).write(editedEntry(), {true, false});
    QCOMPARE(statementName(store, "TranBasicInfoE26", editedId), QStringLiteral("NEW NAME"));
}

void TestCompanyMaster::deleteGuards_data()
{
    QTest::addColumn<QStringList>("statementTables");
    QTest::addColumn<bool>("deducteeOfCompany");
    QTest::addColumn<QString>("refusal");

    QTest::newRow("free") << QStringList() << false << "";
    QTest::newRow("24Q") << QStringList{"TranBasicInfoE24"} << false
                         << "This Company is related to existing Form 24";
    QTest::newRow("26Q") << QStringList{"TranBasicInfoE26"} << false
                         << "This Company is related to existing Form 26";
    QTest::newRow("27Q") << QStringList{"TranBasicInfoE27"} << false
                         << "This Company is related to existing Form 27";
    QTest::newRow("27EQ") << QStringList{"TranBasicInfoE27E"} << false
                          << "This Company is related to existing Form 27E";
    QTest::newRow("24Q asked first") << QStringList{"TranBasicInfoE27E", "TranBasicInfoE24"}
                                     << false << "This Company is related to existing Form 24";
    QTest::newRow("deductees of an older store") << QStringList() << true
                                                 << CompanyMaster::hasDeducteesText;
}

void TestCompanyMaster::deleteGuards()
{
    QFETCH(QStringList, statementTables);
    QFETCH(bool, deducteeOfCompany);
    QFETCH(QString, refusal);
    TestStore data;
    const DataStore &store = data.store();
    addGroup(store, 1, QStringLiteral("ALPHA GROUP"));
    addCompany(store, 5, 1, QStringLiteral("MUMA12345B"));
    addCompany(store, 6, 1, QStringLiteral("MUMB12345B"));
    // Rows of other companies, and the group's deductees, never hold this one.
    for (const QString &table : basicInfoTables)
        addStatement(store, table, 100, 6);
    addDeductee(store, 1, 1);
    int id = 0;
    for (const QString &table : statementTables)
        addStatement(store, table, ++id, 5);
    if (deducteeOfCompany) {
        store.exec(QStringLiteral("ALTER TABLE mstDeductee ADD CompID INTEGER"));
        store.exec(QStringLiteral("UPDATE mstDeductee SET CompID = 5"));
    }

    Session session(data.store());
    const CompanyMaster master(session);
    const std::optional<Message> message = master.deleteRefusal(5);
    if (!refusal.isEmpty()) {
        QVERIFY(message);
        QCOMPARE(message->text, refusal);
        QCOMPARE(message->title, CompanyMaster::cannotDeleteTitle);
        return;
    }
    QVERIFY(!message);
    master.remove(5);
    QCOMPARE(master.companies(1).size(), 1);
    QCOMPARE(master.companies(1).first().compId, 6);
}

QTEST_GUILESS_MAIN(TestCompanyMaster)
#include "test_companymaster.moc"
