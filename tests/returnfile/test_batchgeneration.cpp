#include "core/storeaccess.h"
#include "core/storelock.h"
#include "core/storeupgrade.h"
#include "generationstore.h"
#include "support/testsuite.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

using namespace generationrows;

namespace {

/// A good 26Q Statement, in which the pre-filing check finds nothing in Q2: two challans,
/// seven rows at 10%, 1003.00 deposited.
void addGoodStatement(const TestStore &data, int basicInfoId, int compId, const QString &quarter)
{
    addStatement(data, FormKind::Form26Q, basicInfoId, compId, quarter, 2, 7);
    const int challan = basicInfoId * 10;
    addChallan(data, FormKind::Form26Q, challan + 1, basicInfoId, compId, 1, 601.50);
    addChallan(data, FormKind::Form26Q, challan + 2, basicInfoId, compId, 2, 401.50);
    for (int row = 1; row <= 7; ++row) {
        addAnnexureRow(data, FormKind::Form26Q, basicInfoId * 100 + row, basicInfoId,
                       challan + (row <= 3 ? 1 : 2), row, 1000, 100);
    }
}

/// A 26Q Statement of one challan and one row, as the check finds it.
void addOneRowStatement(const TestStore &data, int basicInfoId, int compId, double tax)
{
    addStatement(data, FormKind::Form26Q, basicInfoId, compId, QStringLiteral("Q2"), 1, 1);
    addChallan(data, FormKind::Form26Q, basicInfoId * 10, basicInfoId, compId, 1, tax);
    addAnnexureRow(data, FormKind::Form26Q, basicInfoId * 100, basicInfoId, basicInfoId * 10, 1,
                   tax * 10, tax);
}

} // namespace

// The batch front end as an office runs it, in a process of its own.
class TestBatchGeneration : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_data.insert("mstGroup", {{"GroupID", 3}, {"GroupName", "SOUTH GROUP"}});
        m_data.insert("mstCompany", {"AsstID", "GroupID", "CompID", "CompName", "TanNO",
                                     "FilePrefix", "DStatus"},
                      {{1, 3, 11, "KAVERI TEXTILES LTD", "BLRK01234E", "KAV", "K"},
                       {1, 3, 12, "NILGIRI TEA CO", "CHEN05678E", "NIL", "K"},
                       {1, 3, 13, "APPLIED ONE", "TANAPPLIED", "AP1", "K"},
                       {1, 3, 14, "APPLIED TWO", "TANAPPLIED", "AP2", "K"}});
        addGoodStatement(m_data, 5, 11, QStringLiteral("Q2"));
        // Declares three rows and holds one: the deductee-count check refuses it.
        addStatement(m_data, FormKind::Form26Q, 6, 12, QStringLiteral("Q2"), 1, 3);
        addChallan(m_data, FormKind::Form26Q, 61, 6, 12, 1, 10);
        addAnnexureRow(m_data, FormKind::Form26Q, 601, 6, 61, 1, 100, 10);
        // A 24Q Statement of the same company and quarter is another form's.
        addStatement(m_data, FormKind::Form24Q, 7, 11, QStringLiteral("Q2"), 0, 0);
        // Deposited on 8 August, a day late: interest for July and August at 1.5%.
        addOneRowStatement(m_data, 8, 13, 10000);
        m_data.store().exec("UPDATE TranChallanE26 SET DtTrVoucher = '2026-08-08' "
                            "WHERE BasicIfoID = 8");
        // A PAN that the authority never allots: an error of the pre-filing check alone.
        addOneRowStatement(m_data, 9, 14, 1000);
        m_data.store().exec("UPDATE TranDeducteeE26 SET PAN = 'AAAPZ0000Z' WHERE BasicIfoID = 9");
        m_data.store().exec("UPDATE TranDeducteeE26 SET Rate = 10");
    }

    void runs_data()
    {
        // out: lines joined by "|", DIR for the store's folder; err: a part of the error stream;
        // lock: one of leftLocks(), beside the store before the run
        testsuite::columns<QString, int, QString, QString, QString>("arguments", "exitCode",
                                                                   "out", "err", "lock");
        const QString written = "DIR/eReturns/KAV26QQ2.txt\tchallans 2\tdeductee rows 7\t"
                                "deposited 1003.00";
        const QString refused = "refused\tNILGIRI TEA CO (company 12, TAN CHEN05678E)\tYou have "
                                "specified to enter 3 deductee record(s), but have entered only "
                                "1 record(s).";
        const QString writtenAP1 = "DIR/eReturns/AP126QQ2.txt\tchallans 1\tdeductee rows 1\t"
                                   "deposited 10000.00";
        const QString writtenAP2 = "DIR/eReturns/AP226QQ2.txt\tchallans 1\tdeductee rows 1\t"
                                   "deposited 1000.00";
        // The pre-filing check's lines
        const QString company = "company\t%1 (company %2, TAN %3)";
        const QString rowCount = "error\tstatement\tNoDeductee\tThe number of deductee rows "
                                 "declared is 3 and the Statement holds 1; the two are the same.";
        const QString zeroPan = "error\tchallan 1 row 1\tPAN\tThe PAN AAAPZ0000Z has 0000 for "
                                "its digits; a PAN's digits are never all zero.";
        const QString interest = "warning\tchallan 1\tInterest\tInterest under section "
                                 "201(1A) of 300.00 is due on this challan and its interest "
                                 "holds 0.00; the interest is paid before filing.|"
                                 "interest 201(1A)\tchallan 1\t300.00";
        const QString noFee = "late fee 234E\t0.00";
        const QString oneError = "APPLIED TWO (company 14, TAN TANAPPLIED)\tThe pre-filing "
                                 "check found 1 error(s), which the authority's validation "
                                 "rejects; --check lists them\n";
        const auto row = [](const char *name, const char *arguments, int exitCode,
                            const QString &out, const QString &err = {},
                            const QString &lock = {}) {
            QTest::newRow(name) << QString::fromLatin1(arguments) << exitCode << out << err
                                << lock;
        };
        row("company by TAN", "--form 26q --quarter q2 --company blrk01234e", 0, written);
        row("output chosen", "--form 26Q --quarter Q2 --company 11 --output DIR/k2.txt", 0,
            "DIR/k2.txt\tchallans 2\tdeductee rows 7\tdeposited 1003.00");
        row("refused", "--form 26Q --quarter Q2 --company 12", 1, "", refused);
        row("no saved Statement", "--form 27Q --quarter Q2 --company 11", 1, "",
            "refused\tKAVERI TEXTILES LTD (company 11, TAN BLRK01234E)\tYou need to save the "
            "Form before generating the Kelvora file\n");
        row("all of a quarter", "--form 26Q --quarter Q2 --all", 1,
            written + "|" + writtenAP1 + "|" + writtenAP2 + "|generated 3, refused 1, failed 0",
            refused);
        row("an empty quarter", "--form 26Q --quarter Q3 --all", 0,
            "generated 0, refused 0, failed 0");
        row("unknown form", "--form 28Q --quarter Q2 --all", 2, "", "--form must be");
        row("company and all", "--form 26Q --quarter Q2 --company 11 --all", 2, "",
            "either --company or --all");
        row("unknown company", "--form 26q --quarter q2 --company 99", 2, "",
            "no company with the id 99");
        row("TAN of two companies", "--form 26Q --quarter Q2 --company TANAPPLIED", 2, "",
            "belongs to the companies 13, 14");
        row("check without errors",
            "--check --form 26Q --quarter Q2 --company 11 --filed-on 15/10/2026", 0, noFee);
        row("check with errors",
            "--check --form 26Q --quarter Q2 --company 12 --filed-on 15/10/2026", 1,
            rowCount + "|" + noFee);
        row("check with interest and a late fee",
            "--check --form 26Q --quarter Q2 --company 13 --filed-on 17/11/2026", 0,
            "warning\tstatement\tOthers\tThe late fee under section 234E is 3400.00 as of "
            "17/11/2026 and the challans' others hold 0.00 together; the fee is paid before "
            "filing, in the others of a challan.|"
                + interest + "|late fee 234E\t3400.00");
        row("check of a quarter", "--check --form 26Q --quarter Q2 --all --filed-on 15/10/2026",
            1,
            QStringList{company.arg("KAVERI TEXTILES LTD", "11", "BLRK01234E"), noFee,
                        company.arg("NILGIRI TEA CO", "12", "CHEN05678E"), rowCount, noFee,
                        company.arg("APPLIED ONE", "13", "TANAPPLIED"), interest, noFee,
                        company.arg("APPLIED TWO", "14", "TANAPPLIED"), zeroPan, noFee,
                        "checked 4, with errors 2, failed 0"}
                .join(u'|'));
        row("check of a Statement not saved", "--check --form 27Q --quarter Q2 --company 11", 1,
            "", "refused\tKAVERI TEXTILES LTD (company 11, TAN BLRK01234E)\tYou need to save "
                "the Form before generating the Kelvora file\n");
        row("errors counted, the file generated",
            "--form 26Q --quarter Q2 --company 14 --filed-on 15/10/2026", 0, writtenAP2,
            "check\t" + oneError);
        row("strict refusing errors",
            "--strict --form 26Q --quarter Q2 --company 14 --filed-on 15/10/2026", 1, "",
            "refused\t" + oneError);
        row("strict with no error",
            "--strict --form 26Q --quarter Q2 --company 11 --filed-on 15/10/2026", 0, written);
        row("check with a file", "--check --form 26Q --quarter Q2 --company 11 --output x.txt",
            2, "", "--check writes no file");
        row("check strictly", "--check --strict --form 26Q --quarter Q2 --company 11", 2, "",
            "--strict refuses a file");
        row("filed on no date", "--check --form 26Q --quarter Q2 --all --filed-on 31/02/2027", 2,
            "", "--filed-on takes a date as DD/MM/YYYY");
        const char *const oneFile = "--form 26Q --quarter Q2 --company 11 --wait 0";
        row("lock of a crashed program", oneFile, 0, written, "", "crashed");
        row("empty lock of a power cut", oneFile, 0, written, "", "power cut (empty)");
        row("garbled lock of a power cut", oneFile, 0, written, "", "power cut (garbled)");
    }
    void runs()
    {
        QFETCH(QString, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, out);
        QFETCH(QString, err);
        QFETCH(QString, lock);
        QFile::remove(m_data.folder() + "/eReturns/KAV26QQ2.txt");
        QFile leftLock(m_data.store().path() + ".lock");
        if (!lock.isEmpty()) {
            QVERIFY(leftLock.open(QIODevice::WriteOnly));
            leftLock.write(leftLocks()[lock]);
            leftLock.close();
        }
        const int logRows = m_data.count("FileGenerationLog");
        const auto [code, lines, errors] =
            run(QString(arguments).replace("DIR", m_data.folder()), m_data.store().path());

        QCOMPARE(code, exitCode);
        QCOMPARE(lines, QString(out).replace("DIR", m_data.folder()));
        QVERIFY2(errors.contains(err), qPrintable(errors));
        // A file and its log row for each line that names a file; none with --check.
        int written = 0;
        for (const QString &line : out.split(u'|', Qt::SkipEmptyParts))
            written += line.startsWith(u"DIR/");
        QCOMPARE(m_data.count("FileGenerationLog"), logRows + written);
        QCOMPARE(QFile::exists(m_data.folder() + "/eReturns/KAV26QQ2.txt"),
                 out.startsWith("DIR/eReturns/KAV"));
        QVERIFY(!leftLock.exists());
    }

    void oneRunLogsAsTheScreenDoes()
    {
        const auto [code, lines, errors] =
            run("--form 26Q --quarter Q2 --company 11", m_data.store().path());
        QCOMPARE(code, 0);
        // Logged as the screen logs it, with no challan open.
        QCOMPARE(m_data.text("SELECT FileName||'|'||GrpID||'|'||FormNo||'|'||Periodicity||'|'||"
                             "NoOFDeductees||'|'||TotTDS FROM FileGenerationLog "
                             "ORDER BY FGId DESC"),
                 m_data.folder() + "/eReturns/KAV26QQ2.txt|3|Form -26Q|Q2|0|700.0");
    }

    // Two companies without a prefix share a file name: the second is refused, not written
    // over the first. The front end makes eReturns, as the program's start does.
    void sharedFileNameIsNotOverwritten()
    {
        const TestStore data;
        data.insert("mstGroup", {{"GroupID", 1}, {"GroupName", "NORTH"}});
        data.insert("mstCompany", {"AsstID", "GroupID", "CompID", "CompName", "TanNO",
                                   "FilePrefix", "DStatus"},
                    {{1, 1, 21, "FIRST LTD", "DELF01111E", "", "K"},
                     {1, 1, 22, "SECOND LTD", "DELS02222E", QVariant(), "K"}});
        addGoodStatement(data, 1, 21, QStringLiteral("Q1"));
        addGoodStatement(data, 2, 22, QStringLiteral("Q1"));
        const auto [code, lines, errors] =
            run("--form 26Q --quarter Q1 --all", data.store().path());
        QCOMPARE(code, 1);
        QVERIFY(lines.startsWith(data.folder() + "/eReturns/26QQ1.txt\t"));
        // The check's count of errors of each Statement of Q1, paid in July, stands beside.
        QVERIFY(errors.contains("\nrefused\tSECOND LTD (company 22, TAN DELS02222E)"));
        QCOMPARE(data.text("SELECT group_concat(CompID) FROM FileGenerationLog"), "21");
    }

    // A link at the return's name, even one to nothing, is neither replaced nor written
    // through: the return would land wherever the link points.
    void linkAtTheReturnsName()
    {
        const TestStore data(m_data);
        QTemporaryDir targets;
        const QString output = targets.filePath("KAV26QQ2.txt");
        QVERIFY(QFile::link(targets.filePath("elsewhere"), output));
        const Run run = this->run("--form 26Q --quarter Q2 --company 11 --wait 0 --output "
                                      + output,
                                  data.store().path());
        QCOMPARE(run.exitCode, 3);
        QVERIFY2(run.err.contains("The return file " + output
                                  + " could not be written: that name is not a plain file"),
                 qPrintable(run.err));
        QVERIFY(QFileInfo(output).isSymLink());
        QVERIFY(!QFileInfo::exists(targets.filePath("elsewhere")));
    }

    // What cannot take a return file, or a store the batch cannot use: the run says why on its
    // error stream, 1 for a refused Statement and 3 for the store or the file system, and
    // nothing is written where it should not be.
    void badTargets_data()
    {
        testsuite::columns<QString, QString, int, QString>("target", "prefix", "exitCode",
                                                           "message");
        const QString notPlain = QStringLiteral("that name is not a plain file");
        const QString prefix = QStringLiteral("File Name Prefix \"%1\" of the company "
                                              "KAVERI TEXTILES LTD may hold letters and digits");
        QTest::newRow("device") << "device" << "KAV" << 3 << notPlain;
        QTest::newRow("FIFO") << "fifo" << "KAV" << 3 << notPlain;
        QTest::newRow("folder") << "folder" << "KAV" << 3 << notPlain;
        QTest::newRow("full disk") << "full" << "KAV" << 3 << "No space left on device";
        QTest::newRow("prefix of the root") << "" << "/" << 1 << prefix.arg("/");
        QTest::newRow("prefix climbing out") << "" << "../" << 1 << prefix.arg("../");
        QTest::newRow("prefix with a control character")
            << "" << "K\x1bV" << 1 << prefix.arg("K\x1bV");
        QTest::newRow("empty store") << "empty.db" << "KAV" << 3 << "is not a Kelvora data store";
        QTest::newRow("store in use") << "in use" << "KAV" << 3
                                      << "is in use by " + QCoreApplication::applicationName();
        // STORE: the store's path
        const QString damaged = storeaccess::damagedText.arg("STORE");
        QTest::newRow("store with pages overwritten") << "overwritten" << "KAV" << 3 << damaged;
        QTest::newRow("store cut short") << "cut short" << "KAV" << 3 << damaged;
        QTest::newRow("store of a newer version")
            << "newer" << "KAV" << 3
            << storeaccess::newerText.arg("STORE")
                   .arg(storeupgrade::currentVersion + 1)
                   .arg(storeupgrade::currentVersion);
    }
    void badTargets()
    {
        QFETCH(QString, target);
        QFETCH(QString, prefix);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        const TestStore data(m_data);
        data.store().exec("UPDATE mstCompany SET FilePrefix = ? WHERE CompID = 11", {prefix});
        QDir(data.folder()).mkdir("eReturns");
        QTemporaryDir targets;
        const QString store =
            target == u"empty.db" ? targets.filePath(target) : data.store().path();
        QString output = targets.filePath("KAV26QQ2.txt");
        const QByteArray native = output.toLocal8Bit();
        StoreLock lock(store);
        // A file system of a few pages, for a disk that fills up.
        const QByteArray folder = targets.path().toLocal8Bit();
        const bool mounted =
            target == u"full" && mount("tmpfs", folder, "tmpfs", 0, "size=16k") == 0;
        const auto unmount = qScopeGuard([&] {
            if (mounted)
                umount2(folder, MNT_DETACH);
        });
        if (target == u"device" && mknod(native, S_IFCHR | 0666, makedev(1, 3)) != 0)
            output = "/dev/null"; // not root: a device that no one else may replace
        else if (target == u"fifo")
            QCOMPARE(mkfifo(native, 0666), 0);
        else if (target == u"folder")
            QVERIFY(QDir().mkdir(output));
        else if (target == u"full" && !mounted)
            QSKIP("a full disk needs a small file system, which only root may mount");
        else if (target == u"in use")
            QVERIFY(lock.take());
        else if (target == u"overwritten")
            data.overwritePages();
        else if (target == u"cut short")
            data.cutShort();
        else if (target == u"newer")
            data.store().exec(QStringLiteral("PRAGMA user_version = %1")
                                  .arg(storeupgrade::currentVersion + 1));
        QFile filler(target == u"full" ? targets.filePath("filler") : store);
        if (target == u"full" || target == u"empty.db")
            QVERIFY(filler.open(QIODevice::WriteOnly));
        while (target == u"full" && filler.write(QByteArray(4096, 'x')) == 4096 && filler.flush())
            ;
        filler.close();
        const auto listing = [&] {
            const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
            return QDir(targets.path()).entryList(all) + QDir(data.folder()).entryList(all)
                   + QDir(data.folder() + "/eReturns").entryList(all);
        };
        const QStringList before = listing();
        const QByteArray storeBytes = contentsOf(store);
        const bool toOutput = QStringList{"device", "fifo", "folder", "full"}.contains(target);

        const Run run = this->run("--form 26Q --quarter Q2 --company 11 --wait 0"
                                      + (toOutput ? " --output " + output : QString()),
                                  store);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.out.isEmpty() && run.err.contains(QString(message).replace("STORE", store))
                     && (!toOutput || run.err.contains(output)),
                 qPrintable(run.err));
        // Neither a plain file put in place of another kind, nor a file anywhere else; a
        // refused store or Statement is left as it was.
        QCOMPARE(listing(), before);
        QVERIFY(toOutput || contentsOf(store) == storeBytes);
        QVERIFY(target == u"full" || !QFileInfo(output).isFile());
    }

private:
    struct Run
    {
        int exitCode = -1;
        QString out; ///< lines joined by "|"
        QString err;
    };

    static Run run(const QString &arguments, const QString &store)
    {
        QProcess process;
        process.start(QStringLiteral(KELVORA_RETURNS_PATH),
                      QStringList{"--store", store} + arguments.split(u' '));
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return {};
        const QStringList lines = QString::fromUtf8(process.readAllStandardOutput())
                                      .split(u'\n', Qt::SkipEmptyParts);
        return {process.exitCode(), lines.join(u'|'),
                QString::fromUtf8(process.readAllStandardError())};
    }

    TestStore m_data;
};

KELVORA_TEST_OBJECT(TestBatchGeneration);
#include "test_batchgeneration.moc"
