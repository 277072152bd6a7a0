#include "mastersstore.h"
#include "screendriver.h"
#include "masters/frmcompanymaster.h"
#include "support/testsuite.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

using Screen = ScreenDriver<FrmCompanyMaster>;

class TestFrmCompanyMaster : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        s = std::make_unique<Screen>(mastersStore());
        // The groups are listed by name; ALPHA GROUP holds companies 1 to 6.
        auto *group = s->child<QComboBox>("cmbGrp");
        group->setCurrentIndex(group->findText(QStringLiteral("ALPHA GROUP")));
        s->child("lstvComp")->setFocus();
    }

    void addNeedsAGroup()
    {
        Screen empty{TestStore()};
        empty.press(Qt::Key_N, Qt::AltModifier);
        QCOMPARE(empty.boxes.shown, QList<Message>({{"Please select Group Name from drop-down "
                                                     "list", "Before Adding"}}));
        QCOMPARE(empty.focused(), QStringLiteral("cmbGrp"));
        QVERIFY(empty.child("cmdAdd")->isEnabled());
    }

    // A whole company from the keyboard alone: Enter moves along the fields.
    void addsByKeyboard()
    {
        auto *list = s->child<QTreeWidget>("lstvComp");
        s->press(Qt::Key_N, Qt::AltModifier);
        QCOMPARE(s->focused(), QStringLiteral("txtTan"));
        QCOMPARE(s->child<QComboBox>("cmbGroupName")->currentText(), "ALPHA GROUP");
        QCOMPARE(s->child<QLineEdit>("txtPAN")->text(), QStringLiteral("PANNOTREQD"));
        QVERIFY(!list->isEnabled() && !s->child("cmbGrp")->isEnabled());
        const auto step = [this](const char *field, const QString &text) {
            QCOMPARE(s->focused(), QLatin1String(field));
            s->type(text);
            s->press(Qt::Key_Return);
        };
        step("txtTan", "muma12345z");
        step("txtPAN", "");
        step("txtCompName", "d'souza and sons");
        step("txtBranch", "");
        step("txtAddress1", "12 mg road");
        for (const char *line : {"txtAddress2", "txtAddress3", "txtAddress4", "txtAddress5"})
            step(line, "");
        step("cmbState", "maharashtra");
        step("txtPincode", "400001");
        for (const char *field : {"txtstdCode", "txtPhone", "txtEmail"})
            step(field, "");
        step("txtPersonName", "raj mehta");
        step("txtDesignation", "director");
        // The person's address came from the deductor's when his name was left.
        QCOMPARE(s->child<QLineEdit>("txtPAddress1")->text(), QStringLiteral("12 MG ROAD"));
        for (const char *field : {"txtPAddress1", "txtPAddress2", "txtPAddress3", "txtPAddress4",
                                  "txtPAddress5", "cmbPState", "txtPpincode", "txtpStdCode",
                                  "txtPPhone", "txtPemail", "txtAssOfficerCode", "txtTdsCircle"})
            step(field, "");
        step("txtPrefix", "dsz");
        step("cmbStatus", "");
        step("cmbDeType", "k"); // a company: nothing more to fill, Enter goes on to Save
        QCOMPARE(s->focused(), QStringLiteral("cmdSave"));
        s->press(Qt::Key_Return);

        QVERIFY2(s->boxes.shown.isEmpty(), qPrintable(s->boxes.texts().join(u'|')));
        QCOMPARE(s->data.text("SELECT CompName||'|'||TanNO||'|'||PanNo||'|'||StateCode||'|'||"
                              "pAddress1||'|'||pStateCode||'|'||DStatus||'|'||FilePrefix||'|'||"
                              "GroupID FROM mstCompany WHERE CompID = 21"),
                 "D'SOUZA AND SONS|MUMA12345Z|PANNOTREQD|19|12 MG ROAD|19|K|DSZ|1");
        QCOMPARE(list->currentItem()->text(0), QStringLiteral("D'SOUZA AND SONS"));
        QVERIFY(list->isEnabled());
        QVERIFY(!s->child("cmdSave")->isEnabled());
        QCOMPARE(s->focused(), QStringLiteral("lstvComp"));
    }

    void shortTanKeepsTheFocus()
    {
        s->press(Qt::Key_N, Qt::AltModifier);
        s->type(QStringLiteral("muma1"));
        s->press(Qt::Key_Tab);
        QCOMPARE(s->boxes.shown, QList<Message>({{"TAN sould be a 10 digit number", "Kelvora",
                                                  MessageIcon::Critical}}));
        QCOMPARE(s->focused(), QStringLiteral("txtTan"));
        // Cancel is not held up by the field.
        s->press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(s->boxes.shown.size(), 1);
        QCOMPARE(s->focused(), QStringLiteral("lstvComp"));
    }

    void foreignStateTakesItsPin()
    {
        s->press(Qt::Key_N, Qt::AltModifier);
        s->child("cmbState")->setFocus();
        s->type(QStringLiteral("foreign"));
        s->press(Qt::Key_Tab);
        QCOMPARE(s->child<QLineEdit>("txtStID")->text(), QStringLiteral("36"));
        QCOMPARE(s->child<QLineEdit>("txtPincode")->text(), QStringLiteral("999999"));
        s->child("cmbPState")->setFocus();
        s->type(QStringLiteral("atlantis"));
        s->press(Qt::Key_Tab);
        QCOMPARE(s->boxes.texts(), QStringList({"Please select State Name from drop-down list"}));
        QCOMPARE(s->focused(), QStringLiteral("cmbPState"));
    }

    // The chosen type empties and disables what it does not ask for; Enter goes to what it
    // asks for first.
    void deductorTypeSetsTheFields_data()
    {
        // enabled: cmbDState, cmbMinistry, PAO and DDO codes
        testsuite::columns<QString, QString, QString, QString>("type", "enabled", "afterEnter",
                                                               "description");
        QTest::newRow("A") << "A" << "011" << "cmbMinistry" << "Central Government";
        QTest::newRow("S") << "S" << "101" << "cmbDState" << "State Government";
        QTest::newRow("K") << "K" << "000" << "cmdSave" << "Company";
    }
    void deductorTypeSetsTheFields()
    {
        QFETCH(QString, type);
        QFETCH(QString, enabled);
        s->press(Qt::Key_N, Qt::AltModifier);
        // Type N asks for everything; the chosen type then empties what it does not ask for.
        s->child<QComboBox>("cmbDeType")->setEditText(QStringLiteral("N"));
        s->child<QComboBox>("cmbDState")->setEditText(QStringLiteral("KERALA"));
        s->child<QComboBox>("cmbMinistry")->setEditText(QStringLiteral("Others"));
        s->child<QLineEdit>("txtPAOCode")->setText(QStringLiteral("12"));
        s->child("cmbDeType")->setFocus(Qt::TabFocusReason);
        s->type(type.toLower());
        QTEST(s->child<QLineEdit>("txtDeTypeDesc")->text(), "description");
        QString shown;
        for (const char *name : {"cmbDState", "cmbMinistry", "txtPAOCode"}) {
            QWidget *field = s->child(name);
            const auto *combo = qobject_cast<QComboBox *>(field);
            const QString text = combo ? combo->currentText()
                                       : static_cast<QLineEdit *>(field)->text();
            QCOMPARE(text.isEmpty(), !field->isEnabled());
            shown += field->isEnabled() ? u'1' : u'0';
        }
        QCOMPARE(shown, enabled);
        s->press(Qt::Key_Return);
        QTEST(s->focused(), "afterEnter");
        QVERIFY(s->boxes.shown.isEmpty());
    }

    void failedSaveStaysInEditing()
    {
        s->data.store().exec("CREATE TRIGGER refuseInsert BEFORE INSERT ON mstCompany "
                             "BEGIN SELECT RAISE(ABORT, 'the disk is full'); END");
        s->press(Qt::Key_N, Qt::AltModifier);
        fill(validEntry());
        s->press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(s->boxes.shown.size(), 1);
        QVERIFY(s->boxes.shown.first().text.contains(QStringLiteral("the disk is full")));
        QCOMPARE(s->boxes.shown.first().icon, MessageIcon::Critical);
        QVERIFY(s->child("cmdSave")->isEnabled());
        QVERIFY(s->child<QLineEdit>("txtCompId")->text().isEmpty());
        // Put right, the same entry saves.
        s->data.store().exec("DROP TRIGGER refuseInsert");
        s->press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(s->boxes.shown.size(), 1);
        QCOMPARE(s->data.text("SELECT CompName FROM mstCompany WHERE CompID = 21"),
                 QStringLiteral("ZED TRADERS"));
    }

private:
    /// The fields as the entry has them, as if typed.
    void fill(const CompanyEntry &entry)
    {
        for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
            QWidget *widget = s->child(field.control);
            const QString value = entry.value(QLatin1String(field.control));
            if (auto *line = qobject_cast<QLineEdit *>(widget))
                line->setText(value);
            else if (auto *box = qobject_cast<QComboBox *>(widget))
                box->setEditText(value);
        }
    }

    std::unique_ptr<Screen> s;
};

KELVORA_TEST_OBJECT(TestFrmCompanyMaster);
#include "test_frmcompanymaster.moc"
