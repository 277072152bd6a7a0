#include "core/clsoperation.h"
#include "core/commandbar.h"
#include "core/masterbuttonbar.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace {

// A master screen's form: the bar inside a frame of its own, and the close button beside it,
// which is not part of the bar.
struct Form
{
    Form()
    {
        auto *layout = new QVBoxLayout(&widget);
        auto *frame = new QWidget(&widget);
        auto *frameLayout = new QVBoxLayout(frame);
        bar = new MasterButtonBar(frame);
        frameLayout->addWidget(bar);
        layout->addWidget(frame);
        close = new QPushButton(QStringLiteral("C&lose"), &widget);
        close->setObjectName(QStringLiteral("cmdClose"));
        layout->addWidget(close);
    }

    // "1" for an enabled button, "0" for a disabled one, cmd(0) first.
    QString states() const
    {
        QString text;
        for (int index = 0; index < MasterButtonBar::count; ++index)
            text += bar->button(index)->isEnabled() ? QLatin1Char('1') : QLatin1Char('0');
        return text;
    }

    void setAll(bool enabled)
    {
        for (int index = 0; index < MasterButtonBar::count; ++index)
            bar->button(index)->setEnabled(enabled);
    }

    QWidget widget;
    MasterButtonBar *bar = nullptr;
    QPushButton *close = nullptr;
};

} // namespace

class TestCommandBar : public QObject
{
    Q_OBJECT

private slots:
    void barButtonsReportTheirIndex();
    void setCommandButtons_data();
    void setCommandButtons();
    void enableCommands_data();
    void enableCommands();
};

void TestCommandBar::barButtonsReportTheirIndex()
{
    Form form;
    QSignalSpy clicked(form.bar, &MasterButtonBar::clicked);
    for (int index : {4, 0, 2, 1, 3})
        commandbar::button(&form.widget, index)->click();

    QList<int> indexes;
    for (const QList<QVariant> &arguments : clicked)
        indexes << arguments.at(0).toInt();
    QCOMPARE(indexes, QList<int>({4, 0, 2, 1, 3}));
    QCOMPARE(form.bar->button(0)->text(), QStringLiteral("Add &New"));
}

void TestCommandBar::setCommandButtons_data()
{
    QTest::addColumn<bool>("startEnabled");
    QTest::addColumn<bool>("browse");
    QTest::addColumn<QString>("states");

    QTest::newRow("browse") << false << true << "11001";
    QTest::newRow("editing") << true << false << "00110";
}

void TestCommandBar::setCommandButtons()
{
    QFETCH(bool, startEnabled);
    QFETCH(bool, browse);
    QFETCH(QString, states);

    Form form;
    form.setAll(startEnabled);
    form.close->setEnabled(false);

    commandbar::setCommandButtons(&form.widget, browse);

    QCOMPARE(form.states(), states);
    QVERIFY(!form.close->isEnabled());
}

void TestCommandBar::enableCommands_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("states");
    QTest::addColumn<int>("mode");

    // The Delete key on a list passes the text of a Boolean.
    QTest::newRow("True") << "True" << "11111" << 0;
    QTest::newRow("Load") << "Load" << "10101" << 0;
    QTest::newRow("Cancel") << "Cancel" << "10101" << 0;
    QTest::newRow("Add") << "Add" << "01101" << 0;
    QTest::newRow("Edit") << "Edit" << "11111" << 2;
    QTest::newRow("Delete") << "Delete" << "11111" << 0;
    QTest::newRow("word in other case") << "load" << "11111" << 0;
}

void TestCommandBar::enableCommands()
{
    QFETCH(QString, action);
    QFETCH(QString, states);
    QFETCH(int, mode);

    Form form;
    form.setAll(false);
    form.close->setEnabled(false);
    ClsOperation operation;

    commandbar::enableCommands(&form.widget, action, &operation);

    QCOMPARE(form.states(), states);
    QCOMPARE(operation.operationMode(), mode);
    QVERIFY(!form.close->isEnabled());

    // Screens without an operation object use the same routine.
    form.setAll(false);
    commandbar::enableCommands(&form.widget, action, nullptr);
    QCOMPARE(form.states(), states);
}

QTEST_MAIN(TestCommandBar)

#include "test_commandbar.moc"
