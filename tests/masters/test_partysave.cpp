#include "parties.h"
#include "support/testsuite.h"


namespace {

struct Check
{
    bool employee;
    QVariantMap changes; // name, pan, group, category, code, state, pin
    Message box;         // an empty text: the save goes through
    const char *field;
};

const FormKind deducteeForms[] = {FormKind::Form26Q, FormKind::Form27Q, FormKind::Form27EQ};

QString askedFor(const char *form)
{
    return QStringLiteral("Entry of the %1 exists in Form %2 like to update.")
        .arg(form == QLatin1String("24") ? "Employee" : "Deductee", QLatin1String(form));
}

} // namespace

Q_DECLARE_METATYPE(Check)

// The saves of the employee and deductee masters: their checks in order, what they write, the
// questions they ask and the statement rows they carry a change into, all in one transaction.
class TestPartySave : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_p = std::make_unique<Parties>(); }

    void checksInOrder_data()
    {
        QTest::addColumn<Check>("c");
        const auto row = [](const char *name, const Check &c) { QTest::newRow(name) << c; };
        const QString app = appTitle;
        const auto info = MessageIcon::Information;
        const Message badPan{PartyMaster::badPanText, app, MessageIcon::Critical};
        row("no group", {true, {{"group", ""}, {"name", ""}, {"pan", "12"}},
                         {"Please select the Group", app, info}, "cmbGrp"});
        row("blank name before a bad PAN", {true, {{"name", "  "}, {"pan", "12"}},
                                            {EmployeeMaster::blankNameText}, "txtEmpName"});
        row("bad PAN before the category", {true, {{"pan", "ABCDE12345"}, {"category", -1}},
                                            badPan, "txtPAN"});
        row("PAN in lower case", {true, {{"pan", "abcde1234f"}}, badPan, "txtPAN"});
        row("category before the name", {true, {{"name", "RAVI KUMAR"}, {"pan", "PANINVALID"},
                                                {"category", -1}},
                                         {EmployeeMaster::noCategoryText, "Alert Message"},
                                         "cmbCat"});
        row("name taken, any case", {true, {{"name", "ravi kumar "}, {"pan", "PANAPPLIED"}},
                                     {"Employee Name Already Exists. "}, "txtEmpName"});
        row("name of another group's", {true, {{"name", "MEERA"}}, {}, ""});
        row("apostrophe", {true, {{"name", "O'NEIL DAS"}, {"pan", "PANNOTAVBL"}}, {}, ""});
        row("deductee, blank name", {false, {{"name", ""}, {"pan", "BAD"}},
                                     {DeducteeMaster::blankNameText}, "txtDeducteeName"});
        row("deductee, bad PAN", {false, {{"pan", "AAAFM4321"}, {"code", ""}}, badPan,
                                  "txtPAN"});
        row("no code", {false, {{"pan", "PANINVALID"}, {"code", " "}, {"state", "X"}},
                        {DeducteeMaster::blankCodeText}, "cmbDeducteeCode"});
        row("unknown state", {false, {{"pan", "PANAPPLIED"}, {"state", "MYSORE STATE"},
                                      {"pin", ""}},
                              {DeducteeMaster::badStateText}, "cmbState"});
        row("no PIN", {false, {{"name", "SHAH TRADERS"}, {"state", "GOA"}, {"pin", " "}},
                       {DeducteeMaster::blankPinText}, "txtPincode"});
        row("deductee name taken", {false, {{"name", "o'neil and sons"}, {"pan", ""}},
                                    {"Deductee Name Already Exists. "}, "txtDeducteeName"});
    }
    void checksInOrder()
    {
        QFETCH(Check, c);
        PartyMaster &master = startEntry(c.employee);
        const QVariantMap &v = c.changes;
        PartyFields &fields = master.fields();
        fields.groupName = v.value("group", fields.groupName).toString();
        fields.name = v.value("name", fields.name).toString();
        fields.pan = v.value("pan", fields.pan).toString();
        m_p->employees.fields().category = v.value("category", 0).toInt();
        DeducteeFields &deductee = m_p->deductees.fields();
        deductee.code = v.value("code", deductee.code).toString();
        deductee.state = v.value("state", deductee.state).toString();
        deductee.pin = v.value("pin", deductee.pin).toString();
        const QString table = c.employee ? "mstEmployee" : "mstDeductee";
        const int before = m_p->data.count(table);

        master.operation().saveRecord();

        const bool saved = c.box.text.isEmpty();
        QCOMPARE(m_p->boxes.shown, saved ? QList<Message>() : QList<Message>{c.box});
        QCOMPARE(m_p->data.count(table), before + saved);
        if (!saved) {
            QCOMPARE(master.takeFocus(), QLatin1String(c.field));
            QVERIFY(master.operation().actionCancelled());
            QCOMPARE(master.operation().operationMode(), int(ClsOperation::AddMode));
        }
    }

    void addWrites()
    {
        EmployeeMaster &employees = m_p->employees;
        employees.command(0);
        QCOMPARE(employees.fields().id, 9);
        QCOMPARE(employees.takeFocus(), QStringLiteral("txtEmpName"));
        QVERIFY(!employees.listEnabled() && employees.groupEnabled());
        QCOMPARE(employees.bar(), PartyMaster::Bar::Editing);
        employees.fields().name = QStringLiteral("  ASHA RAO ");
        employees.fields().pan.clear(); // emptied and never left
        employees.fields().panRef = QStringLiteral("REF-1");
        employees.fields().designation = QStringLiteral("ACCOUNTANT");
        employees.fields().category = 0;
        employees.command(2);
        QCOMPARE(m_p->data.text("SELECT GroupId||'|'||PAN||'|'||PanRef||'|'||EmpName||'|'||"
                                "Designation||'|'||FromDate||'|'||Todate||'|'||category "
                                "FROM mstEmployee WHERE EmpID = 9"),
                 "1|PANNOTAVBL|REF-1|ASHA RAO|ACCOUNTANT|2026-04-01|2027-03-31|0");
        // Back to browsing, with a fresh id and the list reloaded by name.
        QCOMPARE(employees.bar(), PartyMaster::Bar::Browse);
        QVERIFY(employees.listEnabled());
        QCOMPARE(employees.fields().id, 10);
        QCOMPARE(employees.fields().name, QString());
        QCOMPARE(employees.list().text(0, 1), QStringLiteral("ASHA RAO"));

        startEntry(false);
        QCOMPARE(m_p->deductees.fields().id, 22);
        m_p->deductees.command(2);
        QCOMPARE(m_p->data.text("SELECT GroupId||'|'||PAN||'|'||DeducteeName||'|'||Address1||"
                                "'|'||DeducteeCode||'|'||State||'|'||StateCode||'|'||PIN"
                                " FROM mstDeductee WHERE DeducteeID = 22"),
                 "1|AAAFM4321B|MEHTA AND CO|12 MG ROAD|01|KARNATAKA|15|560001");
        QCOMPARE(m_p->deductees.list().rowCount(), 3);
        m_p->edit(m_p->deductees, 3);
        QCOMPARE(m_p->deductees.fields().name, QStringLiteral("O'NEIL AND SONS"));
        QCOMPARE(m_p->deductees.fields().address[0], QStringLiteral("LINE 1"));
        QCOMPARE(m_p->boxes.texts(), QStringList());
    }

    // "PANNOTAVBL" is compared like any PAN; a PAN applied for is not.
    void duplicatePan_data()
    {
        testsuite::columns<bool, QString, Answer, bool>("editing", "pan", "answer", "asked");
        QTest::newRow("same PAN, Yes") << false << "ABCDE1234F" << Answer::Yes << true;
        QTest::newRow("same PAN, No") << false << "ABCDE1234F" << Answer::No << true;
        QTest::newRow("PAN applied for") << false << "PANAPPLIED" << Answer::No << false;
        QTest::newRow("own PAN when editing") << true << "ABCDE1234F" << Answer::No << false;
    }
    void duplicatePan()
    {
        QFETCH(bool, editing);
        QFETCH(QString, pan);
        QFETCH(Answer, answer);
        QFETCH(bool, asked);
        EmployeeMaster &employees = m_p->employees;
        if (editing)
            m_p->edit(employees, 4);
        else
            startEntry(true);
        employees.fields().pan = pan;
        employees.fields().name = QStringLiteral("ASHA RAO");
        m_p->boxes.answerNext(answer);
        employees.operation().saveRecord();
        QCOMPARE(m_p->boxes.texts(), asked ? QStringList{PartyMaster::duplicatePanText}
                                           : QStringList());
        const bool saved = !asked || answer == Answer::Yes;
        QCOMPARE(m_p->stored("EmpName", true, editing ? 4 : 9) == u"ASHA RAO", saved);
        if (!saved)
            QCOMPARE(employees.takeFocus(), QStringLiteral("txtPAN"));
    }

    // Asked once per form with rows of the party; a Yes to each carries the change into the
    // party's rows only, a No saves nothing.
    void propagation_data()
    {
        // forms: with rows of the party and of another
        testsuite::columns<bool, QList<int>, QList<Answer>, QStringList>("employee", "forms",
                                                                         "answers", "asked");
        using A = QList<Answer>;
        const int e24 = int(FormKind::Form24Q);
        const int d26 = int(FormKind::Form26Q);
        const int d27 = int(FormKind::Form27Q);
        const int d27e = int(FormKind::Form27EQ);
        QTest::newRow("employee, Yes") << true << QList<int>{e24} << A{Answer::Yes}
                                       << QStringList{askedFor("24")};
        QTest::newRow("employee, No") << true << QList<int>{e24} << A{Answer::No}
                                      << QStringList{askedFor("24")};
        QTest::newRow("three forms, Yes") << false << QList<int>{d26, d27, d27e}
                                          << A{Answer::Yes, Answer::Yes, Answer::Yes}
                                          << QStringList{askedFor("26"), askedFor("27"),
                                                         askedFor("27E")};
        QTest::newRow("No to the second") << false << QList<int>{d26, d27, d27e}
                                          << A{Answer::Yes, Answer::No}
                                          << QStringList{askedFor("26"), askedFor("27")};
        QTest::newRow("27EQ only") << false << QList<int>{d27e} << A{Answer::Yes}
                                   << QStringList{askedFor("27E")};
        QTest::newRow("no rows") << false << QList<int>() << A() << QStringList();
    }
    void propagation()
    {
        QFETCH(bool, employee);
        QFETCH(QList<int>, forms);
        QFETCH(QList<Answer>, answers);
        QFETCH(QStringList, asked);
        const int id = employee ? 4 : 3;
        const QString name = employee ? "RAVI KUMAR" : "O'NEIL AND SONS";
        for (const int form : forms) {
            m_p->addStatementRow(FormKind(form), 20 + form, id, name);
            m_p->addStatementRow(FormKind(form), 30 + form, 9, "SHAH TRADERS");
        }
        for (const Answer answer : answers)
            m_p->boxes.answerNext(answer);
        PartyMaster &master = m_p->master(employee);
        m_p->edit(master, id);
        master.fields().name = QStringLiteral("O'NEIL & SONS LLP");
        master.fields().pan = QStringLiteral("ABCDE9999Z");
        m_p->deductees.fields().state = QStringLiteral("FOREIGN");

        master.command(2);

        QCOMPARE(m_p->boxes.texts(), asked);
        const bool saved = !answers.contains(Answer::No);
        const QString expected = saved ? "O'NEIL & SONS LLP" : name;
        QCOMPARE(m_p->stored(employee ? "EmpName" : "DeducteeName", employee, id), expected);
        QCOMPARE(master.bar(), saved ? PartyMaster::Bar::Browse : PartyMaster::Bar::Editing);
        for (const int form : forms) {
            const FormTraits &traits = formTraits(FormKind(form));
            QCOMPARE(m_p->statementName(FormKind(form), 20 + form), expected);
            QCOMPARE(m_p->statementName(FormKind(form), 30 + form), "SHAH TRADERS");
            const QString columns = employee ? "PAN" : "PAN||'|'||ifnull(StateCode, '')";
            QCOMPARE(m_p->data.text(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                                        .arg(columns, traits.annexureTable, traits.annexureKey),
                                    {20 + form}),
                     QString(saved ? "ABCDE9999Z" : "OLDPN1234X")
                         + (employee ? "" : saved ? "|99" : "|"));
        }
    }

    // A failing statement row takes back the party's own row; the screen stays in editing.
    void failedPropagationLeavesEverything_data()
    {
        QTest::addColumn<bool>("employee");
        QTest::newRow("employee") << true;
        QTest::newRow("deductee, the last form failing") << false;
    }
    void failedPropagationLeavesEverything()
    {
        QFETCH(bool, employee);
        const QList<FormKind> forms = employee ? QList<FormKind>{FormKind::Form24Q}
                                               : QList<FormKind>(std::begin(deducteeForms),
                                                                 std::end(deducteeForms));
        const int id = employee ? 4 : 3;
        for (const FormKind form : forms) {
            m_p->addStatementRow(form, 40, id, "OLD");
            m_p->boxes.answerNext(Answer::Yes);
        }
        m_p->data.store().exec(QStringLiteral("CREATE TRIGGER block BEFORE UPDATE ON %1 BEGIN "
                                              "SELECT RAISE(ABORT, 'statement rows are locked'); "
                                              "END").arg(formTraits(forms.last()).annexureTable));
        PartyMaster &master = m_p->master(employee);
        m_p->edit(master, id);
        master.fields().name = QStringLiteral("RENAMED");

        master.command(2);

        QCOMPARE(m_p->boxes.texts().mid(forms.size()),
                 QStringList({"statement rows are locked", PartyMaster::unableToSaveText}));
        QCOMPARE(m_p->stored(employee ? "EmpName" : "DeducteeName", employee, id),
                 employee ? "RAVI KUMAR" : "O'NEIL AND SONS");
        for (const FormKind form : forms)
            QCOMPARE(m_p->statementName(form, 40), QStringLiteral("OLD"));
        QCOMPARE(master.bar(), PartyMaster::Bar::Editing);
        QCOMPARE(master.operation().operationMode(), int(ClsOperation::ModifyMode));
        QCOMPARE(master.fields().name, QStringLiteral("RENAMED"));
        QCOMPARE(master.fields().id, id);
    }

    void duplicateKeyFailure()
    {
        // A store that refuses a second employee of the same name anywhere.
        m_p->data.store().exec("CREATE UNIQUE INDEX OneName ON mstEmployee (EmpName)");
        startEntry(true).fields().name = QStringLiteral("MEERA");
        m_p->employees.operation().saveRecord();
        QCOMPARE(m_p->boxes.shown.value(1), Message({PartyMaster::duplicateKeyText,
                                                     PartyMaster::duplicateKeyTitle}));
        QCOMPARE(m_p->employees.takeFocus(), QStringLiteral("txtEmpName"));
        QCOMPARE(m_p->employees.fields().id, 9);
        QCOMPARE(m_p->data.count("mstEmployee"), 3);
    }

    void stateAndCode_data()
    {
        // stateCode: "refused": the state is not taken
        // caption: "refused": the code is not taken
        testsuite::columns<QString, QString, QString, QString, QString>("state", "stateCode",
                                                                        "pin", "code", "caption");
        QTest::newRow("company in Goa") << "goa" << "10" << "560001" << "01"
                                        << "DEDUCTEE - COMPANY";
        QTest::newRow("foreign") << "Foreign" << "99" << "999999" << "02"
                                 << "DEDUCTEE - NON COMPANY";
        QTest::newRow("unknown state, code 03") << "GOA STATE" << "refused" << "560001" << "03"
                                                << "refused";
        QTest::newRow("blank state and code") << " " << "refused" << "560001" << ""
                                              << "refused";
    }
    void stateAndCode()
    {
        QFETCH(QString, state);
        QFETCH(QString, stateCode);
        QFETCH(QString, code);
        QFETCH(QString, caption);
        DeducteeMaster &deductees = static_cast<DeducteeMaster &>(startEntry(false));
        deductees.fields().state = state;
        deductees.fields().code = code;
        QCOMPARE(deductees.stateLeft(), stateCode != u"refused");
        QCOMPARE(deductees.fields().stateCode, stateCode == u"refused" ? "" : stateCode);
        QTEST(deductees.fields().pin, "pin");
        QCOMPARE(deductees.codeLeft(), caption != u"refused");
        QCOMPARE(DeducteeMaster::codeCaption(code), caption == u"refused" ? "" : caption);
        QCOMPARE(m_p->boxes.shown.size(), int(stateCode == u"refused") + (caption == u"refused"));
    }

    void withoutPan()
    {
        DeducteeMaster &deductees = static_cast<DeducteeMaster &>(startEntry(false));
        deductees.panLeft();
        QVERIFY(!deductees.panRefEnabled());
        deductees.fields().pan = QStringLiteral(" ");
        deductees.panLeft();
        QCOMPARE(deductees.fields().pan, QStringLiteral("PANNOTAVBL"));
        QVERIFY(deductees.panRefEnabled());
        // Settled: a second deductee without a PAN in the group is asked about.
        m_p->boxes.answerNext(Answer::Yes);
        deductees.command(2);
        QCOMPARE(m_p->boxes.texts(), QStringList{PartyMaster::duplicatePanText});
        QCOMPARE(m_p->stored("PAN", false, 22), QStringLiteral("PANNOTAVBL"));
    }

private:
    /// Add New on either master, and a complete entry.
    PartyMaster &startEntry(bool employee)
    {
        PartyMaster &master = m_p->master(employee);
        master.command(0);
        if (employee) {
            m_p->employees.fields().name = QStringLiteral("ASHA RAO");
            m_p->employees.fields().pan = QStringLiteral("PQRST6789K");
            m_p->employees.fields().category = 0;
        } else {
            DeducteeFields &values = m_p->deductees.fields();
            values.name = QStringLiteral("MEHTA AND CO");
            values.pan = QStringLiteral("AAAFM4321B");
            values.code = QStringLiteral("01");
            values.address[0] = QStringLiteral("12 MG ROAD");
            values.state = QStringLiteral("karnataka");
            values.pin = QStringLiteral("560001");
        }
        master.takeFocus();
        return master;
    }

    std::unique_ptr<Parties> m_p;
};

KELVORA_TEST_OBJECT(TestPartySave);
#include "test_partysave.moc"
