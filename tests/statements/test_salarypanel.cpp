#include "salaryfixture.h"
#include "screenchild.h"
#include "statements/salarypanel.h"
#include "support/testsuite.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

namespace {

QString text(QWidget &panel, const QString &name)
{
    return child<QLineEdit>(panel, name)->text();
}

} // namespace

class TestSalaryPanel : public QObject
{
    Q_OBJECT

private slots:
    void rowEnteredFromTheKeyboard();
};

void TestSalaryPanel::rowEnteredFromTheKeyboard()
{
    SalaryFixture f;
    SalaryPanel panel(f.sheet, f.boxes);
    panel.resize(1050, 520);
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    panel.open();
    auto *employee = child<QComboBox>(panel, "cmbEmpname");
    QCOMPARE(QApplication::focusWidget(), employee);

    // The name refused until it is one of the group's; then its details come from the master.
    QTest::keyClicks(employee, "LATHA");
    QTest::keyClick(employee->lineEdit(), Qt::Key_Return);
    QCOMPARE(f.boxes.texts(), QStringList{SalarySheet::chooseEmployeeText});
    QCOMPARE(QApplication::focusWidget(), employee);
    employee->lineEdit()->selectAll();
    QTest::keyClicks(employee, "LATA IYER");
    QTest::keyClick(employee->lineEdit(), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), child(panel, "txt(202)"));
    QCOMPARE(text(panel, "txt(202)") + child<QLabel>(panel, "lblCat")->text(),
             "AAAPL1234CWoman");

    auto *salary = child<QLineEdit>(panel, "txt(205)");
    salary->setFocus();
    QApplication::processEvents(); // the box selects its text on entry, so typing replaces it
    QTest::keyClicks(salary, "600000");
    QCOMPARE(text(panel, "txt(213)"), "600000.00");

    // A letter typed in a grid is refused; OK carries the grid's total into the chain.
    child<QPushButton>(panel, "CmdSec10")->click();
    QVERIFY(child(panel, "Fram1")->isVisible());
    QTest::keyClicks(QApplication::focusWidget(), "15a00");
    QCOMPARE(f.boxes.texts().last(), SectionGrid::numericOnlyText);
    child<QPushButton>(panel, "cmdSecOk")->click();
    QVERIFY(!child(panel, "Fram1")->isVisible());
    QCOMPARE(text(panel, "txt(206)") + "/" + text(panel, "txt(209)"), "1500.00/601500.00");

    child<QPushButton>(panel, "cmdSaveEmployee")->click();
    auto *list = child<QTableView>(panel, "lstvEmp");
    QCOMPARE(list->model()->rowCount(), 1);
    QCOMPARE(text(panel, "txt(201)"), "2");
    QCOMPARE(f.stored("EmpName, \"332\", \"334Sec10Gross\""),
             QStringList{"LATA IYER/600000/601500"});

    panel.open();
    emit list->clicked(list->model()->index(0, 0));
    QCOMPARE(text(panel, "txt(206)") + "/" + employee->currentText(), "1500.00/LATA IYER");
    list->setFocus();
    list->setCurrentIndex(list->model()->index(0, 0));
    f.boxes.answerNext(Answer::Yes);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(list->model()->rowCount(), 0);
    QCOMPARE(f.data.count("TranSec10E24"), 0);
}

KELVORA_TEST_OBJECT(TestSalaryPanel);
#include "test_salarypanel.moc"
