#include "masters/referencemaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"
#include "support/testsuite.h"

#include <QHeaderView>
#include <QTreeWidget>

using Kind = ReferenceMaster::Kind;

Q_DECLARE_METATYPE(Kind)

class TestReferenceMaster : public QObject
{
    Q_OBJECT

private slots:
    // Each list shows its own table, codes two digits wide.
    void lists_data()
    {
        testsuite::columns<Kind, int, QString>("kind", "rows", "firstRow");
        QTest::newRow("states") << Kind::State << 38 << "01 ANDAMAN AND NICOBAR ISLANDS";
        QTest::newRow("categories") << Kind::Category << 16 << "A Central Government";
        QTest::newRow("ministries") << Kind::Ministry << 58 << "01 Agriculture";
    }
    void lists()
    {
        QFETCH(Kind, kind);
        TestStore data;
        ScriptedMessageBoxes boxes;
        ReferenceMaster master(kind, data.store(), boxes);
        const auto *view = master.findChild<QTreeWidget *>();
        QTEST(view->topLevelItemCount(), "rows");
        QTEST(view->topLevelItem(0)->text(0) + u' ' + view->topLevelItem(0)->text(1), "firstRow");
        QVERIFY(boxes.shown.isEmpty());
    }

    void sortsByTheClickedColumn()
    {
        TestStore data;
        // A code kept without its leading zero still lists, and sorts, as two digits.
        data.store().exec("DELETE FROM mstState");
        data.insert("mstState", {"StateID", "StateCode", "StateName"},
                    {{1, "12", "ASSAM"}, {2, "5", "BIHAR"}, {3, "27", "GOA"}});
        ScriptedMessageBoxes boxes;
        ReferenceMaster master(Kind::State, data.store(), boxes);
        master.show();
        QVERIFY(QTest::qWaitForWindowExposed(&master));
        auto *list = master.findChild<QTreeWidget *>(QStringLiteral("lstvState"));
        const auto click = [list](int section) {
            QHeaderView *header = list->header();
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                              {header->sectionViewportPosition(section) + 5, 5});
        };
        const auto column = [list](int index) {
            QStringList texts;
            for (int i = 0; i < list->topLevelItemCount(); ++i)
                texts << list->topLevelItem(i)->text(index);
            return texts;
        };
        QCOMPARE(column(0), QStringList({"12", "05", "27"}));
        click(0);
        QCOMPARE(column(0), QStringList({"05", "12", "27"}));
        click(0);
        QCOMPARE(column(0), QStringList({"27", "12", "05"}));
        click(1);
        QCOMPARE(column(1), QStringList({"ASSAM", "BIHAR", "GOA"}));
    }
};

KELVORA_TEST_OBJECT(TestReferenceMaster);
#include "test_referencemaster.moc"
