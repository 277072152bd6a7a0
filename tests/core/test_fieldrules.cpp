#include "core/fieldrules.h"
#include "support/testsuite.h"


using namespace fieldrules;

class TestFieldRules : public QObject
{
    Q_OBJECT

private slots:
    // Keys by the caret's place: five letters and four digits for a PAN, four and five for a
    // TAN. The codes from "A" to "z" count as letters, so "_" passes; keys arrive upper-cased.
    void keyFilters()
    {
        QCOMPARE(toUpperKey('{'), int('['));
        QCOMPARE(alnumKeyFilter('{'), int('['));
        QCOMPARE(alnumKeyFilter('`'), 0);
        QCOMPARE(alnumKeyFilter(0xe9), 0);
        QCOMPARE(alnumKeyFilter(13), 13);
        const int rows[][4] = {{0, '1', 0, 0}, {4, 'Z', 1, 0},  {4, '5', 0, 1}, {9, 'F', 1, 1},
                               {9, '9', 0, 0}, {10, 'F', 0, 0}, {2, '_', 1, 1}, {0, 123, 0, 0},
                               {0, '@', 0, 0}, {25, 8, 1, 1},   {3, 13, 0, 0}};
        for (const auto &[caret, key, pan, tan] : rows) {
            QCOMPARE(panKeyFilter(caret, key), bool(pan));
            QCOMPARE(tanKeyFilter(caret, key), bool(tan));
        }
    }

    void pan_data()
    {
        testsuite::columns<QString, bool>("text", "valid");
        const QList<std::pair<const char *, bool>> rows = {
            {"ABCDE1234F", true},  {"", true},           {"ABCDE1234", false},
            {"ABCD11234F", false}, {"ABCDE12X4F", false}, {"ABCDE12345", false},
            {"ABCDE1234F99@", true}, {" ABCDE1234F", false}, {"ABCD[1234F", false}};
        for (const auto &[text, valid] : rows)
            QTest::newRow(text) << QString::fromLatin1(text) << valid;
    }
    void pan()
    {
        QFETCH(QString, text);
        QTEST(isValidPan(text), "valid");
    }

    // The first rule that fails gives the complaint.
    void email_data()
    {
        testsuite::columns<QString, QString>("address", "error");
        const QString ending =
            QStringLiteral("<BR>Your email address is not carrying a valid ending!"
                           "<BR>It must be one of the following..."
                           "<BR>.com, .net, .gov, .org, .edu, .biz, .tv Or included country's "
                           "assigned country code");
        const QString atFirst = QStringLiteral(
            "<BR>Your @ sign can not be the first character in your email address!");
        const QString blank = QStringLiteral("<BR>Email address cannot contain spaces!");
        QTest::newRow("country ending") << "ravi@example.co.in" << "";
        QTest::newRow("As ending") << "ravi@example.as" << "";
        QTest::newRow("two at signs") << "ravi@office@example.com" << "";
        QTest::newRow("six characters") << "a@b.in" << "";
        QTest::newRow("empty") << "" << "<BR>You did not enter an email address!";
        QTest::newRow("no at") << "ravi.example.com"
                               << "<BR>Your email address does not contain an @ sign.";
        QTest::newRow("the whole forbidden run") << "a(){}[]/\\|<>~`!+-?&,*#$%^b@example.com"
                                                 << "<BR>Your email address contain invalid "
                                                    "charector";
        QTest::newRow("at first, before the length") << "@.in" << atFirst;
        QTest::newRow("blank before two points") << "a b@x..com" << blank;
        QTest::newRow("two points") << "ravi@example..com"
                                    << "<BR>Email address contain .. not allowed !";
        QTest::newRow("at last") << "ravi.in@" << "<BR>Your @sign can not be the last "
                                                 "character in your email address!";
        QTest::newRow("unknown ending") << "ravi@example.xyz" << ending;
        QTest::newRow("shorter than 6") << "a@.in" << "<BR>Your email address is shorter than "
                                                    "6 characters which is impossible.";
    }
    void email()
    {
        QFETCH(QString, address);
        QFETCH(QString, error);
        QString emailError = QStringLiteral("left from before");
        QCOMPARE(isValidEmail(address, emailError), error.isEmpty());
        QCOMPARE(emailError, error);
    }

    void blankAndLength()
    {
        const auto failure = [](const QString &text, MessageIcon icon, const QString &title) {
            return FieldFailure{{text, title, icon, MessageButtons::Ok}, QStringLiteral("txtTan")};
        };
        const QString invalid = QStringLiteral("Invalid Entry");
        QVERIFY(!isBlank(QStringLiteral("x"), QStringLiteral("Please enter TAN"), "txtTan"));
        QCOMPARE(isBlank(QStringLiteral("   "), QStringLiteral("Please enter TAN"), "txtTan"),
                 failure(QStringLiteral("Please enter TAN"), MessageIcon::Information, invalid));
        QCOMPARE(isBlank(QString(), QString(), "txtTan"),
                 failure(cannotTakeBlank, MessageIcon::Critical, invalid));

        // Points do not count, a sign does.
        QVERIFY(!checkMaxDigits(QStringLiteral("12345.67"), 7, "txtTan"));
        QVERIFY(!checkMaxDigits(QStringLiteral("1.2.3.4"), 4, "txtTan"));
        QCOMPARE(checkMaxDigits(QStringLiteral("-123456"), 6, "txtTan"),
                 failure(QStringLiteral("Maximum Len allowed = 6"), MessageIcon::Critical,
                         appTitle));
    }

    void depositDate_data()
    {
        testsuite::columns<QDate, QDate, QString, QDate>("date", "challanDate", "text",
                                                         "corrected");
        // The second quarter: 01/07/2024 to 30/09/2024.
        const QDate challan(2024, 8, 20);
        const QString afterChallan =
            QStringLiteral("Date should not be greater than the Challan Date");
        const QString outside = QStringLiteral("Date should be within the Quarter Date");
        QTest::newRow("challan date") << challan << challan << "" << QDate();
        QTest::newRow("first day") << QDate(2024, 7, 1) << challan << "" << QDate();
        QTest::newRow("last day") << QDate(2024, 9, 30) << QDate(2024, 10, 7) << "" << QDate();
        QTest::newRow("after challan and quarter")
            << QDate(2024, 10, 2) << challan << afterChallan << challan;
        QTest::newRow("before quarter") << QDate(2024, 6, 30) << challan << outside
                                        << QDate(2024, 7, 1);
        QTest::newRow("after quarter") << QDate(2024, 10, 1) << QDate(2024, 10, 7) << outside
                                       << QDate(2024, 9, 30);
    }
    void depositDate()
    {
        QFETCH(QDate, date);
        QFETCH(QDate, challanDate);
        QFETCH(QString, text);
        QFETCH(QDate, corrected);
        const QDate from = sessionDate(QStringLiteral("1/7/2024"));
        const QDate to = sessionDate(QStringLiteral("30/09/2024"));
        const auto failure = checkDepositDate(date, challanDate, from, to, "dtp105");
        QCOMPARE(failure.has_value(), !text.isEmpty());
        if (failure) {
            QCOMPARE(*failure, (DateFailure{{{text, appTitle, MessageIcon::Critical}, "dtp105"},
                                            corrected}));
        }
        // The challan's own date has only the lower bound.
        QCOMPARE(checkNotBeforeQuarter(date, from, "dtp119").has_value(), date < from);
        // No quarter chosen: the bound is not checked rather than refusing every date.
        QVERIFY(!checkNotBeforeQuarter(date, sessionDate(QString()), "dtp119"));
    }
};

KELVORA_TEST_OBJECT(TestFieldRules);
#include "test_fieldrules.moc"
