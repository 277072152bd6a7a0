#include "mastersstore.h"
#include "core/fieldrules.h"
#include "masters/companyvalidation.h"
#include "masters/groupmaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"


using V = CompanyValidation;

namespace {

CompanyEntry changed(const QVariantMap &changes, CompanyEntry entry = validEntry())
{
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

struct Duplicate
{
    int compId; // 0: a new company
    const char *tan;
    const char *name;
    const char *pan;
    const char *prefix;
    Answer answer; // Answer::None: no question expected
    QString refusal; // empty: passed, "declined": No to the question
};

} // namespace

Q_DECLARE_METATYPE(Duplicate)

class TestCompanyValidation : public QObject
{
    Q_OBJECT

private slots:
    // An entry wrong in every way: each check in turn names its field, and is put right.
    void checksInOrder()
    {
        CompanyEntry entry = changed({{"cmbMinistry", "others"}, {"txtEmail", "accounts.zed"},
                                      {"txtPemail", "raj@zed"}, {"txtGrpId", "0"},
                                      {"txtStID", ""}, {"txtPStId", "0"}});
        struct Step
        {
            const char *field;
            QString text;
            QVariantMap fix;
        };
        const QList<Step> steps = {
            {"txtTan", V::enterTanText, {{"txtTan", "MUMZ12345B"}}},
            {"cmbGroupName", GroupMaster::enterGroupText, {{"cmbGroupName", "ALPHA GROUP"}}},
            {"txtCompName", V::enterCompanyNameText, {{"txtCompName", "ZED"}}},
            {"cmbDeType", V::enterDeductorTypeText, {{"cmbDeType", "s"}}},
            {"txtAddress1", V::enterAddressText, {{"txtAddress1", "X"}}},
            {"cmbState", V::enterStateText, {{"cmbState", "GOA"}}},
            {"txtPincode", V::enterPinText, {{"txtPincode", "1"}}},
            {"txtPersonName", V::enterPersonNameText, {{"txtPersonName", "X"}}},
            {"txtDesignation", V::enterDesignationText, {{"txtDesignation", "X"}}},
            {"txtPAddress1", V::enterAddressText, {{"txtPAddress1", "X"}}},
            {"cmbPState", V::enterStateText, {{"cmbPState", "GOA"}}},
            {"txtPpincode", V::enterPinText, {{"txtPpincode", "1"}}},
            {"txtPrefix", V::enterPrefixText, {{"txtPrefix", "ZED"}}},
            {"txtEmail", emailErrorOf("accounts.zed"), {{"txtEmail", " accounts@zed.in"}}},
            {"txtEmail", emailErrorOf(" accounts@zed.in"), {{"txtEmail", ""}}},
            {"txtPemail", emailErrorOf("raj@zed"), {{"txtPemail", "raj@zed.in"}}},
            {"cmbGroupName", V::properGroupText, {{"txtGrpId", "1"}}},
            {"cmbState", V::stateFromListText, {{"txtStID", "10"}}},
            {"cmbDState", V::deductorStateText, {{"cmbDeType", "A"}}},
            {"cmbMinistry", V::ministryText, {{"txtMinistryID", "99"}}},
            {"txtPAOCode", V::paoCodeText, {{"txtPAOCode", "P1"}}},
            {"txtDDOCode", V::ddoCodeText, {{"txtDDOCode", "D1"}}},
            {"txtMinistryNameOther", V::otherMinistryText, {{"txtMinistryNameOther", "BOARD"}}},
            {"cmbPState", V::stateFromListText, {{"txtPStId", "10"}}},
        };
        for (const char *blank : {"txtTan", "cmbGroupName", "txtCompName", "cmbDeType",
                                  "txtAddress1", "cmbState", "txtPincode", "txtPersonName",
                                  "txtDesignation", "txtPAddress1", "cmbPState", "txtPpincode",
                                  "txtPrefix"})
            entry.setValue(QLatin1String(blank), QStringLiteral(" "));
        for (const Step &step : steps) {
            const std::optional<FieldFailure> failure = V::checkFields(entry);
            QVERIFY2(failure, step.field);
            // The blanks come under "Invalid Entry", the other refusals under the program's name.
            const bool blank = step.text.startsWith(u"Please enter");
            QCOMPARE(*failure, (FieldFailure{{step.text, blank ? "Invalid Entry" : appTitle,
                                              MessageIcon::Information},
                                             QLatin1String(step.field)}));
            entry = changed(step.fix, entry);
        }
        QCOMPARE(V::checkFields(entry), std::nullopt);
    }

    // What each deductor type asks for beyond the blanks.
    void deductorTypes_data()
    {
        // field: empty: every check passes
        testsuite::columns<QVariantMap, QString>("changes", "field");
        for (const char *type : {"E", "H", "N"})
            QTest::newRow(type) << QVariantMap{{"cmbDeType", type}} << "cmbDState";
        QTest::newRow("E with its state") << QVariantMap{{"cmbDeType", "E"}, {"txtDStId", "19"}}
                                          << "";
        for (const char *type : {"D", "G"})
            QTest::newRow(type) << QVariantMap{{"cmbDeType", type}} << "cmbMinistry";
        QTest::newRow("D needs no PAO code")
            << QVariantMap{{"cmbDeType", "D"}, {"txtMinistryID", "11"}} << "";
        QTest::newRow("L needs no ministry") << QVariantMap{{"cmbDeType", "L"}} << "";
    }
    void deductorTypes()
    {
        QFETCH(QVariantMap, changes);
        QFETCH(QString, field);
        const std::optional<FieldFailure> failure = V::checkFields(changed(changes));
        QCOMPARE(failure ? failure->field : QString(), field);
    }

    // TAN, then the name and PAN question, then the prefix, against the stored companies.
    void duplicates_data()
    {
        QTest::addColumn<Duplicate>("d");
        const auto row = [](const char *name, const Duplicate &d) { QTest::newRow(name) << d; };
        const Answer none = Answer::None;
        row("TAN taken", {0, "MUMA12345B", "ZED", "AAACZ1234C", "ZED", none, V::tanExistsText});
        row("TAN in lower case", {0, "muma12345b", "ZED", "X", "ZED", none, V::tanExistsText});
        row("TAN applied for", {0, "TANAPPLIED", "ZED", "X", "ZED", none, ""});
        row("edit keeps its own TAN", {1, "MUMA12345B", "ZED", "X", "ZED", none, ""});
        row("edit to another's TAN", {3, "MUMA12345B", "ZED", "X", "ZED", none,
                                      V::tanExistsText});
        row("name and PAN held, Yes", {0, "MUMZ12345B", "MEHTA TRADERS", "AAACM1234C", "ZED",
                                       Answer::Yes, ""});
        row("name and PAN held, No", {0, "MUMZ12345B", "MEHTA TRADERS", "AAACM1234C", "ZED",
                                      Answer::No, "declined"});
        row("with an apostrophe", {0, "MUMZ12345B", "O'NEIL AND SONS", "PANNOTREQD", "ZED",
                                   Answer::No, "declined"});
        row("same name, other PAN", {0, "MUMZ12345B", "MEHTA TRADERS", "AAACM9999C", "ZED",
                                     none, ""});
        row("the company itself", {1, "MUMA12345B", "MEHTA TRADERS", "AAACM1234C", "MTR", none,
                                   ""});
        row("Yes, then the prefix", {0, "MUMZ12345B", "MEHTA TRADERS", "AAACM1234C", "mtr",
                                     Answer::Yes, V::prefixExistsText});
        row("edit to another's prefix", {2, "TANAPPLIED", "ZED", "X", "MTR", none,
                                         V::prefixExistsText});
    }
    void duplicates()
    {
        QFETCH(Duplicate, d);
        CompanyEntry entry = changed({{"txtCompId", d.compId}, {"txtTan", d.tan},
                                      {"txtCompName", d.name}, {"txtPAN", d.pan},
                                      {"txtPrefix", d.prefix}});
        entry.isEdit = d.compId != 0;
        ScriptedMessageBoxes boxes;
        boxes.answerNext(d.answer);
        const V::Verdict verdict = V(mastersStore().store()).validate(entry, boxes);

        const Message question{V::nameAndPanExistText, appTitle, MessageIcon::Question,
                               MessageButtons::YesNo};
        QCOMPARE(boxes.shown, d.answer == Answer::None ? QList<Message>()
                                                        : QList<Message>{question});
        QCOMPARE(verdict.declined, d.refusal == u"declined");
        QCOMPARE(verdict.refusal ? verdict.refusal->message.text : QString(),
                 verdict.declined ? QString() : d.refusal);
        QCOMPARE(verdict.passed(), d.refusal.isEmpty());
    }

    void leavingFields()
    {
        QVERIFY(!V::leavingTan(QString()));
        QVERIFY(!V::leavingTan(QStringLiteral("MUMA12345B")));
        QCOMPARE(V::leavingTan(QStringLiteral("MUMA1234")),
                 (FieldFailure{{V::shortTanText, appTitle, MessageIcon::Critical}, "txtTan"}));
        QCOMPARE(V::panOnLeaving(QStringLiteral("  ")), QStringLiteral("PANNOTREQD"));
        QCOMPARE(V::panOnLeaving(QStringLiteral("AAAC")), QStringLiteral("AAAC"));
        QVERIFY(!V::leavingPan(QStringLiteral("PANNOTREQD")));
        QCOMPARE(V::leavingPan(QStringLiteral("AAAC"))->message.text, V::shortPanText);
        QVERIFY(V::leavingDeductorType(QStringLiteral(" ")));
        QVERIFY(!V::leavingDeductorType(QStringLiteral("K")));
        for (const char *status : {"C", "O"})
            QVERIFY(!V::leavingStatus(QLatin1String(status)));
        for (const char *status : {"", "X", "CO", "o", " C"})
            QCOMPARE(V::leavingStatus(QLatin1String(status))->message.text, V::statusText);
    }
};

KELVORA_TEST_OBJECT(TestCompanyValidation);
#include "test_companyvalidation.moc"
