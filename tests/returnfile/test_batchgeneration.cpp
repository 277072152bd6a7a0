#include "generationdata.h"
#include "core/formtraits.h"
#include "support/teststore.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSqlQuery>
#include <QTest>

using namespace generationdata;

namespace {

const FormTraits &form26 = formTraits(FormKind::Form26Q);
const FormTraits &form24 = formTraits(FormKind::Form24Q);

struct Run
{
    int exitCode = -1;
    QStringList out; ///< lines of standard output
    QString err;
};

/// Runs the built front end as an office would, from its own process.
Run runReturns(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(KELVORA_RETURNS_PATH), arguments);
    Run run;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

/// A good 26Q Statement: two challans, seven rows, 1003.00 deposited.
void addGoodStatement(const DataStore &store, int basicInfoId, int compId,
                      const QString &quarter)
{
    addStatement(store, form26, basicInfoId, compId, quarter, 2, 7);
    const int challan = basicInfoId * 10;
    addChallan(store, form26, challan + 1, basicInfoId, compId, 1, 1000.50);
    addChallan(store, form26, challan + 2, basicInfoId, compId, 2, 2.50);
    for (int row = 1; row <= 7; ++row) {
        addAnnexureRow(store, form26, basicInfoId * 100 + row, basicInfoId,
                       challan + (row <= 3 ? 1 : 2), row, 1000, 100);
    }
}

int logRowsOf(const DataStore &store, int compId)
{
    return store.scalar(QStringLiteral("SELECT count(*) FROM FileGenerationLog WHERE CompID = ?"),
                        {compId})
        .toInt();
}

} // namespace

class TestBatchGeneration : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void usageErrors_data();
    void usageErrors();
    void oneStatement();
    void companyByTan();
    void chosenOutput();
    void refusedStatement();
    void noSavedStatement();
    void allOfAQuarter();
    void allOfAnEmptyQuarter();
    void sharedPrefixIsNotOverwritten();

private:
    QString path(const QString &name) const { return QDir(m_data.folder()).filePath(name); }
    QStringList args(const QString &form, const QString &quarter, const QStringList &more)
    {
        return QStringList{"--store", m_data.store().path(), "--form", form, "--quarter", quarter}
               + more;
    }

    TestStore m_data;
};

void TestBatchGeneration::initTestCase()
{
    const DataStore &store = m_data.store();
    addGroup(store, 3, QStringLiteral("SOUTH GROUP"));
    addCompany(store, 3, 11, QStringLiteral("KAVERI TEXTILES LTD"), QStringLiteral("BLRK01234E"),
               QStringLiteral("KAV"));
    addCompany(store, 3, 12, QStringLiteral("NILGIRI TEA CO"), QStringLiteral("CHEN05678E"),
               QStringLiteral("NIL"));
    addCompany(store, 3, 13, QStringLiteral("APPLIED ONE"), QStringLiteral("TANAPPLIED"),
               QStringLiteral("AP1"));
    addCompany(store, 3, 14, QStringLiteral("APPLIED TWO"), QStringLiteral("TANAPPLIED"),
               QStringLiteral("AP2"));
    addGoodStatement(store, 5, 11, QStringLiteral("Q2"));
    // Declares three rows and holds one: the deductee-count check refuses it.
    addStatement(store, form26, 6, 12, QStringLiteral("Q2"), 1, 3);
    addChallan(store, form26, 61, 6, 12, 1, 10);
    addAnnexureRow(store, form26, 601, 6, 61, 1, 100, 10);
    // A 24Q Statement of the same company and quarter is another form's.
    addStatement(store, form24, 7, 11, QStringLiteral("Q2"), 0, 0);
    QVERIFY(QDir(m_data.folder()).mkdir(QStringLiteral("eReturns")));
    QFile notAStore(path(QStringLiteral("notes.db")));
    QVERIFY(notAStore.open(QIODevice::WriteOnly));
    notAStore.write("These are the office's notes, not a data store.\n");
}

void TestBatchGeneration::usageErrors_data()
{
    QTest::addColumn<QStringList>("arguments"); // "STORE" stands for the test's store
    QTest::addColumn<QString>("message");

    const QStringList base = {"--store", "STORE", "--form", "26Q", "--quarter", "Q2"};
    QTest::newRow("nothing") << QStringList() << "--store is required";
    QTest::newRow("unknown form")
        << QStringList({"--store", "STORE", "--form", "28Q", "--quarter", "Q2", "--all"})
        << "--form must be";
    QTest::newRow("unknown quarter")
        << QStringList({"--store", "STORE", "--form", "26Q", "--quarter", "Q5", "--all"})
        << "--quarter must be";
    QTest::newRow("neither company nor all") << base << "either --company or --all";
    QTest::newRow("company and all") << base + QStringList({"--company", "11", "--all"})
                                     << "either --company or --all";
    QTest::newRow("output with all")
        << base + QStringList({"--all", "--output", "x.txt"}) << "cannot go with --all";
    QTest::newRow("unknown option") << base + QStringList({"--all", "--year", "2026"})
                                    << "Unknown option";
    QTest::newRow("store missing")
        << QStringList({"--store", "MISSING", "--form", "26Q", "--quarter", "Q2", "--all"})
        << "cannot be opened";
    QTest::newRow("not a store")
        << QStringList({"--store", "NOTES", "--form", "26Q", "--quarter", "Q2", "--all"})
        << "cannot be opened";
    QTest::newRow("unknown company id") << base + QStringList({"--company", "99"})
                                        << "no company with the id 99";
    QTest::newRow("TAN of two companies") << base + QStringList({"--company", "TANAPPLIED"})
                                          << "belongs to the companies 13, 14";
}

void TestBatchGeneration::usageErrors()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);

    arguments.replaceInStrings(QStringLiteral("STORE"), m_data.store().path());
    arguments.replaceInStrings(QStringLiteral("MISSING"), path(QStringLiteral("absent.db")));
    arguments.replaceInStrings(QStringLiteral("NOTES"), path(QStringLiteral("notes.db")));
    const int logRows = rowCount(m_data.store(), QStringLiteral("FileGenerationLog"));

    const Run run = runReturns(arguments);

    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(run.out, QStringList());
    QCOMPARE(rowCount(m_data.store(), QStringLiteral("FileGenerationLog")), logRows);
}

void TestBatchGeneration::oneStatement()
{
    const Run run = runReturns(args("26Q", "Q2", {"--company", "11"}));

    QCOMPARE(run.exitCode, 0);
    const QString file = path(QStringLiteral("eReturns/KAV26QQ2.txt"));
    QCOMPARE(run.out, QStringList({QDir::toNativeSeparators(file)
                                   + "\tchallans 2\tdeductee rows 7\tdeposited 1003.00"}));
    QVERIFY(QFile::exists(file));

    // Logged as the screen logs it, with no challan open.
    QSqlQuery row = m_data.store().exec(
        QStringLiteral("SELECT FileName, GrpID, FormNo, Periodicity, NoOFDeductees, TotTDS "
                       "FROM FileGenerationLog WHERE CompID = 11 ORDER BY FGId DESC"));
    QVERIFY(row.next());
    QCOMPARE(row.value(0).toString(), file);
    QCOMPARE(row.value(1).toInt(), 3);
    QCOMPARE(row.value(2).toString(), QStringLiteral("Form -26Q"));
    QCOMPARE(row.value(3).toString(), QStringLiteral("Q2"));
    QCOMPARE(row.value(4).toInt(), 0);
    QCOMPARE(row.value(5).toDouble(), 700.0);
}

void TestBatchGeneration::companyByTan()
{
    const int before = logRowsOf(m_data.store(), 11);
    const Run run = runReturns(args("26q", "q2", {"--company", "blrk01234e"}));

    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.size(), 1);
    QVERIFY(run.out.first().endsWith("KAV26QQ2.txt\tchallans 2\tdeductee rows 7\tdeposited "
                                     "1003.00"));
    QCOMPARE(logRowsOf(m_data.store(), 11), before + 1);
}

void TestBatchGeneration::chosenOutput()
{
    const QString chosen = path(QStringLiteral("kaveri q2 draft.txt"));
    const Run run = runReturns(args("26Q", "Q2", {"--company", "11", "--output", chosen}));

    QCOMPARE(run.exitCode, 0);
    QVERIFY(QFile::exists(chosen));
    QVERIFY(run.out.value(0).startsWith(QDir::toNativeSeparators(chosen) + u'\t'));
    QCOMPARE(m_data.store()
                 .scalar(QStringLiteral("SELECT FileName FROM FileGenerationLog "
                                        "ORDER BY FGId DESC"))
                 .toString(),
             chosen);
}

void TestBatchGeneration::refusedStatement()
{
    const Run run = runReturns(args("26Q", "Q2", {"--company", "12"}));

    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.out, QStringList({"refused\tNILGIRI TEA CO (company 12, TAN CHEN05678E)\t"
                                   "You have specified to enter 3 deductee record(s), but have "
                                   "entered only 1 record(s)."}));
    QVERIFY(!QFile::exists(path(QStringLiteral("eReturns/NIL26QQ2.txt"))));
    QCOMPARE(logRowsOf(m_data.store(), 12), 0);
}

void TestBatchGeneration::noSavedStatement()
{
    const Run run = runReturns(args("27Q", "Q2", {"--company", "11"}));

    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.out.size(), 1);
    QVERIFY(run.out.first().endsWith(
        "\tYou need to save the Form before generating the Kelvora file"));
    QVERIFY(!QFile::exists(path(QStringLiteral("eReturns/KAV27QQ2.txt"))));
}

void TestBatchGeneration::allOfAQuarter()
{
    QFile::remove(path(QStringLiteral("eReturns/KAV26QQ2.txt")));
    const Run run = runReturns(args("26Q", "Q2", {"--all"}));

    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.out.size(), 3);
    QVERIFY(run.out.at(0).startsWith(
        QDir::toNativeSeparators(path(QStringLiteral("eReturns/KAV26QQ2.txt")))));
    QVERIFY(run.out.at(1).startsWith("refused\tNILGIRI TEA CO"));
    QCOMPARE(run.out.at(2), QStringLiteral("generated 1, refused 1"));
    QVERIFY(QFile::exists(path(QStringLiteral("eReturns/KAV26QQ2.txt"))));
}

void TestBatchGeneration::allOfAnEmptyQuarter()
{
    const Run run = runReturns(args("26Q", "Q3", {"--all"}));

    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out, QStringList({"generated 0, refused 0"}));
}

void TestBatchGeneration::sharedPrefixIsNotOverwritten()
{
    // No eReturns yet: the front end makes it, as the program's start does.
    TestStore data;
    const DataStore &store = data.store();
    addGroup(store, 1, QStringLiteral("NORTH"));
    addCompany(store, 1, 21, QStringLiteral("FIRST LTD"), QStringLiteral("DELF01111E"), "");
    addCompany(store, 1, 22, QStringLiteral("SECOND LTD"), QStringLiteral("DELS02222E"),
               QVariant());
    addGoodStatement(store, 1, 21, QStringLiteral("Q1"));
    addGoodStatement(store, 2, 22, QStringLiteral("Q1"));

    const Run run = runReturns(
        {"--store", store.path(), "--form", "26Q", "--quarter", "Q1", "--all"});

    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.out.size(), 3);
    const QString file = QDir(data.folder()).filePath(QStringLiteral("eReturns/26QQ1.txt"));
    QVERIFY(run.out.at(0).startsWith(QDir::toNativeSeparators(file) + u'\t'));
    QVERIFY(run.out.at(1).startsWith("refused\tSECOND LTD (company 22, TAN DELS02222E)"));
    QCOMPARE(run.out.at(2), QStringLiteral("generated 1, refused 1"));
    QCOMPARE(logRowsOf(store, 22), 0);
}

QTEST_GUILESS_MAIN(TestBatchGeneration)
#include "test_batchgeneration.moc"
