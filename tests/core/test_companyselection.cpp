#include "corestore.h"
#include "core/companyselection.h"
#include "core/session.h"
#include "core/startup.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"


using Next = CompanySelection::Next;

namespace {

constexpr int untouched = -1;

struct Case
{
    QString formType;
    bool printMode;
    QString group;
    int compId; // 0: no row selected
    QString listedStatus;
    int quarterIndex;
    QStringList boxes;
    Next next;
    QString screen;
    QString focus;
    int basicInfoId;
    int curCompId;
    bool printModeAfter;
};

} // namespace

Q_DECLARE_METATYPE(Case)

class TestCompanySelection : public QObject
{
    Q_OBJECT

private slots:
    void select_data()
    {
        QTest::addColumn<Case>("c");
        const QString alpha = QStringLiteral("Alpha Group");
        const QStringList none;
        const QStringList noType = {CompanySelection::noDeductorTypeText};
        const auto row = [](const char *name, const Case &c) { QTest::newRow(name) << c; };
        row("no group", {"26Q", false, "", 11, "K", 0, {CompanySelection::noGroupText},
                         Next::Nothing, "", "CmbGroup", untouched, untouched, false});
        row("no row selected", {"26Q", false, alpha, 0, "", 0, none, Next::Nothing, "", "",
                                untouched, untouched, false});
        row("deductor type null", {"26Q", false, alpha, 12, "", 0, noType, Next::Nothing, "",
                                   "lstvComp", untouched, 12, false});
        row("deductor type empty", {"27Q", false, alpha, 13, "", 0, noType, Next::Nothing, "",
                                    "lstvComp", untouched, 13, false});
        row("list older than the master", {"26Q", false, alpha, 12, "K", 0, noType,
                                           Next::Nothing, "", "lstvComp", untouched, 12, false});
        row("26Q second quarter", {"26Q", false, alpha, 11, "K", 1, none, Next::Statement,
                                   "frmForm26", "", 8, 11, false});
        row("26Q third quarter, none yet", {"26Q", false, alpha, 11, "K", 2, none,
                                            Next::Statement, "frmForm26", "", 0, 11, false});
        row("24Q reads its own table", {"24Q", false, alpha, 11, "K", 0, none, Next::Statement,
                                        "frmForm24", "", 3, 11, false});
        row("27Q of another period ignored", {"27Q", false, alpha, 11, "K", 0, none,
                                              Next::Statement, "frmForm27", "", 0, 11, false});
        row("invalid quarter finds nothing", {"26Q", false, alpha, 11, "K", -1,
                                              {quarter::invalidChoiceText}, Next::Statement,
                                              "frmForm26", "", 0, 11, false});
        row("print with a Statement", {"26Q", true, alpha, 11, "K", 1, none, Next::Report,
                                       "FrmReport", "", 8, 11, false});
        row("print stops at the deductor type", {"24Q", true, alpha, 12, "", 0, noType,
                                                 Next::Nothing, "", "lstvComp", untouched, 12,
                                                 true});
        row("Form 16A skips the deductor type", {"Form16A26Q", true, alpha, 12, "", 0, none,
                                                 Next::Form16AReport, "frmForm16Report", "",
                                                 untouched, 12, false});
        row("Form 16A outside printing", {"Form16A27Q", false, alpha, 11, "K", 0, none,
                                          Next::Nothing, "", "", untouched, 11, false});
        row("Form 16A, no row selected", {"Form16A27Q", true, alpha, 0, "", 0, none,
                                          Next::Nothing, "", "", untouched, untouched, true});
        row("unknown form type", {"Form28", false, alpha, 11, "K", 0, none, Next::Nothing, "",
                                  "", untouched, untouched, false});
    }
    void select()
    {
        QFETCH(Case, c);
        Session session(coreStore().store());
        startup::readAssessmentPeriod(session);
        session.curFormType = c.formType;
        session.printMode = c.printMode;
        session.curBasicInfoId = untouched;
        session.curCompId = untouched;
        ScriptedMessageBoxes shown;
        CompanySelection selection(session, shown);
        CompanySelection::Choice choice;
        choice.groupText = c.group;
        choice.groupIdText = QString::number(selection.groupId(c.group));
        if (c.compId != 0)
            choice.company = CompanySelection::Company{QString(), c.compId, c.listedStatus};
        choice.quarterIndex = c.quarterIndex;
        choice.quarterText = QStringLiteral("Chosen quarter");

        const CompanySelection::Outcome outcome = selection.select(choice);

        QCOMPARE(shown.texts(), c.boxes);
        QCOMPARE(outcome.next, c.next);
        QCOMPARE(outcome.screen, c.screen);
        QCOMPARE(outcome.focus, c.focus);
        QCOMPARE(outcome.closeSelection, c.next != Next::Nothing);
        QCOMPARE(session.curBasicInfoId, c.basicInfoId);
        QCOMPARE(session.curCompId, c.curCompId);
        QCOMPARE(session.printMode, c.printModeAfter);
        // Group and quarter are written before anything can stop the selection.
        QCOMPARE(session.curGroupId, c.group.isEmpty() ? 0 : 1);
        const QStringList codes = {"Q1", "Q2", "Q3", "Q4"};
        QCOMPARE(session.curQuarter, codes.value(c.quarterIndex, QStringLiteral("  ")));
        if (!c.group.isEmpty())
            QCOMPARE(outcome.quarterText, QStringLiteral("Chosen quarter"));
        if (c.curCompId != untouched && !c.formType.startsWith(u"Form"))
            QCOMPARE(session.curDeductorStatus, c.listedStatus);
    }
};

KELVORA_TEST_OBJECT(TestCompanySelection);
#include "test_companyselection.moc"
