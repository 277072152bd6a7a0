#include "core/datastore.h"
#include "core/session.h"
#include "masters/frmemployeemaster.h"
#include "partymastertestdata.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

using namespace partymastertestdata;

namespace {

struct Screen
{
    explicit Screen(bool withGroup = true)
    {
        if (withGroup) {
            addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
            addEmployee(data.store(), 1, 4, QStringLiteral("RAVI KUMAR"),
                        QStringLiteral("ABCDE1234F"));
        }
        form = std::make_unique<FrmEmployeeMaster>(session, boxes);
    }

    bool show()
    {
        form->show();
        return QTest::qWaitForWindowActive(form.get());
    }

    template<class T>
    T *child(const QString &name) const
    {
        return form->findChild<T *>(name);
    }

    QLineEdit *edit(const QString &name) const { return child<QLineEdit>(name); }
    QAbstractButton *cmd(int index) const { return child<QAbstractButton>(cmdName(index)); }
    static QString cmdName(int index) { return QStringLiteral("cmd(%1)").arg(index); }

    // The enabled state of cmd(0) to cmd(4), the list and the group combo, as "11001 1 1".
    QString enabledState() const
    {
        QString state;
        for (int index = 0; index < 5; ++index)
            state += cmd(index)->isEnabled() ? u'1' : u'0';
        state += child<QTreeView>(QStringLiteral("lstvDedt"))->isEnabled() ? " 1" : " 0";
        state += child<QComboBox>(QStringLiteral("cmbGrp"))->isEnabled() ? " 1" : " 0";
        return state;
    }

    QString focused() const
    {
        QWidget *widget = QApplication::focusWidget();
        return widget ? widget->objectName() : QString();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        // A button's accelerator presses it visibly and clicks it a moment later.
        if (modifiers & Qt::AltModifier)
            QTest::qWait(200);
    }

    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    TestStore data;
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    std::unique_ptr<FrmEmployeeMaster> form;
};

} // namespace

class TestFrmEmployeeMaster : public QObject
{
    Q_OBJECT

private slots:
    void controls();
    void addTypeAndSaveByKeyboard();
    void blankPanLeadsToPanRef();
    void refusedSaveKeepsEditing();
    void barStates();
    void tabOrder();
    void startInAddMode();
    void noGroup();
    void deleteKeyOnTheList();
};

// At load: the first group, its employees, the category "General".
void TestFrmEmployeeMaster::controls()
{
    Screen s;
    QCOMPARE(s.form->objectName(), QStringLiteral("frmEmployeeMaster"));
    QCOMPARE(s.form->windowTitle(), QStringLiteral("Employee Master"));
    QCOMPARE(s.child<QComboBox>(QStringLiteral("cmbCat"))->currentText(),
             QStringLiteral("General"));
    QCOMPARE(s.child<QComboBox>(QStringLiteral("cmbGrp"))->currentText(),
             QStringLiteral("ALPHA GROUP"));
    QCOMPARE(s.edit(QStringLiteral("txtGrpId"))->text(), QStringLiteral("1"));
    const QAbstractItemModel *list = s.child<QTreeView>(QStringLiteral("lstvDedt"))->model();
    QCOMPARE(list->rowCount(), 1);
    QCOMPARE(list->index(0, 1).data().toString(), QStringLiteral("RAVI KUMAR"));
}

void TestFrmEmployeeMaster::addTypeAndSaveByKeyboard()
{
    Screen s;
    QVERIFY(s.show());
    QCOMPARE(s.focused(), QStringLiteral("lstvDedt"));

    s.press(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
    QCOMPARE(s.edit(QStringLiteral("txtEmpID"))->text(), QStringLiteral("5"));
    s.type(QStringLiteral("o'neil das"));
    QCOMPARE(s.edit(QStringLiteral("txtEmpName"))->text(), QStringLiteral("O'NEIL DAS"));
    s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), QStringLiteral("txtPAN"));
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->selectedText(), QStringLiteral("PANNOTAVBL"));
    s.type(QStringLiteral("pqrst6789k"));
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->text(), QStringLiteral("PQRST6789K"));
    s.press(Qt::Key_Return);
    QVERIFY(!s.edit(QStringLiteral("txtPanRef"))->isEnabled());
    QCOMPARE(s.focused(), QStringLiteral("txtDesignation"));
    s.type(QStringLiteral("Clerk"));
    s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), QStringLiteral("dtpFromDate"));
    s.press(Qt::Key_Return);
    s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), QStringLiteral("cmbCat"));
    s.press(Qt::Key_Up); // SeniorCitizen
    s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), QStringLiteral("cmd(2)"));
    s.press(Qt::Key_Return);

    QCOMPARE(s.boxes.texts(), QStringList());
    QSqlQuery row = s.data.store().exec(QStringLiteral(
        "SELECT EmpName, PAN, Designation, FromDate, category FROM mstEmployee WHERE EmpID = 5"));
    QVERIFY(row.next());
    QCOMPARE(row.value(0).toString(), QStringLiteral("O'NEIL DAS"));
    QCOMPARE(row.value(1).toString(), QStringLiteral("PQRST6789K"));
    QCOMPARE(row.value(2).toString(), QStringLiteral("Clerk"));
    QCOMPARE(row.value(3).toString(), QStringLiteral("2026-04-01"));
    QCOMPARE(row.value(4).toInt(), 1);
    QCOMPARE(s.enabledState(), QStringLiteral("11001 1 1"));
    QCOMPARE(s.child<QTreeView>(QStringLiteral("lstvDedt"))->model()->rowCount(), 2);
    QCOMPARE(s.edit(QStringLiteral("txtEmpName"))->text(), QString());
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->text(), QStringLiteral("PANNOTAVBL"));
}

void TestFrmEmployeeMaster::blankPanLeadsToPanRef()
{
    Screen s;
    QVERIFY(s.show());
    s.press(Qt::Key_N, Qt::AltModifier);
    s.type(QStringLiteral("ASHA"));
    s.press(Qt::Key_Return);
    s.press(Qt::Key_Backspace); // the selected placeholder goes
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->text(), QString());
    s.press(Qt::Key_Tab);
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->text(), QStringLiteral("PANNOTAVBL"));
    QCOMPARE(s.focused(), QStringLiteral("txtPanRef"));
    s.type(QStringLiteral("ref12"));
    QCOMPARE(s.edit(QStringLiteral("txtPanRef"))->text(), QStringLiteral("REF12"));
}

void TestFrmEmployeeMaster::refusedSaveKeepsEditing()
{
    Screen s;
    QVERIFY(s.show());
    s.press(Qt::Key_N, Qt::AltModifier);
    s.press(Qt::Key_Return); // past the empty name
    s.type(QStringLiteral("ABCDE1"));
    s.press(Qt::Key_S, Qt::AltModifier);

    QCOMPARE(s.boxes.texts(), QStringList{QStringLiteral("Please Enter Employee Name")});
    QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
    QCOMPARE(s.enabledState(), QStringLiteral("00110 0 1"));
    // The click's tail puts the placeholder back, whatever was typed.
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->text(), QStringLiteral("PANNOTAVBL"));
    QCOMPARE(s.data.store().scalar(QStringLiteral("SELECT count(*) FROM mstEmployee")).toInt(), 1);
}

void TestFrmEmployeeMaster::barStates()
{
    Screen s;
    QVERIFY(s.show());
    QCOMPARE(s.enabledState(), QStringLiteral("11001 1 1"));
    s.press(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(s.enabledState(), QStringLiteral("00110 0 1"));
    s.press(Qt::Key_C, Qt::AltModifier);
    QCOMPARE(s.enabledState(), QStringLiteral("11001 1 1"));
    QCOMPARE(s.focused(), QStringLiteral("lstvDedt"));

    s.press(Qt::Key_Return); // the double click's keyboard twin: no tail
    QCOMPARE(s.enabledState(), QStringLiteral("00110 0 0"));
    QCOMPARE(s.edit(QStringLiteral("txtEmpName"))->text(), QStringLiteral("RAVI KUMAR"));
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->text(), QStringLiteral("ABCDE1234F"));
    QCOMPARE(s.edit(QStringLiteral("txtDesignation"))->text(), QStringLiteral("CLERK"));
    QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
}

// Without the mouse: Tab goes through the fields, the usable buttons and the list.
void TestFrmEmployeeMaster::tabOrder()
{
    Screen s;
    QVERIFY(s.show());
    s.child<QComboBox>(QStringLiteral("cmbGrp"))->setFocus();
    QStringList visited{s.focused()};
    for (int step = 0; step < 30 && (visited.size() == 1 || visited.last() != "cmbGrp"); ++step) {
        s.press(Qt::Key_Tab);
        if (s.focused() != visited.last()) // a date takes a Tab for each of its parts
            visited << s.focused();
    }
    // Leaving the blank PAN writes the placeholder and opens the PAN reference.
    QCOMPARE(visited, (QStringList{"cmbGrp", "txtEmpName", "txtPAN", "txtPanRef",
                                   "txtDesignation", "dtpFromDate", "DtpToDate", "cmbCat",
                                   "cmd(0)", "cmd(1)", "cmd(4)", "cmdClose", "lstvDedt",
                                   "cmbGrp"}));
}

void TestFrmEmployeeMaster::startInAddMode()
{
    Screen s;
    s.form->startInAddMode();
    QCOMPARE(s.edit(QStringLiteral("txtEmpID"))->text(), QString());
    QVERIFY(s.show());
    QCOMPARE(s.edit(QStringLiteral("txtEmpID"))->text(), QStringLiteral("5"));
    QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
    QCOMPARE(s.enabledState(), QStringLiteral("00110 0 1"));
    QCOMPARE(s.child<QDateEdit>(QStringLiteral("DtpToDate"))->date(), QDate(2027, 3, 31));

    // An entry under way is not thrown away; on a browsing screen it adds at once.
    s.type(QStringLiteral("ASHA"));
    s.form->startInAddMode();
    QCOMPARE(s.edit(QStringLiteral("txtEmpName"))->text(), QStringLiteral("ASHA"));
    s.press(Qt::Key_C, Qt::AltModifier);
    s.form->startInAddMode();
    QCOMPARE(s.enabledState(), QStringLiteral("00110 0 1"));
    QCOMPARE(s.focused(), QStringLiteral("txtEmpName"));
    QCOMPARE(s.edit(QStringLiteral("txtEmpName"))->text(), QString());
}

void TestFrmEmployeeMaster::noGroup()
{
    Screen s(false);
    QVERIFY(s.show());
    s.cmd(0)->click();
    QCOMPARE(s.boxes.shown, (QList<Message>{{QStringLiteral("Please select Group Name ")}}));
    QCOMPARE(s.focused(), QStringLiteral("cmbGrp"));
    QCOMPARE(s.enabledState(), QStringLiteral("11001 1 1"));
}

void TestFrmEmployeeMaster::deleteKeyOnTheList()
{
    Screen s;
    QVERIFY(s.show());
    s.press(Qt::Key_Delete);
    QCOMPARE(s.boxes.texts(), QStringList{"Are you sure to proceed with the Deletion?"});
    QCOMPARE(s.enabledState(), QStringLiteral("11001 1 1"));

    s.boxes.answerNext(Answer::Yes);
    s.press(Qt::Key_Delete);
    QCOMPARE(s.boxes.texts().last(), QStringLiteral("Deleted"));
    // The key's path leaves every button of the bar enabled.
    QCOMPARE(s.enabledState(), QStringLiteral("11111 1 1"));
    QCOMPARE(s.child<QTreeView>(QStringLiteral("lstvDedt"))->model()->rowCount(), 0);
}

QTEST_MAIN(TestFrmEmployeeMaster)
#include "test_frmemployeemaster.moc"
