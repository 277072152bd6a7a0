#include "core/datastore.h"
#include "core/fieldchecks.h"
#include "core/session.h"
#include "support/scriptedmessageboxes.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

// The wrappers' part: the box, the date set back and the focus; the rules have their own test.
class TestFieldChecks : public QObject
{
    Q_OBJECT

private slots:
    void dates();
    void blankAndMaxDigits();
};

void TestFieldChecks::dates()
{
    QTemporaryDir dir;
    DataStore store(dir.filePath(DataStore::fileName), DataStore::OpenMode::CreateFile);
    Session session(store);
    session.quarterFromDt = QStringLiteral("01/10/2024");
    session.quarterToDt = QStringLiteral("31/12/2024");

    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *date = new QDateEdit(QDate(2024, 11, 7));
    auto *challanDate = new QDateEdit(QDate(2024, 11, 7));
    layout->addWidget(date);
    layout->addWidget(challanDate);
    window.show();
    challanDate->setFocus();

    ScriptedMessageBoxes boxes;
    QVERIFY(fieldchecks::checkDepositDate(boxes, date, challanDate, session));
    QVERIFY(boxes.shown.isEmpty());
    QCOMPARE(window.focusWidget(), challanDate);

    date->setDate(QDate(2024, 11, 8));
    QVERIFY(!fieldchecks::checkDepositDate(boxes, date, challanDate, session));
    QCOMPARE(boxes.texts().last(),
             QStringLiteral("Date should not be greater than the Challan Date"));
    QCOMPARE(date->date(), QDate(2024, 11, 7));
    QCOMPARE(window.focusWidget(), date);

    date->setDate(QDate(2024, 9, 30));
    QVERIFY(!fieldchecks::checkNotBeforeQuarter(boxes, date, session));
    QCOMPARE(boxes.texts().last(),
             QStringLiteral("Date should not be less than the Quarter Start Date"));
    QCOMPARE(date->date(), QDate(2024, 10, 1));
    QCOMPARE(boxes.shown.size(), 2);
}

void TestFieldChecks::blankAndMaxDigits()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *edit = new QLineEdit(QStringLiteral("  "));
    auto *combo = new QComboBox;
    combo->setEditable(true);
    layout->addWidget(edit);
    layout->addWidget(combo);
    window.show();

    ScriptedMessageBoxes boxes;
    QVERIFY(fieldchecks::isBlank(boxes, edit, QStringLiteral("Enter Designation")));
    QCOMPARE(window.focusWidget(), edit);
    QVERIFY(fieldchecks::isBlank(boxes, combo));
    QCOMPARE(window.focusWidget(), combo);
    combo->setEditText(QStringLiteral("RAVI"));
    QVERIFY(!fieldchecks::isBlank(boxes, combo));

    // The digit check only warns: its result lets the caller go on.
    edit->setText(QStringLiteral("123456789012345.00"));
    QVERIFY(fieldchecks::checkMaxDigits(boxes, edit, 14));
    QCOMPARE(window.focusWidget(), edit);

    // A hidden field still gets its box but cannot take the focus.
    combo->setFocus();
    edit->hide();
    edit->clear();
    QVERIFY(fieldchecks::isBlank(boxes, edit));
    QCOMPARE(window.focusWidget(), combo);

    QCOMPARE(boxes.texts(), (QStringList{QStringLiteral("Enter Designation"),
                                         QStringLiteral("Cannot take blank value"),
                                         QStringLiteral("Maximum Len allowed = 14"),
                                         QStringLiteral("Cannot take blank value")}));
}

QTEST_MAIN(TestFieldChecks)
#include "test_fieldchecks.moc"
