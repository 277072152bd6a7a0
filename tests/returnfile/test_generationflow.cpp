#include "returnfile/generationflow.h"

#include "core/storeerror.h"
#include "generationdata.h"
#include "core/formtraits.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

using namespace generationdata;

Q_DECLARE_METATYPE(GenerationRequest)

namespace {

const FormTraits &form26 = formTraits(FormKind::Form26Q);
const QDateTime generationTime(QDate(2026, 10, 4), QTime(15, 30, 0));

/// Company 11 files a 26Q Statement 5 for Q2 with two challans and seven rows; company 12 a
/// Statement 6 whose one row carries no tax.
void fillStore(const DataStore &store)
{
    addGroup(store, 3, QStringLiteral("SOUTH GROUP"));
    addCompany(store, 3, 11, QStringLiteral("KAVERI TEXTILES LTD"), QStringLiteral("BLRK01234E"),
               QStringLiteral("KAVR"));
    addCompany(store, 3, 12, QStringLiteral("NIL RETURNS PVT LTD"), QStringLiteral("BLRN05678E"),
               QVariant(), QStringLiteral("A"));
    addStatement(store, form26, 5, 11, QStringLiteral("Q2"), 2, 7,
                 QStringLiteral("  KAVERI TEXTILES LTD "));
    addChallan(store, form26, 51, 5, 11, 1, 1000.50);
    addChallan(store, form26, 52, 5, 11, 2, 2.50);
    for (int row = 1; row <= 7; ++row)
        addAnnexureRow(store, form26, row, 5, row <= 3 ? 51 : 52, row, 1000.10, 0.75);

    addStatement(store, form26, 6, 12, QStringLiteral("Q2"), 1, 1,
                 QStringLiteral("NIL RETURNS PVT LTD"), QStringLiteral("12345678901234"));
    addChallan(store, form26, 61, 6, 12, 1, 0);
    addAnnexureRow(store, form26, 8, 6, 61, 1, 5000, 0);
}

GenerationRequest request(int compId, const QString &basicInfoId, const QString &deductees,
                          const QString &challans, int listedRows, int listedChallans)
{
    GenerationRequest request;
    request.groupId = 3;
    request.compId = compId;
    request.quarter = QStringLiteral("Q2");
    request.basicInfoId = basicInfoId;
    request.declaredDeductees = deductees;
    request.declaredChallans = challans;
    request.listedAnnexureRows = listedRows;
    request.listedChallans = listedChallans;
    return request;
}

GenerationRequest goodRequest()
{
    return request(11, QStringLiteral("5"), QStringLiteral("7"), QStringLiteral("2"), 3, 2);
}

int logRows(const DataStore &store)
{
    return rowCount(store, QStringLiteral("FileGenerationLog"));
}

} // namespace

class TestGenerationFlow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void checks_data();
    void checks();
    void saveStandsBetweenTheChecks();
    void refusedSaveStopsQuietly();
    void panel();
    void fileName_data();
    void fileName();

    void noAtTheConfirmationChangesNothing();
    void logRowThenFile();
    void twoGenerationsTwoRows();
    void chosenFileName();
    void failedLogWritesNoFile();
    void failedFileKeepsTheLogRow();

private:
    TestStore m_data;
};

void TestGenerationFlow::initTestCase()
{
    fillStore(m_data.store());
    QVERIFY(QDir(m_data.folder()).mkdir(QStringLiteral("eReturns")));
}

void TestGenerationFlow::checks_data()
{
    QTest::addColumn<GenerationRequest>("given");
    QTest::addColumn<QString>("text"); // empty: every check passes
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("field");

    const QString kelvora = QStringLiteral("Kelvora");
    const QString pleaseCheck = QStringLiteral("Please Check");
    const QString noChallan = QStringLiteral("No Challan Records found");
    const QString notSaved =
        QStringLiteral("You need to save the Form before generating the Kelvora file");
    const QString challansNeeded =
        QStringLiteral("You need to enter challan record(s). (if deductee record is there)");

    QTest::newRow("all pass") << goodRequest() << "" << "" << "";
    QTest::newRow("fewer declared than entered")
        << request(11, "5", "5", "2", 3, 2)
        << "You have specified to enter 5 deductee record(s), but \n"
           " have entered only 7 record(s)."
        << pleaseCheck << "txtNoDeductee";
    QTest::newRow("more declared than entered, still 'only'")
        << request(11, "5", "9", "2", 3, 2)
        << "You have specified to enter 9 deductee record(s), but \n"
           " have entered only 7 record(s)."
        << pleaseCheck << "txtNoDeductee";
    QTest::newRow("declared read as a typed number") << request(11, "5", "7 rows", "2", 3, 2)
                                                     << "" << "" << "";
    QTest::newRow("no challans declared") << request(11, "5", "7", "0", 3, 2) << noChallan
                                          << kelvora << "txtNoChallan";
    QTest::newRow("challans left blank") << request(11, "5", "7", "", 3, 2) << noChallan
                                         << kelvora << "txtNoChallan";
    QTest::newRow("declared challans not compared with the rows")
        << request(11, "5", "7", "40", 3, 2) << "" << "" << "";
    QTest::newRow("deductee count before challan count") << request(11, "5", "6", "0", 3, 2)
                                                         << "You have specified to enter 6 "
                                                            "deductee record(s), but \n have "
                                                            "entered only 7 record(s)."
                                                         << pleaseCheck << "txtNoDeductee";
    QTest::newRow("not saved") << request(11, "0", "0", "3", 0, 0) << notSaved << kelvora << "";
    QTest::newRow("challan count before the save") << request(11, "0", "0", "0", 0, 0)
                                                   << noChallan << kelvora << "txtNoChallan";
    QTest::newRow("rows but no challan listed") << request(11, "5", "7", "2", 3, 0)
                                                << challansNeeded << kelvora << "";
    QTest::newRow("no rows listed, no challan listed") << request(11, "5", "7", "2", 0, 0) << ""
                                                       << "" << "";
    QTest::newRow("rows without tax need no challan") << request(12, "6", "1", "1", 1, 0) << ""
                                                      << "" << "";
}

void TestGenerationFlow::checks()
{
    QFETCH(GenerationRequest, given);
    QFETCH(QString, text);
    QFETCH(QString, title);
    QFETCH(QString, field);

    const GenerationFlow flow(m_data.store(), form26);
    const GenerationPreparation preparation = flow.prepare(given);

    if (text.isEmpty()) {
        QVERIFY(!preparation.failure);
        QVERIFY(preparation.panel);
        return;
    }
    QVERIFY(preparation.failure);
    QVERIFY(!preparation.panel);
    const FieldFailure expected{{text, title, MessageIcon::Critical, MessageButtons::Ok}, field};
    QCOMPARE(preparation.failure->message.text, expected.message.text);
    QCOMPARE(*preparation.failure, expected);
}

void TestGenerationFlow::saveStandsBetweenTheChecks()
{
    const GenerationFlow flow(m_data.store(), form26);
    int saves = 0;
    const auto save = [&saves] {
        ++saves;
        return true;
    };

    flow.prepare(request(11, "5", "5", "2", 3, 2), save);
    flow.prepare(request(11, "5", "7", "0", 3, 2), save);
    flow.prepare(request(11, "0", "0", "3", 0, 0), save);
    QCOMPARE(saves, 0);

    // The challan-list check reads the totals of what has just been saved.
    const GenerationPreparation late = flow.prepare(request(11, "5", "7", "2", 3, 0), save);
    QCOMPARE(saves, 1);
    QVERIFY(late.failure);
    QVERIFY(flow.prepare(goodRequest(), save).panel);
    QCOMPARE(saves, 2);
}

void TestGenerationFlow::refusedSaveStopsQuietly()
{
    const GenerationFlow flow(m_data.store(), form26);
    const GenerationPreparation preparation = flow.prepare(goodRequest(), [] { return false; });

    QVERIFY(!preparation.failure);
    QVERIFY(!preparation.panel);
}

void TestGenerationFlow::panel()
{
    const GenerationFlow flow(m_data.store(), form26);
    const GenerationPanel panel = *flow.prepare(goodRequest()).panel;

    QCOMPARE(panel.groupId, 3);
    QCOMPARE(panel.compId, 11);
    QCOMPARE(panel.basicInfoId, 5);
    QCOMPARE(panel.groupName, QStringLiteral("SOUTH GROUP"));
    QCOMPARE(panel.companyName, QStringLiteral("KAVERI TEXTILES LTD"));
    QCOMPARE(panel.tan, QStringLiteral("BLRK01234E"));
    QCOMPARE(panel.pan, QStringLiteral("AAACK1234F"));
    QCOMPARE(panel.formType, QStringLiteral("26Q"));
    QCOMPARE(panel.quarter, QStringLiteral("Q2"));
    QCOMPARE(panel.asstYear, QStringLiteral("202728"));
    QCOMPARE(panel.fileName, QDir(m_data.folder()).filePath("eReturns/KAV26QQ2.txt"));
    QCOMPARE(panel.annexureRows, 7);
    QCOMPARE(panel.deposited.toPaddedText(), QStringLiteral("1003.00"));
    QCOMPARE(panel.amountPaid.toPaddedText(), QStringLiteral("7000.70"));
    QCOMPARE(panel.taxDeducted.toPaddedText(), QStringLiteral("05.25"));
    QCOMPARE(panel.previousReceiptNo, QString());
    QCOMPARE(panel.deductorStatus, QStringLiteral("K"));
    QCOMPARE(panel.deductorType, QStringLiteral("Company"));
    QCOMPARE(panel.existingAssessee, QStringLiteral("Y"));

    const GenerationPanel nil = *flow.prepare(request(12, "6", "1", "1", 1, 1)).panel;
    QCOMPARE(nil.fileName, QDir(m_data.folder()).filePath("eReturns/26QQ2.txt"));
    QCOMPARE(nil.deposited.toPaddedText(), QStringLiteral("00.00"));
    QCOMPARE(nil.taxDeducted.toPaddedText(), QStringLiteral("00.00"));
    QCOMPARE(nil.previousReceiptNo, QStringLiteral("12345678901234"));
    QCOMPARE(nil.deductorType, QStringLiteral("Central Government"));
}

void TestGenerationFlow::fileName_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QString>("formType");
    QTest::addColumn<QString>("quarter");
    QTest::addColumn<QString>("returnsFolder"); // "folder", "missing" or "plain file"
    QTest::addColumn<QString>("expected");      // below the store's folder

    QTest::newRow("three letters") << "ABC" << "26Q" << "Q2" << "folder"
                                   << "eReturns/ABC26QQ2.txt";
    QTest::newRow("four letters cut to three") << "KAVR" << "26Q" << "Q2" << "folder"
                                               << "eReturns/KAV26QQ2.txt";
    QTest::newRow("two letters kept") << "AB" << "27EQ" << "Q1" << "folder"
                                      << "eReturns/AB27EQQ1.txt";
    QTest::newRow("empty prefix") << "" << "24Q" << "Q4" << "folder" << "eReturns/24QQ4.txt";
    QTest::newRow("eReturns missing") << "ABC" << "27Q" << "Q3" << "missing" << "ABC27QQ3.txt";
    QTest::newRow("eReturns not a folder") << "ABC" << "26Q" << "Q2" << "plain file"
                                           << "ABC26QQ2.txt";
}

void TestGenerationFlow::fileName()
{
    QFETCH(QString, prefix);
    QFETCH(QString, formType);
    QFETCH(QString, quarter);
    QFETCH(QString, returnsFolder);
    QFETCH(QString, expected);

    QTemporaryDir storeFolder;
    const QDir folder(storeFolder.path());
    if (returnsFolder == u"folder") {
        QVERIFY(folder.mkdir(QStringLiteral("eReturns")));
    } else if (returnsFolder == u"plain file") {
        QFile file(folder.filePath(QStringLiteral("eReturns")));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QCOMPARE(GenerationFlow::fileNameFor(storeFolder.path(), prefix, formType, quarter),
             folder.filePath(expected));
    // The flow never makes the folder.
    QCOMPARE(QFileInfo(folder.filePath(QStringLiteral("eReturns"))).isDir(),
             returnsFolder == u"folder");
}

void TestGenerationFlow::noAtTheConfirmationChangesNothing()
{
    TestStore data;
    fillStore(data.store());
    const GenerationFlow flow(data.store(), form26);
    const GenerationPanel panel = *flow.prepare(goodRequest()).panel;
    ScriptedMessageBoxes boxes;
    boxes.answerNext(Answer::No);

    const GenerationResult result = flow.generate(panel, 3, boxes, generationTime);

    QCOMPARE(result.outcome, GenerationOutcome::Declined);
    const Message question{QStringLiteral("Do you want to proceed with the Kelvora file "
                                          "generation?"),
                           QStringLiteral("Confirmation"), MessageIcon::Question,
                           MessageButtons::YesNo};
    QCOMPARE(boxes.shown, QList<Message>({question}));
    QCOMPARE(logRows(data.store()), 0);
    QVERIFY(!QFile::exists(panel.fileName));
}

void TestGenerationFlow::logRowThenFile()
{
    TestStore data;
    fillStore(data.store());
    const GenerationFlow flow(data.store(), form26);
    const GenerationPanel panel = *flow.prepare(goodRequest()).panel;
    ScriptedMessageBoxes boxes;
    boxes.answerNext(Answer::Yes);

    const GenerationResult result = flow.generate(panel, 3, boxes, generationTime);

    QCOMPARE(result.outcome, GenerationOutcome::Generated);
    QCOMPARE(result.logId, 1);
    QCOMPARE(result.summary.challans, 2);
    QCOMPARE(result.summary.annexureRows, 7);
    QVERIFY(QFile::exists(panel.fileName));
    QCOMPARE(boxes.texts(), QStringList({GenerationFlow::confirmationText,
                                         QStringLiteral("Kelvora file successfully generated")}));
    QCOMPARE(boxes.shown.last().icon, MessageIcon::Information);

    QSqlQuery row = data.store().exec(QStringLiteral(
        "SELECT FileName, NoOFDeductees, TotAmtPaid, TotTDS, DateOfCreation, TimeOFCreation, "
        "CompanyName, FormNo, GrpID FROM FileGenerationLog"));
    QVERIFY(row.next());
    QCOMPARE(row.value(0).toString(), panel.fileName);
    QCOMPARE(row.value(1).toInt(), 3); // the open challan's rows, not the Statement's seven
    QCOMPARE(row.value(2).toDouble(), 7000.70);
    QCOMPARE(row.value(3).toDouble(), 5.25);
    QCOMPARE(row.value(4).toString(), QStringLiteral("2026-10-04"));
    QCOMPARE(row.value(5).toString(), QStringLiteral("15:30:00"));
    QCOMPARE(row.value(6).toString(), QStringLiteral("KAVERI TEXTILES LTD"));
    QCOMPARE(row.value(7).toString(), QStringLiteral("Form -26Q"));
    QCOMPARE(row.value(8).toInt(), 3);
}

void TestGenerationFlow::twoGenerationsTwoRows()
{
    TestStore data;
    fillStore(data.store());
    const GenerationFlow flow(data.store(), form26);
    const GenerationPanel panel = *flow.prepare(goodRequest()).panel;
    ScriptedMessageBoxes boxes;

    const GenerationResult first =
        flow.generate(panel, 0, boxes, generationTime, GenerationFlow::Confirmation::Given);
    const GenerationResult second = flow.generate(panel, 0, boxes, generationTime.addSecs(60),
                                                  GenerationFlow::Confirmation::Given);

    QCOMPARE(first.logId, 1);
    QCOMPARE(second.logId, 2);
    QCOMPARE(logRows(data.store()), 2);
    QCOMPARE(second.outcome, GenerationOutcome::Generated);
    // A given confirmation is not asked again.
    QCOMPARE(boxes.texts(), QStringList(2, GenerationFlow::generatedText));
}

void TestGenerationFlow::chosenFileName()
{
    TestStore data;
    fillStore(data.store());
    const GenerationFlow flow(data.store(), form26);
    GenerationPanel panel = *flow.prepare(goodRequest()).panel;
    const QString chosen = QDir(data.folder()).filePath(QStringLiteral("d'souza q2.txt"));
    panel.fileName = QStringLiteral("  ") + chosen + QStringLiteral(" ");
    ScriptedMessageBoxes boxes;

    flow.generate(panel, 0, boxes, generationTime, GenerationFlow::Confirmation::Given);

    QVERIFY(QFile::exists(chosen));
    QCOMPARE(data.store().scalar(QStringLiteral("SELECT FileName FROM FileGenerationLog"))
                 .toString(),
             chosen);
}

void TestGenerationFlow::failedLogWritesNoFile()
{
    TestStore data;
    fillStore(data.store());
    const GenerationFlow flow(data.store(), form26);
    const GenerationPanel panel = *flow.prepare(goodRequest()).panel;
    data.store().exec(QStringLiteral("DROP TABLE FileGenerationLog"));
    ScriptedMessageBoxes boxes;
    boxes.answerNext(Answer::Yes);

    const GenerationResult result = flow.generate(panel, 0, boxes, generationTime);

    QCOMPARE(result.outcome, GenerationOutcome::LogFailed);
    QVERIFY(!result.error.isEmpty());
    QVERIFY(!QFile::exists(panel.fileName));
    QCOMPARE(boxes.shown.size(), 2);
    QCOMPARE(boxes.shown.last().text, result.error);
    QCOMPARE(boxes.shown.last().icon, MessageIcon::Critical);
}

void TestGenerationFlow::failedFileKeepsTheLogRow()
{
    TestStore data;
    fillStore(data.store());
    const GenerationFlow flow(data.store(), form26);
    GenerationPanel panel = *flow.prepare(goodRequest()).panel;
    panel.fileName = QDir(data.folder()).filePath(QStringLiteral("no such folder/KAV26QQ2.txt"));
    ScriptedMessageBoxes boxes;

    const GenerationResult result =
        flow.generate(panel, 0, boxes, generationTime, GenerationFlow::Confirmation::Given);

    QCOMPARE(result.outcome, GenerationOutcome::FileFailed);
    QCOMPARE(result.logId, 1);
    QCOMPARE(logRows(data.store()), 1);
    QVERIFY(!QFile::exists(panel.fileName));
    QCOMPARE(boxes.texts(), QStringList({result.error}));
    QCOMPARE(boxes.shown.last().icon, MessageIcon::Critical);
}

QTEST_GUILESS_MAIN(TestGenerationFlow)
#include "test_generationflow.moc"
