#include "core/storeerror.h"
#include "core/widgetroutines.h"
#include "support/teststore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

template<typename T>
T *add(QWidget *parent, const QString &name, const QString &tag = {})
{
    auto *widget = new T(parent);
    widget->setObjectName(name);
    if (!tag.isNull())
        widget->setProperty("tag", tag);
    parent->layout()->addWidget(widget);
    return widget;
}

QComboBox *addCombo(QWidget *parent, const QString &name, const QString &tag = {},
                    bool editable = false)
{
    auto *combo = add<QComboBox>(parent, name, tag);
    combo->setEditable(editable);
    combo->addItems({QStringLiteral("Yes"), QStringLiteral("No"), QStringLiteral("General")});
    combo->setCurrentIndex(1);
    return combo;
}

// What the user sees in a control: its text, and for a combo also the row chosen.
QString shownValue(const QWidget *widget)
{
    if (auto *combo = qobject_cast<const QComboBox *>(widget))
        return QStringLiteral("%1#%2").arg(combo->currentText()).arg(combo->currentIndex());
    if (auto *dateEdit = qobject_cast<const QDateEdit *>(widget))
        return dateEdit->text();
    if (auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (auto *edit = qobject_cast<const QPlainTextEdit *>(widget))
        return edit->toPlainText();
    if (auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (auto *check = qobject_cast<const QCheckBox *>(widget))
        return check->isChecked() ? QStringLiteral("checked") : QStringLiteral("unchecked");
    return {};
}

// A master screen with one control of each kind that clearControls tells apart.
class EntryForm : public QWidget
{
public:
    EntryForm()
    {
        new QVBoxLayout(this);
        add<QLineEdit>(this, QStringLiteral("txtName"))->setText(QStringLiteral("RAVI"));
        add<QLineEdit>(this, QStringLiteral("txtPrefix"), QStringLiteral("pj"))
            ->setText(QStringLiteral("ABC"));
        auto *frame = add<QGroupBox>(this, QStringLiteral("fraAmounts"));
        new QVBoxLayout(frame);
        add<QLineEdit>(frame, QStringLiteral("txtCh(117)"))->setText(QStringLiteral("100.00"));
        add<QLineEdit>(frame, QStringLiteral("txtId"), QStringLiteral("X"))
            ->setText(QStringLiteral("7"));
        add<QPlainTextEdit>(this, QStringLiteral("txtRemarks"))
            ->setPlainText(QStringLiteral("two\nlines"));
        addCombo(this, QStringLiteral("cmbGrp"));
        addCombo(this, QStringLiteral("cmbState"), {}, true)->setEditText(QStringLiteral("GOA"));
        addCombo(this, QStringLiteral("cmbCat"), QStringLiteral("Pj"), true);
        addCombo(this, QStringLiteral("cmbYesNo"));
        addCombo(this, QStringLiteral("cmbchbookentry"));
        addCombo(this, QStringLiteral("cmbDedbookentry(2)"));
        addCombo(frame, QStringLiteral("cmbSection(1)"));
        add<QLabel>(this, QStringLiteral("lblTotal"), QStringLiteral("clear"))
            ->setText(QStringLiteral("500.00"));
        add<QLabel>(this, QStringLiteral("lblTds"), QStringLiteral("CL"))
            ->setText(QStringLiteral("50.00"));
        add<QLabel>(this, QStringLiteral("lblName"))->setText(QStringLiteral("Name"));
        auto *date = add<QDateEdit>(this, QStringLiteral("dtpFrom"));
        date->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
        date->setDate(QDate(2026, 4, 1));
        add<QCheckBox>(this, QStringLiteral("chkSalary"))->setChecked(true);
    }
};

struct ListRow
{
    QString text;
    QString amount;
    bool selected = false;
};

} // namespace

Q_DECLARE_METATYPE(ListRow)

class TestWidgetRoutines : public QObject
{
    Q_OBJECT

private slots:
    void fillCombo_data();
    void fillCombo();
    void fillComboChoosesNothingAndIsSilent();
    void fillComboFailureLeavesTheRows();
    void clearControls_data();
    void clearControls();
    void removeSelectedRows_data();
    void removeSelectedRows();
};

void TestWidgetRoutines::fillCombo_data()
{
    QTest::addColumn<bool>("withBlank");
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QStringList>("rows");

    const QString all = QStringLiteral("SELECT GroupName FROM mstGroup ORDER BY GroupName");
    const QString none = QStringLiteral("SELECT GroupName FROM mstGroup WHERE GroupID = 99");
    QTest::newRow("rows") << false << all << QStringList{"ALPHA", "BETA"};
    QTest::newRow("no rows") << false << none << QStringList{};
    QTest::newRow("blank and rows") << true << all << QStringList{"", "ALPHA", "BETA"};
    QTest::newRow("no rows, no blank") << true << none << QStringList{};
}

void TestWidgetRoutines::fillCombo()
{
    QFETCH(bool, withBlank);
    QFETCH(QString, statement);
    QFETCH(QStringList, rows);

    TestStore test;
    test.store().exec(QStringLiteral(
        "INSERT INTO mstGroup (GroupID, GroupName) VALUES (1, 'BETA'), (2, 'ALPHA')"));
    QComboBox combo;
    combo.addItems({QStringLiteral("OLD ROW")});

    const QString table = QStringLiteral("mstGroup");
    const QString column = QStringLiteral("GroupName");
    if (withBlank)
        widgetroutines::fillComboWithBlank(&combo, test.store(), table, column, true, statement);
    else
        widgetroutines::fillCombo(&combo, test.store(), table, column, true, statement);

    QStringList shown;
    for (int row = 0; row < combo.count(); ++row)
        shown << combo.itemText(row);
    QCOMPARE(shown, rows);
}

void TestWidgetRoutines::fillComboChoosesNothingAndIsSilent()
{
    TestStore test;
    test.store().exec(QStringLiteral("INSERT INTO mstGroup (GroupID, GroupName) VALUES (1, 'A')"));
    for (bool editable : {false, true}) {
        QComboBox combo;
        combo.setEditable(editable);
        combo.addItems({QStringLiteral("X"), QStringLiteral("Y")});
        combo.setCurrentIndex(1);
        QSignalSpy changed(&combo, &QComboBox::currentIndexChanged);

        widgetroutines::fillCombo(&combo, test.store(), QStringLiteral("mstGroup"),
                                  QStringLiteral("GroupName"), false);

        QCOMPARE(combo.count(), 1);
        QCOMPARE(combo.currentIndex(), -1);
        QCOMPARE(combo.currentText(), QString());
        QCOMPARE(changed.size(), 0);
    }
}

void TestWidgetRoutines::fillComboFailureLeavesTheRows()
{
    TestStore test;
    QComboBox combo;
    combo.addItems({QStringLiteral("X"), QStringLiteral("Y")});
    combo.setCurrentIndex(1);

    QVERIFY_THROWS_EXCEPTION(StoreError,
                             widgetroutines::fillComboWithBlank(
                                 &combo, test.store(), QStringLiteral("mstNoSuchTable"),
                                 QStringLiteral("GroupName"), true));

    QCOMPARE(combo.count(), 2);
    QCOMPARE(combo.currentIndex(), 1);
}

void TestWidgetRoutines::clearControls_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");

    QTest::newRow("text box") << "txtName" << "";
    QTest::newRow("text box tagged pj") << "txtPrefix" << "ABC";
    QTest::newRow("text box in a frame") << "txtCh(117)" << "";
    QTest::newRow("text box with another tag") << "txtId" << "";
    QTest::newRow("multi-line text box") << "txtRemarks" << "";
    QTest::newRow("list combo") << "cmbGrp" << "#-1";
    QTest::newRow("editable combo") << "cmbState" << "#-1";
    QTest::newRow("editable combo tagged Pj") << "cmbCat" << "No#1";
    QTest::newRow("cmbYesNo") << "cmbYesNo" << "No#1";
    QTest::newRow("cmbChbookentry, other case") << "cmbchbookentry" << "No#1";
    QTest::newRow("cmbDedbookentry in an array") << "cmbDedbookentry(2)" << "No#1";
    QTest::newRow("combo array in a frame") << "cmbSection(1)" << "#-1";
    QTest::newRow("label tagged clear") << "lblTotal" << "";
    QTest::newRow("label tagged CL") << "lblTds" << "";
    QTest::newRow("caption label") << "lblName" << "Name";
    // The date box holds a line edit of its own, which is not a text box of the form.
    QTest::newRow("date") << "dtpFrom" << "01/04/2026";
    QTest::newRow("check box") << "chkSalary" << "checked";
}

void TestWidgetRoutines::clearControls()
{
    QFETCH(QString, name);
    QFETCH(QString, value);

    EntryForm form;
    widgetroutines::clearControls(&form);

    const QWidget *widget = form.findChild<QWidget *>(name);
    QVERIFY(widget);
    QCOMPARE(shownValue(widget), value);
}

void TestWidgetRoutines::removeSelectedRows_data()
{
    QTest::addColumn<QList<ListRow>>("rows");
    QTest::addColumn<QStringList>("kept");

    const auto row = [](const char *text, const char *amount, bool selected = false) {
        return ListRow{QString::fromLatin1(text), QString::fromLatin1(amount), selected};
    };
    QTest::newRow("middle row")
        << QList<ListRow>{row("1", "10.00"), row("2", "20.00", true), row("3 ", "30.00")}
        << QStringList{"1|10.00", "3|30.00"};
    QTest::newRow("first and last")
        << QList<ListRow>{row("1", "10.00", true), row(" 2 ", " 20.00"), row("3", "30.00", true)}
        << QStringList{"2| 20.00"};
    QTest::newRow("nothing selected")
        << QList<ListRow>{row(" 1", "10.00"), row("2  ", "20.00")}
        << QStringList{"1|10.00", "2|20.00"};
    QTest::newRow("all selected")
        << QList<ListRow>{row("1", "10.00", true), row("2", "20.00", true)} << QStringList{};
}

void TestWidgetRoutines::removeSelectedRows()
{
    QFETCH(QList<ListRow>, rows);
    QFETCH(QStringList, kept);

    QTreeWidget list;
    list.setColumnCount(2);
    list.setRootIsDecorated(false);
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const ListRow &row : rows) {
        auto *item = new QTreeWidgetItem(&list, {row.text, row.amount});
        item->setSelected(row.selected);
    }

    widgetroutines::removeSelectedRows(&list);

    QStringList shown;
    for (int index = 0; index < list.topLevelItemCount(); ++index) {
        const QTreeWidgetItem *item = list.topLevelItem(index);
        shown << item->text(0) + QLatin1Char('|') + item->text(1);
    }
    QCOMPARE(shown, kept);
}

QTEST_MAIN(TestWidgetRoutines)

#include "test_widgetroutines.moc"
