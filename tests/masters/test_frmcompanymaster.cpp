#include "companytestdata.h"
#include "core/session.h"
#include "masters/frmcompanymaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

using namespace companytestdata;

namespace {

/// A company screen on its own store, shown and active, driven from the keyboard.
struct Screen
{
    explicit Screen(bool withGroup = true)
    {
        if (withGroup) {
            addGroup(data.store(), 1, QStringLiteral("ALPHA GROUP"));
            addCompany(data.store(), 7, 1, QStringLiteral("OLDT12345A"),
                       QStringLiteral("OLD NAME"));
        }
    }

    bool open()
    {
        form = std::make_unique<FrmCompanyMaster>(session, boxes);
        form->show();
        return QTest::qWaitForWindowActive(form.get());
    }

    template<typename T> T *child(const char *name) const
    {
        T *widget = form->findChild<T *>(QLatin1String(name));
        if (!widget)
            qFatal("no control %s", name);
        return widget;
    }
    QLineEdit *edit(const char *name) const { return child<QLineEdit>(name); }
    QComboBox *combo(const char *name) const { return child<QComboBox>(name); }

    QString focused() const
    {
        QWidget *widget = QApplication::focusWidget();
        return widget ? widget->objectName() : QString();
    }

    /// A key to the focused field; the checks made on leaving a field run right after.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        // A button's accelerator presses it visibly and clicks it a moment later.
        QTest::qWait(modifiers & Qt::AltModifier ? 200 : 1);
    }

    void type(const QString &text) { QTest::keyClicks(QApplication::focusWidget(), text); }

    void focus(const char *name)
    {
        QWidget *widget = child<QWidget>(name);
        widget->setFocus(Qt::TabFocusReason);
        QTest::qWait(1);
    }

    /// Fills the fields as validEntry() has them, as if typed.
    void fill(const CompanyEntry &entry)
    {
        for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
            QWidget *widget = child<QWidget>(field.control);
            const QString value = entry.value(QLatin1String(field.control));
            if (auto *line = qobject_cast<QLineEdit *>(widget))
                line->setText(value);
            else if (auto *box = qobject_cast<QComboBox *>(widget))
                box->setEditText(value);
        }
    }

    QVariant stored(const char *column, int compId)
    {
        return columnOf(data.store(), QStringLiteral("mstCompany"), QLatin1String(column),
                        QStringLiteral("CompID = ?"), {compId});
    }

    TestStore data;
    Session session{data.store()};
    ScriptedMessageBoxes boxes;
    std::unique_ptr<FrmCompanyMaster> form;
};

} // namespace

class TestFrmCompanyMaster : public QObject
{
    Q_OBJECT

private slots:
    void addNeedsAGroup();
    void addsByKeyboard();
    void shortTanKeepsTheFocus();
    void foreignStateTakesItsPin();
    void deductorTypeSetsTheFields_data();
    void deductorTypeSetsTheFields();
    void failedSaveStaysInEditing();
    void editSpreadsIntoStatements();
    void deleteGuards();
};

void TestFrmCompanyMaster::addNeedsAGroup()
{
    Screen s(false);
    QVERIFY(s.open());
    QCOMPARE(s.form->objectName(), QStringLiteral("frmCompanyMaster"));
    s.press(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(s.boxes.shown, QList<Message>({{"Please select Group Name from drop-down list",
                                             "Before Adding"}}));
    QCOMPARE(s.focused(), QStringLiteral("cmbGrp"));
    QVERIFY(s.child<QPushButton>("cmdAdd")->isEnabled());

    s.boxes.shown.clear();
    s.press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(s.boxes.shown, QList<Message>({{"There is no Company in this list !!",
                                             "Information"}}));
}

// A whole company from the keyboard alone: Enter moves along the fields.
void TestFrmCompanyMaster::addsByKeyboard()
{
    Screen s;
    QVERIFY(s.open());
    auto *list = s.child<QTreeWidget>("lstvComp");
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(s.focused(), QStringLiteral("lstvComp"));

    s.press(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(s.focused(), QStringLiteral("txtTan"));
    QCOMPARE(s.combo("cmbGroupName")->currentText(), QStringLiteral("ALPHA GROUP"));
    QCOMPARE(s.edit("txtPAN")->text(), QStringLiteral("PANNOTREQD"));
    QCOMPARE(s.combo("cmbDeType")->currentText(), QStringLiteral("A"));
    QCOMPARE(s.child<QLabel>("lblStatusCaption")->text(), QStringLiteral("[Others]"));
    QVERIFY(!list->isEnabled());
    QVERIFY(!s.combo("cmbGrp")->isEnabled());

    const auto step = [&s](const char *field, const QString &text) {
        if (s.focused() != QLatin1String(field))
            qFatal("focus on %s, not %s", qPrintable(s.focused()), field);
        s.type(text);
        s.press(Qt::Key_Return);
    };
    step("txtTan", "muma12345b");
    step("txtPAN", "");
    step("txtCompName", "o'neil and sons");
    step("txtBranch", "");
    step("txtAddress1", "12 mg road");
    for (const char *line : {"txtAddress2", "txtAddress3", "txtAddress4", "txtAddress5"})
        step(line, "");
    step("cmbState", "maharashtra");
    step("txtPincode", "400001");
    step("txtstdCode", "022");
    step("txtPhone", "22001234");
    step("txtEmail", "");
    step("txtPersonName", "raj mehta");
    step("txtDesignation", "director");
    // The person's address came from the deductor's when his name was left.
    QCOMPARE(s.edit("txtPAddress1")->text(), QStringLiteral("12 MG ROAD"));
    QCOMPARE(s.combo("cmbPState")->currentText(), QStringLiteral("MAHARASHTRA"));
    QCOMPARE(s.edit("txtPpincode")->text(), QStringLiteral("400001"));
    for (const char *field : {"txtPAddress1", "txtPAddress2", "txtPAddress3", "txtPAddress4",
                              "txtPAddress5", "cmbPState", "txtPpincode", "txtpStdCode",
                              "txtPPhone", "txtPemail", "txtAssOfficerCode", "txtTdsCircle"})
        step(field, "");
    step("txtPrefix", "mtr");
    step("cmbStatus", "");
    step("cmbDeType", "k"); // a company: nothing more to fill, Enter goes on to Save
    QCOMPARE(s.focused(), QStringLiteral("cmdSave"));
    s.press(Qt::Key_Return);

    QVERIFY2(s.boxes.shown.isEmpty(), qPrintable(s.boxes.texts().join(u'|')));
    QCOMPARE(s.edit("txtCompId")->text(), QStringLiteral("8"));
    QCOMPARE(s.stored("CompName", 8).toString(), QStringLiteral("O'NEIL AND SONS"));
    QCOMPARE(s.stored("TanNO", 8).toString(), QStringLiteral("MUMA12345B"));
    QCOMPARE(s.stored("PanNo", 8).toString(), QStringLiteral("PANNOTREQD"));
    QCOMPARE(s.stored("StateCode", 8).toString(), QStringLiteral("19"));
    QCOMPARE(s.stored("pAddress1", 8).toString(), QStringLiteral("12 MG ROAD"));
    QCOMPARE(s.stored("pStateCode", 8).toString(), QStringLiteral("19"));
    QCOMPARE(s.stored("DStatus", 8).toString(), QStringLiteral("K"));
    QCOMPARE(s.stored("FilePrefix", 8).toString(), QStringLiteral("MTR"));
    QCOMPARE(s.stored("GroupID", 8).toInt(), 1);
    QCOMPARE(list->topLevelItemCount(), 2);
    QCOMPARE(list->currentItem()->text(0), QStringLiteral("O'NEIL AND SONS"));
    QVERIFY(list->isEnabled());
    QVERIFY(!s.child<QPushButton>("cmdSave")->isEnabled());
    QCOMPARE(s.focused(), QStringLiteral("lstvComp"));
}

void TestFrmCompanyMaster::shortTanKeepsTheFocus()
{
    Screen s;
    QVERIFY(s.open());
    s.press(Qt::Key_N, Qt::AltModifier);
    s.type(QStringLiteral("muma1"));
    s.press(Qt::Key_Tab);
    QCOMPARE(s.boxes.shown, QList<Message>({{"TAN sould be a 10 digit number", "Kelvora",
                                             MessageIcon::Critical}}));
    QCOMPARE(s.focused(), QStringLiteral("txtTan"));

    // A blank PAN becomes "not required"; a short one is refused the same way.
    s.boxes.shown.clear();
    s.edit("txtTan")->setText(QStringLiteral("MUMA12345B"));
    s.focus("txtPAN");
    s.edit("txtPAN")->clear();
    s.press(Qt::Key_Tab);
    QCOMPARE(s.edit("txtPAN")->text(), QStringLiteral("PANNOTREQD"));
    s.focus("txtPAN");
    s.edit("txtPAN")->setText(QStringLiteral("AAAC"));
    s.press(Qt::Key_Tab);
    QCOMPARE(s.boxes.texts(), QStringList({"PAN sould be a 10 digit number"}));
    QCOMPARE(s.focused(), QStringLiteral("txtPAN"));

    // Cancel is not held up by the field.
    s.boxes.shown.clear();
    s.press(Qt::Key_C, Qt::AltModifier);
    QVERIFY(s.boxes.shown.isEmpty());
    QCOMPARE(s.focused(), QStringLiteral("lstvComp"));
}

void TestFrmCompanyMaster::foreignStateTakesItsPin()
{
    Screen s;
    QVERIFY(s.open());
    s.press(Qt::Key_N, Qt::AltModifier);
    s.focus("cmbState");
    s.type(QStringLiteral("foreign"));
    s.press(Qt::Key_Tab);
    QCOMPARE(s.combo("cmbState")->currentText(), QStringLiteral("FOREIGN"));
    QCOMPARE(s.edit("txtStID")->text(), QStringLiteral("36"));
    QCOMPARE(s.edit("txtStateCode")->text(), QStringLiteral("99"));
    QCOMPARE(s.edit("txtPincode")->text(), QStringLiteral("999999"));
    QVERIFY(s.edit("txtPpincode")->text().isEmpty());

    s.focus("cmbPState");
    s.type(QStringLiteral("atlantis"));
    s.press(Qt::Key_Tab);
    QCOMPARE(s.boxes.texts(), QStringList({"Please select State Name from drop-down list"}));
    QCOMPARE(s.focused(), QStringLiteral("cmbPState"));
    s.combo("cmbPState")->lineEdit()->selectAll();
    s.type(QStringLiteral("FOREIGN"));
    s.press(Qt::Key_Tab);
    QCOMPARE(s.edit("txtPpincode")->text(), QStringLiteral("999999"));
}

void TestFrmCompanyMaster::deductorTypeSetsTheFields_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("deductorState");
    QTest::addColumn<bool>("ministry");
    QTest::addColumn<bool>("paoDdo");
    QTest::addColumn<QString>("afterEnter");
    QTest::addColumn<QString>("description");

    QTest::newRow("A") << "A" << false << true << true << "cmbMinistry" << "Central Government";
    QTest::newRow("S") << "S" << true << false << true << "cmbDState" << "State Government";
    QTest::newRow("H") << "H" << true << true << true << "cmbDState"
                       << "Autonomous body (State Govt.)";
    QTest::newRow("K") << "K" << false << false << false << "cmdSave" << "Company";
}

void TestFrmCompanyMaster::deductorTypeSetsTheFields()
{
    QFETCH(QString, type);
    QFETCH(bool, deductorState);
    QFETCH(bool, ministry);
    QFETCH(bool, paoDdo);
    QFETCH(QString, afterEnter);
    QFETCH(QString, description);
    Screen s;
    QVERIFY(s.open());
    s.press(Qt::Key_N, Qt::AltModifier);
    // Type N asks for everything; the chosen type then empties what it does not ask for.
    s.combo("cmbDeType")->setEditText(QStringLiteral("N"));
    s.combo("cmbDState")->setEditText(QStringLiteral("KERALA"));
    s.combo("cmbMinistry")->setEditText(QStringLiteral("Others"));
    s.edit("txtMinistryNameOther")->setText(QStringLiteral("BOARD"));
    for (const char *field : {"txtPAOCode", "txtDDOCode", "txtPAORegNo", "txtDDORegNo"})
        s.edit(field)->setText(QStringLiteral("12"));
    QVERIFY(s.edit("txtMinistryNameOther")->isEnabled());

    s.focus("cmbDeType");
    s.type(type.toLower());
    QCOMPARE(s.combo("cmbDeType")->currentText(), type);
    QCOMPARE(s.edit("txtDeTypeDesc")->text(), description);
    QCOMPARE(s.combo("cmbDState")->isEnabled(), deductorState);
    QCOMPARE(s.combo("cmbDState")->currentText().isEmpty(), !deductorState);
    QCOMPARE(s.edit("txtDStId")->text().isEmpty(), !deductorState);
    QCOMPARE(s.combo("cmbMinistry")->isEnabled(), ministry);
    QCOMPARE(s.edit("txtMinistryID")->text().isEmpty(), !ministry);
    QCOMPARE(s.edit("txtMinistryNameOther")->isEnabled(), ministry);
    for (const char *field : {"txtPAOCode", "txtDDOCode", "txtPAORegNo", "txtDDORegNo"}) {
        QCOMPARE(s.edit(field)->isEnabled(), paoDdo);
        QCOMPARE(s.edit(field)->text().isEmpty(), !paoDdo);
    }
    s.press(Qt::Key_Return);
    QCOMPARE(s.focused(), afterEnter);
    QVERIFY(s.boxes.shown.isEmpty());
}

void TestFrmCompanyMaster::failedSaveStaysInEditing()
{
    Screen s;
    s.data.store().exec(QStringLiteral("CREATE TRIGGER refuseInsert BEFORE INSERT ON mstCompany "
                                       "BEGIN SELECT RAISE(ABORT, 'the disk is full'); END"));
    QVERIFY(s.open());
    s.press(Qt::Key_N, Qt::AltModifier);
    s.fill(validEntry());
    s.press(Qt::Key_S, Qt::AltModifier);

    QCOMPARE(s.boxes.shown.size(), 1);
    QVERIFY(s.boxes.shown.first().text.contains(QStringLiteral("the disk is full")));
    QCOMPARE(s.boxes.shown.first().icon, MessageIcon::Critical);
    QVERIFY(s.child<QPushButton>("cmdSave")->isEnabled());
    QVERIFY(!s.child<QTreeWidget>("lstvComp")->isEnabled());
    QCOMPARE(s.edit("txtCompName")->text(), QStringLiteral("MEHTA TRADERS"));
    QVERIFY(s.edit("txtCompId")->text().isEmpty());
    QCOMPARE(s.data.store().scalar(QStringLiteral("SELECT count(*) FROM mstCompany")).toInt(), 1);

    // Put right, the same entry saves.
    s.data.store().exec(QStringLiteral("DROP TRIGGER refuseInsert"));
    s.boxes.shown.clear();
    s.press(Qt::Key_S, Qt::AltModifier);
    QVERIFY(s.boxes.shown.isEmpty());
    QCOMPARE(s.stored("CompName", 8).toString(), QStringLiteral("MEHTA TRADERS"));
}

void TestFrmCompanyMaster::editSpreadsIntoStatements()
{
    Screen s;
    addStatement(s.data.store(), QStringLiteral("TranBasicInfoE26"), 1, 7);
    QVERIFY(s.open());
    s.press(Qt::Key_Return); // Enter on the list loads the row
    QCOMPARE(s.focused(), QStringLiteral("txtTan"));
    QCOMPARE(s.edit("txtCompName")->text(), QStringLiteral("OLD NAME"));
    QCOMPARE(s.combo("cmbState")->currentText(), QStringLiteral("MAHARASHTRA"));
    QVERIFY(!s.combo("cmbGrp")->isEnabled());

    CompanyEntry entry = validEntry();
    entry.tan = QStringLiteral("OLDT12345A");
    entry.name = QStringLiteral("NEW NAME");
    s.fill(entry);
    s.edit("txtCompId")->setText(QStringLiteral("7"));
    s.boxes.answerNext(Answer::Yes);
    s.boxes.answerNext(Answer::No);
    s.press(Qt::Key_S, Qt::AltModifier);

    QCOMPARE(s.boxes.texts(), QStringList({"Do you want to update in respective forms.",
                                           "Exclude the form already generated"}));
    QCOMPARE(columnOf(s.data.store(), QStringLiteral("TranBasicInfoE26"),
                      QStringLiteral("CompName"), QStringLiteral("CompID = 7"), {})
                 .toString(),
             QStringLiteral("NEW NAME"));
    QCOMPARE(s.stored("Status", 7).toString(), QStringLiteral(" "));
    QCOMPARE(s.child<QTreeWidget>("lstvComp")->currentItem()->text(0),
             QStringLiteral("NEW NAME"));
}

void TestFrmCompanyMaster::deleteGuards()
{
    Screen s;
    addCompany(s.data.store(), 9, 1, QStringLiteral("MUMZ12345B"), QStringLiteral("ZED LTD"));
    addStatement(s.data.store(), QStringLiteral("TranBasicInfoE27E"), 1, 7);
    QVERIFY(s.open());
    auto *list = s.child<QTreeWidget>("lstvComp");
    QCOMPARE(list->currentItem()->text(0), QStringLiteral("OLD NAME"));

    s.boxes.answerNext(Answer::Yes);
    s.press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(s.boxes.shown,
             QList<Message>({{"Are you sure about deleting the selected Company?",
                              "Confirmation", MessageIcon::Question, MessageButtons::YesNo},
                             {"This Company is related to existing Form 27E",
                              "Can not Delete"}}));

    s.boxes.shown.clear();
    QTest::keyClick(list, Qt::Key_Down);
    s.press(Qt::Key_D, Qt::AltModifier); // answered No
    QCOMPARE(list->topLevelItemCount(), 2);
    s.boxes.answerNext(Answer::Yes);
    s.press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(s.boxes.texts().last(), QStringLiteral("Deleted Properly"));
    QCOMPARE(list->topLevelItemCount(), 1);
    QVERIFY(s.stored("CompID", 9).isNull());
}

QTEST_MAIN(TestFrmCompanyMaster)
#include "test_frmcompanymaster.moc"
