#include "mastersstore.h"
#include "screendriver.h"
#include "masters/frmgroupmaster.h"
#include "support/testsuite.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

namespace {

QStringList rows(const QTreeWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        texts << list->topLevelItem(i)->text(0) + u'|' + list->topLevelItem(i)->text(1);
    return texts;
}

} // namespace

class TestFrmGroupMaster : public QObject
{
    Q_OBJECT

private slots:
    void init() { s = std::make_unique<ScreenDriver<FrmGroupMaster>>(mastersStore()); }

    void addsByKeyboard()
    {
        auto *list = s->child<QTreeWidget>("lstvGrp");
        QCOMPARE(s->focused(), QStringLiteral("lstvGrp"));
        s->press(Qt::Key_N, Qt::AltModifier);
        QCOMPARE(s->child<QLineEdit>("txtGID")->text(), QStringLiteral("7"));
        QCOMPARE(s->focused(), QStringLiteral("txtGrpName"));
        QVERIFY(!list->isEnabled());
        // The names that begin with what is typed show while it is typed.
        auto *matches = s->child<QListWidget>("lstGrp");
        s->type(QStringLiteral("alp"));
        QVERIFY(matches->isVisible());
        QCOMPARE(matches->count(), 2);
        s->type(QStringLiteral("ha o'neil"));
        QCOMPARE(s->child<QLineEdit>("txtGrpName")->text(), QStringLiteral("ALPHA O'NEIL"));
        QVERIFY(!matches->isVisible());
        s->press(Qt::Key_Return);
        QCOMPARE(s->focused(), QStringLiteral("cmdSave"));
        s->press(Qt::Key_Return);

        QVERIFY(s->boxes.shown.isEmpty());
        QVERIFY(rows(list).contains("7|ALPHA O'NEIL"));
        QCOMPARE(list->currentItem()->text(1), QStringLiteral("ALPHA O'NEIL"));
        QVERIFY(list->isEnabled());
        QVERIFY(!s->child("cmdSave")->isEnabled());
        QCOMPARE(s->focused(), QStringLiteral("lstvGrp"));
    }

    void refusesATakenName()
    {
        s->press(Qt::Key_N, Qt::AltModifier);
        s->type(QStringLiteral("beta group "));
        s->press(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(s->boxes.shown, QList<Message>({{"This Group Name already exists.",
                                                  "Can't Save"}}));
        QVERIFY(s->child("cmdSave")->isEnabled());
        QCOMPARE(s->focused(), QStringLiteral("txtGrpName"));
        s->press(Qt::Key_C, Qt::AltModifier);
        QVERIFY(s->child("lstvGrp")->isEnabled());
        QCOMPARE(s->focused(), QStringLiteral("lstvGrp"));
        QCOMPARE(s->data.count("mstGroup"), 6);
    }

private:
    std::unique_ptr<ScreenDriver<FrmGroupMaster>> s;
};

KELVORA_TEST_OBJECT(TestFrmGroupMaster);
#include "test_frmgroupmaster.moc"
