#include "generationstore.h"
#include "returnfile/generationflow.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(Answer)
Q_DECLARE_METATYPE(GenerationOutcome)
Q_DECLARE_METATYPE(GenerationRequest)

namespace {

const QDateTime generationTime(QDate(2026, 10, 4), QTime(15, 30, 0));

GenerationRequest request(int compId, const QString &basicInfoId, const QString &deductees,
                          const QString &challans, int listedRows, int listedChallans)
{
    return {3, compId, "Q2", basicInfoId, deductees, challans, listedRows, listedChallans};
}

const GenerationRequest goodRequest = request(11, "5", "7", "2", 3, 2);

} // namespace

class TestGenerationFlow : public QObject
{
    Q_OBJECT

private slots:
    // The checks in their order: each failure with its box and the field it names.
    void checks_data()
    {
        // text: empty: every check passes
        testsuite::columns<GenerationRequest, QString, QString, QString>("given", "text", "title",
                                                                         "field");
        const QString count = QStringLiteral("You have specified to enter %1 deductee "
                                             "record(s), but \n have entered only 7 record(s).");
        const QString noChallan = GenerationFlow::noChallanText;
        const QString check = GenerationFlow::pleaseCheckTitle;
        const auto row = [](const char *name, const GenerationRequest &given,
                            const QString &text = {}, const QString &title = {},
                            const QString &field = {}) {
            QTest::newRow(name) << given << text << title << field;
        };
        row("all pass", goodRequest);
        row("fewer declared than entered", request(11, "5", "5", "2", 3, 2), count.arg(5), check,
            "txtNoDeductee");
        row("more declared, still 'only'", request(11, "5", "9", "2", 3, 2), count.arg(9), check,
            "txtNoDeductee");
        row("declared read as a typed number", request(11, "5", "7 rows", "2", 3, 2));
        row("challans left blank", request(11, "5", "7", "", 3, 2), noChallan, appTitle,
            "txtNoChallan");
        row("declared challans not compared", request(11, "5", "7", "40", 3, 2));
        row("deductees before challans", request(11, "5", "6", "0", 3, 2), count.arg(6), check,
            "txtNoDeductee");
        row("not saved", request(11, "0", "0", "3", 0, 0), GenerationFlow::notSavedText,
            appTitle);
        row("challans before the save", request(11, "0", "0", "0", 0, 0), noChallan, appTitle,
            "txtNoChallan");
        row("rows but no challan listed", request(11, "5", "7", "2", 3, 0),
            GenerationFlow::challansNeededText, appTitle);
        row("no rows, no challan listed", request(11, "5", "7", "2", 0, 0));
        row("rows without tax need no challan", request(12, "6", "1", "1", 1, 0));
    }
    void checks()
    {
        QFETCH(GenerationRequest, given);
        QFETCH(QString, text);
        QFETCH(QString, title);
        QFETCH(QString, field);
        const GenerationFlow flow(generationStore().store(), formTraits(FormKind::Form26Q));
        const GenerationPreparation preparation = flow.prepare(given);
        QCOMPARE(preparation.panel.has_value(), text.isEmpty());
        QCOMPARE(preparation.failure,
                 text.isEmpty() ? std::nullopt
                                : std::optional<FieldFailure>(
                                      {{text, title, MessageIcon::Critical}, field}));
    }

    // The statement is saved after the checks of the typed counts and before the challan list
    // is looked at; a refused save stops the generation without a box.
    void saveStandsBetweenTheChecks()
    {
        const GenerationFlow flow(generationStore().store(), formTraits(FormKind::Form26Q));
        int saves = 0;
        const auto save = [&saves] { return ++saves < 3; };
        flow.prepare(request(11, "5", "5", "2", 3, 2), save);
        flow.prepare(request(11, "0", "0", "3", 0, 0), save);
        QCOMPARE(saves, 0);
        QVERIFY(flow.prepare(request(11, "5", "7", "2", 3, 0), save).failure);
        QVERIFY(flow.prepare(goodRequest, save).panel);
        const GenerationPreparation refused = flow.prepare(goodRequest, save);
        QCOMPARE(saves, 3);
        QVERIFY(!refused.failure && !refused.panel);
    }

    void panel()
    {
        const GenerationFlow flow(generationStore().store(), formTraits(FormKind::Form26Q));
        const GenerationPanel panel = *flow.prepare(goodRequest).panel;
        QCOMPARE(QStringList({panel.groupName, panel.companyName, panel.tan, panel.pan,
                              panel.formType, panel.quarter, panel.asstYear,
                              panel.deposited.toPaddedText(), panel.amountPaid.toPaddedText(),
                              panel.taxDeducted.toPaddedText(), panel.previousReceiptNo,
                              panel.deductorStatus, panel.deductorType, panel.existingAssessee}),
                 QStringList({"SOUTH GROUP", "KAVERI TEXTILES LTD", "BLRK01234E", "AAACK1234F",
                              "26Q", "Q2", "202728", "1003.00", "7000.70", "05.25", "", "K",
                              "Company", "Y"}));
        QCOMPARE(panel.annexureRows, 7);
        QCOMPARE(panel.fileName, generationStore().folder() + "/eReturns/KAV26QQ2.txt");
        const GenerationPanel nil = *flow.prepare(request(12, "6", "1", "1", 1, 1)).panel;
        QCOMPARE(QStringList({nil.fileName, nil.deposited.toPaddedText(),
                              nil.taxDeducted.toPaddedText(), nil.previousReceiptNo,
                              nil.deductorType}),
                 QStringList({generationStore().folder() + "/eReturns/26QQ2.txt", "00.00",
                              "00.00", "12345678901234", "Central Government"}));
    }

    void fileName_data()
    {
        // returnsFolder: "folder", "missing" or "plain file"
        // expected: below the store's folder
        testsuite::columns<QString, QString, QString, QString>("prefix", "formType",
                                                               "returnsFolder", "expected");
        QTest::newRow("four letters cut to three") << "KAVR" << "26Q" << "folder"
                                                   << "eReturns/KAV26QQ2.txt";
        QTest::newRow("two letters kept") << "AB" << "27EQ" << "folder" << "eReturns/AB27EQQ2.txt";
        QTest::newRow("eReturns missing") << "ABC" << "27Q" << "missing" << "ABC27QQ2.txt";
        QTest::newRow("eReturns a plain file") << "ABC" << "26Q" << "plain file"
                                               << "ABC26QQ2.txt";
    }
    void fileName()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, formType);
        QFETCH(QString, returnsFolder);
        QTemporaryDir storeFolder;
        const QDir folder(storeFolder.path());
        if (returnsFolder == u"folder")
            folder.mkdir(QStringLiteral("eReturns"));
        QFile plain(folder.filePath(QStringLiteral("eReturns")));
        if (returnsFolder == u"plain file")
            QVERIFY(plain.open(QIODevice::WriteOnly));
        QFETCH(QString, expected);
        QCOMPARE(GenerationFlow::fileNameFor(storeFolder.path(), prefix, formType, "Q2"),
                 folder.filePath(expected));
        // The flow never makes the folder.
        QCOMPARE(QFileInfo(folder.filePath("eReturns")).isDir(), returnsFolder == u"folder");
    }

    // The log row first, then the file; a failure of either is shown and stops what follows.
    void generate_data()
    {
        // answer: Answer::None: the confirmation was given before
        // change: "chosen name", "no log", "no folder"
        // boxes: "error" for the failure's own text
        testsuite::columns<Answer, QString, GenerationOutcome, bool, QStringList>("answer",
                                                                                  "change",
                                                                                  "outcome",
                                                                                  "fileWritten",
                                                                                  "boxes");
        const QString asked = GenerationFlow::confirmationText;
        const QString done = GenerationFlow::generatedText;
        QTest::newRow("No") << Answer::No << "" << GenerationOutcome::Declined << false
                            << QStringList{asked};
        QTest::newRow("Yes") << Answer::Yes << "" << GenerationOutcome::Generated << true
                             << QStringList{asked, done};
        QTest::newRow("given, a name chosen") << Answer::None << "chosen name"
                                              << GenerationOutcome::Generated << true
                                              << QStringList{done};
        QTest::newRow("the log fails") << Answer::Yes << "no log" << GenerationOutcome::LogFailed
                                       << false << QStringList{asked, "error"};
        QTest::newRow("the file fails") << Answer::None << "no folder"
                                        << GenerationOutcome::FileFailed << false
                                        << QStringList{"error"};
    }
    void generate()
    {
        QFETCH(Answer, answer);
        QFETCH(QString, change);
        QFETCH(GenerationOutcome, outcome);
        QFETCH(bool, fileWritten);
        QFETCH(QStringList, boxes);
        const TestStore data(generationStore());
        QDir(data.folder()).mkdir(QStringLiteral("eReturns"));
        const GenerationFlow flow(data.store(), formTraits(FormKind::Form26Q));
        GenerationPanel panel = *flow.prepare(goodRequest).panel;
        const QString chosen = data.folder() + "/d'souza q2.txt";
        if (change == u"chosen name")
            panel.fileName = "  " + chosen + " ";
        else if (change == u"no folder")
            panel.fileName = data.folder() + "/no such folder/KAV26QQ2.txt";
        else if (change == u"no log")
            data.store().exec("DROP TABLE FileGenerationLog");
        ScriptedMessageBoxes shown;
        shown.answerNext(answer);

        const GenerationResult result =
            flow.generate(panel, 3, shown, generationTime,
                          answer == Answer::None ? GenerationFlow::Confirmation::Given
                                                 : GenerationFlow::Confirmation::Ask);

        QCOMPARE(result.outcome, outcome);
        const QString file = change == u"chosen name" ? chosen : panel.fileName;
        QCOMPARE(QFile::exists(file), fileWritten);
        boxes.replaceInStrings(QStringLiteral("error"), result.error);
        QCOMPARE(shown.texts(), boxes);
        const MessageIcon lastIcon = !result.error.isEmpty() ? MessageIcon::Critical
                                     : fileWritten           ? MessageIcon::Information
                                                             : MessageIcon::Question;
        QCOMPARE(shown.shown.last().icon, lastIcon);
        if (change == u"no log")
            return;
        QCOMPARE(result.logId, outcome == GenerationOutcome::Declined ? 0 : 1);
        QCOMPARE(data.count("FileGenerationLog"), result.logId);
        if (outcome == GenerationOutcome::Generated) {
            QCOMPARE(result.summary.challans, 2);
            QCOMPARE(result.summary.annexureRows, 7);
            // The open challan's rows are logged, not the Statement's seven.
            QCOMPARE(data.text("SELECT FileName||'|'||NoOFDeductees||'|'||TotAmtPaid||'|'||TotTDS"
                               "||'|'||DateOfCreation||' '||TimeOFCreation||'|'||CompanyName"
                               " FROM FileGenerationLog"),
                     file + "|3|7000.7|5.25|2026-10-04 15:30:00|KAVERI TEXTILES LTD");
            // A second generation is a second row.
            QCOMPARE(flow.generate(panel, 3, shown, generationTime.addSecs(60),
                                   GenerationFlow::Confirmation::Given)
                         .logId,
                     2);
        }
    }
};

KELVORA_TEST_OBJECT(TestGenerationFlow);
#include "test_generationflow.moc"
