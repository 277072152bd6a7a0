#include "reportsstore.h"

#include "core/formtraits.h"
#include "core/storeaccess.h"
#include "core/storeupgrade.h"
#include "reports/certificatebatch.h"
#include "reports/form16adocument.h"
#include "reports/form16aworktables.h"
#include "reports/inwords.h"
#include "reports/pdfbatch.h"
#include "reports/reportfile.h"
#include "support/testsuite.h"

#include <QDir>
#include <QScopeGuard>
#include <QTextStream>
#include <QtTest>
#include <utility>

#include <sys/mount.h>
#include <sys/stat.h>

namespace {

/// Each certificate of the deductees read in turn: "deductee:name|section|dates|vouchers|total".
QStringList certificates(const Form16AWorkTables &tables, const QList<int> &ids)
{
    QStringList result;
    Form16ACertificateReader reader(tables.certificateRows(1, "Q1", ids, 1),
                                    Form16ACertificateReader::Deductee::ByName);
    int deductee = 0;
    for (QList<Form16ACertificate> next = reader.nextDeductee(); !next.isEmpty();
         next = reader.nextDeductee(), ++deductee) {
        for (const Form16ACertificate &certificate : next) {
            QStringList dates;
            QStringList vouchers;
            for (const Form16APayment &payment : certificate.payments) {
                dates << payment.paymentDate;
                vouchers << payment.voucherNo;
            }
            result << QStringLiteral("%1:%2|%3|%4|%5|%6")
                          .arg(deductee)
                          .arg(certificate.deducteeName, certificate.sectionNo, dates.join(','),
                               vouchers.join(','), certificate.totalTax().toText());
        }
    }
    return result;
}

/// kelvora-certificates on the arguments that follow the program's name; the exit status.
int runBatch(const QStringList &arguments, QString &out, QString &err)
{
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    QString error;
    const std::optional<CertificateBatch::Options> options =
        CertificateBatch::parse(QStringList{"kelvora-certificates"} + arguments, error);
    if (!options) {
        err = error;
        return CertificateBatch::UsageError;
    }
    return CertificateBatch(outStream, errStream).run(*options);
}

/// The reports store with a fourth deductee master of group 1 and a row of it in company 1's
/// first quarter (94C, 60.00 of tax), under the name given to both.
std::unique_ptr<TestStore> storeWithFourthMaster(const QString &name)
{
    auto data = std::make_unique<TestStore>(reportsStore());
    data->store().exec("INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, DeducteeName) "
                       "VALUES (1, 4, 'AAAPQ4444Q', ?)",
                       {name});
    data->store().exec(
        "INSERT INTO TranDeducteeE26 (DeducteeID, BasicIfoID, CompID, AsstID, ChallanId, SrlNo, "
        "Section, DeducteeNo, DeducteeCode, PAN, DeducteeName, AmtOfPayment, PaymentDt, Tax, "
        "Total) VALUES (6, 1, 1, 1, 1, 6, '94C', 4, '02', 'AAAPQ4444Q', ?, 3000, '2026-04-28', "
        "60, 60)",
        {name});
    return data;
}

const Form16AWorkTables &filledTables()
{
    static const Form16AWorkTables tables = [] {
        Form16AWorkTables made(reportsStore().store());
        made.prepare();
        made.fill(formTraits(FormKind::Form26Q));
        return made;
    }();
    return tables;
}

/// Harms the store as @p harm says ("pages overwritten", "cut short" or "newer version") and
/// returns the refusal that the front end gives; anything else is left alone.
QString harmedStore(const TestStore &store, const QString &harm)
{
    const QString path = store.store().path();
    const int newer = storeupgrade::currentVersion + 1;
    if (harm == u"pages overwritten")
        store.overwritePages();
    else if (harm == u"cut short")
        store.cutShort();
    else if (harm == u"newer version")
        store.store().exec(QStringLiteral("PRAGMA user_version = %1").arg(newer));
    else
        return {};
    if (harm != u"newer version")
        return QStringLiteral("kelvora-certificates: ") + storeaccess::damagedText.arg(path);
    return QStringLiteral("kelvora-certificates: ")
           + storeaccess::newerText.arg(path).arg(newer).arg(storeupgrade::currentVersion);
}

} // namespace

class TestForm16A : public QObject
{
    Q_OBJECT

private slots:
    void inWords_data();
    void inWords();
    void workTables_data();
    void workTables();
    void certificateAsPdf();
    void frontEnd_data();
    void frontEnd();
    void fileOfEachMaster_data();
    void fileOfEachMaster();
    void refusedTargets_data();
    void refusedTargets();
};

void TestForm16A::inWords_data()
{
    testsuite::columns<double, QString>("stored", "words");
    QTest::newRow("thousands") << 5000.0 << "Five Thousand  only.";
    QTest::newRow("hundreds and paise")
        << 125.75 << "One Hundred Twenty Five  and Seventy Five paise only.";
    QTest::newRow("a lakh, not made singular") << 100000.0 << "One Lakhs  only.";
    QTest::newRow("a crore and paise") << 10000000.50 << "One Crores  and Fifty paise only.";
    QTest::newRow("paise alone") << 0.50 << " and Fifty paise only.";
    QTest::newRow("zero") << 0.0 << "Zero only";
    QTest::newRow("99") << 99.0 << "Ninety Nine  only.";
    // Every word of the units, the teens and the tens, each alone.
    const QList<std::pair<int, const char *>> words = {
        {1, "One"}, {2, "Two"}, {3, "Three"}, {4, "Four"}, {5, "Five"},
        {6, "Six"}, {7, "Seven"}, {8, "Eight"}, {9, "Nine"},
        {11, "Eleven"}, {12, "Twelve"}, {13, "Thirteen"}, {14, "Fourteen"}, {15, "Fifteen"},
        {16, "Sixteen"}, {17, "Seventeen"}, {18, "Eighteen"}, {19, "Nineteen"},
        {10, "Ten"}, {20, "Twenty"}, {30, "Thirty"}, {40, "Forty"}, {50, "Fifty"},
        {60, "Sixty"}, {70, "Seventy"}, {80, "Eighty"}, {90, "Ninety"}};
    for (const auto &[number, word] : words)
        QTest::addRow("%d", number) << double(number) << QString::fromLatin1(word) + "  only.";
    QTest::newRow("teens in every group")
        << 131415016.17
        << "Thirteen Crores Fourteen Lakhs Fifteen Thousand Sixteen  and Seventeen paise only.";
    QTest::newRow("other teens in every group")
        << 181912319.18
        << "Eighteen Crores Nineteen Lakhs Twelve Thousand Three Hundred Nineteen  and Eighteen "
           "paise only.";
    QTest::newRow("nine digits")
        << 999999999.99
        << "Ninety Nine Crores Ninety Nine Lakhs Ninety Nine Thousand Nine Hundred Ninety Nine  "
           "and Ninety Nine paise only.";
    QTest::newRow("ten digits lose the last")
        << 1234567890.12
        << "Twelve Crores Thirty Four Lakhs Fifty Six Thousand Seven Hundred Eighty Nine  and "
           "Twelve paise only.";
    QTest::newRow("more decimals round first") << 2.675 << "Two  and Sixty Eight paise only.";
}

void TestForm16A::inWords()
{
    QFETCH(double, stored);
    QFETCH(QString, words);
    QCOMPARE(inwords::certificateWords(Money::fromStored(stored)), words);
}

void TestForm16A::workTables_data()
{
    testsuite::columns<QList<int>, QStringList, QStringList>("ids", "words", "certificates");
    const QStringList zubinWords = {
        "ZUBIN MEHTA|94C|Two Thousand Five Hundred Fifteen  only.",
        "ZUBIN MEHTA|94J|Five Thousand  and Twenty Five paise only."};
    QTest::newRow("one deductee under two sections, its own quarter and sections")
        << QList<int>{1} << zubinWords
        << QStringList{"0:ZUBIN MEHTA|94C|10/04/2026,20/04/2026|00011,00011|2515.00",
                       "0:ZUBIN MEHTA|94J|15/05/2026|987654321|5000.25"};
    QTest::newRow("two deductees by name")
        << QList<int>{1, 2} << QStringList{trickyName + "|94C|Two Hundred  only."} + zubinWords
        << QStringList{"0:" + trickyName + "|94C|25/04/2026|00011|200.00",
                       "1:ZUBIN MEHTA|94C|10/04/2026,20/04/2026|00011,00011|2515.00",
                       "1:ZUBIN MEHTA|94J|15/05/2026|987654321|5000.25"};
    QTest::newRow("another company's deductee") << QList<int>{3} << QStringList()
                                                << QStringList();
    QTest::newRow("nothing ticked empties the words") << QList<int>() << QStringList()
                                                      << QStringList();
}

void TestForm16A::workTables()
{
    QFETCH(QList<int>, ids);
    QFETCH(QStringList, words);
    QFETCH(QStringList, certificates);
    const Form16AWorkTables &tables = filledTables();
    QCOMPARE(tables.deductees(1, "Q1"),
             (QList<Form16AWorkTables::Deductee>{{2, trickyName}, {1, "ZUBIN MEHTA"}}));

    QCOMPARE(tables.fillWords(1, "Q1", ids), words.size());
    QStringList stored;
    QSqlQuery query = reportsStore().store().exec(
        "SELECT DeducteeName, DeducteeSectionNo, InWords FROM Temp_DeducteeSection "
        "ORDER BY DeducteeName, DeducteeSectionNo");
    while (query.next()) {
        stored << QStringList{query.value(0).toString(), query.value(1).toString(),
                              query.value(2).toString()}
                      .join('|');
    }
    QCOMPARE(stored, words);
    QCOMPARE(::certificates(tables, ids), certificates);
}

void TestForm16A::certificateAsPdf()
{
    if (!canReadPdf())
        QSKIP("pdftotext (poppler-utils) is not installed");
    const Form16AWorkTables &tables = filledTables();
    tables.fillWords(1, "Q1", {1, 2});
    Form16ACertificateReader reader(tables.certificateRows(1, "Q1", {1, 2}, 1),
                                    Form16ACertificateReader::Deductee::ByName);
    const Form16AHeading heading{form16APeriod("Q1", "2026"),
                                 {"ACK-77", "KOLKATA", "15/07/2026", "RAVI KUMAR", "DIRECTOR",
                                  "NIL"}};
    // The two deductees drawn together and cut apart, as the files of a batch are.
    QList<std::shared_ptr<const Report>> reports;
    for (QList<Form16ACertificate> next = reader.nextDeductee(); !next.isEmpty();
         next = reader.nextDeductee())
        reports << std::make_shared<const Report>(form16adocument::build(next, heading));
    QCOMPARE(reports.size(), 2);
    QVERIFY(reports[1]->text().contains("(Rupees Two Thousand Five Hundred Fifteen  only.)"));
    QString error;
    const std::optional<QList<QByteArray>> files = pdfbatch::separatePdfs(reports, &error);
    QVERIFY2(files && files->size() == 2, qPrintable(error));

    QTemporaryDir folder;
    QStringList texts;
    for (const QByteArray &bytes : *files) {
        const QString pdf = folder.filePath(QString::number(texts.size()) + ".pdf");
        QCOMPARE(reportfile::writeWhole(pdf, bytes), QString());
        texts << pdfText(pdf);
    }
    QCOMPARE(texts[0].count('\f'), 1);
    QVERIFY(texts[0].contains(trickyName) && !texts[0].contains("ZUBIN"));
    QCOMPARE(texts[1].count('\f'), 2);
    QVERIFY(!texts[1].contains("O'Brien"));
    expectInOrder(texts[1].simplified(),
                  {"FORM NO. 16A", "From 01/04/2026 To 30/06/2026", "ZETA TRADERS",
                   "ZUBIN MEHTA", "1 ZETA HOUSE", "ZETA TOWER", "MG ROAD", "BOWBAZAR",
                   "CALZ12345A", "AAAPZ1111Z", "ACK-77", "94C",
                   "Payments to contractors", "25,000.00", "10/04/2026", "515.00", "1,00,000.00",
                   "2,000.00", "Total 1,25,000.00", "2,515.00",
                   "Rs. 2,515.00 (Rupees Two Thousand Five Hundred Fifteen only.)", "NIL",
                   "KOLKATA", "RAVI KUMAR", "DIRECTOR", "94J", "987654321", "5,000.25",
                   "Five Thousand and Twenty Five paise only."});
}

// A file is one deductee master's, read by its id: two masters of one name (in any case) get
// a file each with their own rows once, and a name with an outer blank or line break, which
// the words of the print lose, still gets its certificate.
void TestForm16A::fileOfEachMaster_data()
{
    testsuite::columns<QString, QStringList>("name", "lines");
    const QString obrien = "AAAPA2222A_O_Brien_Sons.pdf\t1 certificate\t200.00";
    const QString zubin = "AAAPZ1111Z_ZUBIN_MEHTA.pdf\t2 certificates\t7,515.25";
    QTest::newRow("two masters of one name")
        << "ZUBIN MEHTA"
        << QStringList{obrien, zubin, "AAAPQ4444Q_ZUBIN_MEHTA.pdf\t1 certificate\t60.00"};
    QTest::newRow("names differing in case")
        << "Zubin Mehta"
        << QStringList{obrien, zubin, "AAAPQ4444Q_Zubin_Mehta.pdf\t1 certificate\t60.00"};
    const QString asha = "AAAPQ4444Q_ASHA_RAO.pdf\t1 certificate\t60.00";
    QTest::newRow("an outer blank") << " ASHA RAO " << QStringList{asha, obrien, zubin};
    QTest::newRow("a line break") << "ASHA RAO\n" << QStringList{asha, obrien, zubin};
}

void TestForm16A::fileOfEachMaster()
{
    QFETCH(QString, name);
    QFETCH(QStringList, lines);
    const std::unique_ptr<TestStore> data = storeWithFourthMaster(name);
    QTemporaryDir folder;
    QString out;
    QString err;
    QCOMPARE(runBatch({"--store", data->store().path(), "--output", folder.path(), "--form",
                       "26Q", "--quarter", "Q1", "--company", "1"},
                      out, err),
             0);
    QCOMPARE(out, lines.replaceInStrings(QRegularExpression("^"), folder.path() + '/')
                          .join('\n')
                      + "\n3 files written\n");
    if (!canReadPdf())
        QSKIP("pdftotext (poppler-utils) is not installed");
    const QString fourth = pdfText(lines.filter("AAAPQ4444Q").value(0).section('\t', 0, 0));
    QVERIFY(!fourth.contains("AAAPZ1111Z") && !fourth.contains("10/04/2026"));
    expectInOrder(fourth.simplified(), {"AAAPQ4444Q", "28/04/2026", "Rupees Sixty only."});
    const QString first = pdfText(folder.filePath("AAAPZ1111Z_ZUBIN_MEHTA.pdf"));
    QVERIFY(!first.contains("AAAPQ4444Q") && !first.contains("28/04/2026"));
    QCOMPARE(first.count("20/04/2026"), 1);
}

// A name of the folder that holds anything but a plain file is refused and left as it is; a
// full disk is told in words. Either way the run stops with one line on the error stream.
void TestForm16A::refusedTargets_data()
{
    testsuite::columns<QString, QString>("placed", "reason");
    const QString notPlain = "that name is not a plain file, and it is left as it is";
    QTest::newRow("a pipe") << "fifo" << notPlain;
    QTest::newRow("a link to a file") << "link" << notPlain;
    QTest::newRow("a link to nothing") << "dangling" << notPlain;
    QTest::newRow("a full disk") << "full" << "No space left on device";
}

void TestForm16A::refusedTargets()
{
    QFETCH(QString, placed);
    QFETCH(QString, reason);
    QTemporaryDir folder;
    const QString output = folder.filePath("certificates");
    QVERIFY(QDir().mkdir(output));
    const QString target = output + "/AAAPA2222A_O_Brien_Sons.pdf";
    const QString linked = folder.filePath("linked.txt");
    const QByteArray native = output.toLocal8Bit();
    bool mounted = false;
    if (placed == u"fifo") {
        QCOMPARE(mkfifo(target.toLocal8Bit(), 0666), 0);
    } else if (placed == u"full") {
        // A file system of a few pages, for a disk that fills up.
        mounted = mount("tmpfs", native, "tmpfs", 0, "size=16k") == 0;
        if (!mounted)
            QSKIP("a full disk needs a small file system, which only root may mount");
    } else {
        if (placed == u"link") {
            QFile file(linked);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("kept") == 4);
        }
        QVERIFY(QFile::link(linked, target));
    }
    const auto unmount = qScopeGuard([&] {
        if (mounted)
            umount2(native, MNT_DETACH);
    });

    QString out;
    QString err;
    QCOMPARE(runBatch({"--store", reportsStore().store().path(), "--output", output, "--form",
                       "26Q", "--quarter", "Q1", "--company", "1"},
                      out, err),
             3);
    QCOMPARE(out, QString());
    QCOMPARE(err, QStringLiteral("kelvora-certificates: The report could not be saved as %1: %2\n")
                      .arg(target, reason));
    const QFileInfo left(target);
    QCOMPARE(left.isSymLink(), placed == u"link" || placed == u"dangling");
    if (placed == u"fifo")
        QVERIFY(!left.isFile() && left.exists());
    QCOMPARE(QFile::exists(linked), placed == u"link");
    if (placed == u"link") {
        QFile file(linked);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "kept");
    }
}


void TestForm16A::frontEnd_data()
{
    testsuite::columns<QStringList, int, QStringList>("arguments", "status", "files");
    const QStringList company1{"--form", "26Q", "--quarter", "Q1", "--company", "1"};
    const QStringList zubin{"AAAPZ1111Z_ZUBIN_MEHTA.pdf"};
    QTest::newRow("every deductee, a file each")
        << company1 << 0 << QStringList{"AAAPA2222A_O_Brien_Sons.pdf", zubin.first()};
    QTest::newRow("company by TAN, deductee by PAN")
        << QStringList{"--form", "26q", "--quarter", "q1", "--company", "CALZ12345A",
                       "--deductee", "AAAPZ1111Z"}
        << 0 << zubin;
    QTest::newRow("deductee by name in any case")
        << company1 + QStringList{"--deductee", "zubin mehta"} << 0 << zubin;
    QTest::newRow("unknown deductee") << company1 + QStringList{"--deductee", "NOBODY"} << 1
                                      << QStringList();
    QTest::newRow("a quarter without rows")
        << QStringList{"--form", "26Q", "--quarter", "Q3", "--company", "1"} << 1
        << QStringList();
    QTest::newRow("unknown company")
        << QStringList{"--form", "26Q", "--quarter", "Q1", "--company", "99"} << 1
        << QStringList();
    QTest::newRow("24Q has no certificates")
        << QStringList{"--form", "24Q", "--quarter", "Q1", "--company", "1"} << 2
        << QStringList();
    QTest::newRow("no quarter") << QStringList{"--form", "26Q", "--company", "1"} << 2
                                << QStringList();
    QTest::newRow("a wait that is no number") << company1 + QStringList{"--wait", "soon"} << 2
                                              << QStringList();
    QTest::newRow("no such store") << company1 + QStringList{"--store", "/nonexistent/K.db"} << 3
                                   << QStringList();
    QTest::newRow("output is a file") << company1 + QStringList{"--output", "FILE"} << 3
                                      << QStringList();
    // A store harmed as harmedStore() says: refused before anything is written.
    for (const char *harm : {"pages overwritten", "cut short", "newer version"}) {
        QTest::addRow("store %s", harm)
            << company1 + QStringList{"--store", harm} << 3 << QStringList();
    }
}

void TestForm16A::frontEnd()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QStringList, files);
    QTemporaryDir folder;
    const QString output = folder.filePath("certificates");
    QFile file(folder.filePath("a file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    arguments.replaceInStrings(QRegularExpression("^FILE$"), file.fileName());
    const TestStore harmed(reportsStore());
    const QString harm = arguments.value(arguments.lastIndexOf("--store") + 1);
    const QString refusal = harmedStore(harmed, harm);
    const QByteArray harmedBytes = contentsOf(harmed.store().path());
    if (!refusal.isEmpty())
        arguments.replaceInStrings(QRegularExpression("^" + harm + "$"), harmed.store().path());
    // The last of an option given twice counts: the cases' own store and folder win.
    arguments = QStringList{"kelvora-certificates", "--store", reportsStore().store().path(),
                            "--output", output}
                + arguments;

    QString out;
    QString err;
    QTextStream outStream(&out);
    QTextStream errStream(&err);
    QString error;
    const std::optional<CertificateBatch::Options> options =
        CertificateBatch::parse(arguments, error);
    const int result = options ? CertificateBatch(outStream, errStream).run(*options)
                               : int(CertificateBatch::UsageError);
    QCOMPARE(result, status);
    QCOMPARE(QDir(output).entryList(QDir::Files, QDir::Name), files);
    // Nothing to certify makes no folder; a file in the folder's place is named with why.
    QCOMPARE(QFileInfo::exists(output), !files.isEmpty());
    if (arguments.contains(file.fileName())) {
        QCOMPARE(err, "kelvora-certificates: The folder " + file.fileName()
                          + " could not be made: Not a directory.\n");
    }
    if (status == 0) {
        QVERIFY2(err.isEmpty(), qPrintable(err));
        QCOMPARE(out.count('\n'), files.size() + 1);
        QVERIFY(out.endsWith(QStringLiteral("%1 file%2 written\n")
                                 .arg(files.size())
                                 .arg(files.size() == 1 ? "" : "s")));
    } else {
        QVERIFY(options ? !err.isEmpty() : !error.isEmpty());
    }
    if (!refusal.isEmpty()) {
        QCOMPARE(err, refusal + u'\n');
        QVERIFY(contentsOf(harmed.store().path()) == harmedBytes);
    }
}

KELVORA_TEST_OBJECT(TestForm16A);

#include "test_form16a.moc"
