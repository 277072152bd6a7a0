#include "mastersstore.h"
#include "screendriver.h"
#include "core/datebox.h"
#include "core/fieldrules.h"
#include "masters/frmdeducteemaster.h"
#include "masters/frmemployeemaster.h"
#include "support/testsuite.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>

namespace {

// cmd(0) to cmd(4), the list and the group combo, enabled or not: "11001 1 1".
template<typename Form>
QString enabledState(const ScreenDriver<Form> &s)
{
    QString state;
    for (const char *name : {"cmd(0)", "cmd(1)", "cmd(2)", "cmd(3)", "cmd(4)", " lstvDedt",
                             " cmbGrp"}) {
        if (name[0] == ' ')
            state += u' ';
        state += s.child(name[0] == ' ' ? name + 1 : name)->isEnabled() ? u'1' : u'0';
    }
    return state;
}

template<typename Form>
QString text(const ScreenDriver<Form> &s, const char *name)
{
    if (auto *combo = qobject_cast<QComboBox *>(s.child(name)))
        return combo->currentText();
    return s.template child<QLineEdit>(name)->text();
}

} // namespace

// Group 1, ALPHA GROUP, is chosen: RAVI KUMAR is its employee, and its deductees are
// O'NEIL AND SONS and SHAH TRADERS.
class TestFrmPartyMasters : public QObject
{
    Q_OBJECT

private slots:
    void employeeByKeyboard()
    {
        ScreenDriver<FrmEmployeeMaster> s(mastersStore());
        QCOMPARE(s.focused(), QStringLiteral("lstvDedt"));
        s.press(Qt::Key_N, Qt::AltModifier);
        QCOMPARE(enabledState(s), QStringLiteral("00110 0 1"));
        QCOMPARE(text(s, "txtEmpID"), QStringLiteral("9"));
        s.type(QStringLiteral("o'neil das"));
        s.press(Qt::Key_Return);
        QCOMPARE(s.focused(), QStringLiteral("txtPAN"));
        QCOMPARE(s.child<QLineEdit>("txtPAN")->selectedText(), QStringLiteral("PANNOTAVBL"));
        s.type(QStringLiteral("pqrst6789k"));
        s.press(Qt::Key_Return);
        QVERIFY(!s.child("txtPanRef")->isEnabled());
        QCOMPARE(s.focused(), QStringLiteral("txtDesignation"));
        s.type(QStringLiteral("Clerk"));
        s.press(Qt::Key_Return);
        // Each date typed over the one shown; no such date is refused, kept and typed over.
        s.type(QStringLiteral("15/06/2026"));
        s.press(Qt::Key_Return);
        s.type(QStringLiteral("31/13/2026"));
        s.press(Qt::Key_Return);
        QCOMPARE(s.boxes.texts(), QStringList{fieldrules::enterDateText});
        QCOMPARE(s.focused(), QStringLiteral("DtpToDate"));
        s.type(QStringLiteral("31/12/2026"));
        s.press(Qt::Key_Return);
        QCOMPARE(s.focused(), QStringLiteral("cmbCat"));
        s.press(Qt::Key_Up); // SeniorCitizen
        s.press(Qt::Key_Return);
        QCOMPARE(s.focused(), QStringLiteral("cmd(2)"));
        s.press(Qt::Key_Return);

        QCOMPARE(s.boxes.texts(), QStringList{fieldrules::enterDateText});
        QCOMPARE(s.data.text("SELECT EmpName||'|'||PAN||'|'||Designation||'|'||FromDate||'|'||"
                             "ToDate||'|'||category FROM mstEmployee WHERE EmpID = 9"),
                 QStringLiteral("O'NEIL DAS|PQRST6789K|Clerk|2026-06-15|2026-12-31|1"));
        QCOMPARE(enabledState(s), QStringLiteral("11001 1 1"));
        QCOMPARE(s.child<QTreeView>("lstvDedt")->model()->rowCount(), 2);
        QCOMPARE(text(s, "txtEmpName"), QString());
        QCOMPARE(text(s, "txtPAN"), QStringLiteral("PANNOTAVBL"));
    }

    void employeeRefusalsAndPanRef()
    {
        ScreenDriver<FrmEmployeeMaster> s(mastersStore());
        s.press(Qt::Key_N, Qt::AltModifier);
        s.press(Qt::Key_Return); // past the empty name
        s.press(Qt::Key_Backspace); // the selected placeholder goes
        s.press(Qt::Key_Tab);
        QCOMPARE(text(s, "txtPAN"), QStringLiteral("PANNOTAVBL"));
        QCOMPARE(s.focused(), QStringLiteral("txtPanRef"));
        s.type(QStringLiteral("ref12"));
        QCOMPARE(text(s, "txtPanRef"), QStringLiteral("REF12"));
        s.press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(s.boxes.texts(), QStringList{QStringLiteral("Please Enter Employee Name")});
        QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
        QCOMPARE(enabledState(s), QStringLiteral("00110 0 1"));
        QCOMPARE(s.data.count("mstEmployee"), 3);

        s.press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(enabledState(s), QStringLiteral("11001 1 1"));
        QCOMPARE(s.focused(), QStringLiteral("lstvDedt"));
        s.press(Qt::Key_Return); // the double click's keyboard twin: no tail
        QCOMPARE(enabledState(s), QStringLiteral("00110 0 0"));
        QCOMPARE(text(s, "txtPAN"), QStringLiteral("ABCDE1234F"));
        QCOMPARE(text(s, "txtDesignation"), QStringLiteral("CLERK"));
        QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
    }

    // Without the mouse: Tab goes through the fields, the usable buttons and the list.
    void employeeTabOrder()
    {
        ScreenDriver<FrmEmployeeMaster> s(mastersStore());
        s.child("cmbGrp")->setFocus();
        QStringList visited{s.focused()};
        for (int step = 0; step < 30 && (visited.size() == 1 || visited.last() != "cmbGrp");
             ++step) {
            s.press(Qt::Key_Tab);
            visited << s.focused();
        }
        // Leaving the blank PAN writes the placeholder and opens the PAN reference; Category
        // comes beside Designation, as drawn.
        QCOMPARE(visited, (QStringList{"cmbGrp", "txtEmpName", "txtPAN", "txtPanRef",
                                       "txtDesignation", "cmbCat", "dtpFromDate", "DtpToDate",
                                       "cmd(0)", "cmd(1)", "cmd(4)", "cmdClose", "lstvDedt",
                                       "cmbGrp"}));
    }

    // Opened from a statement screen to add a party; an entry under way is kept.
    void employeeStartInAddMode()
    {
        ScreenDriver<FrmEmployeeMaster> s(mastersStore());
        s.form->startInAddMode();
        QCOMPARE(text(s, "txtEmpID"), QStringLiteral("9"));
        QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
        QCOMPARE(s.child<DateBox>("DtpToDate")->date(), QDate(2027, 3, 31));
        s.type(QStringLiteral("ASHA"));
        s.form->startInAddMode();
        QCOMPARE(text(s, "txtEmpName"), QStringLiteral("ASHA"));
    }

    void deducteeByKeyboard()
    {
        ScreenDriver<FrmDeducteeMaster> s(mastersStore());
        startDeductee(s);
        QVERIFY(!s.child("txtPanRef")->isEnabled());
        s.type(QStringLiteral("02"));
        QCOMPARE(s.child<QLabel>("lbl0102")->text(), QStringLiteral("DEDUCTEE - NON COMPANY"));
        s.press(Qt::Key_Return);
        s.type(QStringLiteral("o'neil lane"));
        for (int line = 1; line <= 5; ++line)
            s.press(Qt::Key_Return);
        QCOMPARE(s.focused(), QStringLiteral("cmbState"));
        s.type(QStringLiteral("foreign"));
        s.press(Qt::Key_Return);
        QCOMPARE(text(s, "txtPincode"), QStringLiteral("999999"));
        QCOMPARE(s.focused(), QStringLiteral("txtPincode"));
        s.press(Qt::Key_Return);
        QCOMPARE(s.focused(), QStringLiteral("cmd(2)"));
        s.press(Qt::Key_Return);

        QCOMPARE(s.boxes.texts(), QStringList());
        QCOMPARE(s.data.text("SELECT DeducteeName||'|'||PAN||'|'||DeducteeCode||'|'||Address1||"
                             "'|'||State||'|'||StateCode||'|'||PIN FROM mstDeductee "
                             "WHERE DeducteeID = 22"),
                 QStringLiteral("MEHTA AND CO|AAAFM4321B|02|O'NEIL LANE|FOREIGN|99|999999"));
        QCOMPARE(s.focused(), QStringLiteral("lstvDedt"));
        QCOMPARE(s.child<QLabel>("lbl0102")->text(), QString());
    }

    // Enter and Tab out of a field refuse alike; the focus stays for the correction.
    void deducteeLeavingChecks_data()
    {
        testsuite::columns<QString, QString, QString>("field", "typed", "message");
        QTest::newRow("code 03") << "cmbDeducteeCode" << "03"
                                 << "Enter 01 for Companies / 02 for other than Companies";
        QTest::newRow("unknown state") << "cmbState" << "nowhere"
                                       << "Please select proper State Name";
    }
    void deducteeLeavingChecks()
    {
        QFETCH(QString, field);
        QFETCH(QString, typed);
        QFETCH(QString, message);
        ScreenDriver<FrmDeducteeMaster> s(mastersStore());
        startDeductee(s);
        if (field != u"cmbDeducteeCode")
            s.type(QStringLiteral("01")); // a blank code is not to be left either
        s.child(qPrintable(field))->setFocus();
        s.type(typed);
        s.press(Qt::Key_Return);
        QCOMPARE(s.focused(), field);
        s.press(Qt::Key_Tab);
        QCOMPARE(s.boxes.texts(), QStringList({message, message}));
        QCOMPARE(s.focused(), field);
        // Save by its accelerator takes the field as left: the refusal, nothing written.
        s.press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(s.boxes.texts().size(), 3);
        QCOMPARE(s.focused(), field);
        QCOMPARE(s.data.count("mstDeductee"), 4);
    }

private:
    // Add New, then a name and a PAN, leaving the focus on the deductee code.
    static void startDeductee(ScreenDriver<FrmDeducteeMaster> &s)
    {
        s.press(Qt::Key_N, Qt::AltModifier);
        s.type(QStringLiteral("mehta and co"));
        s.press(Qt::Key_Return);
        s.type(QStringLiteral("aaafm4321b"));
        s.press(Qt::Key_Return);
        QCOMPARE(s.focused(), QStringLiteral("cmbDeducteeCode"));
    }
};

KELVORA_TEST_OBJECT(TestFrmPartyMasters);
#include "test_frmpartymasters.moc"
