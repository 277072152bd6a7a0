#include "core/session.h"
#include "exchange/frmimport.h"
#include "support/scriptedmessageboxes.h"
#include "support/teststore.h"

#include <QFileDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QtTest>

class TestFrmImport : public QObject
{
    Q_OBJECT

private slots:
    void importsWithProgressAndButtonsOff()
    {
        TestStore source, target;
        for (const char *table : {"mstCompany (CompID)", "mstDeductee (DeducteeID)",
                                  "mstEmployee (EmpID)", "mstGroup (GroupID)"})
            source.store().exec(QStringLiteral("INSERT INTO %1 VALUES (1), (2)").arg(table));
        Session session(target.store());
        ScriptedMessageBoxes boxes;
        FrmImport screen(session, boxes);
        const auto button = [&](const char *name) {
            return screen.findChild<QPushButton *>(QLatin1String(name));
        };
        QTimer::singleShot(0, &screen, [&] {
            auto *dialog = screen.findChild<QFileDialog *>(QStringLiteral("cmd"));
            dialog->selectFile(source.store().path());
            static_cast<QDialog *>(dialog)->accept();
        });
        button("cmdOpen")->click();

        auto *bar = screen.findChild<QProgressBar *>(QStringLiteral("pBar"));
        QStringList labels;
        bool buttonsOff = true;
        connect(bar, &QProgressBar::valueChanged, &screen, [&] {
            labels << screen.findChild<QLabel *>(QStringLiteral("lblMsg"))->text();
            buttonsOff = buttonsOff && !button("cmdimport")->isEnabled()
                         && !button("cmdClose")->isEnabled();
        });
        button("cmdimport")->click();

        QCOMPARE(boxes.texts(), QStringList{FrmImport::completedText});
        labels.removeDuplicates();
        QCOMPARE(labels, QStringList({"Importing Company", "Importing Deductee",
                                      "Importing Employee", "Importing Group"}));
        QCOMPARE(bar->value(), 8);
        QVERIFY(buttonsOff && bar->isHidden() && button("cmdimport")->isEnabled());
    }
};

QTEST_MAIN(TestFrmImport)
#include "test_frmimport.moc"
