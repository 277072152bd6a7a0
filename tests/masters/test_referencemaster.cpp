#include "core/datastore.h"
#include "masters/referencemaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

Q_DECLARE_METATYPE(ReferenceMaster::Kind)

using Kind = ReferenceMaster::Kind;

namespace {

QStringList column(const QTreeWidget *list, int index)
{
    QStringList texts;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        texts << list->topLevelItem(i)->text(index);
    return texts;
}

void clickHeader(QTreeWidget *list, int section)
{
    QHeaderView *header = list->header();
    const QPoint point(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                       header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, point);
}

} // namespace

class TestReferenceMaster : public QObject
{
    Q_OBJECT

private slots:
    void screens_data();
    void screens();
    void sortsByTheClickedColumn();
};

void TestReferenceMaster::screens_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("headers");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("firstRow");

    QTest::newRow("states") << Kind::State << "frmStateMaster" << "State Master " << "lstvState"
                            << QStringList{"State Code", "State Name"} << 38
                            << "01 ANDAMAN AND NICOBAR ISLANDS";
    QTest::newRow("categories") << Kind::Category << "frmCategoryMaster" << "Category Master "
                                << "lstvCategory" << QStringList{"Category Code", "Category Name"}
                                << 16 << "A Central Government";
    QTest::newRow("ministries") << Kind::Ministry << "frmMinistryMaster" << "Ministry Master "
                                << "lstvMinistry" << QStringList{"Ministry Code", "Ministry Name"}
                                << 58 << "01 Agriculture";
}

void TestReferenceMaster::screens()
{
    QFETCH(Kind, kind);
    QFETCH(QString, screen);
    QFETCH(QString, caption);
    QFETCH(QString, list);
    QFETCH(QStringList, headers);
    QFETCH(int, rows);
    QFETCH(QString, firstRow);
    TestStore data;
    ScriptedMessageBoxes boxes;
    ReferenceMaster master(kind, data.store(), boxes);

    QCOMPARE(master.objectName(), screen);
    QCOMPARE(ReferenceMaster::screenName(kind), screen);
    QCOMPARE(master.windowTitle(), caption);
    auto *view = master.findChild<QTreeWidget *>(list);
    QVERIFY(view);
    QCOMPARE(QStringList({view->headerItem()->text(0), view->headerItem()->text(1)}), headers);
    QCOMPARE(view->topLevelItemCount(), rows);
    const QTreeWidgetItem *first = view->topLevelItem(0);
    QCOMPARE(first->text(0) + u' ' + first->text(1), firstRow);
    QVERIFY(boxes.shown.isEmpty());

    master.show();
    QTest::mouseClick(master.findChild<QPushButton *>(QStringLiteral("cmdClose")), Qt::LeftButton);
    QVERIFY(!master.isVisible());
}

void TestReferenceMaster::sortsByTheClickedColumn()
{
    TestStore data;
    // A code kept without its leading zero still lists as two digits.
    data.store().exec(QStringLiteral("DELETE FROM mstState"));
    data.store().exec(QStringLiteral("INSERT INTO mstState (StateID, StateCode, StateName) VALUES "
                                     "(1, '12', 'ASSAM'), (2, '5', 'BIHAR'), (3, '27', 'GOA')"));
    ScriptedMessageBoxes boxes;
    ReferenceMaster master(Kind::State, data.store(), boxes);
    master.show();
    QVERIFY(QTest::qWaitForWindowExposed(&master));
    auto *list = master.findChild<QTreeWidget *>(QStringLiteral("lstvState"));

    QCOMPARE(column(list, 0), QStringList({"12", "05", "27"}));
    clickHeader(list, 0);
    QCOMPARE(column(list, 0), QStringList({"05", "12", "27"}));
    clickHeader(list, 0);
    QCOMPARE(column(list, 0), QStringList({"27", "12", "05"}));
    clickHeader(list, 1);
    QCOMPARE(column(list, 1), QStringList({"ASSAM", "BIHAR", "GOA"}));
}

QTEST_MAIN(TestReferenceMaster)
#include "test_referencemaster.moc"
