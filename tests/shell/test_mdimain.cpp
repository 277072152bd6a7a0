#include "core/session.h"
#include "core/startup.h"
#include "shell/mdimain.h"
#include "shell/screenfactories.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"
#include "support/testsuite.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(Answer)

namespace {

/// Group 1 with one company, Mehta Traders (11), whose deductor type is set.
const TestStore &shellStore()
{
    static const TestStore store;
    static const bool filled = [] {
        store.insert("mstGroup", {{"GroupID", 1}, {"GroupName", "Alpha Group"}});
        store.insert("mstCompany", {{"AsstID", 1}, {"GroupID", 1}, {"CompID", 11},
                                    {"CompName", "Mehta Traders"}, {"DStatus", "K"}});
        return true;
    }();
    Q_UNUSED(filled);
    return store;
}

/// A main window over a store, with the program's end recorded instead of carried out.
struct Fixture
{
    explicit Fixture(const TestStore &data = shellStore(), const QString &folder = {})
        : session(data.store()), window(folder.isEmpty() ? data.folder() : folder, session, boxes)
    {
        registerScreens(window, session, boxes);
        startup::readAssessmentPeriod(session);
        window.setProgramEnd([this] { ended = true; });
        window.show();
    }

    void trigger(const char *entry)
    {
        QAction *action = window.findChild<QAction *>(QLatin1String(entry));
        QVERIFY2(action, entry);
        action->trigger();
    }

    // The menu entry's screen, through the company selection's Select when asked to.
    QWidget *openThrough(const QString &entry, bool select)
    {
        trigger(qPrintable(entry));
        if (select) {
            QMdiSubWindow *login = window.findScreen(QStringLiteral("frmLogin"));
            if (!login)
                return nullptr;
            login->widget()->findChild<QPushButton *>(QStringLiteral("cmdSelect"))->click();
        }
        QMdiSubWindow *frame = window.mdiArea()->activeSubWindow();
        return frame ? frame->widget() : nullptr;
    }

    int openScreens(const QString &screen) const
    {
        int count = 0;
        for (QMdiSubWindow *frame : window.mdiArea()->subWindowList())
            count += frame->isVisible() && frame->widget()->objectName() == screen;
        return count;
    }

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
    // An entry opens its screen afresh, replacing one left open; the selection's entries set
    // the form and whether it is for printing.
    void entries_data()
    {
        testsuite::columns<QString, QString, QString, QString>("entry", "screen", "formType",
                                                             "reportForm");
        const QList<std::tuple<const char *, const char *, const char *, const char *>> rows = {
            {"mnuMaster(1)", "frmCompanyMaster", "", "unchanged"},
            {"mnuMaster(5)", "frmEmployeeMaster", "", "unchanged"},
            {"mnuForm27E", "frmLogin", "27EQ", "unchanged"},
            {"mnuPrintForm24", "frmLogin", "24Q", "Form24"},
            {"mnuForm16A27EQ", "frmLogin", "Form16A27EQ", "Form27E"}};
        for (const auto &[entry, screen, formType, reportForm] : rows)
            QTest::newRow(entry) << entry << screen << formType << reportForm;
    }
    void entries()
    {
        QFETCH(QString, entry);
        QFETCH(QString, screen);
        QFETCH(QString, reportForm);
        Fixture f;
        f.session.curReportForm = QStringLiteral("unchanged");
        f.session.printMode = reportForm == u"unchanged" && screen == u"frmLogin";
        f.trigger(qPrintable(entry));
        QPointer<QWidget> first = f.window.findScreen(screen)->widget();
        f.trigger(qPrintable(entry));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(first.isNull());
        QCOMPARE(f.openScreens(screen), 1);
        QTEST(f.session.curFormType, "formType");
        QCOMPARE(f.session.curReportForm, reportForm);
        QCOMPARE(f.session.printMode, reportForm != u"unchanged");
        QVERIFY(f.boxes.shown.isEmpty());
    }

    void selectionOpensTheChosenScreen()
    {
        Fixture f;
        f.window.setScreenFactory(QStringLiteral("frmForm26"), [] {
            auto *screen = new QWidget;
            screen->setObjectName(QStringLiteral("frmForm26"));
            return screen;
        });
        f.trigger("mnuForm26");
        QMdiSubWindow *selection = f.window.findScreen(QStringLiteral("frmLogin"));
        QTest::mouseClick(selection->widget()->findChild<QPushButton *>("cmdSelect"),
                          Qt::LeftButton);
        QVERIFY(f.boxes.shown.isEmpty());
        QCOMPARE(f.session.curCompId, 11);
        QCOMPARE(f.openScreens(QStringLiteral("frmForm26")), 1);
        QVERIFY(!f.window.findScreen(QStringLiteral("frmLogin")));
        // A screen this version does not have says so.
        QVERIFY(!f.window.openScreen(QStringLiteral("frmNoSuchScreen")));
        QCOMPARE(f.boxes.shown, QList<Message>({{"frmNoSuchScreen is not available yet in this "
                                                 "version of Kelvora."}}));
    }

    void exitQuestion_data()
    {
        testsuite::columns<bool, Answer>("fromMenu", "answer");
        QTest::newRow("menu, yes") << true << Answer::Yes;
        QTest::newRow("window close, no") << false << Answer::No;
    }
    void exitQuestion()
    {
        QFETCH(bool, fromMenu);
        QFETCH(Answer, answer);
        Fixture f;
        f.trigger("mnuMaster(2)");
        f.boxes.answerNext(answer);
        if (fromMenu)
            f.trigger("mnuMaster(50)");
        else
            f.window.close();
        QCOMPARE(f.boxes.shown,
                 QList<Message>({{MdiMain::exitQuestion, appTitle, MessageIcon::Question,
                                  MessageButtons::YesNo, true}}));
        QCOMPARE(f.ended, answer == Answer::Yes);
        if (answer == Answer::No) {
            QVERIFY(f.window.isVisible());
            QCOMPARE(f.openScreens(QStringLiteral("frmStateMaster")), 1);
        }
    }

    // The backup program beside the executable takes over; the program ends unless the user
    // said No or the program is missing.
    void backup_data()
    {
        testsuite::columns<Answer, bool, bool>("answer", "programThere", "ends");
        QTest::newRow("no") << Answer::No << true << false;
        QTest::newRow("any other answer") << Answer::Ok << true << true;
        QTest::newRow("yes, program missing") << Answer::Yes << false << false;
    }
    void backup()
    {
        QFETCH(Answer, answer);
        QFETCH(bool, programThere);
        QFETCH(bool, ends);
        QTemporaryDir folder;
        const QString marker = folder.filePath(QStringLiteral("started"));
        QFile program(folder.filePath(QStringLiteral("Backup")));
        if (programThere) {
            QVERIFY(program.open(QIODevice::WriteOnly));
            program.write(QStringLiteral("#!/bin/sh\necho \"$*\" > '%1'\n").arg(marker).toUtf8());
            program.close();
            program.setPermissions(program.permissions() | QFile::ExeOwner);
        }
        Fixture f(shellStore(), folder.path());
        f.boxes.answerNext(answer);
        f.trigger("Tool(1)");
        QCOMPARE(f.boxes.shown.first().buttons, MessageButtons::YesNo);
        QVERIFY(f.boxes.shown.first().defaultNo);
        QVERIFY(f.boxes.shown.first().text.startsWith("For Backup & Restore, the Kelvora "));
        QCOMPARE(f.ended, ends);
        QCOMPARE(f.boxes.shown.size(), programThere || answer == Answer::No ? 1 : 2);
        if (f.boxes.shown.size() == 2) {
            QCOMPARE(f.boxes.shown.last().icon, MessageIcon::Critical);
            QVERIFY(f.boxes.shown.last().text.contains(u"backup program was not found"));
        }
        if (ends) {
            // Told so, the backup program works on this store and starts Kelvora again.
            const auto arguments = [&marker] {
                QFile started(marker);
                return started.open(QIODevice::ReadOnly) ? started.readAll().trimmed() : "";
            };
            QTRY_COMPARE(arguments(), "--from-kelvora " + f.session.store.path().toUtf8());
        }
    }

    // On the office laptop's 1366x768 display (the maximized window below its title bar and
    // above the desktop's panel) every screen stands wholly in the area, opened alone or after
    // others, and so every command button of it is in sight, none past the edge of the area
    // where only scrolling would show it. The viewers and the printing screen stand at the top
    // left each time, the import in the middle.
    void screensInsideTheArea_data()
    {
        testsuite::columns<QString, bool, QStringList, QString>("entry", "select", "before",
                                                                 "place");
        const QList<std::pair<const char *, QStringList>> befores = {
            {"alone", {}},
            {"second", {"mnuMaster(3)"}},
            {"third", {"mnuMaster(0)", "mnuMaster(4)"}}};
        const QList<std::tuple<const char *, bool, const char *>> entries = {
            {"mnuMaster(0)", false, ""}, {"mnuMaster(1)", false, ""},
            {"mnuMaster(2)", false, ""}, {"mnuMaster(3)", false, ""},
            {"mnuMaster(4)", false, ""}, {"mnuMaster(6)", false, ""},
            {"mnuMaster(7)", false, ""}, {"Tool(2)", false, ""},
            {"mnuImpData", false, "middle"}, {"mnuGroupMaster", false, "top left"},
            {"mnuGroupWiseCompanyDetails", false, ""},
            {"mnuGroupwiseCompanyList", false, "top left"}, {"mnuCertificate16A", false, ""},
            {"mnuForm26", false, ""}, {"mnuform24", true, ""}, {"mnuForm26", true, ""},
            {"mnuForm27", true, ""}, {"mnuForm27E", true, ""},
            {"mnuPrintForm26", true, "top left"}, {"mnuForm16A26Q", true, ""}};
        for (const auto &[when, before] : befores) {
            for (const auto &[entry, select, place] : entries) {
                QTest::addRow("%s%s %s", entry, select ? " selected" : "", when)
                    << entry << select << before << place;
            }
        }
    }
    void screensInsideTheArea()
    {
        QFETCH(QString, entry);
        QFETCH(bool, select);
        QFETCH(QStringList, before);
        QFETCH(QString, place);
        Fixture f;
        f.window.resize(1366, 700);
        for (const QString &earlier : before)
            QVERIFY(f.openThrough(earlier, false));
        QWidget *screen = f.openThrough(entry, select);
        QVERIFY(screen);
        QWidget *viewport = f.window.mdiArea()->viewport();
        const QRect frame = screen->parentWidget()->geometry();
        QVERIFY(viewport->rect().contains(frame));
        for (const QAbstractButton *button : screen->findChildren<QAbstractButton *>()) {
            const QRect spot(button->mapTo(viewport, QPoint(0, 0)), button->size());
            QVERIFY2(!button->isVisible() || viewport->rect().contains(spot),
                     qPrintable(button->objectName()));
        }
        if (place == u"top left")
            QCOMPARE(frame.topLeft(), QPoint(0, 0));
        if (place == u"middle")
            QVERIFY((frame.center() - viewport->rect().center()).manhattanLength() <= 2);
    }

    // Alt and a letter of the active screen moves to its field although the menu bar has it.
    void mnemonicsBeatTheMenuBar_data()
    {
        testsuite::columns<QString, QString, Qt::Key, QString>("entry", "start", "key", "field");
        QTest::newRow("deductee code")
            << "mnuMaster(4)" << "cmd(0)" << Qt::Key_U << "cmbDeducteeCode";
        QTest::newRow("state") << "mnuMaster(4)" << "cmd(0)" << Qt::Key_T << "cmbState";
        QTest::newRow("name") << "mnuMaster(4)" << "cmd(0)" << Qt::Key_M << "txtDeducteeName";
        QTest::newRow("to date") << "mnuMaster(3)" << "cmd(0)" << Qt::Key_T << "DtpToDate";
        QTest::newRow("refresh") << "Tool(2)" << "" << Qt::Key_R << "cmdRefresh";
    }
    void mnemonicsBeatTheMenuBar()
    {
        QFETCH(QString, entry);
        QFETCH(QString, start);
        QFETCH(Qt::Key, key);
        Fixture f;
        QApplication::setActiveWindow(&f.window);
        QWidget *screen = f.openThrough(entry, false);
        QVERIFY(screen);
        if (!start.isEmpty())
            screen->findChild<QPushButton *>(start)->click();
        QVERIFY(screen->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
        QVERIFY(!QApplication::activePopupWidget());
        QTEST(QApplication::focusWidget()->objectName(), "field");
    }

    void loadFailureLeavesTheWindowUp()
    {
        const TestStore broken;
        Fixture f(broken);
        broken.store().exec("DROP TABLE mstAssessment");
        QVERIFY(!f.window.load());
        QCOMPARE(f.boxes.shown.size(), 1);
        QCOMPARE(f.boxes.shown.first().icon, MessageIcon::Critical);
        QVERIFY(f.boxes.shown.first().text.contains(QStringLiteral("mstAssessment")));
        QVERIFY(f.window.isVisible());
    }
};

KELVORA_TEST_OBJECT(TestMdiMain);
#include "test_mdimain.moc"
