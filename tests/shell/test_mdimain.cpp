#include "core/companyselection.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/selectiondata.h"
#include "shell/mdimain.h"
#include "shell/screenfactories.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QAction>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using namespace selectiondata;

Q_DECLARE_METATYPE(Answer)

namespace {

/// A main window over a test store, with the program's end recorded instead of carried out.
struct Fixture
{
    explicit Fixture(TestStore &data, const QString &folder = QString())
        : data(data),
          session(data.store()),
          window(folder.isEmpty() ? data.folder() : folder, session, boxes)
    {
        registerScreens(window, session, boxes);
        startup::readAssessmentPeriod(session);
        window.setProgramEnd([this] { ended = true; });
    }

    void trigger(const QString &entry)
    {
        QAction *action = window.findChild<QAction *>(entry);
        QVERIFY2(action, qPrintable(entry));
        action->trigger();
    }

    int openScreens(const QString &screen) const
    {
        int count = 0;
        for (QMdiSubWindow *frame : window.mdiArea()->subWindowList())
            count += frame->isVisible() && frame->widget()->objectName() == screen;
        return count;
    }

    TestStore &data;
    Session session;
    ScriptedMessageBoxes boxes;
    MdiMain window;
    bool ended = false;
};

} // namespace

class TestMdiMain : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void entries_data();
    void entries();
    void selectionEntries_data();
    void selectionEntries();
    void screensOpenOnceAndAfresh_data();
    void screensOpenOnceAndAfresh();
    void selectionOfAMissingScreen();
    void exitQuestion_data();
    void exitQuestion();
    void backup_data();
    void backup();
    void loadFailureLeavesTheWindowUp();

private:
    // Read by the tests that change nothing; a test that writes makes its own store.
    std::unique_ptr<TestStore> m_shared;
};

void TestMdiMain::initTestCase()
{
    m_shared = std::make_unique<TestStore>();
}

void TestMdiMain::entries_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("menu"); // "objectName=title"
    QTest::addColumn<QStringList>("entries"); // "objectName=caption", "-" for a separator

    QTest::newRow("master") << 0 << "mnuMastermain= &Master"
        << QStringList{"mnuMaster(0)=&Group Master", "mnuMaster(1)=&Company Master",
                       "mnuMaster(2)=&State Master", "mnuMaster(3)=&Employee Master",
                       "mnuMaster(4)=&Deductee Master", "mnuMaster(5)=&Employee Master",
                       "mnuMaster(6)=&Category Master", "mnuMaster(7)=&Ministry Master", "-",
                       "mnuMaster(50)=E&xit"};
    QTest::newRow("transaction") << 1 << "mnuTransaction= &Transaction"
        << QStringList{"mnuform24=&Form 24Q", "mnuForm26=F&orm 26Q", "mnuForm27=Fo&rm 27Q",
                       "mnuForm27E=Fo&rm 27EQ"};
    QTest::newRow("utilities") << 2 << "mnuUtilities=&Utilities"
        << QStringList{"Tool(1)=&Backup && Restore", "Tool(2)=View Forms",
                       "mnuImpData=Import Data"};
    QTest::newRow("reports") << 3 << "mnuReport=&Reports"
        << QStringList{"mnuPrintForm24=Form24Q", "mnuPrintForm26=Form26Q",
                       "mnuPrintForm27=Form27Q", "mnuPrintForm27E=Form27EQ", "-",
                       "mnuForm16A26Q=Form 16A [26Q]", "mnuForm16A27Q=Form 16A [27Q]",
                       "mnuForm16A27EQ=Form 16A [27D]", "-",
                       "mnuGroupMaster=&Group Master",
                       "mnuGroupwiseCompanyList=&Group-wise Company List",
                       "mnuGroupWiseCompanyDetails=&Group-wise Company Details",
                       "mnuGroupwiseCompanywiseDeducteeList=Group-wise &Deductee List",
                       "mnuGroupwiseCompanywiseEmployeeList=Group-wise &Employee List",
                       "mnuCompanywiseFormgenerationLog=Company-wise Form generation Log",
                       "DatewiseFormgenerationLog=Date-wise Form generation Log",
                       "mnuCertificate16A=Certificate - Form 16 A"};
    QTest::newRow("help") << 4 << "mnuHelpMain=&Help"
        << QStringList{"mnuHelp(0)=User &Manual", "mnuHelp(1)=&About Kelvora"};
}

void TestMdiMain::entries()
{
    QFETCH(int, position);
    QFETCH(QString, menu);
    QFETCH(QStringList, entries);
    Fixture f(*m_shared);
    QCOMPARE(f.window.windowTitle(),
             QStringLiteral("Kelvora :--  [Electronic Tax Deduction at Source]"));
    const QMenu *found = f.window.menuBar()->actions().value(position)->menu();
    QCOMPARE(found->objectName() + u'=' + found->title(), menu);
    QStringList actual;
    for (const QAction *action : found->actions()) {
        actual << (action->isSeparator() ? QStringLiteral("-")
                                         : action->objectName() + u'=' + action->text());
    }
    QCOMPARE(actual, entries);
}

void TestMdiMain::selectionEntries_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("formType");
    QTest::addColumn<QString>("reportForm");
    QTest::addColumn<bool>("printMode");

    QTest::newRow("Form 24Q") << "mnuform24" << "24Q" << "unchanged" << false;
    QTest::newRow("Form 26Q") << "mnuForm26" << "26Q" << "unchanged" << false;
    QTest::newRow("Form 27Q") << "mnuForm27" << "27Q" << "unchanged" << false;
    QTest::newRow("Form 27EQ") << "mnuForm27E" << "27EQ" << "unchanged" << false;
    QTest::newRow("print 24Q") << "mnuPrintForm24" << "24Q" << "Form24" << true;
    QTest::newRow("print 26Q") << "mnuPrintForm26" << "26Q" << "Form26" << true;
    QTest::newRow("print 27Q") << "mnuPrintForm27" << "27Q" << "Form27" << true;
    QTest::newRow("print 27EQ") << "mnuPrintForm27E" << "27EQ" << "Form27E" << true;
    QTest::newRow("16A 26Q") << "mnuForm16A26Q" << "Form16A26Q" << "Form26" << true;
    QTest::newRow("16A 27Q") << "mnuForm16A27Q" << "Form16A27Q" << "Form27" << true;
    QTest::newRow("16A captioned 27D") << "mnuForm16A27EQ" << "Form16A27EQ" << "Form27E" << true;
}

void TestMdiMain::selectionEntries()
{
    QFETCH(QString, entry);
    QFETCH(QString, formType);
    QFETCH(QString, reportForm);
    QFETCH(bool, printMode);
    Fixture f(*m_shared); // no company: the selection still opens, with an empty list
    f.session.curReportForm = QStringLiteral("unchanged");
    f.session.printMode = !printMode;
    f.window.show();

    f.trigger(entry);

    QCOMPARE(f.session.curFormType, formType);
    QCOMPARE(f.session.curReportForm, reportForm);
    QCOMPARE(f.session.printMode, printMode);
    QCOMPARE(f.openScreens(QStringLiteral("frmLogin")), 1);
    QVERIFY(f.boxes.shown.isEmpty());
}

void TestMdiMain::screensOpenOnceAndAfresh_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("screen");
    QTest::newRow("groups") << "mnuMaster(0)" << "frmGroupMaster";
    QTest::newRow("companies") << "mnuMaster(1)" << "frmCompanyMaster";
    QTest::newRow("employees") << "mnuMaster(3)" << "frmEmployeeMaster";
    QTest::newRow("deductees") << "mnuMaster(4)" << "frmDeducteeMaster";
    QTest::newRow("employees again") << "mnuMaster(5)" << "frmEmployeeMaster";
    QTest::newRow("states") << "mnuMaster(2)" << "frmStateMaster";
    QTest::newRow("file viewer") << "Tool(2)" << "frmShowForms";
    QTest::newRow("selection") << "mnuForm26" << "frmLogin";
}

void TestMdiMain::screensOpenOnceAndAfresh()
{
    QFETCH(QString, entry);
    QFETCH(QString, screen);
    Fixture f(*m_shared);
    f.window.show();

    f.trigger(entry);
    QMdiSubWindow *first = f.window.findScreen(screen);
    QVERIFY(first);
    QPointer<QWidget> firstScreen = first->widget();
    f.trigger(entry);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QCOMPARE(f.openScreens(screen), 1);
    QVERIFY(firstScreen.isNull());
    QVERIFY(f.boxes.shown.isEmpty());
}

void TestMdiMain::selectionOfAMissingScreen()
{
    TestStore data;
    Fixture f(data);
    addGroup(f.data.store(), 1, QStringLiteral("Alpha Group"));
    addCompany(f.data.store(), 1, 1, 11, QStringLiteral("Mehta Traders"), QStringLiteral("K"));
    f.window.show();

    f.trigger(QStringLiteral("mnuForm26"));
    QMdiSubWindow *selection = f.window.findScreen(QStringLiteral("frmLogin"));
    QVERIFY(selection);
    QTest::mouseClick(selection->widget()->findChild<QPushButton *>(QStringLiteral("cmdSelect")),
                      Qt::LeftButton);

    QCOMPARE(f.boxes.texts(), QStringList({"The Form 26Q statement is not available yet in this "
                                           "version of Kelvora."}));
    QCOMPARE(f.boxes.shown.first().icon, MessageIcon::Information);
    QCOMPARE(f.session.curCompId, 11);
    QCOMPARE(f.session.curBasicInfoId, 0);
    QVERIFY(!f.window.findScreen(QStringLiteral("frmLogin")));
}

void TestMdiMain::exitQuestion_data()
{
    QTest::addColumn<bool>("fromMenu");
    QTest::addColumn<Answer>("answer");
    QTest::newRow("menu, yes") << true << Answer::Yes;
    QTest::newRow("menu, no") << true << Answer::No;
    QTest::newRow("window close, yes") << false << Answer::Yes;
    QTest::newRow("window close, no") << false << Answer::No;
}

void TestMdiMain::exitQuestion()
{
    QFETCH(bool, fromMenu);
    QFETCH(Answer, answer);
    Fixture f(*m_shared);
    f.window.show();
    f.trigger(QStringLiteral("mnuMaster(2)"));
    f.boxes.answerNext(answer);

    if (fromMenu)
        f.trigger(QStringLiteral("mnuMaster(50)"));
    else
        f.window.close();

    QCOMPARE(f.boxes.shown.size(), 1);
    const Message &question = f.boxes.shown.first();
    QCOMPARE(question.text, QStringLiteral("Want to exit from Kelvora?"));
    QCOMPARE(question.buttons, MessageButtons::YesNo);
    QCOMPARE(f.ended, answer == Answer::Yes);
    if (answer == Answer::No) {
        QVERIFY(f.window.isVisible());
        QCOMPARE(f.openScreens(QStringLiteral("frmStateMaster")), 1);
    }
}

void TestMdiMain::backup_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("programThere");
    QTest::addColumn<bool>("ends");
    QTest::addColumn<bool>("critical");
    QTest::newRow("no") << Answer::No << true << false << false;
    QTest::newRow("yes") << Answer::Yes << true << true << false;
    QTest::newRow("any other answer") << Answer::Ok << true << true << false;
    QTest::newRow("yes, program missing") << Answer::Yes << false << false << true;
}

void TestMdiMain::backup()
{
    QFETCH(Answer, answer);
    QFETCH(bool, programThere);
    QFETCH(bool, ends);
    QFETCH(bool, critical);
    QTemporaryDir folder;
    const QString marker = folder.filePath(QStringLiteral("started"));
    if (programThere) {
        QFile program(folder.filePath(QStringLiteral("Backup")));
        QVERIFY(program.open(QIODevice::WriteOnly));
        program.write(QStringLiteral("#!/bin/sh\ntouch '%1'\n").arg(marker).toUtf8());
        program.close();
        program.setPermissions(program.permissions() | QFile::ExeOwner);
    }
    Fixture f(*m_shared, folder.path());
    f.boxes.answerNext(answer);

    f.trigger(QStringLiteral("Tool(1)"));

    QCOMPARE(f.boxes.shown.first().text,
             QStringLiteral("For Backup & Restore, the Kelvora application \n"
                            "will be aborted and all opened windows will get closed. \n"
                            "Want to Continue with Backup/Restore operations ? [When you Close "
                            "the \nBackup/Restore window you will come back to the Kelvora "
                            "application]"));
    QCOMPARE(f.boxes.shown.first().buttons, MessageButtons::YesNo);
    QCOMPARE(f.ended, ends);
    QCOMPARE(f.boxes.shown.size(), critical ? 2 : 1);
    if (critical) {
        QCOMPARE(f.boxes.shown.last().icon, MessageIcon::Critical);
        QVERIFY(f.boxes.shown.last().text.contains(u"backup program was not found"));
    }
    if (ends)
        QTRY_VERIFY(QFile::exists(marker));
}

void TestMdiMain::loadFailureLeavesTheWindowUp()
{
    TestStore brokenData;
    Fixture broken(brokenData);
    broken.data.store().exec(QStringLiteral("DROP TABLE mstAssessment"));
    broken.window.show();
    QVERIFY(!broken.window.load());
    QCOMPARE(broken.boxes.shown.size(), 1);
    QCOMPARE(broken.boxes.shown.first().icon, MessageIcon::Critical);
    QVERIFY(broken.boxes.shown.first().text.contains(QStringLiteral("mstAssessment")));
    QVERIFY(broken.window.isVisible());
}

QTEST_MAIN(TestMdiMain)
#include "test_mdimain.moc"
