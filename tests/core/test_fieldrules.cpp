#include "core/fieldrules.h"
#include "core/quarter.h"
#include "support/testsuite.h"

#include <optional>
#include <tuple>

using namespace fieldrules;

namespace {

QString dayText(QDate date)
{
    return date.toString(QStringLiteral("dd/MM/yyyy"));
}

/// A date check's outcome as one line of text, so that a table of them shows what differs.
QString described(const std::optional<DateFailure> &failure)
{
    if (!failure)
        return QStringLiteral("accepted");
    const Message &box = failure->failure.message;
    const bool criticalOk =
        box.icon == MessageIcon::Critical && box.buttons == MessageButtons::Ok;
    return QStringLiteral("%1 | %2 | %3 | %4 | set back to %5")
        .arg(box.text, box.title, criticalOk ? "critical" : "another box", failure->failure.field,
             dayText(failure->correctedDate));
}

/// The refusal expected of a date check; none when there is no text.
std::optional<DateFailure> refusal(const QString &text, QDate corrected, const QString &field)
{
    if (text.isEmpty())
        return std::nullopt;
    return DateFailure{{{text, appTitle, MessageIcon::Critical, MessageButtons::Ok}, field},
                       corrected};
}

} // namespace

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

    // The quarters of the year that starts in April 2026 as the quarter routine gives them, and
    // the date checks one day inside and one day outside each bound they set.
    void quarterEdges_data()
    {
        testsuite::columns<int, QString, QString, QString>("index", "code", "first", "last");
        QTest::newRow("Q1") << 0 << "Q1" << "01/04/2026" << "30/06/2026";
        QTest::newRow("Q2") << 1 << "Q2" << "01/07/2026" << "30/09/2026";
        QTest::newRow("Q3") << 2 << "Q3" << "01/10/2026" << "31/12/2026";
        QTest::newRow("Q4") << 3 << "Q4" << "01/01/2027" << "31/03/2027";
    }
    void quarterEdges()
    {
        QFETCH(int, index);
        QFETCH(QString, code);
        QFETCH(QString, first);
        QFETCH(QString, last);
        const quarter::Period period = quarter::forIndex(index, 2026);
        QCOMPARE(QStringList({period.code, period.fromDate, period.toDate}),
                 QStringList({code, first, last}));

        // The checks take their bounds from the session's texts, as the screens do.
        const QDate from = sessionDate(period.fromDate);
        const QDate to = sessionDate(period.toDate);
        const QDate firstDay = sessionDate(first);
        const QDate lastDay = sessionDate(last);
        // The tax of a quarter's last month is deposited in the month after it.
        const QDate laterChallan = lastDay.addDays(7);
        const QDate midQuarter = firstDay.addDays(45);
        const QString outside = QStringLiteral("Date should be within the Quarter Date");
        const QString afterChallan =
            QStringLiteral("Date should not be greater than the Challan Date");
        const QString beforeStart =
            QStringLiteral("Date should not be less than the Quarter Start Date");
        const QList<std::tuple<QDate, QDate, QString, QDate>> deposits = {
            {firstDay, laterChallan, {}, {}},
            {firstDay.addDays(-1), laterChallan, outside, firstDay},
            {lastDay, laterChallan, {}, {}},
            {lastDay.addDays(1), laterChallan, outside, lastDay},
            {midQuarter, midQuarter, {}, {}},
            {midQuarter.addDays(1), midQuarter, afterChallan, midQuarter},
            // Past the challan and the quarter: the challan's refusal comes first.
            {laterChallan.addDays(1), laterChallan, afterChallan, laterChallan},
        };
        QStringList found;
        QStringList expected;
        for (const auto &[date, challan, text, corrected] : deposits) {
            const QString deposit = QStringLiteral("deposit %1: ").arg(dayText(date));
            found << deposit + described(checkDepositDate(date, challan, from, to, "dtp105"));
            expected << deposit + described(refusal(text, corrected, "dtp105"));
        }
        // The challan's own date has only the lower bound.
        const QList<std::pair<QDate, QString>> challanDates = {
            {firstDay, {}}, {firstDay.addDays(-1), beforeStart}, {lastDay.addDays(1), {}}};
        for (const auto &[date, text] : challanDates) {
            const QString challan = QStringLiteral("challan %1: ").arg(dayText(date));
            found << challan + described(checkNotBeforeQuarter(date, from, "dtp119"));
            expected << challan + described(refusal(text, firstDay, "dtp119"));
        }
        QCOMPARE(found, expected);
        // No quarter chosen: the bound is not checked rather than refusing every date.
        QVERIFY(!checkNotBeforeQuarter(firstDay.addDays(-1), sessionDate(QString()), "dtp119"));
    }
};

KELVORA_TEST_OBJECT(TestFieldRules);
#include "test_fieldrules.moc"
