#include "companytestdata.h"
#include "core/session.h"
#include "masters/frmgroupmaster.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

using namespace companytestdata;

namespace {

QStringList listRows(const QTreeWidget *list)
{
    QStringList rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        rows << list->topLevelItem(i)->text(0) + u'|' + list->topLevelItem(i)->text(1);
    return rows;
}

QString focusName()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

} // namespace

class TestFrmGroupMaster : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void addsByKeyboard();
    void refusesATakenName();
    void renameAsksAboutStatements();
    void deleteGuards();

private:
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    template<typename T> T *find(const char *name) const
    {
        T *widget = m_screen->findChild<T *>(QLatin1String(name));
        if (!widget)
            qFatal("no control %s", name);
        return widget;
    }

    std::unique_ptr<TestStore> m_data;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<ScriptedMessageBoxes> m_boxesHolder;
    std::unique_ptr<FrmGroupMaster> m_screen;
};

void TestFrmGroupMaster::init()
{
    m_data = std::make_unique<TestStore>();
    const DataStore &store = m_data->store();
    addGroup(store, 1, QStringLiteral("ALPHA"));
    addGroup(store, 2, QStringLiteral("BETA"));
    addGroup(store, 3, QStringLiteral("GAMMA RAYS"));
    addCompany(store, 10, 1, QStringLiteral("MUMA12345B"));
    addStatement(store, QStringLiteral("TranBasicInfoE24"), 1, 10);
    m_session = std::make_unique<Session>(m_data->store());
    m_boxesHolder = std::make_unique<ScriptedMessageBoxes>();
    m_screen = std::make_unique<FrmGroupMaster>(*m_session, *m_boxesHolder);
    m_screen->show();
    QVERIFY(QTest::qWaitForWindowActive(m_screen.get()));
}

void TestFrmGroupMaster::cleanup()
{
    m_screen.reset();
    m_session.reset();
    m_boxesHolder.reset();
    m_data.reset();
}

void TestFrmGroupMaster::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    // A button's accelerator presses it visibly and clicks it a moment later.
    if (modifiers & Qt::AltModifier)
        QTest::qWait(200);
}

void TestFrmGroupMaster::addsByKeyboard()
{
    QCOMPARE(m_screen->objectName(), QStringLiteral("frmGroupMaster"));
    auto *list = find<QTreeWidget>("lstvGrp");
    auto *name = find<QLineEdit>("txtGrpName");
    auto *matches = find<QListWidget>("lstGrp");
    QCOMPARE(listRows(list), QStringList({"1|ALPHA", "2|BETA", "3|GAMMA RAYS"}));
    QCOMPARE(focusName(), QStringLiteral("lstvGrp"));

    press(Qt::Key_N, Qt::AltModifier);
    QCOMPARE(find<QLineEdit>("txtGID")->text(), QStringLiteral("4"));
    QCOMPARE(focusName(), QStringLiteral("txtGrpName"));
    QVERIFY(!list->isEnabled());
    QVERIFY(!find<QPushButton>("cmdAdd")->isEnabled());

    QTest::keyClicks(name, QStringLiteral("gam"));
    QVERIFY(matches->isVisible());
    QCOMPARE(matches->count(), 1);
    QCOMPARE(matches->item(0)->text(), QStringLiteral("GAMMA RAYS"));
    QTest::keyClicks(name, QStringLiteral("ma o'neil"));
    QCOMPARE(name->text(), QStringLiteral("GAMMA O'NEIL"));
    QVERIFY(!matches->isVisible());

    press(Qt::Key_Return); // to Save
    QCOMPARE(focusName(), QStringLiteral("cmdSave"));
    press(Qt::Key_Return);
    QVERIFY(m_boxesHolder->shown.isEmpty());
    QCOMPARE(listRows(list),
             QStringList({"1|ALPHA", "2|BETA", "4|GAMMA O'NEIL", "3|GAMMA RAYS"}));
    QCOMPARE(list->currentItem()->text(1), QStringLiteral("GAMMA O'NEIL"));
    QVERIFY(list->isEnabled());
    QVERIFY(find<QPushButton>("cmdAdd")->isEnabled());
    QVERIFY(!find<QPushButton>("cmdSave")->isEnabled());
    QCOMPARE(focusName(), QStringLiteral("lstvGrp"));
}

void TestFrmGroupMaster::refusesATakenName()
{
    press(Qt::Key_N, Qt::AltModifier);
    QTest::keyClicks(find<QLineEdit>("txtGrpName"), QStringLiteral("beta "));
    press(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(m_boxesHolder->shown,
             QList<Message>({{"This Group Name already exists.", "Can't Save"}}));
    QVERIFY(find<QPushButton>("cmdSave")->isEnabled());
    QCOMPARE(focusName(), QStringLiteral("txtGrpName"));
    QCOMPARE(GroupMaster(m_data->store()).nextId(), 4);

    press(Qt::Key_C, Qt::AltModifier);
    QVERIFY(find<QTreeWidget>("lstvGrp")->isEnabled());
    QCOMPARE(focusName(), QStringLiteral("lstvGrp"));
}

void TestFrmGroupMaster::renameAsksAboutStatements()
{
    auto *list = find<QTreeWidget>("lstvGrp");
    QCOMPARE(list->currentItem()->text(1), QStringLiteral("ALPHA"));
    press(Qt::Key_Return); // Enter on the list edits the row
    QCOMPARE(focusName(), QStringLiteral("txtGrpName"));
    QCOMPARE(find<QLineEdit>("txtGID")->text(), QStringLiteral("1"));
    QTest::keyClicks(find<QLineEdit>("txtGrpName"), QStringLiteral("alpha one"));

    m_boxesHolder->answerNext(Answer::No);
    press(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(m_boxesHolder->texts(),
             QStringList({"This Group Is Used In [Form 24] Like To Update."}));
    QCOMPARE(focusName(), QStringLiteral("txtGrpName"));
    QCOMPARE(listRows(list).first(), QStringLiteral("1|ALPHA"));

    m_boxesHolder->answerNext(Answer::Yes);
    press(Qt::Key_S, Qt::AltModifier);
    QCOMPARE(m_boxesHolder->shown.size(), 2);
    QCOMPARE(listRows(list).first(), QStringLiteral("1|ALPHA ONE"));
    QVERIFY(!find<QPushButton>("cmdSave")->isEnabled());
}

void TestFrmGroupMaster::deleteGuards()
{
    auto *list = find<QTreeWidget>("lstvGrp");
    m_boxesHolder->answerNext(Answer::Yes);
    press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(m_boxesHolder->shown.size(), 2);
    QCOMPARE(m_boxesHolder->shown.at(0),
             Message({"Are you sure about Deleting the selected Group?", "Confirmation",
                      MessageIcon::Question, MessageButtons::YesNo}));
    QCOMPARE(m_boxesHolder->shown.at(1),
             Message({"This Group is related to Companies.", "Can not Delete"}));
    QCOMPARE(list->topLevelItemCount(), 3);

    m_boxesHolder->shown.clear();
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentItem()->text(1), QStringLiteral("BETA"));
    m_boxesHolder->answerNext(Answer::No);
    press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(m_boxesHolder->shown.size(), 1);
    QCOMPARE(list->topLevelItemCount(), 3);

    m_boxesHolder->answerNext(Answer::Yes);
    press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(m_boxesHolder->texts().last(), QStringLiteral("Deleted"));
    QCOMPARE(listRows(list), QStringList({"1|ALPHA", "3|GAMMA RAYS"}));
}

QTEST_MAIN(TestFrmGroupMaster)
#include "test_frmgroupmaster.moc"
