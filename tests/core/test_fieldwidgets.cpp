#include "core/datebox.h"
#include "core/fieldpath.h"
#include "core/keyfilters.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
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
        m_date = new DateBox(QStringLiteral("dtp105"));
        layout->addWidget(m_edit);
        layout->addWidget(m_date);
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
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

    // A date typed over the box, however the box was entered, is exactly the date typed; what
    // is not a date stays as typed for the screen's check to refuse.
    void typedDates_data()
    {
        testsuite::columns<QString, QString, QString, QDate>("arrival", "typed", "text", "date");
        const QList<std::tuple<const char *, const char *, const char *, QDate>> rows = {
            {"enter", "07/08/2026", "07/08/2026", QDate(2026, 8, 7)},
            {"tab", "15/07/2026", "15/07/2026", QDate(2026, 7, 15)},
            {"click on the day", "15/07/2026", "15/07/2026", QDate(2026, 7, 15)},
            {"click on the month", "30/07/2026", "30/07/2026", QDate(2026, 7, 30)},
            {"click on the year", "01/01/2027", "01/01/2027", QDate(2027, 1, 1)},
            {"enter", "01042026", "01042026", QDate(2026, 4, 1)},
            {"enter", "1/4/2026", "1/4/2026", QDate(2026, 4, 1)},
            {"enter", "31-03-2027", "31-03-2027", QDate(2027, 3, 31)},
            {"enter", "31.03.27", "31.03.27", QDate(2027, 3, 31)},
            {"enter", "3l/O3/2O27", "3/3/227", QDate()},
            {"enter", "31/02/2027", "31/02/2027", QDate()},
            {"enter", "310/3/2027", "310/3/2027", QDate()},
            {"enter", "", "", QDate()},
        };
        for (const auto &[arrival, typed, text, date] : rows)
            QTest::addRow("%s %s", arrival, typed) << arrival << typed << text << date;
    }
    void typedDates()
    {
        QFETCH(QString, arrival);
        QFETCH(QString, typed);
        m_date->setDate(QDate(2026, 11, 24));
        if (arrival == u"enter") {
            FieldPath::enter(m_date);
        } else if (arrival == u"tab") {
            m_edit->setFocus();
            QTest::keyClick(m_edit, Qt::Key_Tab);
        } else {
            // The caret's place in the shown date: the day, the month or the year.
            const int position = arrival.endsWith(u"day") ? 1 : arrival.endsWith(u"month") ? 4
                                                                                          : 8;
            const int x = m_date->contentsRect().left() + 3
                          + m_date->fontMetrics().horizontalAdvance(m_date->text().left(position));
            QTest::mouseClick(m_date, Qt::LeftButton, {}, QPoint(x, m_date->height() / 2));
        }
        QCoreApplication::processEvents(); // the whole date is selected once the click is done
        QCOMPARE(QApplication::focusWidget(), m_date);
        if (typed.isEmpty())
            QTest::keyClick(m_date, Qt::Key_Delete);
        QTest::keyClicks(m_date, typed);
        QTEST(m_date->text(), "text");
        QTEST(m_date->date(), "date");
        QVERIFY(m_boxes.shown.isEmpty());
    }

    // Alt+Down drops the calendar down on the box's date; Enter there takes the date picked.
    void calendar()
    {
        m_date->setDate(QDate(2026, 6, 30));
        FieldPath::enter(m_date);
        QTest::keyClick(m_date, Qt::Key_Down, Qt::AltModifier);
        QWidget *calendar = QApplication::activePopupWidget();
        QVERIFY(calendar);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(m_date->text(), "01/07/2026");
        QCOMPARE(QApplication::focusWidget(), m_date);
    }

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_edit = nullptr;
    DateBox *m_date = nullptr;
    ScriptedMessageBoxes m_boxes;
};

KELVORA_TEST_OBJECT(TestFieldWidgets);
#include "test_fieldwidgets.moc"
