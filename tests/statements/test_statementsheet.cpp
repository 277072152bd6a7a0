#include "core/cannedmessages.h"
#include "statementfixture.h"
#include "statements/basicinfocheck.h"
#include "statements/statementsheet.h"

#include <QtTest>
#include <functional>

Q_DECLARE_METATYPE(FormKind)

namespace {

using Change = std::function<void(BasicInfo &)>;
using Panel = StatementSheet::Panel;

QString value(const StatementFixture &f, const QString &column)
{
    return f.data.text(QStringLiteral("SELECT %1 FROM %2").arg(column, f.form.basicInfoTable));
}

} // namespace

class TestStatementSheet : public QObject
{
    Q_OBJECT

private slots:
    void newStatementThenItsUpdates_data();
    void newStatementThenItsUpdates();
    void refusalsInOrder_data();
    void refusalsInOrder();
    void deleteTakesAllOrNothing_data();
    void deleteTakesAllOrNothing();
    void stateAndCountGuards();
};

void TestStatementSheet::newStatementThenItsUpdates_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::addColumn<QString>("quarter");
    QTest::addColumn<bool>("salary");
    QTest::newRow("24Q Q1") << FormKind::Form24Q << "Q1" << false;
    QTest::newRow("24Q Q4") << FormKind::Form24Q << "Q4" << true;
    QTest::newRow("26Q") << FormKind::Form26Q << "Q2" << false;
    QTest::newRow("27Q") << FormKind::Form27Q << "Q3" << false;
    QTest::newRow("27EQ") << FormKind::Form27EQ << "Q4" << false;
}

void TestStatementSheet::newStatementThenItsUpdates()
{
    QFETCH(FormKind, kind);
    QFETCH(QString, quarter);
    QFETCH(bool, salary);
    StatementFixture f(kind, quarter);
    StatementSheet sheet(f.session, f.boxes, f.form);

    // A new Statement is the company's particulars, with only its first panel usable.
    sheet.open();
    QCOMPARE(sheet.info().tan, "BLRK01234E");
    QCOMPARE(sheet.info().state, "KARNATAKA");
    QCOMPARE(sheet.info().pState, "MAHARASHTRA");
    QCOMPARE(sheet.info().asstYear, "202728");
    QCOMPARE(sheet.info().quarter, quarter);
    QVERIFY(!sheet.panelEnabled(Panel::Challan));
    QVERIFY(!sheet.deleteEnabled());

    sheet.info().branch = "NORTH";
    QVERIFY(sheet.save());
    QCOMPARE(f.boxes.shown.last(), Message({StatementSheet::savedText, "Informing"}));
    QCOMPARE(f.data.count(f.form.basicInfoTable), 1);
    QCOMPARE(value(f, "Status"), "1");
    QCOMPARE(value(f, "TDSCircle"), "WARD 1");
    QCOMPARE(value(f, "RevisedRcptNo"), "0");
    QVERIFY(sheet.panelEnabled(Panel::Challan) && sheet.panelEnabled(Panel::Annexure));
    QCOMPARE(sheet.panelEnabled(Panel::Salary), salary);

    // Saved again, the one row is updated, and the header goes back into the company master.
    sheet.info().state = "MAHARASHTRA";
    sheet.stateChosen(false);
    sheet.setRevised(true);
    sheet.info().revisedReceiptNo = "12345678901234";
    QVERIFY(sheet.save());
    QCOMPARE(f.data.count(f.form.basicInfoTable), 1);
    QCOMPARE(value(f, "Status"), "0");
    QCOMPARE(value(f, "RevisedRtn"), "C");
    QCOMPARE(value(f, "RevisedRcptNo"), "12345678901234");
    QCOMPARE(f.data.text("SELECT StateCode FROM mstCompany"), "19");

    // Opened again through the selection, the Statement loads as it was saved.
    f.session.curBasicInfoId = value(f, "BasicIfoID").toInt();
    StatementSheet reopened(f.session, f.boxes, f.form);
    reopened.open();
    QCOMPARE(f.session.curBasicInfoId, 0);
    QCOMPARE(reopened.info().branch, "NORTH");
    QCOMPARE(reopened.info().state, "MAHARASHTRA");
    QVERIFY(reopened.info().isRevised());
    QVERIFY(reopened.deleteEnabled());
    reopened.setRevised(false);
    QVERIFY(reopened.save());
    QCOMPARE(value(f, "RevisedRcptNo"), "0");
}

void TestStatementSheet::refusalsInOrder_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("field");
    using namespace basicinfocheck;
    QTest::newRow("count before TAN") << Change([](BasicInfo &i) {
        i.noChallan = " ";
        i.tan.clear();
    }) << challanCountText << "txtNoChallan";
    QTest::newRow("rows") << Change([](BasicInfo &i) { i.noDeductee.clear(); })
                          << deducteeCountText << "txtNoDeductee";
    QTest::newRow("TAN receipt below 14") << Change([](BasicInfo &i) {
        i.tan = BasicInfo::tanApplied;
        i.tanReceiptNo = "13";
    }) << tanReceiptText << "txttanReceiptNo";
    QTest::newRow("e-mail") << Change([](BasicInfo &i) { i.email = "accounts"; })
                            << "<BR>" << "txtEmail";
    QTest::newRow("person's e-mail") << Change([](BasicInfo &i) { i.pEmail = "a@b"; })
                                     << "<BR>" << "txtPemail";
    QTest::newRow("PAN") << Change([](BasicInfo &i) { i.pan.clear(); }) << "Please enter PAN"
                         << "txtPAN";
    QTest::newRow("name") << Change([](BasicInfo &i) { i.compName = " "; })
                          << "Please enter Name Of the Company" << "txtCompName";
    QTest::newRow("state") << Change([](BasicInfo &i) { i.stateCode.clear(); })
                           << selectStateText << "cmbState";
    QTest::newRow("PIN before person") << Change([](BasicInfo &i) {
        i.pincode.clear();
        i.personName.clear();
    }) << "Please enter PIN" << "txtPincode";
    QTest::newRow("designation") << Change([](BasicInfo &i) { i.designation.clear(); })
                                 << "Please enter Designation" << "txtDesignation";
    QTest::newRow("person's state") << Change([](BasicInfo &i) { i.pStateCode.clear(); })
                                    << selectStateText << "cmbPState";
    QTest::newRow("short PIN") << Change([](BasicInfo &i) { i.pincode = "5600"; })
                               << pincodeText << "txtPincode";
    QTest::newRow("revised receipt") << Change([](BasicInfo &i) {
        i.revisedReturn = "C";
        i.revisedReceiptNo = "0";
    }) << revisedReceiptText << "txtRevisedReceiptNo";
    // The receipt numbers are compared with 14 as numbers, not counted in digits.
    QTest::newRow("receipt of 15 passes") << Change([](BasicInfo &i) {
        i.tan = BasicInfo::tanApplied;
        i.tanReceiptNo = "15";
    }) << StatementSheet::savedText << "";
}

void TestStatementSheet::refusalsInOrder()
{
    QFETCH(Change, change);
    QFETCH(QString, text);
    QFETCH(QString, field);
    StatementFixture f(FormKind::Form26Q);
    StatementSheet sheet(f.session, f.boxes, f.form);
    sheet.open();
    change(sheet.info());

    QCOMPARE(sheet.save(), field.isEmpty());
    QVERIFY2(f.boxes.shown.last().text.startsWith(text), qPrintable(f.boxes.shown.last().text));
    QCOMPARE(sheet.takeFocus(), field);
    QCOMPARE(f.data.count(f.form.basicInfoTable), field.isEmpty() ? 1 : 0);
}

void TestStatementSheet::deleteTakesAllOrNothing_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::addColumn<bool>("storeFails");
    for (const FormTraits &form : allForms())
        QTest::newRow(qPrintable(form.formType)) << form.kind << false;
    QTest::newRow("24Q, last delete fails") << FormKind::Form24Q << true;
    QTest::newRow("26Q, last delete fails") << FormKind::Form26Q << true;
}

void TestStatementSheet::deleteTakesAllOrNothing()
{
    QFETCH(FormKind, kind);
    QFETCH(bool, storeFails);
    StatementFixture f(kind, "Q4");
    StatementSheet sheet(f.session, f.boxes, f.form);
    sheet.open();
    QVERIFY(sheet.save());
    f.data.insert(f.form.challanTable, {{"ChallnID", 1}, {"BasicIfoID", 1}, {"CompID", 1}});
    f.insertAnnexureRow(1, 1, 1);
    QStringList tables = {f.form.challanTable, f.form.annexureTable, f.form.basicInfoTable};
    if (f.form.hasSalaryDetail) {
        f.data.insert(f.form.salaryTable, {{"SalaryId", 1}, {"BasicIfoID", 1}});
        for (const QString &sections : f.form.salarySectionTables()) {
            f.data.insert(sections, {{"Secid", 1}, {"SalaryId", 1}});
            tables << sections;
        }
        tables << f.form.salaryTable;
    }
    const QString last = tables.last();
    if (storeFails) {
        f.data.store().exec(QStringLiteral("CREATE TRIGGER refuse BEFORE DELETE ON %1 "
                                           "BEGIN SELECT RAISE(ABORT, 'disk I/O error'); END")
                                .arg(last));
    }

    f.boxes.answerNext(Answer::Yes);
    QCOMPARE(sheet.deleteStatement(), !storeFails);
    for (const QString &table : tables)
        QCOMPARE(f.data.count(table), storeFails ? 1 : 0);
    if (storeFails)
        QCOMPARE(f.boxes.shown.last().text, "disk I/O error");

    // Any answer but Yes deletes nothing.
    if (storeFails) {
        f.data.store().exec("DROP TRIGGER refuse");
        QVERIFY(!sheet.deleteStatement());
        QCOMPARE(f.data.count(f.form.basicInfoTable), 1);
    }
}

void TestStatementSheet::stateAndCountGuards()
{
    StatementFixture f(FormKind::Form27Q);
    StatementSheet sheet(f.session, f.boxes, f.form);
    sheet.open();

    // A foreign deductor has no PIN of its own.
    sheet.info().state = "FOREIGN";
    sheet.stateChosen(false);
    QVERIFY(sheet.stateLeft(false));
    QCOMPARE(sheet.info().stateCode, "99");
    QCOMPARE(sheet.info().pincode, StatementSheet::foreignPincode);
    sheet.info().pStateCode = "0";
    QVERIFY(!sheet.stateLeft(true));
    QCOMPARE(sheet.takeFocus(), "cmbPState");
    sheet.info().pStateCode = "19";

    // The declared challans cannot fall below those entered.
    QVERIFY(sheet.save());
    for (int id : {1, 2})
        f.data.insert(f.form.challanTable, {{"ChallnID", id}, {"BasicIfoID", 1}});
    sheet.info().noChallan = "1";
    QVERIFY(!sheet.challanCountLeft());
    QCOMPARE(f.boxes.shown.last().text, StatementSheet::decreaseText);
    QCOMPARE(sheet.info().noChallan, "2");
    sheet.info().noChallan = "3";
    QVERIFY(sheet.challanCountLeft());
}

QTEST_GUILESS_MAIN(TestStatementSheet)
#include "test_statementsheet.moc"
