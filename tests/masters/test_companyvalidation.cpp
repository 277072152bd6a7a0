#include "companytestdata.h"
#include "core/fieldrules.h"
#include "masters/companyvalidation.h"
#include "masters/groupmaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QtTest>

using namespace companytestdata;
using V = CompanyValidation;

namespace {

// The entry with some fields changed, by control name.
CompanyEntry changed(const QVariantMap &changes)
{
    CompanyEntry entry = validEntry();
    for (auto it = changes.cbegin(); it != changes.cend(); ++it)
        entry.setValue(it.key(), it.value().toString());
    return entry;
}

QString emailErrorOf(const QString &address)
{
    QString error;
    fieldrules::isValidEmail(address, error);
    return error;
}

} // namespace

class TestCompanyValidation : public QObject
{
    Q_OBJECT

private slots:
    void checkFields_data();
    void checkFields();
    void earlierCheckWins_data();
    void earlierCheckWins();
    void tanDuplicates_data();
    void tanDuplicates();
    void nameAndPanWarning_data();
    void nameAndPanWarning();
    void prefixDuplicates_data();
    void prefixDuplicates();
    void leavingFields();
};

// Each check of the save, alone: its text, box and the field that takes the focus.
void TestCompanyValidation::checkFields_data()
{
    QTest::addColumn<QVariantMap>("changes");
    QTest::addColumn<QString>("text"); // empty: every check passes
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("field");

    const QString invalid = QStringLiteral("Invalid Entry");
    const QString app = QStringLiteral("Kelvora");
    const auto row = [](const char *name, const QVariantMap &changes, const QString &text,
                        const QString &title, const char *field) {
        QTest::newRow(name) << changes << text << title << QString::fromLatin1(field);
    };

    row("valid", {}, {}, {}, "");
    row("1 TAN", {{"txtTan", ""}}, V::enterTanText, invalid, "txtTan");
    row("1 TAN of blanks", {{"txtTan", "   "}}, V::enterTanText, invalid, "txtTan");
    row("2 group", {{"cmbGroupName", ""}}, GroupMaster::enterGroupText, invalid, "cmbGroupName");
    row("3 name", {{"txtCompName", " "}}, V::enterCompanyNameText, invalid, "txtCompName");
    row("4 deductor type", {{"cmbDeType", ""}}, V::enterDeductorTypeText, invalid, "cmbDeType");
    row("5 address", {{"txtAddress1", ""}}, V::enterAddressText, invalid, "txtAddress1");
    row("6 state", {{"cmbState", ""}}, V::enterStateText, invalid, "cmbState");
    row("7 PIN", {{"txtPincode", ""}}, V::enterPinText, invalid, "txtPincode");
    row("8 person", {{"txtPersonName", ""}}, V::enterPersonNameText, invalid, "txtPersonName");
    row("9 designation", {{"txtDesignation", ""}}, V::enterDesignationText, invalid,
        "txtDesignation");
    row("10 person's address", {{"txtPAddress1", ""}}, V::enterAddressText, invalid,
        "txtPAddress1");
    row("11 person's state", {{"cmbPState", ""}}, V::enterStateText, invalid, "cmbPState");
    row("12 person's PIN", {{"txtPpincode", ""}}, V::enterPinText, invalid, "txtPpincode");
    row("13 prefix", {{"txtPrefix", ""}}, V::enterPrefixText, invalid, "txtPrefix");
    row("14 mail", {{"txtEmail", "accounts.mehta.in"}}, emailErrorOf("accounts.mehta.in"), app,
        "txtEmail");
    row("14 mail may be blank", {{"txtEmail", ""}}, {}, {}, "");
    row("15 person's mail", {{"txtPemail", "raj@mehta"}}, emailErrorOf("raj@mehta"), app,
        "txtPemail");
    row("16 group not in the list", {{"txtGrpId", "0"}}, V::properGroupText, app,
        "cmbGroupName");
    row("17 state not in the list", {{"txtStID", ""}}, V::stateFromListText, app, "cmbState");
    for (const char *type : {"S", "E", "H", "N"}) {
        row(qPrintable(QStringLiteral("18 type %1 without its state").arg(type)),
            {{"cmbDeType", type}}, V::deductorStateText, app, "cmbDState");
    }
    row("18 typed in lower case", {{"cmbDeType", "s"}}, V::deductorStateText, app, "cmbDState");
    row("18 type E with its state", {{"cmbDeType", "E"}, {"txtDStId", "19"}}, {}, {}, "");
    for (const char *type : {"A", "D", "G"}) {
        row(qPrintable(QStringLiteral("19 type %1 without a ministry").arg(type)),
            {{"cmbDeType", type}, {"txtPAOCode", "P1"}, {"txtDDOCode", "D1"}}, V::ministryText,
            app, "cmbMinistry");
    }
    row("19 type L needs no ministry", {{"cmbDeType", "L"}}, {}, {}, "");
    row("20 type A without PAO code",
        {{"cmbDeType", "A"}, {"txtMinistryID", "11"}, {"txtDDOCode", "D1"}}, V::paoCodeText, app,
        "txtPAOCode");
    row("21 type A without DDO code",
        {{"cmbDeType", "A"}, {"txtMinistryID", "11"}, {"txtPAOCode", "P1"}}, V::ddoCodeText, app,
        "txtDDOCode");
    row("20 type D needs no PAO code", {{"cmbDeType", "D"}, {"txtMinistryID", "11"}}, {}, {}, "");
    row("22 Others without its name",
        {{"cmbDeType", "D"}, {"cmbMinistry", "Others"}, {"txtMinistryID", "99"}},
        V::otherMinistryText, app, "txtMinistryNameOther");
    row("22 Others as typed", {{"cmbMinistry", "others"}, {"txtMinistryID", "99"}},
        V::otherMinistryText, app, "txtMinistryNameOther");
    row("22 Others with its name",
        {{"cmbDeType", "D"}, {"cmbMinistry", "Others"}, {"txtMinistryID", "99"},
         {"txtMinistryNameOther", "BOARD OF TRADE"}},
        {}, {}, "");
    row("23 person's state not in the list", {{"txtPStId", "0"}}, V::stateFromListText, app,
        "cmbPState");
}

void TestCompanyValidation::checkFields()
{
    QFETCH(QVariantMap, changes);
    QFETCH(QString, text);
    QFETCH(QString, title);
    QFETCH(QString, field);

    const std::optional<FieldFailure> failure = V::checkFields(changed(changes));
    if (text.isEmpty()) {
        QVERIFY2(!failure, qPrintable(failure ? failure->message.text : QString()));
        return;
    }
    QVERIFY(failure);
    QCOMPARE(failure->message.text, text);
    QCOMPARE(failure->message.title, title);
    QCOMPARE(failure->message.buttons, MessageButtons::Ok);
    QCOMPARE(failure->field, field);
}

void TestCompanyValidation::earlierCheckWins_data()
{
    QTest::addColumn<QVariantMap>("changes");
    QTest::addColumn<QString>("field");

    QTest::newRow("TAN before prefix") << QVariantMap{{"txtTan", ""}, {"txtPrefix", ""}}
                                       << "txtTan";
    QTest::newRow("group before name") << QVariantMap{{"txtCompName", ""}, {"cmbGroupName", ""}}
                                       << "cmbGroupName";
    QTest::newRow("deductor's before person's")
        << QVariantMap{{"txtPpincode", ""}, {"txtPincode", ""}} << "txtPincode";
    QTest::newRow("blank before mail") << QVariantMap{{"txtEmail", "x"}, {"txtPrefix", ""}}
                                       << "txtPrefix";
    QTest::newRow("mail before group id") << QVariantMap{{"txtGrpId", "0"}, {"txtPemail", "x"}}
                                          << "txtPemail";
    QTest::newRow("state id before deductor state")
        << QVariantMap{{"cmbDeType", "S"}, {"txtStID", "0"}} << "cmbState";
    QTest::newRow("ministry before PAO code") << QVariantMap{{"cmbDeType", "A"}}
                                              << "cmbMinistry";
    QTest::newRow("DDO code before Others")
        << QVariantMap{{"cmbDeType", "A"}, {"txtMinistryID", "99"}, {"cmbMinistry", "Others"},
                       {"txtPAOCode", "P1"}}
        << "txtDDOCode";
    QTest::newRow("Others before person's state")
        << QVariantMap{{"cmbMinistry", "Others"}, {"txtPStId", ""}} << "txtMinistryNameOther";
}

void TestCompanyValidation::earlierCheckWins()
{
    QFETCH(QVariantMap, changes);
    QFETCH(QString, field);
    const std::optional<FieldFailure> failure = V::checkFields(changed(changes));
    QVERIFY(failure);
    QCOMPARE(failure->field, field);
}

void TestCompanyValidation::tanDuplicates_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<int>("compId");
    QTest::addColumn<QString>("tan");
    QTest::addColumn<bool>("refused");

    QTest::newRow("new company, TAN taken") << false << 0 << "MUMA12345B" << true;
    QTest::newRow("new company, TAN in lower case") << false << 0 << "muma12345b" << true;
    QTest::newRow("new company, new TAN") << false << 0 << "MUMZ12345B" << false;
    QTest::newRow("new company, TAN applied for") << false << 0 << "TANAPPLIED" << false;
    QTest::newRow("edit keeps its own TAN") << true << 1 << "MUMA12345B" << false;
    QTest::newRow("edit to another's TAN") << true << 3 << "MUMA12345B" << true;
    QTest::newRow("edit to TAN applied for") << true << 1 << "TANAPPLIED" << false;
}

void TestCompanyValidation::tanDuplicates()
{
    QFETCH(bool, isEdit);
    QFETCH(int, compId);
    QFETCH(QString, tan);
    QFETCH(bool, refused);
    TestStore data;
    addCompany(data.store(), 1, 1, QStringLiteral("MUMA12345B"));
    addCompany(data.store(), 2, 1, QStringLiteral("TANAPPLIED"));
    addCompany(data.store(), 3, 1, QStringLiteral("TANAPPLIED"));

    CompanyEntry entry = validEntry();
    entry.isEdit = isEdit;
    entry.compId = QString::number(compId);
    entry.tan = tan;
    ScriptedMessageBoxes boxes;
    const CompanyValidation::Verdict verdict =
        CompanyValidation(data.store()).validate(entry, boxes);
    QCOMPARE(bool(verdict.refusal), refused);
    QCOMPARE(verdict.passed(), !refused);
    if (refused) {
        QCOMPARE(verdict.refusal->message.text, V::tanExistsText);
        QCOMPARE(verdict.refusal->field, QStringLiteral("txtTan"));
    }
    QVERIFY(boxes.shown.isEmpty());
}

void TestCompanyValidation::nameAndPanWarning_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<int>("compId");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("pan");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<int>("answer"); // 0: no question expected
    QTest::addColumn<QString>("outcome");

    QTest::newRow("held, Yes") << false << 0 << "MEHTA TRADERS" << "AAACM1234C" << "NEW"
                               << int(Answer::Yes) << "passed";
    QTest::newRow("held, No") << false << 0 << "MEHTA TRADERS" << "AAACM1234C" << "NEW"
                              << int(Answer::No) << "declined";
    QTest::newRow("held with an apostrophe") << false << 0 << "O'NEIL AND SONS" << "PANNOTREQD"
                                             << "NEW" << int(Answer::No) << "declined";
    QTest::newRow("same name, other PAN") << false << 0 << "MEHTA TRADERS" << "AAACM9999C"
                                          << "NEW" << 0 << "passed";
    QTest::newRow("the company itself") << true << 1 << "MEHTA TRADERS" << "AAACM1234C" << "MTR"
                                        << 0 << "passed";
    QTest::newRow("Yes, then the prefix is taken") << false << 0 << "MEHTA TRADERS"
                                                   << "AAACM1234C" << "MTR" << int(Answer::Yes)
                                                   << "prefix";
}

void TestCompanyValidation::nameAndPanWarning()
{
    QFETCH(bool, isEdit);
    QFETCH(int, compId);
    QFETCH(QString, name);
    QFETCH(QString, pan);
    QFETCH(QString, prefix);
    QFETCH(int, answer);
    QFETCH(QString, outcome);
    TestStore data;
    addCompany(data.store(), 1, 1, QStringLiteral("MUMA12345B"), QStringLiteral("MEHTA TRADERS"),
               QStringLiteral("AAACM1234C"), QStringLiteral("MTR"));
    addCompany(data.store(), 2, 1, QStringLiteral("MUMB12345B"),
               QStringLiteral("O'NEIL AND SONS"), QStringLiteral("PANNOTREQD"));

    CompanyEntry entry = validEntry();
    entry.isEdit = isEdit;
    entry.compId = QString::number(compId);
    entry.tan = isEdit ? QStringLiteral("MUMA12345B") : QStringLiteral("MUMZ12345B");
    entry.name = name;
    entry.pan = pan;
    entry.filePrefix = prefix;
    ScriptedMessageBoxes boxes;
    if (answer)
        boxes.answerNext(Answer(answer));
    const CompanyValidation::Verdict verdict =
        CompanyValidation(data.store()).validate(entry, boxes);

    if (answer) {
        QCOMPARE(boxes.shown.size(), 1);
        QCOMPARE(boxes.shown.first().text,
                 QStringLiteral("Company Name & Pan No. Already Exits.\n"
                                "Do you want to Continue."));
        QCOMPARE(boxes.shown.first().buttons, MessageButtons::YesNo);
    } else {
        QVERIFY(boxes.shown.isEmpty());
    }
    if (outcome == u"passed")
        QVERIFY(verdict.passed());
    else if (outcome == u"declined")
        QVERIFY(verdict.declined && !verdict.refusal);
    else
        QCOMPARE(verdict.refusal->message.text, V::prefixExistsText);
}

void TestCompanyValidation::prefixDuplicates_data()
{
    QTest::addColumn<bool>("isEdit");
    QTest::addColumn<int>("compId");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<bool>("refused");

    QTest::newRow("new company, prefix taken") << false << 0 << "MTR" << true;
    QTest::newRow("new company, in lower case") << false << 0 << "mtr" << true;
    QTest::newRow("new company, new prefix") << false << 0 << "ABC" << false;
    QTest::newRow("edit keeps its own") << true << 1 << "MTR" << false;
    QTest::newRow("edit to another's") << true << 2 << "MTR" << true;
}

void TestCompanyValidation::prefixDuplicates()
{
    QFETCH(bool, isEdit);
    QFETCH(int, compId);
    QFETCH(QString, prefix);
    QFETCH(bool, refused);
    TestStore data;
    addCompany(data.store(), 1, 1, QStringLiteral("MUMA12345B"), QStringLiteral("ONE"),
               QStringLiteral("PANNOTREQD"), QStringLiteral("MTR"));
    addCompany(data.store(), 2, 1, QStringLiteral("MUMB12345B"), QStringLiteral("TWO"),
               QStringLiteral("PANNOTREQD"), QStringLiteral("TWO"));

    CompanyEntry entry = validEntry();
    entry.isEdit = isEdit;
    entry.compId = QString::number(compId);
    entry.filePrefix = prefix;
    const std::optional<FieldFailure> failure =
        CompanyValidation(data.store()).checkPrefix(entry);
    QCOMPARE(bool(failure), refused);
    if (refused) {
        QCOMPARE(failure->message.text, V::prefixExistsText);
        QCOMPARE(failure->field, QStringLiteral("txtPrefix"));
    }
}

void TestCompanyValidation::leavingFields()
{
    QVERIFY(!V::leavingTan(QString()));
    QVERIFY(!V::leavingTan(QStringLiteral("MUMA12345B")));
    const std::optional<FieldFailure> tan = V::leavingTan(QStringLiteral("MUMA1234"));
    QVERIFY(tan);
    QCOMPARE(tan->message, Message({"TAN sould be a 10 digit number", "Kelvora",
                                    MessageIcon::Critical}));
    QCOMPARE(tan->field, QStringLiteral("txtTan"));

    QCOMPARE(V::panOnLeaving(QStringLiteral("  ")), QStringLiteral("PANNOTREQD"));
    QCOMPARE(V::panOnLeaving(QStringLiteral("AAAC")), QStringLiteral("AAAC"));
    QVERIFY(!V::leavingPan(QStringLiteral("PANNOTREQD")));
    QCOMPARE(V::leavingPan(QStringLiteral("AAAC"))->message.text,
             QStringLiteral("PAN sould be a 10 digit number"));

    QVERIFY(V::leavingDeductorType(QStringLiteral(" ")));
    QVERIFY(!V::leavingDeductorType(QStringLiteral("K")));
    for (const char *status : {"C", "O", "c", "o"})
        QVERIFY(!V::leavingStatus(QLatin1String(status)));
    for (const char *status : {"", "X", "CO"}) {
        QCOMPARE(V::leavingStatus(QLatin1String(status))->message.text,
                 QStringLiteral("Please Enter 'C' For Central Govt. / 'O' For Others."));
    }
}

QTEST_GUILESS_MAIN(TestCompanyValidation)
#include "test_companyvalidation.moc"
