#include "shell/mdimain.h"

#include "core/datastore.h"
#include "core/frmabout.h"
#include "core/frmlogin.h"
#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "shell/screenmnemonics.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QUrl>

namespace {

QString backupProgramName()
{
#ifdef Q_OS_WIN
    return QStringLiteral("Backup.exe");
#else
    return QStringLiteral("Backup");
#endif
}

} // namespace

MdiMain::MdiMain(const QString &programFolder, Session &session, MessageBoxes &boxes,
                 QWidget *parent)
    : QMainWindow(parent),
      m_folder(programFolder),
      m_session(session),
      m_boxes(boxes),
      m_area(new QMdiArea(this)),
      m_endProgram([] { QCoreApplication::exit(0); })
{
    setObjectName(QStringLiteral("mdiMain"));
    setWindowTitle(title);
    m_area->setObjectName(QStringLiteral("mdiArea"));
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(m_area);
    qApp->installEventFilter(new ScreenMnemonics(m_area, this));

    setScreenFactory(QStringLiteral("frmLogin"), [this] {
        auto *login = new FrmLogin(m_session, m_boxes);
        connect(login, &FrmLogin::selected, this, &MdiMain::openSelected);
        return login;
    });
    buildMenus();
    resize(1024, 720);
}

bool MdiMain::load()
{
    try {
        startup::prepareStore(m_session);
        return true;
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical});
        return false;
    }
}

void MdiMain::setScreenFactory(const QString &screen, ScreenFactory factory)
{
    m_factories.insert(screen, std::move(factory));
}

QMdiSubWindow *MdiMain::openScreen(const QString &screen)
{
    const auto factory = m_factories.constFind(screen);
    if (factory == m_factories.constEnd()) {
        showNotAvailable(screen);
        return nullptr;
    }
    // A screen opened again starts afresh; one that refuses to close stays as it is.
    if (QMdiSubWindow *open = findScreen(screen)) {
        if (!open->close()) {
            m_area->setActiveSubWindow(open);
            return open;
        }
    }
    QWidget *widget = (*factory)();
    if (!widget)
        return nullptr; // a report without rows has said so instead of opening
    return screenroutines::showInArea(m_area, widget, m_area->currentSubWindow());
}

QMdiSubWindow *MdiMain::findScreen(const QString &screen) const
{
    const QList<QMdiSubWindow *> frames = m_area->subWindowList();
    for (QMdiSubWindow *frame : frames) {
        if (frame->isVisible() && frame->widget() && frame->widget()->objectName() == screen)
            return frame;
    }
    return nullptr;
}

void MdiMain::closeEvent(QCloseEvent *event)
{
    if (m_ending || confirmExit()) {
        event->accept();
        if (!m_ending) {
            m_ending = true;
            m_endProgram();
        }
    } else {
        event->ignore();
    }
}

void MdiMain::buildMenus()
{
    const auto entry = [this](QMenu *menu, const QString &name, const QString &caption,
                              std::function<void()> action) {
        QAction *item = menu->addAction(caption);
        item->setObjectName(name);
        connect(item, &QAction::triggered, this, std::move(action));
        return item;
    };
    const auto menu = [this](const QString &name, const QString &caption) {
        QMenu *result = menuBar()->addMenu(caption);
        result->setObjectName(name);
        result->menuAction()->setObjectName(name + QStringLiteral("Action"));
        return result;
    };
    const auto open = [this](const QString &screen) {
        return [this, screen] { openScreen(screen); };
    };

    QMenu *master = menu(QStringLiteral("mnuMastermain"), QStringLiteral(" &Master"));
    entry(master, QStringLiteral("mnuMaster(0)"), QStringLiteral("&Group Master"),
          open(QStringLiteral("frmGroupMaster")));
    entry(master, QStringLiteral("mnuMaster(1)"), QStringLiteral("&Company Master"),
          open(QStringLiteral("frmCompanyMaster")));
    entry(master, QStringLiteral("mnuMaster(2)"), QStringLiteral("&State Master"),
          open(QStringLiteral("frmStateMaster")));
    entry(master, QStringLiteral("mnuMaster(3)"), QStringLiteral("&Employee Master"),
          open(QStringLiteral("frmEmployeeMaster")));
    entry(master, QStringLiteral("mnuMaster(4)"), QStringLiteral("&Deductee Master"),
          open(QStringLiteral("frmDeducteeMaster")));
    // The menu has always carried the employee master twice; both entries do the same.
    entry(master, QStringLiteral("mnuMaster(5)"), QStringLiteral("&Employee Master"),
          open(QStringLiteral("frmEmployeeMaster")));
    entry(master, QStringLiteral("mnuMaster(6)"), QStringLiteral("&Category Master"),
          open(QStringLiteral("frmCategoryMaster")));
    entry(master, QStringLiteral("mnuMaster(7)"), QStringLiteral("&Ministry Master"),
          open(QStringLiteral("frmMinistryMaster")));
    master->addSeparator();
    entry(master, QStringLiteral("mnuMaster(50)"), QStringLiteral("E&xit"),
          [this] { exitProgram(); });

    QMenu *transaction = menu(QStringLiteral("mnuTransaction"), QStringLiteral(" &Transaction"));
    const auto statement = [this](const QString &formType) {
        return [this, formType] { selectStatement(formType); };
    };
    entry(transaction, QStringLiteral("mnuform24"), QStringLiteral("&Form 24Q"),
          statement(QStringLiteral("24Q")));
    entry(transaction, QStringLiteral("mnuForm26"), QStringLiteral("F&orm 26Q"),
          statement(QStringLiteral("26Q")));
    entry(transaction, QStringLiteral("mnuForm27"), QStringLiteral("Fo&rm 27Q"),
          statement(QStringLiteral("27Q")));
    entry(transaction, QStringLiteral("mnuForm27E"), QStringLiteral("Fo&rm 27EQ"),
          statement(QStringLiteral("27EQ")));

    QMenu *utilities = menu(QStringLiteral("mnuUtilities"), QStringLiteral("&Utilities"));
    entry(utilities, QStringLiteral("Tool(1)"), QStringLiteral("&Backup && Restore"),
          [this] { launchBackup(); });
    entry(utilities, QStringLiteral("Tool(2)"), QStringLiteral("View Forms"),
          open(QStringLiteral("frmShowForms")));
    entry(utilities, QStringLiteral("mnuImpData"), QStringLiteral("Import Data"),
          open(QStringLiteral("frmImport")));

    QMenu *report = menu(QStringLiteral("mnuReport"), QStringLiteral("&Reports"));
    const auto print = [this](const QString &reportForm, const QString &formType) {
        return [this, reportForm, formType] { selectPrint(reportForm, formType); };
    };
    entry(report, QStringLiteral("mnuPrintForm24"), QStringLiteral("Form24Q"),
          print(QStringLiteral("Form24"), QStringLiteral("24Q")));
    entry(report, QStringLiteral("mnuPrintForm26"), QStringLiteral("Form26Q"),
          print(QStringLiteral("Form26"), QStringLiteral("26Q")));
    entry(report, QStringLiteral("mnuPrintForm27"), QStringLiteral("Form27Q"),
          print(QStringLiteral("Form27"), QStringLiteral("27Q")));
    entry(report, QStringLiteral("mnuPrintForm27E"), QStringLiteral("Form27EQ"),
          print(QStringLiteral("Form27E"), QStringLiteral("27EQ")));
    report->addSeparator()->setObjectName(QStringLiteral("mnub100"));
    entry(report, QStringLiteral("mnuForm16A26Q"), QStringLiteral("Form 16A [26Q]"),
          print(QStringLiteral("Form26"), QStringLiteral("Form16A26Q")));
    entry(report, QStringLiteral("mnuForm16A27Q"), QStringLiteral("Form 16A [27Q]"),
          print(QStringLiteral("Form27"), QStringLiteral("Form16A27Q")));
    // The caption reads 27D, as it always has; the entry is the one of Form 27EQ.
    entry(report, QStringLiteral("mnuForm16A27EQ"), QStringLiteral("Form 16A [27D]"),
          print(QStringLiteral("Form27E"), QStringLiteral("Form16A27EQ")));
    report->addSeparator()->setObjectName(QStringLiteral("mnub101"));
    entry(report, QStringLiteral("mnuGroupMaster"), QStringLiteral("&Group Master"),
          open(QStringLiteral("dRptGroupMaster")));
    entry(report, QStringLiteral("mnuGroupwiseCompanyList"),
          QStringLiteral("&Group-wise Company List"),
          open(QStringLiteral("drptGroupwiseCompanyList")));
    entry(report, QStringLiteral("mnuGroupWiseCompanyDetails"),
          QStringLiteral("&Group-wise Company Details"),
          open(QStringLiteral("frmGroupWiseCompanyDetails")));
    entry(report, QStringLiteral("mnuGroupwiseCompanywiseDeducteeList"),
          QStringLiteral("Group-wise &Deductee List"),
          open(QStringLiteral("drptCompanywiseDeducteeList")));
    entry(report, QStringLiteral("mnuGroupwiseCompanywiseEmployeeList"),
          QStringLiteral("Group-wise &Employee List"),
          open(QStringLiteral("drptCompanywiseEmployeeList")));
    entry(report, QStringLiteral("mnuCompanywiseFormgenerationLog"),
          QStringLiteral("Company-wise Form generation Log"),
          [this] { showGenerationLog(QStringLiteral("drptCompanywiseFileGenerationLog")); });
    entry(report, QStringLiteral("DatewiseFormgenerationLog"),
          QStringLiteral("Date-wise Form generation Log"),
          [this] { showGenerationLog(QStringLiteral("drptDatewiseFileGenerationLog")); });
    entry(report, QStringLiteral("mnuCertificate16A"), QStringLiteral("Certificate - Form 16 A"),
          open(QStringLiteral("frmCertificate16A")));

    QMenu *help = menu(QStringLiteral("mnuHelpMain"), QStringLiteral("&Help"));
    entry(help, QStringLiteral("mnuHelp(0)"), QStringLiteral("User &Manual"),
          [this] { openManual(); });
    entry(help, QStringLiteral("mnuHelp(1)"), QStringLiteral("&About Kelvora"),
          [this] { showAbout(); });
}

void MdiMain::selectStatement(const QString &formType)
{
    m_session.curFormType = formType;
    m_session.printMode = false;
    openScreen(QStringLiteral("frmLogin"));
}

void MdiMain::selectPrint(const QString &reportForm, const QString &formType)
{
    m_session.curReportForm = reportForm;
    m_session.curFormType = formType;
    m_session.printMode = true;
    openScreen(QStringLiteral("frmLogin"));
}

void MdiMain::openSelected(const CompanySelection::Outcome &outcome)
{
    m_selectedQuarterText = outcome.quarterText;
    openScreen(outcome.screen);
}

void MdiMain::showGenerationLog(const QString &report)
{
    // An empty log has nothing to show, and shows nothing.
    try {
        if (!m_session.store.hasRows(QStringLiteral("SELECT FormNo FROM FileGenerationLog")))
            return;
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical});
        return;
    }
    openScreen(report);
}

void MdiMain::showNotAvailable(const QString &screen)
{
    m_boxes.show(
        {QStringLiteral("%1 is not available yet in this version of Kelvora.").arg(screen),
         appTitle, MessageIcon::Information});
}

void MdiMain::exitProgram()
{
    if (!confirmExit())
        return;
    m_ending = true;
    m_endProgram();
}

bool MdiMain::confirmExit()
{
    return m_boxes.show(
               {exitQuestion, appTitle, MessageIcon::Question, MessageButtons::YesNo, true})
           == Answer::Yes;
}

void MdiMain::launchBackup()
{
    const Message question{
        QStringLiteral("For Backup & Restore, the Kelvora application \n"
                       "will be aborted and all opened windows will get closed. \n"
                       "Want to Continue with Backup/Restore operations ? [When you Close the \n"
                       "Backup/Restore window you will come back to the Kelvora application]"),
        appTitle, MessageIcon::Question, MessageButtons::YesNo, true};
    if (m_boxes.show(question) == Answer::No)
        return;

    const QString program = QDir(m_folder).filePath(backupProgramName());
    const QFileInfo info(program);
    if (!info.isFile() || !info.isExecutable()) {
        m_boxes.show({QStringLiteral("The backup program was not found:\n%1\n\n"
                                     "Kelvora goes on running; no backup was made.")
                          .arg(QDir::toNativeSeparators(program)),
                      appTitle, MessageIcon::Critical});
        return;
    }
    // Backup works on this program's store once the program has let go of it, and starts the
    // program again when its window closes.
    if (!QProcess::startDetached(program,
                                 {QStringLiteral("--from-kelvora"), m_session.store.path()},
                                 m_folder)) {
        m_boxes.show({QStringLiteral("The backup program could not be started:\n%1\n\n"
                                     "Kelvora goes on running; no backup was made.")
                          .arg(QDir::toNativeSeparators(program)),
                      appTitle, MessageIcon::Critical});
        return;
    }
    // The backup program works on the data store file, so Kelvora must not hold it open.
    m_ending = true;
    m_endProgram();
}

void MdiMain::openManual()
{
    // The manual is an optional file beside the program; without it the entry does nothing.
    const QString manual = QDir(m_folder).filePath(QStringLiteral("UserManual.htm"));
    if (QFileInfo(manual).isFile())
        QDesktopServices::openUrl(QUrl::fromLocalFile(manual));
}

void MdiMain::showAbout()
{
    FrmAbout about(this);
    about.exec();
}
