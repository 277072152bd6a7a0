#include "core/keyfilters.h"
#include "support/scriptedmessageboxes.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using keyfilters::Rule;

Q_DECLARE_METATYPE(QList<keyfilters::Rule>)

namespace {

// QTest::keyClicks takes ASCII only; other characters go as a key press with their text.
void typeText(QWidget *widget, const QString &text)
{
    for (const QChar ch : text) {
        if (ch.unicode() < 128)
            QTest::keyClick(widget, ch.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Press, widget, Qt::Key(ch.toUpper().unicode()),
                                QString(ch), Qt::NoModifier);
    }
}

} // namespace

class TestKeyFilters : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void typing_data();
    void typing();
    void typingOverSelection();
    void keysLeftAlone();
    void backspaceAnywhere_data();
    void backspaceAnywhere();
    void numeric_data();
    void numeric();
    void selectAllText();

private:
    QWidget *m_window = nullptr;
    QLineEdit *m_edit = nullptr;
    QLineEdit *m_other = nullptr;
};

void TestKeyFilters::init()
{
    m_window = new QWidget;
    auto *layout = new QVBoxLayout(m_window);
    m_edit = new QLineEdit;
    m_edit->setObjectName(QStringLiteral("txtPAN"));
    m_other = new QLineEdit;
    layout->addWidget(m_edit);
    layout->addWidget(m_other);
    m_window->show();
}

void TestKeyFilters::cleanup()
{
    delete m_window;
    m_window = nullptr;
}

void TestKeyFilters::typing_data()
{
    QTest::addColumn<QList<Rule>>("rules");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    const QList<Rule> pan{Rule::UpperCase, Rule::Pan};
    const QList<Rule> alnumPan{Rule::Alnum, Rule::Pan};
    const QList<Rule> tan{Rule::Alnum, Rule::Tan};

    QTest::newRow("PAN in lower case") << pan << "abcde1234f" << "ABCDE1234F";
    QTest::newRow("PAN sixth letter") << pan << "ABCDEF1234G" << "ABCDE1234G";
    QTest::newRow("PAN digit first") << pan << "1ABCDE1234F" << "ABCDE1234F";
    QTest::newRow("PAN placeholder") << pan << "PANNOTAVBL" << "PANNO";
    QTest::newRow("PAN blank and point") << pan << "AB C.DE" << "ABCDE";
    QTest::newRow("PAN brace as bracket") << pan << "{bcde1234f" << "[BCDE1234F";
    QTest::newRow("PAN underscore after upper case") << pan << "_bcde1234f" << "_BCDE1234F";
    QTest::newRow("PAN underscore after alnum") << alnumPan << "_abcde1234f" << "ABCDE1234F";
    QTest::newRow("TAN") << tan << "mumr12345e" << "MUMR12345E";
    QTest::newRow("TAN fifth letter") << tan << "MUMRA12345E" << "MUMR12345E";
    QTest::newRow("alnum") << QList<Rule>{Rule::Alnum} << "ab-{c.d 9" << "AB-[CD9";
    QTest::newRow("upper case") << QList<Rule>{Rule::UpperCase} << "a{b1 .|" << "A[B1 .|";
    QTest::newRow("outside ascii") << QList<Rule>{Rule::Alnum} << QString::fromUtf8("aé1")
                                   << "A1";
}

void TestKeyFilters::typing()
{
    QFETCH(QList<Rule>, rules);
    QFETCH(QString, typed);
    QFETCH(QString, text);

    keyfilters::install(m_edit, rules);
    typeText(m_edit, typed);
    QCOMPARE(m_edit->text(), text);
}

void TestKeyFilters::typingOverSelection()
{
    // The caret of a selection is where it starts, so a whole PAN can be typed over.
    keyfilters::install(m_edit, {Rule::UpperCase, Rule::Pan});
    m_edit->setText(QStringLiteral("ABCDE1234F"));
    m_edit->selectAll();
    QTest::keyClicks(m_edit, QStringLiteral("p"));
    QCOMPARE(m_edit->text(), QStringLiteral("P"));

    m_edit->setText(QStringLiteral("ABCDE1234F"));
    m_edit->setSelection(5, 4);
    QTest::keyClicks(m_edit, QStringLiteral("x9"));
    QCOMPARE(m_edit->text(), QStringLiteral("ABCDE9F"));
}

void TestKeyFilters::keysLeftAlone()
{
    keyfilters::install(m_edit, {Rule::UpperCase, Rule::Pan});
    m_edit->setText(QStringLiteral("ABCDE1234F"));
    m_edit->setCursorPosition(0);
    QTest::keyClick(m_edit, Qt::Key_Delete);
    QTest::keyClick(m_edit, Qt::Key_End);
    QCOMPARE(m_edit->text(), QStringLiteral("BCDE1234F"));
    QCOMPARE(m_edit->cursorPosition(), 9);

    // The PAN rule refuses Enter; the field must still report it, or the screens' Enter
    // navigation stops in the PAN field.
    QSignalSpy returns(m_edit, &QLineEdit::returnPressed);
    QTest::keyClick(m_edit, Qt::Key_Return);
    QTest::keyClick(m_edit, Qt::Key_Enter);
    QCOMPARE(returns.count(), 2);

    // Pasting is a shortcut, not typing: the save-time checks decide on what it brings.
    m_edit->clear();
    QApplication::clipboard()->setText(QStringLiteral("pannot 12"));
    QTest::keyClick(m_edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_edit->text(), QStringLiteral("pannot 12"));
}

void TestKeyFilters::backspaceAnywhere_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("caret");
    QTest::addColumn<QString>("text");

    QTest::newRow("after a letter") << "ABCDE1234F" << 3 << "ABDE1234F";
    QTest::newRow("at the end") << "ABCDE1234F" << 10 << "ABCDE1234";
    QTest::newRow("beyond ten") << "PANNOTAVBL99" << 12 << "PANNOTAVBL9";
}

void TestKeyFilters::backspaceAnywhere()
{
    QFETCH(QString, start);
    QFETCH(int, caret);
    QFETCH(QString, text);

    for (const QList<Rule> &rules : {QList<Rule>{Rule::UpperCase, Rule::Pan},
                                     QList<Rule>{Rule::Alnum, Rule::Tan}}) {
        QLineEdit edit;
        keyfilters::install(&edit, rules);
        edit.setText(start);
        edit.setCursorPosition(caret);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(edit.text(), text);
    }
}

void TestKeyFilters::numeric_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("noMinus");
    QTest::addColumn<bool>("noPoint");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("boxes");

    QTest::newRow("second point") << "12.5.3" << false << false << "12.53" << 1;
    QTest::newRow("letter") << "12a3" << false << false << "123" << 1;
    QTest::newRow("point and letter") << "1.2.x3" << false << false << "1.23" << 2;
    QTest::newRow("minus refused") << "-5" << true << false << "5" << 0;
    QTest::newRow("second minus") << "-5-" << false << false << "-5-" << 0;
    QTest::newRow("ampersand and parenthesis") << "1&(2" << true << true << "1&(2" << 0;
    QTest::newRow("plus") << "+1" << false << false << "1" << 1;
    QTest::newRow("point refused") << "5.25" << false << true << "525" << 0;
}

void TestKeyFilters::numeric()
{
    QFETCH(QString, typed);
    QFETCH(bool, noMinus);
    QFETCH(bool, noPoint);
    QFETCH(QString, text);
    QFETCH(int, boxes);

    ScriptedMessageBoxes shown;
    keyfilters::installNumeric(m_edit, shown, noMinus, noPoint);
    QTest::keyClicks(m_edit, typed);
    QCOMPARE(m_edit->text(), text);
    QCOMPARE(shown.shown.size(), boxes);
    for (const Message &message : std::as_const(shown.shown)) {
        QCOMPARE(message.text, QStringLiteral("Only numerics is to be entered"));
        QCOMPARE(message.title, QStringLiteral("Invalid Entry"));
        QCOMPARE(message.icon, MessageIcon::Information);
    }
}

void TestKeyFilters::selectAllText()
{
    m_edit->setText(QStringLiteral("1500.00"));
    m_edit->setCursorPosition(3);
    m_other->setFocus();
    keyfilters::selectAllText(m_edit);
    QCOMPARE(m_edit->selectedText(), QStringLiteral("1500.00"));
    QCOMPARE(m_window->focusWidget(), m_edit);

    // A field that cannot take the focus is still selected but leaves the focus alone.
    m_other->setText(QStringLiteral("25"));
    m_other->setEnabled(false);
    keyfilters::selectAllText(m_other);
    QCOMPARE(m_other->selectedText(), QStringLiteral("25"));
    QCOMPARE(m_window->focusWidget(), m_edit);
}

QTEST_MAIN(TestKeyFilters)
#include "test_keyfilters.moc"
