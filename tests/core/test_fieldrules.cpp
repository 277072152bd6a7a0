#include "core/fieldrules.h"

#include <QTest>

using namespace fieldrules;

namespace {

const QString challanDateText = QStringLiteral("Date should not be greater than the Challan Date");
const QString withinQuarterText = QStringLiteral("Date should be within the Quarter Date");
const QString quarterStartText =
    QStringLiteral("Date should not be less than the Quarter Start Date");

const QString invalidEnding =
    QStringLiteral("<BR>Your email address is not carrying a valid ending!"
                   "<BR>It must be one of the following..."
                   "<BR>.com, .net, .gov, .org, .edu, .biz, .tv Or included country's assigned "
                   "country code");

} // namespace

class TestFieldRules : public QObject
{
    Q_OBJECT

private slots:
    void keyCodes_data();
    void keyCodes();
    void codeFilters_data();
    void codeFilters();
    void pan_data();
    void pan();
    void email_data();
    void email();
    void endings_data();
    void endings();
    void blank_data();
    void blank();
    void maxDigits_data();
    void maxDigits();
    void dateChecks_data();
    void dateChecks();
    void sessionDates();
};

void TestFieldRules::keyCodes_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("upper");
    QTest::addColumn<int>("alnum");

    QTest::newRow("a") << int('a') << int('A') << int('A');
    QTest::newRow("left brace turns bracket") << int('{') << int('[') << int('[');
    QTest::newRow("backquote stays") << int('`') << int('`') << 0;
    QTest::newRow("left bracket") << int('[') << int('[') << int('[');
    QTest::newRow("digit") << int('7') << int('7') << int('7');
    QTest::newRow("minus") << int('-') << int('-') << int('-');
    QTest::newRow("point") << int('.') << int('.') << 0;
    QTest::newRow("backspace") << 8 << 8 << 8;
    QTest::newRow("enter") << 13 << 13 << 13;
    QTest::newRow("outside ascii") << 0xe9 << 0xe9 << 0;
}

void TestFieldRules::keyCodes()
{
    QFETCH(int, key);
    QFETCH(int, upper);
    QFETCH(int, alnum);

    QCOMPARE(toUpperKey(key), upper);
    QCOMPARE(alnumKeyFilter(key), alnum);
}

void TestFieldRules::codeFilters_data()
{
    QTest::addColumn<int>("caret");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("pan");
    QTest::addColumn<bool>("tan");

    QTest::newRow("letter at 0") << 0 << int('A') << true << true;
    QTest::newRow("digit at 0") << 0 << int('1') << false << false;
    QTest::newRow("letter at 4") << 4 << int('Z') << true << false;
    QTest::newRow("digit at 4") << 4 << int('5') << false << true;
    QTest::newRow("digit at 5") << 5 << int('0') << true << true;
    QTest::newRow("letter at 9") << 9 << int('F') << true << true;
    QTest::newRow("digit at 9") << 9 << int('9') << false << false;
    QTest::newRow("letter at 10") << 10 << int('F') << false << false;
    QTest::newRow("underscore counts as letter") << 2 << int('_') << true << true;
    QTest::newRow("lower z is the bound") << 0 << 122 << true << true;
    QTest::newRow("left brace beyond") << 0 << 123 << false << false;
    QTest::newRow("at sign below") << 0 << int('@') << false << false;
    QTest::newRow("backspace at 6") << 6 << 8 << true << true;
    QTest::newRow("backspace far out") << 25 << 8 << true << true;
    QTest::newRow("enter") << 3 << 13 << false << false;
}

void TestFieldRules::codeFilters()
{
    QFETCH(int, caret);
    QFETCH(int, key);
    QFETCH(bool, pan);
    QFETCH(bool, tan);

    QCOMPARE(panKeyFilter(caret, key), pan);
    QCOMPARE(tanKeyFilter(caret, key), tan);
}

void TestFieldRules::pan_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");

    QTest::newRow("pattern") << "ABCDE1234F" << true;
    QTest::newRow("blank") << "" << true;
    QTest::newRow("nine characters") << "ABCDE1234" << false;
    QTest::newRow("digit among letters") << "ABCD11234F" << false;
    QTest::newRow("letter among digits") << "ABCDE12X4F" << false;
    QTest::newRow("rest not examined") << "ABCDE1234F99@" << true;
    QTest::newRow("trailing blank") << "ABCDE1234F " << true;
    QTest::newRow("leading blank") << " ABCDE1234F" << false;
    QTest::newRow("placeholder word") << "PANNOTAVBL" << false;
    QTest::newRow("bracket is no capital") << "ABCD[1234F" << false;
}

void TestFieldRules::pan()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);

    QCOMPARE(isValidPan(text), valid);
}

void TestFieldRules::email_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("error");

    QTest::newRow("plain") << "ravi@example.com" << "";
    QTest::newRow("country ending") << "ravi@example.co.in" << "";
    QTest::newRow("CO ending") << "ravi@example.CO" << "";
    QTest::newRow("prefix of an entry") << "ravi@example.c" << "";
    QTest::newRow("As ending") << "ravi@example.as" << "";
    QTest::newRow("two at signs") << "ravi@office@example.com" << "";
    QTest::newRow("one odd character") << "ravi#1@example.com" << "";
    QTest::newRow("empty") << "" << "<BR>You did not enter an email address!";
    QTest::newRow("no at") << "ravi.example.com"
                           << "<BR>Your email address does not contain an @ sign.";
    QTest::newRow("whole run") << "a(){}[]/\\|<>~`!+-?&,*#$%^b@example.com"
                               << "<BR>Your email address contain invalid charector";
    QTest::newRow("at first") << "@example.com"
                              << "<BR>Your @ sign can not be the first character in your "
                                 "email address!";
    QTest::newRow("blank") << "ravi kumar@example.com"
                           << "<BR>Email address cannot contain spaces!";
    QTest::newRow("two points") << "ravi@example..com"
                                << "<BR>Email address contain .. not allowed !";
    QTest::newRow("at last") << "ravi.in@"
                             << "<BR>Your @sign can not be the last character in your email "
                                "address!";
    QTest::newRow("unknown ending") << "ravi@example.xyz" << invalidEnding;
    QTest::newRow("no point at all") << "ravi@example" << invalidEnding;
    QTest::newRow("six characters") << "a@b.in" << "";
    QTest::newRow("at first before length")
        << "@.in" << "<BR>Your @ sign can not be the first character in your email address!";
    QTest::newRow("shorter than 6") << "a@.in"
                                    << "<BR>Your email address is shorter than 6 characters "
                                       "which is impossible.";
    QTest::newRow("blank before points") << "a b@x..com"
                                         << "<BR>Email address cannot contain spaces!";
}

void TestFieldRules::email()
{
    QFETCH(QString, address);
    QFETCH(QString, error);

    QString emailError = QStringLiteral("left from before");
    QCOMPARE(isValidEmail(address, emailError), error.isEmpty());
    QCOMPARE(emailError, error);
}

void TestFieldRules::endings_data()
{
    QTest::addColumn<QString>("segment");
    QTest::addColumn<bool>("valid");

    QTest::newRow("com") << "com" << true;
    QTest::newRow("with point") << ".Net" << true;
    QTest::newRow("As") << "AS" << true;
    QTest::newRow("prefix") << "C" << true;
    QTest::newRow("across two entries") << "COM.EDU" << true;
    QTest::newRow("empty") << "" << true;
    QTest::newRow("unknown") << "xyz" << false;
    QTest::newRow("inside an entry") << "OMX" << false;
}

void TestFieldRules::endings()
{
    QFETCH(QString, segment);
    QFETCH(bool, valid);

    QCOMPARE(hasValidEnding(segment), valid);
}

void TestFieldRules::blank_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("icon");

    const int none = -1;
    const int information = int(MessageIcon::Information);
    const int critical = int(MessageIcon::Critical);
    QTest::newRow("filled") << "x" << "Please enter TAN" << "" << none;
    QTest::newRow("empty") << "" << "Please enter TAN" << "Please enter TAN" << information;
    QTest::newRow("blanks") << "   " << "Enter Designation" << "Enter Designation" << information;
    QTest::newRow("no message") << "" << "" << "Cannot take blank value" << critical;
}

void TestFieldRules::blank()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    QFETCH(QString, shown);
    QFETCH(int, icon);

    const std::optional<FieldFailure> failure = isBlank(text, message, QStringLiteral("txtTan"));
    QCOMPARE(failure.has_value(), icon >= 0);
    if (failure) {
        const FieldFailure expected{{shown, QStringLiteral("Invalid Entry"),
                                     MessageIcon(icon), MessageButtons::Ok},
                                    QStringLiteral("txtTan")};
        QCOMPARE(*failure, expected);
    }
}

void TestFieldRules::maxDigits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("warns");

    QTest::newRow("point does not count") << "12345.67" << 7 << false;
    QTest::newRow("one too many") << "12345.678" << 7 << true;
    QTest::newRow("every point dropped") << "1.2.3.4" << 4 << false;
    QTest::newRow("longer") << "12345678" << 7 << true;
    QTest::newRow("sign counts") << "-123456" << 6 << true;
}

void TestFieldRules::maxDigits()
{
    QFETCH(QString, text);
    QFETCH(int, maximum);
    QFETCH(bool, warns);

    const std::optional<FieldFailure> warning =
        checkMaxDigits(text, maximum, QStringLiteral("txt104"));
    QCOMPARE(warning.has_value(), warns);
    if (warning) {
        const FieldFailure expected{{QStringLiteral("Maximum Len allowed = ")
                                         + QString::number(maximum),
                                     appTitle, MessageIcon::Critical, MessageButtons::Ok},
                                    QStringLiteral("txt104")};
        QCOMPARE(*warning, expected);
    }
}

void TestFieldRules::dateChecks_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QDate>("challanDate");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("corrected");

    // The second quarter: 01/07/2024 to 30/09/2024.
    const QDate challan(2024, 8, 20);
    QTest::newRow("challan date") << challan << challan << "" << QDate();
    QTest::newRow("first day") << QDate(2024, 7, 1) << challan << "" << QDate();
    QTest::newRow("last day") << QDate(2024, 9, 30) << QDate(2024, 10, 7) << "" << QDate();
    QTest::newRow("after challan") << QDate(2024, 8, 21) << challan << challanDateText << challan;
    QTest::newRow("after challan and quarter")
        << QDate(2024, 10, 2) << challan << challanDateText << challan;
    QTest::newRow("before quarter")
        << QDate(2024, 6, 30) << challan << withinQuarterText << QDate(2024, 7, 1);
    QTest::newRow("challan also before quarter")
        << QDate(2024, 6, 1) << QDate(2024, 6, 15) << withinQuarterText << QDate(2024, 7, 1);
    QTest::newRow("after quarter")
        << QDate(2024, 10, 1) << QDate(2024, 10, 7) << withinQuarterText << QDate(2024, 9, 30);
}

void TestFieldRules::dateChecks()
{
    QFETCH(QDate, date);
    QFETCH(QDate, challanDate);
    QFETCH(QString, text);
    QFETCH(QDate, corrected);

    const std::optional<DateFailure> failure =
        checkDepositDate(date, challanDate, QDate(2024, 7, 1), QDate(2024, 9, 30),
                         QStringLiteral("dtp105"));
    QCOMPARE(failure.has_value(), !text.isEmpty());
    if (failure) {
        const DateFailure expected{
            {{text, appTitle, MessageIcon::Critical, MessageButtons::Ok},
             QStringLiteral("dtp105")},
            corrected};
        QCOMPARE(*failure, expected);
    }

    // The challan's own check has only the lower bound.
    const std::optional<DateFailure> notBefore =
        checkNotBeforeQuarter(date, QDate(2024, 7, 1), QStringLiteral("dtp119"));
    QCOMPARE(notBefore.has_value(), date < QDate(2024, 7, 1));
    if (notBefore) {
        QCOMPARE(notBefore->failure.message.text, quarterStartText);
        QCOMPARE(notBefore->failure.message.icon, MessageIcon::Critical);
        QCOMPARE(notBefore->correctedDate, QDate(2024, 7, 1));
    }
}

void TestFieldRules::sessionDates()
{
    QCOMPARE(sessionDate(QStringLiteral("01/04/2024")), QDate(2024, 4, 1));
    QCOMPARE(sessionDate(QStringLiteral("31/3/2025")), QDate(2025, 3, 31));
    QVERIFY(!sessionDate(QString()).isValid());
    // No quarter chosen: the bound is not checked rather than refusing every date.
    QVERIFY(!checkNotBeforeQuarter(QDate(2024, 5, 1), sessionDate(QString()), QString()));
}

QTEST_APPLESS_MAIN(TestFieldRules)
#include "test_fieldrules.moc"
