#include "core/companyselection.h"
#include "core/session.h"
#include "core/startup.h"
#include "selectiondata.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QtTest>

using namespace selectiondata;
using Next = CompanySelection::Next;

Q_DECLARE_METATYPE(CompanySelection::Next)

namespace {

constexpr int untouched = -1;

} // namespace

class TestCompanySelection : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void select_data();
    void select();

private:
    TestStore m_data;
};

void TestCompanySelection::initTestCase()
{
    DataStore &store = m_data.store();
    addGroup(store, 1, QStringLiteral("Alpha Group"));
    addCompany(store, 1, 1, 11, QStringLiteral("Mehta Traders"), QStringLiteral("K"));
    addCompany(store, 1, 1, 12, QStringLiteral("Anand Mills"), QVariant());
    addCompany(store, 1, 1, 13, QStringLiteral("Bose Exports"), QStringLiteral(""));
    addStatement(store, QStringLiteral("TranBasicInfoE26"), 7, 11, 1, QStringLiteral("Q1"));
    addStatement(store, QStringLiteral("TranBasicInfoE26"), 8, 11, 1, QStringLiteral("Q2"));
    addStatement(store, QStringLiteral("TranBasicInfoE24"), 3, 11, 1, QStringLiteral("Q1"));
    // The same company and quarter in another assessment period is not this Statement.
    addStatement(store, QStringLiteral("TranBasicInfoE27"), 9, 11, 2, QStringLiteral("Q1"));
}

void TestCompanySelection::select_data()
{
    QTest::addColumn<QString>("formType");
    QTest::addColumn<bool>("printMode");
    QTest::addColumn<QString>("groupText");
    QTest::addColumn<int>("compId"); // 0: no row selected
    QTest::addColumn<QString>("listedStatus");
    QTest::addColumn<int>("quarterIndex");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<Next>("next");
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("basicInfoId");
    QTest::addColumn<int>("curCompId");
    QTest::addColumn<bool>("printModeAfter");

    const QString group = QStringLiteral("Alpha Group");
    const QStringList none;
    const QStringList noGroup = {CompanySelection::noGroupText};
    const QStringList noType = {CompanySelection::noDeductorTypeText};

    QTest::newRow("no group") << "26Q" << false << "" << 11 << "K" << 0 << noGroup << Next::Nothing
                              << "" << "CmbGroup" << untouched << untouched << false;
    QTest::newRow("no row selected") << "26Q" << false << group << 0 << "" << 0 << none
                                     << Next::Nothing << "" << "" << untouched << untouched
                                     << false;
    QTest::newRow("deductor type null") << "26Q" << false << group << 12 << "" << 0 << noType
                                        << Next::Nothing << "" << "lstvComp" << untouched << 12
                                        << false;
    QTest::newRow("deductor type empty") << "27Q" << false << group << 13 << "" << 0 << noType
                                         << Next::Nothing << "" << "lstvComp" << untouched << 13
                                         << false;
    QTest::newRow("list older than the master") << "26Q" << false << group << 12 << "K" << 0
                                                << noType << Next::Nothing << "" << "lstvComp"
                                                << untouched << 12 << false;
    QTest::newRow("26Q first quarter") << "26Q" << false << group << 11 << "K" << 0 << none
                                       << Next::Statement << "frmForm26" << "" << 7 << 11
                                       << false;
    QTest::newRow("26Q second quarter") << "26Q" << false << group << 11 << "K" << 1 << none
                                        << Next::Statement << "frmForm26" << "" << 8 << 11
                                        << false;
    QTest::newRow("26Q third quarter, none yet") << "26Q" << false << group << 11 << "K" << 2
                                                 << none << Next::Statement << "frmForm26" << ""
                                                 << 0 << 11 << false;
    QTest::newRow("24Q reads its own table") << "24Q" << false << group << 11 << "K" << 0 << none
                                             << Next::Statement << "frmForm24" << "" << 3 << 11
                                             << false;
    QTest::newRow("27Q of another period ignored") << "27Q" << false << group << 11 << "K" << 0
                                                   << none << Next::Statement << "frmForm27"
                                                   << "" << 0 << 11 << false;
    QTest::newRow("invalid quarter finds nothing")
        << "26Q" << false << group << 11 << "K" << -1 << QStringList{quarter::invalidChoiceText}
        << Next::Statement << "frmForm26" << "" << 0 << 11 << false;
    QTest::newRow("print with a Statement") << "26Q" << true << group << 11 << "K" << 1 << none
                                            << Next::Report << "FrmReport" << "" << 8 << 11
                                            << false;
    QTest::newRow("print without a Statement") << "27EQ" << true << group << 11 << "K" << 0
                                               << none << Next::Report << "FrmReport" << "" << 0
                                               << 11 << false;
    QTest::newRow("print stops at the deductor type") << "24Q" << true << group << 12 << "" << 0
                                                      << noType << Next::Nothing << ""
                                                      << "lstvComp" << untouched << 12 << true;
    QTest::newRow("Form 16A skips the deductor type")
        << "Form16A26Q" << true << group << 12 << "" << 0 << none << Next::Form16AReport
        << "frmForm16Report" << "" << untouched << 12 << false;
    QTest::newRow("Form 16A outside printing") << "Form16A27Q" << false << group << 11 << "K" << 0
                                               << none << Next::Nothing << "" << "" << untouched
                                               << 11 << false;
    QTest::newRow("Form 16A, no row selected") << "Form16A27Q" << true << group << 0 << "" << 0
                                               << none << Next::Nothing << "" << "" << untouched
                                               << untouched << true;
    QTest::newRow("unknown form type") << "Form28" << false << group << 11 << "K" << 0 << none
                                       << Next::Nothing << "" << "" << untouched << untouched
                                       << false;
}

void TestCompanySelection::select()
{
    QFETCH(QString, formType);
    QFETCH(bool, printMode);
    QFETCH(QString, groupText);
    QFETCH(int, compId);
    QFETCH(QString, listedStatus);
    QFETCH(int, quarterIndex);
    QFETCH(QStringList, boxes);
    QFETCH(Next, next);
    QFETCH(QString, screen);
    QFETCH(QString, focus);
    QFETCH(int, basicInfoId);
    QFETCH(int, curCompId);
    QFETCH(bool, printModeAfter);

    Session session(m_data.store());
    startup::readAssessmentPeriod(session);
    session.curFormType = formType;
    session.printMode = printMode;
    session.curBasicInfoId = untouched;
    session.curCompId = untouched;
    ScriptedMessageBoxes shown;
    CompanySelection selection(session, shown);

    CompanySelection::Choice choice;
    choice.groupText = groupText;
    choice.groupIdText = QString::number(selection.groupId(groupText));
    if (compId != 0)
        choice.company = CompanySelection::Company{QString(), compId, listedStatus};
    choice.quarterIndex = quarterIndex;
    choice.quarterText = QStringLiteral("Chosen quarter");

    const CompanySelection::Outcome outcome = selection.select(choice);

    QCOMPARE(shown.texts(), boxes);
    QCOMPARE(outcome.next, next);
    QCOMPARE(outcome.screen, screen);
    QCOMPARE(outcome.focus, focus);
    QCOMPARE(outcome.closeSelection, next != Next::Nothing);
    QCOMPARE(session.curBasicInfoId, basicInfoId);
    QCOMPARE(session.curCompId, curCompId);
    QCOMPARE(session.printMode, printModeAfter);
    // Group and quarter are written before anything can stop the selection.
    QCOMPARE(session.curGroupId, groupText.isEmpty() ? 0 : 1);
    QCOMPARE(session.curQuarter,
             quarter::sessionCode(quarter::forIndex(quarterIndex, 2026).code));
    if (!groupText.isEmpty())
        QCOMPARE(outcome.quarterText, QStringLiteral("Chosen quarter"));
    if (curCompId != untouched && !formType.startsWith(QLatin1String("Form")))
        QCOMPARE(session.curDeductorStatus, listedStatus);
}

QTEST_GUILESS_MAIN(TestCompanySelection)
#include "test_companyselection.moc"
