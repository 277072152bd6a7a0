#include "mastersstore.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "masters/companymaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"


namespace {

QString column(const TestStore &data, const QString &table, const char *name, int compId)
{
    return data.text(QStringLiteral("SELECT %1 FROM %2 WHERE CompID = ?")
                         .arg(QLatin1String(name), table),
                     {compId});
}

/// Company 5 renamed, as its screen saves it.
CompanyEntry editedEntry()
{
    CompanyEntry entry = validEntry();
    entry.isEdit = true;
    entry.compId = QStringLiteral("5");
    entry.name = QStringLiteral("NEW NAME");
    return entry;
}

} // namespace

class TestCompanyMaster : public QObject
{
    Q_OBJECT

private slots:
    // A new company's person gets the deductor's address where his own is blank.
    void copyAddressToPerson()
    {
        CompanyEntry entry = validEntry();
        for (QString *field : {&entry.pAddress1, &entry.pAddress5, &entry.pState,
                               &entry.pStateId, &entry.pStateCode, &entry.pPhone, &entry.pEmail,
                               &entry.pStdCode})
            field->clear();
        CompanyEntry edited = entry;
        edited.isEdit = true;
        QVERIFY(!CompanyMaster::copyAddressToPerson(edited));
        CompanyEntry unnamed = entry;
        unnamed.personName = QStringLiteral("  ");
        QVERIFY(!CompanyMaster::copyAddressToPerson(unnamed));

        QVERIFY(CompanyMaster::copyAddressToPerson(entry));
        const QStringList copied = {entry.pAddress1, entry.pAddress2, entry.pAddress5,
                                    entry.pState,    entry.pStateId,  entry.pStateCode,
                                    entry.pPincode,  entry.pPhone,    entry.pEmail,
                                    entry.pStdCode};
        QCOMPARE(copied, QStringList({"12 MG ROAD", "FORT", "MUMBAI", "MAHARASHTRA", "19", "19",
                                      "400050", "22001234", "accounts@zed.co.in", "022"}));
    }

    void insertAndLoadEveryField()
    {
        const TestStore data(mastersStore());
        Session session(data.store());
        const CompanyMaster master(session);
        // A Central Government office with every field filled, an apostrophe in its name.
        CompanyEntry entry = validEntry();
        const QList<std::pair<const char *, const char *>> values = {
            {"txtCompName", "D'SOUZA AND SONS"}, {"cmbDeType", "A"},
            {"cmbMinistry", "Others"},           {"txtMinistryID", "99"},
            {"txtMinistryCode", "99"},           {"txtMinistryNameOther", "BOARD OF TRADE"},
            {"txtPAOCode", "PAO1"},              {"txtPAORegNo", "1234567"},
            {"txtDDOCode", "DDO1"},              {"txtDDORegNo", "DR12"},
            {"txtAddress3", "  PADDED  "},       {"txtAddress4", "FLOOR 4"},
            {"txtPAddress2", "P2"},              {"txtPAddress3", "P3"},
            {"txtPAddress4", "P4"}};
        for (const auto &[control, text] : values)
            entry.setValue(QLatin1String(control), QLatin1String(text));

        QCOMPARE(master.write(entry, {}), 21);
        const std::optional<CompanyEntry> loaded = master.load(21);
        QVERIFY(loaded && loaded->isEdit);
        entry.compId = QStringLiteral("21");
        entry.address3 = QStringLiteral("PADDED"); // stored trimmed
        for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
            const QString control = QLatin1String(field.control);
            // An id never chosen is stored as 0; the status is not stored.
            QString expected = entry.value(control);
            if (field.number && expected.isEmpty())
                expected = QStringLiteral("0");
            if (control != u"cmbStatus")
                QCOMPARE(loaded->value(control), expected);
        }
        QCOMPARE(column(data, "mstCompany", "AsstID", 21), QStringLiteral("1"));
        // The insert leaves these to the company's first update.
        QCOMPARE(column(data, "mstCompany", "coalesce(Status, StateID, PStateID)", 21),
                 QString());
    }

    void updateClearsTheImportMarkAndMovesGroup()
    {
        const TestStore data(mastersStore());
        data.store().exec("UPDATE mstCompany SET Status = 'X'");
        Session session(data.store());
        const CompanyMaster master(session);
        CompanyEntry entry = validEntry();
        entry.isEdit = true;
        entry.compId = QStringLiteral("1");
        entry.groupName = QStringLiteral("BETA GROUP");
        entry.groupId = QStringLiteral("2");
        QCOMPARE(master.write(entry, {}), 1);
        QCOMPARE(column(data, "mstCompany", "Status||StateID||PStateID", 1),
                 QStringLiteral(" 1919"));
        QCOMPARE(column(data, "mstCompany", "Status", 2), QStringLiteral("X"));
        QCOMPARE(column(data, "mstCompany", "TanNO", 1), QStringLiteral("MUMZ12345B"));
        QCOMPARE(master.companies(1).size(), 5);
        QCOMPARE(master.companies(2).size(), 2);
        QCOMPARE(master.companies(2).first().groupName, QStringLiteral("BETA GROUP"));
    }

    void loadFindsStateByCodeWhenIdMissing()
    {
        const TestStore data(mastersStore());
        data.insert("mstCompany", {"AsstID", "GroupID", "CompID", "StateCode", "pStateCode",
                                   "DStateCode", "MinistryCode"},
                    {{1, 1, 30, "99", "19", "", "11"}, {2, 1, 31, "19", "19", "", ""}});
        Session session(data.store());
        const std::optional<CompanyEntry> entry = CompanyMaster(session).load(30);
        QVERIFY(entry);
        QCOMPARE(QStringList({entry->state, entry->stateId, entry->pState, entry->dState,
                              entry->ministry, entry->ministryId, entry->groupName}),
                 QStringList({"FOREIGN", "36", "MAHARASHTRA", "", "Finance", "11",
                              "ALPHA GROUP"}));
        // A company of another assessment period is not loaded.
        QVERIFY(!CompanyMaster(session).load(31));
    }

    // Asked to spread a change, the company's Statements take its particulars; an office that
    // is not the government pays by challan, and its rows are marked so (27Q keeps its marks).
    void spreading_data()
    {
        testsuite::columns<QList<Answer>, QString, bool, int, bool, bool>("answers", "status",
                                                                          "generated", "questions",
                                                                          "spread", "marked");
        using L = QList<Answer>;
        QTest::newRow("No") << L{Answer::No} << "O" << false << 1 << false << false;
        QTest::newRow("Yes, all forms") << L{Answer::Yes, Answer::No} << "O" << false << 2
                                        << true << true;
        QTest::newRow("Yes, all forms, generated") << L{Answer::Yes, Answer::No} << "O" << true
                                                   << 2 << true << true;
        QTest::newRow("Yes, exclude, not generated") << L{Answer::Yes, Answer::Yes} << "O"
                                                     << false << 2 << true << true;
        QTest::newRow("Yes, exclude, generated") << L{Answer::Yes, Answer::Yes} << "O" << true
                                                 << 2 << false << true;
        QTest::newRow("others in small letters") << L{Answer::Yes, Answer::No} << "o" << false
                                                 << 2 << true << false;
        QTest::newRow("Central Government") << L{Answer::Yes, Answer::No} << "C" << false << 2
                                            << true << false;
    }
    void spreading()
    {
        QFETCH(QList<Answer>, answers);
        QFETCH(QString, status);
        QFETCH(bool, generated);
        QFETCH(int, questions);
        QFETCH(bool, spread);
        QFETCH(bool, marked);
        const TestStore data(mastersStore());
        if (generated)
            data.insert("FileGenerationLog", {{"FGId", 2}, {"CompID", 5}});
        Session session(data.store());
        ScriptedMessageBoxes boxes;
        for (const Answer answer : answers)
            boxes.answerNext(answer);
        CompanyEntry entry = editedEntry();
        entry.status = status;
        QCOMPARE(CompanyMaster(session).save(entry, boxes), 5);

        const QStringList asked = {CompanyPropagation::updateFormsText,
                                   CompanyPropagation::excludeGeneratedText};
        QCOMPARE(boxes.texts(), asked.mid(0, questions));
        QCOMPARE(column(data, "mstCompany", "CompName", 5), QStringLiteral("NEW NAME"));
        for (const QString &table : basicInfoTables) {
            QCOMPARE(column(data, table, "CompName", 5),
                     spread ? QStringLiteral("NEW NAME") : QStringLiteral("OLD NAME"));
            QCOMPARE(column(data, table, "CompName", 6), QStringLiteral("OTHER"));
        }
        for (const QString &table : markedTables) {
            const bool keepsMarks = QStringList({"TranChallanE27", "TranDeducteeE27",
                                                 "TranDeducteeE27E"}).contains(table);
            QCOMPARE(column(data, table, "BookEntry", 5),
                     marked && !keepsMarks ? QStringLiteral("C") : QStringLiteral("O"));
            QCOMPARE(column(data, table, "BookEntry", 6), QStringLiteral("O"));
        }
    }

    void spreadingCopiesTheParticulars()
    {
        const TestStore data(mastersStore());
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
            for (const auto &[name, value] : copied)
                QCOMPARE(column(data, table, name, 5), value);
        }
    }

    void noStatementsNoQuestion()
    {
        const TestStore data(mastersStore());
        Session session(data.store());
        ScriptedMessageBoxes boxes;
        CompanyEntry entry = editedEntry();
        entry.compId = QStringLiteral("1");
        CompanyMaster(session).save(entry, boxes);
        QVERIFY(boxes.shown.isEmpty());
        QCOMPARE(column(data, "mstCompany", "CompName", 1), QStringLiteral("NEW NAME"));
    }

    // A statement of the save that fails takes back every one before it.
    void failedSaveRollsBack_data()
    {
        QTest::addColumn<QString>("failingTable");
        QTest::newRow("first Statement") << "TranBasicInfoE24";
        QTest::newRow("second Statement") << "TranBasicInfoE26";
        QTest::newRow("last book entry") << "TranChallanE27E";
    }
    void failedSaveRollsBack()
    {
        QFETCH(QString, failingTable);
        const TestStore data(mastersStore());
        data.store().exec(QStringLiteral("CREATE TRIGGER refuseUpdate BEFORE UPDATE ON %1 "
                                         "BEGIN SELECT RAISE(ABORT, 'the row is locked'); END")
                              .arg(failingTable));
        Session session(data.store());
        ScriptedMessageBoxes boxes;
        boxes.answerNext(Answer::Yes);
        boxes.answerNext(Answer::No);
        QVERIFY_THROWS_EXCEPTION(StoreError, CompanyMaster(session).save(editedEntry(), boxes));

        QCOMPARE(column(data, "mstCompany", "CompName", 5), QStringLiteral("OLD NAME"));
        QCOMPARE(column(data, "mstCompany", "ifnull(Status, 'null')", 5), QStringLiteral("null"));
        for (const QString &table : basicInfoTables)
            QCOMPARE(column(data, table, "CompName", 5), QStringLiteral("OLD NAME"));
        for (const QString &table : markedTables)
            QCOMPARE(column(data, table, "BookEntry", 5), QStringLiteral("O"));
        // The store takes the next save: no transaction was left open.
        data.store().exec("DROP TRIGGER refuseUpdate");
        CompanyMaster(session).write(editedEntry(), {true, false});
        QCOMPARE(column(data, "TranBasicInfoE26", "CompName", 5), QStringLiteral("NEW NAME"));
    }

    void deleteGuards_data()
    {
        // olderStore: deductees there belong to a company
        testsuite::columns<int, bool, QString>("compId", "olderStore", "refusal");
        QTest::newRow("24Q asked first") << 5 << false
                                         << "This Company is related to existing Form 24";
        QTest::newRow("27Q before 27EQ") << 20 << false
                                         << "This Company is related to existing Form 27";
        QTest::newRow("free") << 1 << false << "";
        QTest::newRow("deductees of an older store") << 1 << true
                                                     << CompanyMaster::hasDeducteesText;
    }
    void deleteGuards()
    {
        QFETCH(int, compId);
        QFETCH(bool, olderStore);
        QFETCH(QString, refusal);
        const TestStore data(mastersStore());
        if (olderStore) {
            data.store().exec("ALTER TABLE mstDeductee ADD CompID INTEGER");
            data.store().exec("UPDATE mstDeductee SET CompID = 1 WHERE DeducteeID = 3");
        }
        Session session(data.store());
        const CompanyMaster master(session);
        const std::optional<Message> message = master.deleteRefusal(compId);
        QCOMPARE(message.has_value(), !refusal.isEmpty());
        if (message) {
            QCOMPARE(*message, (Message{refusal, CompanyMaster::cannotDeleteTitle}));
            return;
        }
        master.remove(compId);
        QCOMPARE(data.count("mstCompany"), 6);
        QCOMPARE(column(data, "mstCompany", "count(*)", compId), QStringLiteral("0"));
    }
};

KELVORA_TEST_OBJECT(TestCompanyMaster);
#include "test_companymaster.moc"
