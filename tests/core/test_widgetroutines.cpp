#include "corestore.h"
#include "core/clsoperation.h"
#include "core/commandbar.h"
#include "core/masterbuttonbar.h"
#include "core/storeerror.h"
#include "core/widgetroutines.h"
#include "support/testsuite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

template<typename T>
T *add(QWidget *parent, const QString &name, const QString &tag = {})
{
    auto *widget = new T(parent);
    widget->setObjectName(name);
    widget->setProperty("tag", tag);
    parent->layout()->addWidget(widget);
    return widget;
}

QComboBox *addCombo(QWidget *parent, const QString &name, const QString &tag = {},
                    bool editable = false)
{
    auto *combo = add<QComboBox>(parent, name, tag);
    combo->setEditable(editable);
    combo->addItems({QStringLiteral("Yes"), QStringLiteral("No")});
    combo->setCurrentIndex(1);
    return combo;
}

// What the user sees of each control of the form: its text, for a combo also the row chosen.
QStringList shownValues(const QWidget *form)
{
    QStringList values;
    for (const QWidget *widget : form->findChildren<QWidget *>()) {
        QString value;
        // The line edit inside a date box is Qt's own.
        if (widget->objectName().isEmpty() || widget->objectName().startsWith(u"qt_"))
            continue;
        if (auto *combo = qobject_cast<const QComboBox *>(widget))
            value = QStringLiteral("%1#%2").arg(combo->currentText()).arg(combo->currentIndex());
        else if (auto *date = qobject_cast<const QDateEdit *>(widget))
            value = date->text();
        else if (auto *edit = qobject_cast<const QLineEdit *>(widget))
            value = edit->text();
        else if (auto *edit = qobject_cast<const QPlainTextEdit *>(widget))
            value = edit->toPlainText();
        else if (auto *label = qobject_cast<const QLabel *>(widget))
            value = label->text();
        else if (auto *check = qobject_cast<const QCheckBox *>(widget))
            value = check->isChecked() ? QStringLiteral("checked") : QString();
        else
            continue;
        values << widget->objectName() + u'=' + value;
    }
    values.sort();
    return values;
}

QStringList itemTexts(const QComboBox &combo)
{
    QStringList texts;
    for (int row = 0; row < combo.count(); ++row)
        texts << combo.itemText(row);
    return texts;
}

} // namespace

class TestWidgetRoutines : public QObject
{
    Q_OBJECT

private slots:
    void fillCombo()
    {
        const DataStore &store = coreStore().store();
        const QString sql = QStringLiteral("SELECT GroupName FROM mstGroup WHERE GroupID < ? "
                                           "ORDER BY GroupName");
        for (bool editable : {false, true}) {
            QComboBox combo;
            combo.setEditable(editable);
            combo.addItems({QStringLiteral("X"), QStringLiteral("Y")});
            combo.setCurrentIndex(1);
            QSignalSpy changed(&combo, &QComboBox::currentIndexChanged);
            widgetroutines::fillComboWithBlank(&combo, store, "mstGroup", "GroupName", true, sql,
                                               false, {3});
            QCOMPARE(itemTexts(combo), QStringList({"", "Alpha Group", "Beta Group"}));
            // Refilling is no choice of the user's: nothing chosen and no signal.
            QCOMPARE(combo.currentIndex(), -1);
            QCOMPARE(combo.currentText(), QString());
            QCOMPARE(changed.size(), 0);
            widgetroutines::fillCombo(&combo, store, "mstGroup", "GroupName", true, sql, true,
                                      {3});
            QCOMPARE(itemTexts(combo), QStringList({"Alpha Group", "Beta Group"}));
            // A statement without rows leaves the combo empty, without the blank row.
            widgetroutines::fillComboWithBlank(&combo, store, "mstGroup", "GroupName", true, sql,
                                               false, {0});
            QCOMPARE(combo.count(), 0);
        }
        // A failure reaches the caller and leaves the rows as they were.
        QComboBox combo;
        combo.addItems({QStringLiteral("X"), QStringLiteral("Y")});
        QVERIFY_THROWS_EXCEPTION(StoreError, widgetroutines::fillCombo(&combo, store, "mstNone",
                                                                       "GroupName", true));
        QCOMPARE(combo.count(), 2);
    }

    void clearControls()
    {
        QWidget form;
        new QVBoxLayout(&form);
        add<QLineEdit>(&form, "txtName")->setText("RAVI");
        add<QLineEdit>(&form, "txtPrefix", "pj")->setText("ABC"); // carried to the next entry
        auto *frame = add<QGroupBox>(&form, "fraAmounts");
        new QVBoxLayout(frame);
        add<QLineEdit>(frame, "txtCh(117)")->setText("100.00");
        add<QPlainTextEdit>(&form, "txtRemarks")->setPlainText("two\nlines");
        addCombo(&form, "cmbGrp");
        addCombo(&form, "cmbState", {}, true)->setEditText("GOA");
        addCombo(&form, "cmbCat", "Pj", true);
        addCombo(&form, "cmbchbookentry");
        addCombo(frame, "cmbDedbookentry(2)");
        addCombo(frame, "cmbSection(1)");
        add<QLabel>(&form, "lblTotal", "clear")->setText("500.00");
        add<QLabel>(&form, "lblTds", "CL")->setText("50.00");
        add<QLabel>(&form, "lblName")->setText("Name");
        auto *date = add<QDateEdit>(&form, "dtpFrom");
        date->setDisplayFormat("dd/MM/yyyy");
        date->setDate(QDate(2026, 4, 1));
        add<QCheckBox>(&form, "chkSalary")->setChecked(true);

        widgetroutines::clearControls(&form);

        QStringList expected({"txtName=", "txtPrefix=ABC", "txtCh(117)=", "txtRemarks=",
                              "cmbGrp=#-1", "cmbState=#-1", "cmbCat=No#1", "cmbchbookentry=No#1",
                              "cmbDedbookentry(2)=No#1", "cmbSection(1)=#-1", "lblTotal=",
                              "lblTds=", "lblName=Name", "dtpFrom=01/04/2026",
                              "chkSalary=checked"});
        expected.sort();
        QCOMPARE(shownValues(&form), expected);
    }

    void removeSelectedRows()
    {
        // The rows kept lose the text of their last column.
        QTreeWidget list;
        list.setColumnCount(3);
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        for (const char *text : {"1", " 2 ", "3", "4 "})
            new QTreeWidgetItem(&list, {QLatin1String(text), " 10.00", "10.00"});
        list.topLevelItem(0)->setSelected(true);
        list.topLevelItem(2)->setSelected(true);
        widgetroutines::removeSelectedRows(&list);
        QStringList kept;
        for (int index = 0; index < list.topLevelItemCount(); ++index)
            kept << list.topLevelItem(index)->text(0) + u'|' + list.topLevelItem(index)->text(1)
                        + u'|' + list.topLevelItem(index)->text(2);
        QCOMPARE(kept, QStringList({"2| 10.00|", "4| 10.00|"}));
    }

    // The bar's buttons, "1" enabled and "0" disabled, cmd(0) first; the close button beside
    // the bar is never touched.
    void commandButtons_data()
    {
        // action: "browse", "editing" or a word of enableCommands
        testsuite::columns<QString, QString, int>("action", "states", "mode");
        QTest::newRow("browse") << "browse" << "11001" << 0;
        QTest::newRow("editing") << "editing" << "00110" << 0;
        QTest::newRow("the list's Delete key") << "True" << "11111" << 0;
        QTest::newRow("Load") << "Load" << "10101" << 0;
        QTest::newRow("Cancel") << "Cancel" << "10101" << 0;
        QTest::newRow("Add") << "Add" << "01101" << 0;
        QTest::newRow("Edit") << "Edit" << "11111" << 2;
        QTest::newRow("word in another case") << "load" << "11111" << 0;
    }
    void commandButtons()
    {
        QFETCH(QString, action);
        QWidget form;
        new QVBoxLayout(&form);
        auto *bar = new MasterButtonBar(add<QWidget>(&form, "frame"));
        auto *close = add<QPushButton>(&form, "cmdClose");
        close->setEnabled(false);
        for (int index = 0; index < MasterButtonBar::count; ++index)
            bar->button(index)->setEnabled(action == u"editing");
        ClsOperation operation;

        if (action == u"browse" || action == u"editing") {
            commandbar::setCommandButtons(&form, action == u"browse");
        } else {
            // Screens without an operation object use the same routine.
            commandbar::enableCommands(&form, action, nullptr);
            commandbar::enableCommands(&form, action, &operation);
        }

        QString states;
        for (int index = 0; index < MasterButtonBar::count; ++index)
            states += commandbar::button(&form, index)->isEnabled() ? u'1' : u'0';
        QTEST(states, "states");
        QTEST(operation.operationMode(), "mode");
        QVERIFY(!close->isEnabled());
        QSignalSpy clicked(bar, &MasterButtonBar::clicked);
        commandbar::button(&form, 4)->setEnabled(true);
        commandbar::button(&form, 4)->click();
        QCOMPARE(clicked.value(0).value(0).toInt(), 4);
    }
};

KELVORA_TEST_OBJECT(TestWidgetRoutines);
#include "test_widgetroutines.moc"
