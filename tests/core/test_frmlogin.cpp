#include "core/frmlogin.h"
#include "core/session.h"
#include "core/startup.h"
#include "selectiondata.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeWidget>
#include <QtTest>

using namespace selectiondata;

Q_DECLARE_METATYPE(CompanySelection::Outcome)

namespace {

QStringList rowTexts(const QTreeWidget *list)
{
    QStringList rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = list->topLevelItem(i);
        rows << item->text(0) + u'|' + item->text(1) + u'|' + item->text(2);
    }
    return rows;
}

} // namespace

class TestFrmLogin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void listsTheGroupsCompanies();
    void selectionOpensTheStatement_data();
    void selectionOpensTheStatement();

private:
    TestStore m_data;
};

void TestFrmLogin::initTestCase()
{
    DataStore &store = m_data.store();
    addGroup(store, 1, QStringLiteral("Alpha Group"));
    addGroup(store, 2, QStringLiteral("Beta Group"));
    addCompany(store, 1, 1, 11, QStringLiteral("Mehta Traders"), QStringLiteral("K"));
    addCompany(store, 1, 1, 12, QStringLiteral("Anand Mills"), QVariant());
    addCompany(store, 2, 1, 13, QStringLiteral("Older Year Ltd"), QStringLiteral("K"));
    addCompany(store, 1, 2, 21, QStringLiteral("Beta Steel"), QStringLiteral("A"));
    addStatement(store, QStringLiteral("TranBasicInfoE26"), 5, 12, 1, QStringLiteral("Q2"));
}

void TestFrmLogin::listsTheGroupsCompanies()
{
    Session session(m_data.store());
    startup::readAssessmentPeriod(session);
    ScriptedMessageBoxes boxes;
    FrmLogin screen(session, boxes);

    QCOMPARE(screen.windowTitle(), QStringLiteral("Select Company"));
    auto *group = screen.findChild<QComboBox *>(QStringLiteral("CmbGroup"));
    auto *groupId = screen.findChild<QLineEdit *>(QStringLiteral("txtGroup"));
    auto *list = screen.findChild<QTreeWidget *>(QStringLiteral("lstvComp"));
    QVERIFY(group && groupId && list);
    QVERIFY(groupId->isHidden());

    const QTreeWidgetItem *header = list->headerItem();
    QCOMPARE(QStringList({header->text(0), header->text(1), header->text(2)}),
             QStringList({"Company Name", "CompanyID", "Status"}));
    QCOMPARE(group->currentText(), QStringLiteral("Alpha Group"));
    QCOMPARE(groupId->text(), QStringLiteral("1"));
    // By name, of this assessment period only, a Null status shown empty.
    QCOMPARE(rowTexts(list), QStringList({"Anand Mills|12|", "Mehta Traders|11|K"}));
    QCOMPARE(list->selectedItems().value(0), list->topLevelItem(0));

    group->setCurrentIndex(1);
    QCOMPARE(groupId->text(), QStringLiteral("2"));
    QCOMPARE(rowTexts(list), QStringList({"Beta Steel|21|A"}));

    group->setEditText(QStringLiteral("No such group"));
    QCOMPARE(groupId->text(), QStringLiteral("0"));
    QCOMPARE(list->topLevelItemCount(), 0);

    auto *label = screen.findChild<QLabel *>(QStringLiteral("lblQuarter"));
    QCOMPARE(label->text(), QStringLiteral("From:01/04/2026 To:30/06/2026"));
    screen.findChild<QComboBox *>(QStringLiteral("cmbQuarter"))->setCurrentIndex(3);
    QCOMPARE(label->text(), QStringLiteral("From:01/01/2027 To:31/03/2027"));
    QCOMPARE(session.quarterToDt, QStringLiteral("31/03/2027"));
    QVERIFY(boxes.shown.isEmpty());
}

void TestFrmLogin::selectionOpensTheStatement_data()
{
    QTest::addColumn<QString>("trigger");
    QTest::newRow("select button") << "button";
    QTest::newRow("enter on the list") << "enter";
    QTest::newRow("double click") << "double click";
}

void TestFrmLogin::selectionOpensTheStatement()
{
    QFETCH(QString, trigger);
    Session session(m_data.store());
    startup::readAssessmentPeriod(session);
    session.curFormType = QStringLiteral("26Q");
    ScriptedMessageBoxes boxes;
    FrmLogin screen(session, boxes);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    QSignalSpy selected(&screen, &FrmLogin::selected);

    auto *list = screen.findChild<QTreeWidget *>(QStringLiteral("lstvComp"));
    screen.findChild<QComboBox *>(QStringLiteral("cmbQuarter"))->setCurrentIndex(1);
    QTreeWidgetItem *anand = list->topLevelItem(0);
    list->setCurrentItem(anand);
    // Anand Mills has no deductor type in the master; the test gives it one now.
    m_data.store().exec(QStringLiteral("UPDATE mstCompany SET DStatus = 'K' WHERE CompID = 12"));

    if (trigger == u"button") {
        QTest::mouseClick(screen.findChild<QPushButton *>(QStringLiteral("cmdSelect")),
                          Qt::LeftButton);
    } else if (trigger == u"enter") {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Return);
    } else {
        const QPoint centre = list->visualItemRect(anand).center();
        // A view takes a double click only after the press that started it.
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centre);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, centre);
    }
    m_data.store().exec(QStringLiteral("UPDATE mstCompany SET DStatus = NULL WHERE CompID = 12"));

    QCOMPARE(selected.size(), 1);
    const auto outcome = selected.first().first().value<CompanySelection::Outcome>();
    QCOMPARE(outcome.screen, QStringLiteral("frmForm26"));
    QCOMPARE(outcome.quarterText, QStringLiteral("Second Quarter"));
    QCOMPARE(session.curCompId, 12);
    QCOMPARE(session.curGroupId, 1);
    QCOMPARE(session.curQuarter, QStringLiteral("Q2"));
    QCOMPARE(session.curBasicInfoId, 5);
    QVERIFY(boxes.shown.isEmpty());
    QVERIFY(!screen.isVisible());
}

QTEST_MAIN(TestFrmLogin)
#include "test_frmlogin.moc"
