#include "corestore.h"
#include "core/frmlogin.h"
#include "core/session.h"
#include "core/startup.h"
#include "support/scriptedmessageboxes.h"
#include "support/testsuite.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeWidget>

Q_DECLARE_METATYPE(CompanySelection::Outcome)

class TestFrmLogin : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_session = std::make_unique<Session>(coreStore().store());
        startup::readAssessmentPeriod(*m_session);
        m_session->curFormType = QStringLiteral("26Q");
        m_boxes.shown.clear();
        m_screen = std::make_unique<FrmLogin>(*m_session, m_boxes);
        m_list = m_screen->findChild<QTreeWidget *>(QStringLiteral("lstvComp"));
    }

    void listsTheGroupsCompanies()
    {
        auto *group = m_screen->findChild<QComboBox *>(QStringLiteral("CmbGroup"));
        auto *groupId = m_screen->findChild<QLineEdit *>(QStringLiteral("txtGroup"));
        QCOMPARE(groupId->text(), QStringLiteral("1"));
        // By name, of this assessment period only, a Null status shown empty.
        QCOMPARE(rows(), QStringList({"Anand Mills|12|", "Bose Exports|13|",
                                      "Mehta Traders|11|K"}));
        QCOMPARE(m_list->selectedItems().value(0), m_list->topLevelItem(0));
        group->setCurrentIndex(1);
        QCOMPARE(groupId->text(), QStringLiteral("2"));
        QCOMPARE(rows(), QStringList({"Beta Steel|21|A"}));
        group->setEditText(QStringLiteral("No such group"));
        QCOMPARE(groupId->text(), QStringLiteral("0"));
        QCOMPARE(rows(), QStringList());

        auto *label = m_screen->findChild<QLabel *>(QStringLiteral("lblQuarter"));
        QCOMPARE(label->text(), QStringLiteral("From:01/04/2026 To:30/06/2026"));
        m_screen->findChild<QComboBox *>(QStringLiteral("cmbQuarter"))->setCurrentIndex(3);
        QCOMPARE(label->text(), QStringLiteral("From:01/01/2027 To:31/03/2027"));
        QCOMPARE(m_session->quarterToDt, QStringLiteral("31/03/2027"));
        QVERIFY(m_boxes.shown.isEmpty());
    }

    void selectionOpensTheStatement_data()
    {
        QTest::addColumn<QString>("trigger");
        QTest::newRow("select button") << "button";
        QTest::newRow("enter on the list") << "enter";
        QTest::newRow("double click") << "double click";
    }
    void selectionOpensTheStatement()
    {
        QFETCH(QString, trigger);
        m_screen->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_screen.get()));
        QSignalSpy selected(m_screen.get(), &FrmLogin::selected);
        m_screen->findChild<QComboBox *>(QStringLiteral("cmbQuarter"))->setCurrentIndex(1);
        QTreeWidgetItem *mehta = m_list->topLevelItem(2);
        m_list->setCurrentItem(mehta);

        if (trigger == u"button") {
            QTest::mouseClick(m_screen->findChild<QPushButton *>(QStringLiteral("cmdSelect")),
                              Qt::LeftButton);
        } else if (trigger == u"enter") {
            QTest::keyClick(m_list, Qt::Key_Return);
        } else {
            const QPoint centre = m_list->visualItemRect(mehta).center();
            // A view takes a double click only after the press that started it.
            QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, centre);
            QTest::mouseDClick(m_list->viewport(), Qt::LeftButton, {}, centre);
        }

        QCOMPARE(selected.size(), 1);
        const auto outcome = selected.first().first().value<CompanySelection::Outcome>();
        QCOMPARE(outcome.screen, QStringLiteral("frmForm26"));
        QCOMPARE(outcome.quarterText, QStringLiteral("Second Quarter"));
        QCOMPARE(m_session->curCompId, 11);
        QCOMPARE(m_session->curBasicInfoId, 8);
        QVERIFY(m_boxes.shown.isEmpty());
        QVERIFY(!m_screen->isVisible());
    }

    // Opened again in the run, the screen stands at the group and quarter chosen last.
    void opensAtTheLastChoice_data()
    {
        testsuite::columns<int, int, QString, QString>("group", "quarter", "company", "period");
        QTest::newRow("second group, fourth quarter")
            << 1 << 3 << "Beta Steel" << "From:01/01/2027 To:31/03/2027";
        QTest::newRow("first group, third quarter")
            << 0 << 2 << "Mehta Traders" << "From:01/10/2026 To:31/12/2026";
    }
    void opensAtTheLastChoice()
    {
        QFETCH(int, group);
        QFETCH(int, quarter);
        QFETCH(QString, company);
        m_screen->findChild<QComboBox *>(QStringLiteral("CmbGroup"))->setCurrentIndex(group);
        m_screen->findChild<QComboBox *>(QStringLiteral("cmbQuarter"))->setCurrentIndex(quarter);
        m_list->setCurrentItem(m_list->findItems(company, Qt::MatchExactly).value(0));
        m_screen->findChild<QPushButton *>(QStringLiteral("cmdSelect"))->click();
        QVERIFY(m_boxes.shown.isEmpty());

        FrmLogin again(*m_session, m_boxes);
        QCOMPARE(again.findChild<QComboBox *>(QStringLiteral("CmbGroup"))->currentIndex(), group);
        QCOMPARE(again.findChild<QLineEdit *>(QStringLiteral("txtGroup"))->text(),
                 QString::number(group + 1));
        auto *list = again.findChild<QTreeWidget *>(QStringLiteral("lstvComp"));
        QVERIFY(!list->findItems(company, Qt::MatchExactly).isEmpty());
        QCOMPARE(again.findChild<QComboBox *>(QStringLiteral("cmbQuarter"))->currentIndex(),
                 quarter);
        QTEST(again.findChild<QLabel *>(QStringLiteral("lblQuarter"))->text(), "period");
    }

private:
    QStringList rows() const
    {
        QStringList texts;
        for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
            const QTreeWidgetItem *item = m_list->topLevelItem(i);
            texts << item->text(0) + u'|' + item->text(1) + u'|' + item->text(2);
        }
        return texts;
    }

    std::unique_ptr<Session> m_session;
    ScriptedMessageBoxes m_boxes;
    std::unique_ptr<FrmLogin> m_screen;
    QTreeWidget *m_list = nullptr;
};

KELVORA_TEST_OBJECT(TestFrmLogin);
#include "test_frmlogin.moc"
