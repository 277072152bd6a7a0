#include "core/datastore.h"
#include "core/session.h"
#include "masters/frmdeducteemaster.h"
#include "partymastertestdata.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QtTest>

using namespace partymastertestdata;

namespace {

struct Screen
{
    Screen()
    {
        addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
        addDeductee(data.store(), 1, 3, QStringLiteral("SHAH TRADERS"),
                    QStringLiteral("AAAFS1234K"));
        form = std::make_unique<FrmDeducteeMaster>(session, boxes);
        form->show();
    }

    QLineEdit *edit(const QString &name) const { return form->findChild<QLineEdit *>(name); }
    QComboBox *combo(const QString &name) const { return form->findChild<QComboBox *>(name); }

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

    // Add New, then a name and a PAN, leaving the focus on the deductee code.
    void startEntry()
    {
        press(Qt::Key_N, Qt::AltModifier);
        type(QStringLiteral("mehta and co"));
        press(Qt::Key_Return);
        type(QStringLiteral("aaafm4321b"));
        press(Qt::Key_Return);
    }

    int deductees()
    {
        return data.store().scalar(QStringLiteral("SELECT count(*) FROM mstDeductee")).toInt();
    }

    TestStore data;
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    std::unique_ptr<FrmDeducteeMaster> form;
};

} // namespace

class TestFrmDeducteeMaster : public QObject
{
    Q_OBJECT

private slots:
    void addTypeAndSaveByKeyboard();
    void leavingChecks_data();
    void leavingChecks();
    void saveWithAnUnknownStateTyped();
    void editCarriesTheLoadedRow();
};

void TestFrmDeducteeMaster::addTypeAndSaveByKeyboard()
{
    Screen s;
    QVERIFY(QTest::qWaitForWindowActive(s.form.get()));
    QCOMPARE(s.form->windowTitle(), QStringLiteral("Deductee Master"));
    s.startEntry();
    QCOMPARE(s.focused(), QStringLiteral("cmbDeducteeCode"));
    QVERIFY(!s.edit(QStringLiteral("txtPanRef"))->isEnabled());
    s.type(QStringLiteral("02"));
    QCOMPARE(s.form->findChild<QLabel *>(QStringLiteral("lbl0102"))->text(),
             QStringLiteral("DEDUCTEE - NON COMPANY"));
    s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), QStringLiteral("txtAdd1"));
    s.type(QStringLiteral("o'neil lane"));
    for (int line = 1; line <= 5; ++line)
        s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), QStringLiteral("cmbState"));
    s.type(QStringLiteral("foreign"));
    s.press(Qt::Key_Return);
    QCOMPARE(s.combo(QStringLiteral("cmbState"))->currentText(), QStringLiteral("FOREIGN"));
    QCOMPARE(s.edit(QStringLiteral("txtStateCode"))->text(), QStringLiteral("99"));
    QCOMPARE(s.edit(QStringLiteral("txtPincode"))->text(), QStringLiteral("999999"));
    QCOMPARE(s.focused(), QStringLiteral("txtPincode"));
    s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), QStringLiteral("cmd(2)"));
    s.press(Qt::Key_Return);

    QCOMPARE(s.boxes.texts(), QStringList());
    QSqlQuery row = s.data.store().exec(QStringLiteral(
        "SELECT DeducteeName, PAN, DeducteeCode, Address1, State, StateCode, PIN "
        "FROM mstDeductee WHERE DeducteeID = 4"));
    QVERIFY(row.next());
    QCOMPARE(row.value(0).toString(), QStringLiteral("MEHTA AND CO"));
    QCOMPARE(row.value(1).toString(), QStringLiteral("AAAFM4321B"));
    QCOMPARE(row.value(2).toString(), QStringLiteral("02"));
    QCOMPARE(row.value(3).toString(), QStringLiteral("O'NEIL LANE"));
    QCOMPARE(row.value(4).toString(), QStringLiteral("FOREIGN"));
    QCOMPARE(row.value(5).toString(), QStringLiteral("99"));
    QCOMPARE(row.value(6).toString(), QStringLiteral("999999"));
    QCOMPARE(s.focused(), QStringLiteral("lstvDedt"));
    QCOMPARE(s.edit(QStringLiteral("txtDeducteeID"))->text(), QStringLiteral("5"));
    QCOMPARE(s.form->findChild<QLabel *>(QStringLiteral("lbl0102"))->text(), QString());
}

void TestFrmDeducteeMaster::leavingChecks_data()
{
    QTest::addColumn<int>("tabs"); // from the code field
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("stays");

    QTest::newRow("code 03") << 0 << "03" << "Enter 01 for Companies / 02 for other than Companies"
                             << "cmbDeducteeCode";
    QTest::newRow("unknown state") << 6 << "nowhere" << "Please select proper State Name"
                                   << "cmbState";
}

// Enter and Tab out of a field refuse alike; the focus stays for the correction.
void TestFrmDeducteeMaster::leavingChecks()
{
    QFETCH(int, tabs);
    QFETCH(QString, typed);
    QFETCH(QString, message);
    QFETCH(QString, stays);
    Screen s;
    QVERIFY(QTest::qWaitForWindowActive(s.form.get()));
    s.startEntry();
    for (int i = 0; i < tabs; ++i)
        s.press(Qt::Key_Tab);
    QCOMPARE(s.focused(), stays);
    s.type(typed);

    s.press(Qt::Key_Return);
    QCOMPARE(s.boxes.texts(), QStringList{message});
    QCOMPARE(s.focused(), stays);
    s.press(Qt::Key_Tab);
    QCOMPARE(s.boxes.texts(), (QStringList{message, message}));
    QCOMPARE(s.focused(), stays);
}

// Save by its accelerator takes the state as left: one refusal, nothing written.
void TestFrmDeducteeMaster::saveWithAnUnknownStateTyped()
{
    Screen s;
    QVERIFY(QTest::qWaitForWindowActive(s.form.get()));
    s.startEntry();
    s.type(QStringLiteral("01"));
    QCOMPARE(s.form->findChild<QLabel *>(QStringLiteral("lbl0102"))->text(),
             QStringLiteral("DEDUCTEE - COMPANY"));
    s.combo(QStringLiteral("cmbState"))->setFocus();
    s.type(QStringLiteral("xx"));
    s.press(Qt::Key_S, Qt::AltModifier);

    QCOMPARE(s.boxes.texts(), QStringList{QStringLiteral("Please select proper State Name")});
    QCOMPARE(s.focused(), QStringLiteral("cmbState"));
    QCOMPARE(s.deductees(), 1);
    QCOMPARE(s.edit(QStringLiteral("txtPAN"))->text(), QStringLiteral("AAAFM4321B"));
}

void TestFrmDeducteeMaster::editCarriesTheLoadedRow()
{
    Screen s;
    QVERIFY(QTest::qWaitForWindowActive(s.form.get()));
    addStatementRow(s.data.store(), FormKind::Form27Q, 8, 3, QStringLiteral("SHAH TRADERS"));
    s.press(Qt::Key_Return);
    QCOMPARE(s.edit(QStringLiteral("txtDeducteeName"))->text(), QStringLiteral("SHAH TRADERS"));
    QCOMPARE(s.combo(QStringLiteral("cmbState"))->currentText(), QStringLiteral("KARNATAKA"));
    QCOMPARE(s.combo(QStringLiteral("cmbDeducteeCode"))->currentText(), QStringLiteral("02"));
    QVERIFY(!s.combo(QStringLiteral("cmbGrp"))->isEnabled());
    s.press(Qt::Key_End);
    s.type(QStringLiteral(" PVT LTD"));
    s.boxes.answerNext(Answer::Yes);
    s.press(Qt::Key_S, Qt::AltModifier);

    QCOMPARE(s.boxes.texts(),
             QStringList{"Entry of the Deductee exists in Form 27 like to update."});
    QCOMPARE(statementName(s.data.store(), FormKind::Form27Q, 8),
             QStringLiteral("SHAH TRADERS PVT LTD"));
    QVERIFY(s.combo(QStringLiteral("cmbGrp"))->isEnabled());
}

QTEST_MAIN(TestFrmDeducteeMaster)
#include "test_frmdeducteemaster.moc"
