#include "core/datastore.h"
#include "core/fieldchecks.h"
#include "core/keyfilters.h"
#include "core/session.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

using keyfilters::Rule;

Q_DECLARE_METATYPE(QList<keyfilters::Rule>)

// The key filters and field checks on real edits: what reaches the text, the boxes, the focus.
class TestFieldWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_edit = new QLineEdit;
        m_date = new QDateEdit(QDate(2024, 11, 7));
        m_challanDate = new QDateEdit(QDate(2024, 11, 7));
        layout->addWidget(m_edit);
        layout->addWidget(m_date);
        layout->addWidget(m_challanDate);
        m_window->show();
        m_boxes.shown.clear();
    }

    void typing_data()
    {
        testsuite::columns<QList<Rule>, QString, QString>("rules", "typed", "text");
        const QList<Rule> pan{Rule::UpperCase, Rule::Pan};
        QTest::newRow("PAN in lower case") << pan << "abcde1234f" << "ABCDE1234F";
        QTest::newRow("PAN sixth letter") << pan << "ABCDEF1234G" << "ABCDE1234G";
        QTest::newRow("PAN placeholder") << pan << "PANNOTAVBL" << "PANNO";
        QTest::newRow("underscore after upper case") << pan << "_bcde1234f" << "_BCDE1234F";
        QTest::newRow("underscore after alnum") << QList<Rule>{Rule::Alnum, Rule::Pan}
                                                << "_abcde1234f" << "ABCDE1234F";
        QTest::newRow("TAN") << QList<Rule>{Rule::Alnum, Rule::Tan} << "mumra12345e"
                             << "MUMR12345E";
        QTest::newRow("alnum") << QList<Rule>{Rule::Alnum} << "ab-{c.d 9" << "AB-[CD9";
        QTest::newRow("PAN eleventh character") << pan << "abcde1234fg" << "ABCDE1234F";
    }
    void typing()
    {
        QFETCH(QList<Rule>, rules);
        QFETCH(QString, typed);
        keyfilters::install(m_edit, rules);
        QTest::keyClicks(m_edit, typed);
        QTEST(m_edit->text(), "text");
    }

    void keysLeftAlone()
    {
        keyfilters::install(m_edit, {Rule::UpperCase, Rule::Pan});
        // The caret of a selection is where it starts, so a PAN can be typed over.
        m_edit->setText(QStringLiteral("ABCDE1234F"));
        m_edit->setSelection(5, 4);
        QTest::keyClicks(m_edit, QStringLiteral("x9"));
        QCOMPARE(m_edit->text(), QStringLiteral("ABCDE9F"));
        m_edit->setText(QStringLiteral("PANNOTAVBL99"));
        QTest::keyClick(m_edit, Qt::Key_Backspace);
        m_edit->setCursorPosition(0);
        QTest::keyClick(m_edit, Qt::Key_Delete);
        QCOMPARE(m_edit->text(), QStringLiteral("ANNOTAVBL9"));
        // The PAN rule refuses Enter; the field must still report it, or the screens' Enter
        // navigation stops in the PAN field.
        QSignalSpy returns(m_edit, &QLineEdit::returnPressed);
        QTest::keyClick(m_edit, Qt::Key_Return);
        QCOMPARE(returns.count(), 1);
        // Pasting is not typing: the save-time checks decide on what it brings.
        m_edit->clear();
        QApplication::clipboard()->setText(QStringLiteral("pannot 12"));
        QTest::keyClick(m_edit, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m_edit->text(), QStringLiteral("pannot 12"));
    }

    void numeric_data()
    {
        testsuite::columns<QString, bool, QString, int>("typed", "noMinus", "text", "boxes");
        QTest::newRow("second point") << "12.5.3" << false << "12.53" << 1;
        QTest::newRow("point and letter") << "1.2.x3" << false << "1.23" << 2;
        QTest::newRow("minus refused") << "-5" << true << "5" << 0;
        QTest::newRow("ampersand and parenthesis") << "1&(2" << true << "1&(2" << 0;
    }
    void numeric()
    {
        QFETCH(QString, typed);
        QFETCH(bool, noMinus);
        QFETCH(int, boxes);
        keyfilters::installNumeric(m_edit, m_boxes, noMinus);
        QTest::keyClicks(m_edit, typed);
        QTEST(m_edit->text(), "text");
        const Message onlyNumerics{QStringLiteral("Only numerics is to be entered"),
                                   QStringLiteral("Invalid Entry")};
        QCOMPARE(m_boxes.shown, QList<Message>(boxes, onlyNumerics));
    }

    // A refused date is set back to the bound it crossed and takes the focus.
    void dates()
    {
        QTemporaryDir dir;
        DataStore store(dir.filePath(DataStore::fileName), DataStore::OpenMode::CreateFile);
        Session session(store);
        session.quarterFromDt = QStringLiteral("01/10/2024");
        session.quarterToDt = QStringLiteral("31/12/2024");
        m_challanDate->setFocus();
        QVERIFY(fieldchecks::checkDepositDate(m_boxes, m_date, m_challanDate, session));
        QCOMPARE(m_window->focusWidget(), m_challanDate);

        m_date->setDate(QDate(2024, 11, 8));
        QVERIFY(!fieldchecks::checkDepositDate(m_boxes, m_date, m_challanDate, session));
        QCOMPARE(m_date->date(), QDate(2024, 11, 7));
        QCOMPARE(m_window->focusWidget(), m_date);
        m_date->setDate(QDate(2024, 9, 30));
        QVERIFY(!fieldchecks::checkNotBeforeQuarter(m_boxes, m_date, session));
        QCOMPARE(m_date->date(), QDate(2024, 10, 1));
        QCOMPARE(m_boxes.texts(),
                 QStringList({"Date should not be greater than the Challan Date",
                              "Date should not be less than the Quarter Start Date"}));
    }

    void blankAndMaxDigits()
    {
        auto *combo = new QComboBox;
        combo->setEditable(true);
        m_window->layout()->addWidget(combo);
        combo->show();
        m_edit->setText(QStringLiteral("  "));
        QVERIFY(fieldchecks::isBlank(m_boxes, m_edit, QStringLiteral("Enter Designation")));
        QCOMPARE(m_window->focusWidget(), m_edit);
        QVERIFY(fieldchecks::isBlank(m_boxes, combo));
        QCOMPARE(m_window->focusWidget(), combo);
        combo->setEditText(QStringLiteral("RAVI"));
        QVERIFY(!fieldchecks::isBlank(m_boxes, combo));
        // The digit check only warns: its result lets the caller go on.
        m_edit->setText(QStringLiteral("123456789012345.00"));
        QVERIFY(fieldchecks::checkMaxDigits(m_boxes, m_edit, 14));
        QCOMPARE(m_window->focusWidget(), m_edit);
        // A hidden field still gets its box but cannot take the focus.
        combo->setFocus();
        m_edit->hide();
        m_edit->clear();
        QVERIFY(fieldchecks::isBlank(m_boxes, m_edit));
        QCOMPARE(m_window->focusWidget(), combo);
        QCOMPARE(m_boxes.texts(), QStringList({"Enter Designation", "Cannot take blank value",
                                               "Maximum Len allowed = 14",
                                               "Cannot take blank value"}));
    }

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_edit = nullptr;
    QDateEdit *m_date = nullptr;
    QDateEdit *m_challanDate = nullptr;
    ScriptedMessageBoxes m_boxes;
};

KELVORA_TEST_OBJECT(TestFieldWidgets);
#include "test_fieldwidgets.moc"
