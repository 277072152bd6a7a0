#include "reportsstore.h"

#include "core/session.h"
#include "reports/frmform16report.h"
#include "reports/frmgroupwisecompanydetails.h"
#include "reports/report.h"
#include "reports/reportexport.h"
#include "reports/reportpreview.h"
#include "returnfile/form27aactions.h"
#include "shell/mdimain.h"
#include "shell/screenfactories.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScrollBar>
#include <QTreeWidget>
#include <QtTest>

Q_DECLARE_METATYPE(Answer)
Q_DECLARE_METATYPE(reportfile::Format)

namespace {

/// The main window over a store, as the program opens it.
struct Window
{
    explicit Window(const TestStore &data) : session(data.store()),
        window(data.folder(), session, boxes)
    {
        registerScreens(window, session, boxes);
        window.show();
    }

    void trigger(const QString &entry)
    {
        window.findChild<QAction *>(entry)->trigger();
    }

    ReportPreview *preview(const QString &name) const
    {
        QMdiSubWindow *frame = window.findScreen(name);
        return frame ? qobject_cast<ReportPreview *>(frame->widget()) : nullptr;
    }

    /// A print entry of the menu, through the selection of a company of ALPHA GROUP in the
    /// first quarter, to the screen it opens.
    QWidget *select(const QString &entry, const QString &company, const QString &screen)
    {
        trigger(entry);
        QWidget *login = window.findScreen("frmLogin")->widget();
        auto *list = login->findChild<QTreeWidget *>("lstvComp");
        list->setCurrentItem(list->findItems(company, Qt::MatchExactly).value(0));
        login->findChild<QPushButton *>("cmdSelect")->click();
        QMdiSubWindow *frame = window.findScreen(screen);
        return frame ? frame->widget() : nullptr;
    }

    Session session;
    ScriptedMessageBoxes boxes;
    MdiMain window;
};

} // namespace

class TestReportScreens : public QObject
{
    Q_OBJECT

private slots:
    void menuReportsSaveTheStoreAsPdf_data();
    void menuReportsSaveTheStoreAsPdf();
    void emptyStore();
    void companyDetailsScreen_data();
    void companyDetailsScreen();
    void form27AButtons();
    void form27AExports_data();
    void form27AExports();
    void printingWithoutPrinter();
    void statementPrintouts_data();
    void statementPrintouts();
    void form16AScreen();
    void form16ASharedNames();
    void olderCertificateScreen();
    void closingReturnsToTheOpener_data();
    void closingReturnsToTheOpener();
};

void TestReportScreens::menuReportsSaveTheStoreAsPdf_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("group master") << "mnuGroupMaster" << "dRptGroupMaster"
                                  << QStringList{"Group Master", "ALPHA GROUP", "EMPTY GROUP"};
    QTest::newRow("companies") << "mnuGroupwiseCompanyList" << "drptGroupwiseCompanyList"
                               << QStringList{"BETA GROUP", "BETA MILLS", "CALB12345C",
                                              trickyName, "AAACO1234B"};
    QTest::newRow("deductees") << "mnuGroupwiseCompanywiseDeducteeList"
                               << "drptCompanywiseDeducteeList"
                               << QStringList{"ZUBIN MEHTA", "AAAPZ1111Z", trickyName};
    QTest::newRow("employees") << "mnuGroupwiseCompanywiseEmployeeList"
                               << "drptCompanywiseEmployeeList"
                               << QStringList{"ESHA DEOL", "AAAPE4444E", trickyName};
    QTest::newRow("log by company") << "mnuCompanywiseFormgenerationLog"
                                    << "drptCompanywiseFileGenerationLog"
                                    << QStringList{"Form -27EQ", "1234567.50", "4:05:09 PM"};
    QTest::newRow("log by date") << "DatewiseFormgenerationLog" << "drptDatewiseFileGenerationLog"
                                 << QStringList{"ZETA TRADERS", "70.50", "31.10.26"};
}

void TestReportScreens::menuReportsSaveTheStoreAsPdf()
{
    QFETCH(QString, entry);
    QFETCH(QString, screen);
    QFETCH(QStringList, values);
    if (!canReadPdf())
        QSKIP("pdftotext (poppler-utils) is not installed");
    Window main(reportsStore());
    main.trigger(entry);
    ReportPreview *preview = main.preview(screen);
    QVERIFY(preview);
    QCOMPARE(preview->windowTitle(), preview->report().caption());
    QTemporaryDir folder;
    const QString pdf = folder.filePath("report.pdf");
    QVERIFY(preview->savePdf(pdf));
    const QString text = pdfText(pdf);
    for (const QString &value : values)
        QVERIFY2(text.contains(value), qPrintable(value + " in:\n" + text));
    QVERIFY(text.contains("Run Date : " + QDate::currentDate().toString("dd/MM/yyyy")));
    QCOMPARE(main.boxes.shown.size(), 0);
}

void TestReportScreens::emptyStore()
{
    const TestStore empty;
    Window main(empty);
    for (const char *entry : {"mnuGroupMaster", "mnuGroupwiseCompanyList",
                              "mnuGroupwiseCompanywiseDeducteeList",
                              "mnuGroupwiseCompanywiseEmployeeList",
                              "mnuCompanywiseFormgenerationLog", "DatewiseFormgenerationLog"})
        main.trigger(entry);
    // The lists say so; an empty log shows nothing and says nothing.
    QCOMPARE(main.boxes.texts(), QStringList(4, "No Record Found Preview Not Avilable"));
    QVERIFY(main.window.mdiArea()->subWindowList().isEmpty());
}

void TestReportScreens::companyDetailsScreen_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<bool>("selectAll");
    QTest::addColumn<QString>("message"); // empty: the report opens
    QTest::newRow("no group") << "" << false << "No Company Found Under This Group.";
    QTest::newRow("group without companies") << "EMPTY GROUP" << true
                                             << "No Company Found Under This Group.";
    QTest::newRow("none selected") << "ALPHA GROUP" << false
                                   << "Please Select At Least One Company.";
    QTest::newRow("no row") << "BETA GROUP" << true << "Sorry No Record Found.";
    QTest::newRow("all of a group") << "ALPHA GROUP" << true << "";
}

void TestReportScreens::companyDetailsScreen()
{
    QFETCH(QString, group);
    QFETCH(bool, selectAll);
    QFETCH(QString, message);
    Window main(reportsStore());
    main.trigger("mnuGroupWiseCompanyDetails");
    QWidget *screen = main.window.findScreen("frmGroupWiseCompanyDetails")->widget();
    auto *groups = screen->findChild<QComboBox *>("CmbGroup");
    if (!group.isEmpty()) {
        groups->setCurrentText(group);
        emit groups->activated(groups->currentIndex());
    }
    if (selectAll)
        screen->findChild<QPushButton *>("CmdSelAll")->click();
    screen->findChild<QCheckBox *>("ChkOption")->setChecked(true);
    screen->findChild<QPushButton *>("cmdOK")->click();
    if (!message.isEmpty()) {
        QCOMPARE(main.boxes.texts(), QStringList{message});
        QVERIFY(main.window.findScreen("frmGroupWiseCompanyDetails"));
        return;
    }
    QCOMPARE(main.boxes.texts(), QStringList());
    QApplication::processEvents(); // the screen closes itself once the report is open
    QVERIFY(!main.window.findScreen("frmGroupWiseCompanyDetails"));
    ReportPreview *preview = main.preview("dRptGrpCmpny");
    QVERIFY(preview);
    QCOMPARE(preview->report().pageCount(), 2);
    QVERIFY(preview->report().text().contains("CompName:\t" + trickyName));
}

void TestReportScreens::form27AButtons()
{
    Window main(reportsStore());
    auto *statement = new QWidget;
    main.window.mdiArea()->addSubWindow(statement)->show();
    Form27AValues values;
    values.compId = "1";
    values.assessmentYear = assessmentYear;
    values.compName = trickyName;

    form27aactions::printForm27A(statement, main.session.store, main.boxes, values);
    ReportPreview *preview = main.preview("drpt27A");
    QVERIFY(preview);
    QCOMPARE(preview->windowTitle(), "Form 27A");
    QVERIFY(preview->report().text().contains("(a) Name Of Organisation\t" + trickyName));

    QTemporaryDir folder;
    values.compId = "2";
    form27aactions::printForm27A(statement, main.session.store, main.boxes, values);
    QVERIFY(!form27aactions::exportForm27ATo(main.session.store, main.boxes, values,
                                             folder.filePath("other.txt"),
                                             reportfile::Format::PlainText));
    QCOMPARE(main.boxes.texts(), QStringList(2, "You need to first generate the Kelvora file"));
    QVERIFY(!QFile::exists(folder.filePath("other.txt")));
    QCOMPARE(main.window.mdiArea()->subWindowList().size(), 2);
}

// Each export is named by what it holds, whatever ending the user typed or the dialog proposed:
// the ending asks for the format (exactly as typed), else the chosen filter does. A file that
// the new name would replace, unseen in the dialog, is replaced only when the user says so.
void TestReportScreens::form27AExports_data()
{
    testsuite::columns<QString, reportfile::Format, QString, Answer>("typed", "filter",
                                                                    "written", "replace");
    using reportfile::Format;
    const QList<std::tuple<const char *, const char *, Format, const char *>> rows = {
        {"xls", "form27a.xls", Format::Workbook, "form27a.xlsx"},
        {"doc", "form27a.doc", Format::Document, "form27a.odt"},
        {"doc under the Excel filter", "form27a.doc", Format::Workbook, "form27a.odt"},
        {"txt", "form27a.txt", Format::Workbook, "form27a.txt"},
        {"pdf", "form27a.pdf", Format::Document, "form27a.pdf"},
        {"xlsx", "form27a.xlsx", Format::Pdf, "form27a.xlsx"},
        {"odt", "form27a.odt", Format::Workbook, "form27a.odt"},
        {"no ending", "form27a", Format::Pdf, "form27a.pdf"},
        {"capitals ask for no format", "FORM27A.XLS", Format::Document, "FORM27A.XLS.odt"},
        {"capitals under their filter", "FORM27A.XLS", Format::Workbook, "FORM27A.xlsx"}};
    for (const auto &[name, typed, filter, written] : rows)
        QTest::newRow(name) << typed << filter << written << Answer::None;
    QTest::newRow("an earlier xlsx kept")
        << "form27a.xls" << Format::Workbook << "form27a.xlsx" << Answer::No;
    QTest::newRow("an earlier xlsx replaced")
        << "form27a.xls" << Format::Workbook << "form27a.xlsx" << Answer::Yes;
}

void TestReportScreens::form27AExports()
{
    QFETCH(QString, typed);
    QFETCH(reportfile::Format, filter);
    QFETCH(QString, written);
    QFETCH(Answer, replace);
    Window main(reportsStore());
    Form27AValues values;
    values.compId = "1";
    values.assessmentYear = assessmentYear;
    QTemporaryDir folder;
    const QString path = folder.filePath(written);
    if (replace != Answer::None) {
        QFile earlier(path);
        QVERIFY(earlier.open(QIODevice::WriteOnly) && earlier.write("earlier") == 7);
        main.boxes.answerNext(replace);
    }

    QCOMPARE(form27aactions::exportForm27ATo(main.session.store, main.boxes, values,
                                             folder.filePath(typed), filter),
             replace != Answer::No);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{written});
    QCOMPARE(main.boxes.shown.size(), replace == Answer::None ? 0 : 1);
    if (replace != Answer::None) {
        QCOMPARE(main.boxes.shown.first(),
                 Message({reportexport::replaceQuestion.arg(QDir::toNativeSeparators(path)),
                          appTitle, MessageIcon::Question, MessageButtons::YesNo, true}));
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    if (replace == Answer::No) {
        QCOMPARE(bytes, "earlier");
    } else if (written.endsWith(".xlsx")) {
        QVERIFY(bytes.startsWith("PK\x03\x04"));
        QVERIFY(zipMember(path, "xl/workbook.xml").contains("spreadsheetml"));
    } else if (written.endsWith(".odt")) {
        QCOMPARE(zipMember(path, "mimetype"), "application/vnd.oasis.opendocument.text");
    } else if (written.endsWith(".pdf")) {
        QVERIFY(bytes.startsWith("%PDF-"));
    } else {
        QVERIFY(bytes.contains("FORM NO. 27A"));
    }
}

void TestReportScreens::printingWithoutPrinter()
{
    if (!QPrinterInfo::availablePrinters().isEmpty())
        QSKIP("this machine has a printer");
    Window main(reportsStore());
    main.trigger("mnuGroupMaster");
    main.preview("dRptGroupMaster")->findChild<QPushButton *>("cmdPrint")->click();
    QCOMPARE(main.boxes.texts(), QStringList{"Printer needs to installed for printing Reports"});
}

void TestReportScreens::statementPrintouts_data()
{
    testsuite::columns<QString, QString, QString>("company", "button", "viewer");
    QTest::newRow("basic information") << "ZETA TRADERS" << "cmdBasic" << "Drpt26Basic";
    QTest::newRow("challans") << "ZETA TRADERS" << "cmdChalln" << "crChallan26";
    QTest::newRow("deductees") << "ZETA TRADERS" << "cmdEmployee" << "crAnnexure26";
    QTest::newRow("challans without deductees") << trickyName << "cmdEmployee" << "";
}

void TestReportScreens::statementPrintouts()
{
    QFETCH(QString, company);
    QFETCH(QString, button);
    QFETCH(QString, viewer);
    Window main(reportsStore());
    main.window.resize(1366, 700); // the office laptop's display
    QWidget *screen = main.select("mnuPrintForm26", company, "FrmReport");
    QVERIFY(screen);
    QCOMPARE(screen->findChild<QLineEdit *>("txtCompName")->text(), company);
    QVERIFY(!screen->findChild<QPushButton *>("cmdPreq")->isEnabled());
    screen->findChild<QPushButton *>(button)->click();
    if (viewer.isEmpty()) {
        QCOMPARE(main.boxes.texts(), QStringList{"No Record Found Preview Not Avilable"});
        return;
    }
    QCOMPARE(main.boxes.texts(), QStringList());
    ReportPreview *preview = main.preview(viewer);
    QVERIFY(preview);
    QVERIFY(preview->report().text().contains("ZETA TRADERS"));
    // At 100% the whole width of the page, landscape or upright, is in sight.
    QCOMPARE(preview->findChild<QComboBox *>("cmbZoom")->currentText(), "100%");
    auto *pages = preview->findChild<QAbstractScrollArea *>("crViewer");
    QCOMPARE(pages->horizontalScrollBar()->maximum(), 0);
    QVERIFY(main.window.mdiArea()->viewport()->rect().contains(
        preview->parentWidget()->geometry()));
}

void TestReportScreens::form16AScreen()
{
    Window main(reportsStore());
    QWidget *screen = main.select("mnuForm16A26Q", "ZETA TRADERS", "frmForm16Report");
    QVERIFY(screen);
    QCOMPARE(screen->windowTitle(), "Form26Q :: TDS Certificate [Form 16A]");
    QCOMPARE(screen->findChild<QLineEdit *>("txtQuator")->text(), "First Quarter");
    auto *list = screen->findChild<QTreeWidget *>("lstDeductee");
    QCOMPARE(list->topLevelItemCount(), 2);
    auto *print = screen->findChild<QPushButton *>("cmdFormNo16A");
    print->click();
    QCOMPARE(main.boxes.texts(), QStringList{"Please select the Deductee !!"});

    // Every row ticked, then a click on ZUBIN MEHTA's row takes its tick away again.
    screen->findChild<QCheckBox *>("chkSelect")->setChecked(true);
    QTreeWidgetItem *zubin = list->topLevelItem(1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(zubin).center());
    QCOMPARE(zubin->checkState(0), Qt::Unchecked);
    screen->findChild<QLineEdit *>("txtPlace")->setText("  KOLKATA ");
    QTemporaryDir folder;
    QCOMPARE(static_cast<FrmForm16Report *>(screen)->savePdfs(folder.path()), 1);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
             QStringList{"AAAPA2222A_O_Brien_Sons.pdf"});
    print->click();
    ReportPreview *preview = main.preview("FrmCrpt");
    QVERIFY(preview);
    QCOMPARE(preview->report().pageCount(), 1);
    QVERIFY(preview->report().text().contains("Place : KOLKATA\t"));
    QCOMPARE(main.boxes.texts().size(), 2); // the files saved, and nothing after
}

// The print keeps its join by name, but says first which names two masters of the group bear
// (here in another case); the files are still one per master.
void TestReportScreens::form16ASharedNames()
{
    TestStore data(reportsStore());
    data.store().exec("INSERT INTO mstDeductee (GroupId, DeducteeID, PAN, DeducteeName) "
                      "VALUES (1, 4, 'AAAPQ4444Q', 'Zubin Mehta'), "
                      "(2, 5, 'AAAPR5555R', 'ZUBIN MEHTA')");
    Window main(data);
    QWidget *screen = main.select("mnuForm16A26Q", "ZETA TRADERS", "frmForm16Report");
    QVERIFY(screen);
    screen->findChild<QCheckBox *>("chkSelect")->setChecked(true);
    screen->findChild<QPushButton *>("cmdFormNo16A")->click();
    QCOMPARE(main.boxes.texts(),
             QStringList{FrmForm16Report::sharedNamesText.arg("ZUBIN MEHTA")});
    ReportPreview *preview = main.preview("FrmCrpt");
    QVERIFY(preview);
    QCOMPARE(preview->report().text().count("20/04/2026"), 2); // a row once for each master

    QTemporaryDir folder;
    QCOMPARE(static_cast<FrmForm16Report *>(screen)->savePdfs(folder.path()), 2);
}

void TestReportScreens::olderCertificateScreen()
{
    Window main(reportsStore());
    main.trigger("mnuCertificate16A");
    QWidget *screen = main.window.findScreen("frmCertificate16A")->widget();
    auto *companies = screen->findChild<QComboBox *>("cmbCompany");
    QCOMPARE(companies->count(), 4); // a name for each Statement, as stored
    companies->setCurrentIndex(0);
    emit companies->activated(0);
    auto *ok = screen->findChild<QPushButton *>("cmdOK");
    ok->click();
    screen->findChild<QPushButton *>("CmdSelAll")->click();
    ok->click();
    QCOMPARE(main.boxes.texts(), QStringList{"Please Select At Least One deductee."});
    ReportPreview *preview = main.preview("crCertificate16A");
    QVERIFY(preview);
    // The row keys 1 to 3 of every 26Q Statement, as this path has always read them.
    QCOMPARE(preview->report().text().count("FORM NO. 16A"), 7);
}

// The window that a child opened from (or the one in front when the menu opened it) comes to
// the front when the child closes, although other screens were opened before it, and no other
// window comes up on the way: not even when a question of the child took the keyboard away
// from the main window, which gets it back after the window has closed.
void TestReportScreens::closingReturnsToTheOpener_data()
{
    testsuite::columns<QString, QString>("opener", "child");
    QTest::newRow("report viewer") << "FrmReport" << "crChallan26";
    QTest::newRow("show forms") << "FrmReport" << "frmShowForms";
    QTest::newRow("printing screen, through the selection")
        << "frmCategoryMaster" << "FrmReport";
    QTest::newRow("statement asking first, through the selection")
        << "frmForm26" << "frmForm24";
}

void TestReportScreens::closingReturnsToTheOpener()
{
    QFETCH(QString, opener);
    QFETCH(QString, child);
    Window main(reportsStore());
    QApplication::setActiveWindow(&main.window); // the focus moves as the user sees it
    QMdiArea *area = main.window.mdiArea();
    const auto open = [&main, area](const QString &screen) {
        const QHash<QString, QString> selected = {{"FrmReport", "mnuPrintForm26"},
                                                  {"frmForm26", "mnuForm26"},
                                                  {"frmForm24", "mnuform24"}};
        if (selected.contains(screen))
            main.select(selected[screen], "ZETA TRADERS", screen);
        else if (screen == u"crChallan26")
            area->currentSubWindow()->widget()->findChild<QPushButton *>("cmdChalln")->click();
        else
            main.trigger(screen == u"frmShowForms" ? "Tool(2)" : "mnuMaster(6)");
        return main.window.findScreen(screen);
    };
    main.trigger("mnuMaster(0)");
    main.trigger("mnuMaster(2)");
    QMdiSubWindow *front = open(opener);
    const QList<QMdiSubWindow *> stacked = area->subWindowList(QMdiArea::StackingOrder);
    QMdiSubWindow *frame = open(child);
    QVERIFY(front && frame && front != frame);
    QCOMPARE(area->currentSubWindow(), frame);
    const bool asks = child.startsWith(u"frmForm");
    if (asks) {
        main.boxes.answerNext(Answer::No);
        QApplication::setActiveWindow(nullptr);
    }
    QVERIFY(frame->close());
    QApplication::setActiveWindow(&main.window);
    QCOMPARE(main.boxes.texts().size(), asks ? 1 : 0);
    QCOMPARE(area->currentSubWindow(), front);
    QCOMPARE(area->subWindowList(QMdiArea::StackingOrder), stacked);
}

KELVORA_TEST_OBJECT(TestReportScreens);

#include "test_reportscreens.moc"
