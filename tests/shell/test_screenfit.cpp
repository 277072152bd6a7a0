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
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace {

const TestStore &fitStore()
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

/// The main window maximized on the office laptop's 1366x768 display, below the window's title
/// bar and above the desktop's panel.
struct LaptopWindow
{
    LaptopWindow() : session(fitStore().store()), window(fitStore().folder(), session, boxes)
    {
        registerScreens(window, session, boxes);
        startup::readAssessmentPeriod(session);
        window.setProgramEnd([] {});
        window.resize(1366, 700);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    // The menu entry, and the company selection's Select when the entry leads through it.
    QWidget *open(const QString &entry, bool select)
    {
        auto *action = window.findChild<QAction *>(entry);
        if (!action)
            return nullptr;
        action->trigger();
        if (select) {
            QMdiSubWindow *login = window.findScreen(QStringLiteral("frmLogin"));
            if (!login)
                return nullptr;
            login->widget()->findChild<QPushButton *>(QStringLiteral("cmdSelect"))->click();
        }
        QMdiSubWindow *frame = window.mdiArea()->activeSubWindow();
        return frame ? frame->widget() : nullptr;
    }

    Session session;
    ScriptedMessageBoxes boxes;
    MdiMain window;
};

} // namespace

class TestScreenFit : public QObject
{
    Q_OBJECT

private slots:
    // Every command button of a screen can be reached with the mouse: none lies past the edge of
    // the main window's area, where only scrolling the area would show it.
    void buttonsInsideTheArea_data()
    {
        testsuite::columns<QString, bool>("entry", "select");
        for (const char *entry : {"mnuMaster(0)", "mnuMaster(1)", "mnuMaster(2)", "mnuMaster(3)",
                                  "mnuMaster(4)", "mnuMaster(6)", "mnuMaster(7)", "Tool(2)",
                                  "mnuImpData", "mnuGroupMaster", "mnuGroupWiseCompanyDetails",
                                  "mnuGroupwiseCompanyList", "mnuCertificate16A"})
            QTest::newRow(entry) << entry << false;
        QTest::newRow("selection") << "mnuForm26" << false;
        for (const char *entry : {"mnuform24", "mnuForm26", "mnuForm27", "mnuForm27E",
                                  "mnuPrintForm26", "mnuForm16A26Q"})
            QTest::newRow(entry) << entry << true;
    }
    void buttonsInsideTheArea()
    {
        QFETCH(QString, entry);
        QFETCH(bool, select);
        LaptopWindow w;
        QWidget *screen = w.open(entry, select);
        QVERIFY(screen);
        QWidget *viewport = w.window.mdiArea()->viewport();
        const QList<QAbstractButton *> buttons = screen->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            if (!button->isVisible())
                continue;
            const QRect place(button->mapTo(viewport, QPoint(0, 0)), button->size());
            QVERIFY2(viewport->rect().contains(place),
                     qPrintable(button->objectName() + u' ' + button->text()));
        }
    }

    // Alt and a letter of the screen moves to its field although the menu bar has the letter.
    void mnemonicsBeatTheMenuBar_data()
    {
        testsuite::columns<QString, QString, Qt::Key, QString>("entry", "start", "key", "field");
        QTest::newRow("deductee code") << "mnuMaster(4)" << "cmd(0)" << Qt::Key_U
                                       << "cmbDeducteeCode";
        QTest::newRow("state") << "mnuMaster(4)" << "cmd(0)" << Qt::Key_T << "cmbState";
        QTest::newRow("deductee name") << "mnuMaster(4)" << "cmd(0)" << Qt::Key_M
                                       << "txtDeducteeName";
        QTest::newRow("to date") << "mnuMaster(3)" << "cmd(0)" << Qt::Key_T << "DtpToDate";
        QTest::newRow("refresh") << "Tool(2)" << "" << Qt::Key_R << "cmdRefresh";
    }
    void mnemonicsBeatTheMenuBar()
    {
        QFETCH(QString, entry);
        QFETCH(QString, start);
        QFETCH(Qt::Key, key);
        QFETCH(QString, field);
        LaptopWindow w;
        QWidget *screen = w.open(entry, false);
        QVERIFY(screen);
        if (!start.isEmpty())
            screen->findChild<QPushButton *>(start)->click();
        QWidget *focus = QApplication::focusWidget();
        QVERIFY(focus && screen->isAncestorOf(focus));
        QTest::keyClick(focus, key, Qt::AltModifier);
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->objectName(), field);
    }
};

KELVORA_TEST_OBJECT(TestScreenFit);
#include "test_screenfit.moc"
