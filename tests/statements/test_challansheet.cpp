#include "statementfixture.h"
#include "statements/challansheet.h"
#include "statements/statementsheet.h"

#include <QtTest>
#include <functional>

Q_DECLARE_METATYPE(FormKind)

namespace {

using Change = std::function<void(ChallanEntry &)>;

/// A saved Statement with its challan panel open.
struct ChallanFixture : StatementFixture
{
    explicit ChallanFixture(FormKind kind) : StatementFixture(kind), sheet(session, boxes, form)
    {
        sheet.open();
        if (!sheet.save())
            qFatal("the Statement of the fixture was not saved");
        challans.open();
    }

    void enter(const QString &tds, const QString &bank, const QString &totSurcharge = "0.00")
    {
        ChallanEntry &entry = challans.entry();
        entry.section = section();
        entry.date = QDate(2026, 5, 7);
        entry.tds = tds;
        entry.bankCode = bank;
        entry.challanNo = "00011";
        entry.totSurcharge = totSurcharge;
        challans.boxChanged();
        QVERIFY(challans.save());
    }

    QString column(const QString &column, int challanId) const
    {
        return data.text(QStringLiteral("SELECT %1 FROM %2 WHERE ChallnID = ?")
                             .arg(column, form.challanTable),
                         {challanId});
    }

    StatementSheet sheet;
    ChallanSheet challans{sheet};
};

} // namespace

class TestChallanSheet : public QObject
{
    Q_OBJECT

private slots:
    void enterChangeDelete_data();
    void enterChangeDelete();
    void refusedSaves_data();
    void refusedSaves();
    void boxRules_data();
    void boxRules();
    void challanOrVoucherNumber_data();
    void challanOrVoucherNumber();
};

void TestChallanSheet::enterChangeDelete_data()
{
    QTest::addColumn<FormKind>("kind");
    QTest::addColumn<QString>("storedTotal"); // 24Q keeps whole rupees, rounded half to even
    QTest::newRow("24Q") << FormKind::Form24Q << "100";
    QTest::newRow("26Q") << FormKind::Form26Q << "100.5";
    QTest::newRow("27Q") << FormKind::Form27Q << "100.5";
    QTest::newRow("27EQ") << FormKind::Form27EQ << "100.5";
}

void TestChallanSheet::enterChangeDelete()
{
    QFETCH(FormKind, kind);
    QFETCH(QString, storedTotal);
    ChallanFixture f(kind);
    f.enter("100.50", "0510001", "7.00");
    f.enter("200", "0510002");
    f.enter("300", "0510003");
    QCOMPARE(f.challans.list().rowCount(), 3);
    QCOMPARE(f.column("SlNo", 3), "3");
    QCOMPARE(f.column("Total", 1), storedTotal);
    QCOMPARE(f.column("Total", 2), "200");
    // The insert has always written the surcharge's control total in the place of the cess's.
    QCOMPARE(f.column("TotCess", 1), "7");
    QCOMPARE(f.column("BookEntry", 1), "C");
    QCOMPARE(f.sheet.info().noChallan, "3");
    QCOMPARE(f.challans.entry().slNo, "4");

    // A changed bank code or date reaches every row under the challan.
    f.insertAnnexureRow(1, 2, 1);
    f.challans.loadRow(1);
    f.challans.entry().bankCode = "0999999";
    f.challans.entry().date = QDate(2026, 6, 1);
    QVERIFY(f.challans.save());
    QCOMPARE(f.data.count(f.form.challanTable), 3);
    QCOMPARE(f.data.text("SELECT BankBranchCode || TaxPaidToCGDt FROM " + f.form.annexureTable),
             "09999992026-06-01");

    // A challan with rows under it stays; an empty one goes and the later ones close up.
    f.boxes.answerNext(Answer::Yes);
    f.challans.deleteRow(1);
    QCOMPARE(f.boxes.shown.last().text, ChallanSheet::annexureRowsText(1));
    QCOMPARE(f.data.count(f.form.challanTable), 3);
    f.boxes.answerNext(Answer::Yes);
    f.challans.deleteRow(0);
    QCOMPARE(f.data.count(f.form.challanTable), 2);
    QCOMPARE(f.column("SlNo", 2), "1");
    QCOMPARE(f.column("SlNo", 3), "2");
    QCOMPARE(f.challans.list().row(1).slNo, "2");
    QCOMPARE(f.challans.entry().slNo, "3");
    QCOMPARE(f.sheet.info().noChallan, "2");
}

void TestChallanSheet::refusedSaves_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("focus");
    QTest::newRow("date before the quarter")
        << Change([](ChallanEntry &e) { e.date = QDate(2026, 3, 31); })
        << "Date should not be less than the Quarter Start Date" << "dtp119";
    QTest::newRow("no serial") << Change([](ChallanEntry &e) { e.slNo = "0"; })
                               << ChallanSheet::somethingWrongText << "";
    QTest::newRow("blank section") << Change([](ChallanEntry &e) { e.section = " "; })
                                   << ChallanSheet::enterSectionText << "cmb116";
    QTest::newRow("unknown section") << Change([](ChallanEntry &e) { e.section = "94X"; })
                                     << ChallanSheet::selectSectionText << "cmb116";
}

void TestChallanSheet::refusedSaves()
{
    QFETCH(Change, change);
    QFETCH(QString, text);
    QFETCH(QString, focus);
    ChallanFixture f(FormKind::Form26Q);
    f.challans.entry().section = "94C";
    f.challans.entry().date = QDate(2026, 4, 1);
    change(f.challans.entry());
    f.sheet.takeFocus();
    QVERIFY(!f.challans.save());
    QCOMPARE(f.boxes.shown.last().text, text);
    QCOMPARE(f.sheet.takeFocus(), focus);
    QCOMPARE(f.data.count(f.form.challanTable), 0);
    if (focus == "dtp119")
        QCOMPARE(f.challans.entry().date, QDate(2026, 4, 1));
}

void TestChallanSheet::boxRules_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("cess");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("tds formatted") << 117 << "5" << "" << "05.00" << "";
    QTest::newRow("negative tds passes") << 117 << "-5" << "" << "-05.00" << "";
    QTest::newRow("negative surcharge") << 118 << "-1" << "" << "-1"
                                        << challanrules::positiveOnlyText;
    QTest::newRow("zero surcharge passes") << 118 << "0" << "" << "00.00" << "";
    QTest::newRow("twelve digits pass") << 120 << "123456789012" << "" << "123456789012.00"
                                        << "";
    QTest::newRow("thirteen digits") << 119 << "1234567890123" << "1234567890123"
                                     << "1234567890123.00" << challanrules::twelveDigitsText;
    // Others is checked only when the cess box holds something.
    QTest::newRow("others, cess empty") << 121 << "-3" << "" << "-3" << "";
    QTest::newRow("others, cess typed") << 121 << "-3" << "0" << "-3"
                                        << challanrules::positiveOnlyText;
}

void TestChallanSheet::boxRules()
{
    QFETCH(int, index);
    QFETCH(QString, typed);
    QFETCH(QString, cess);
    QFETCH(QString, shown);
    QFETCH(QString, refusal);
    ChallanEntry entry;
    entry.cess = cess;
    QString ChallanEntry::*box = index == 117   ? &ChallanEntry::tds
                                 : index == 118 ? &ChallanEntry::surcharge
                                 : index == 119 ? &ChallanEntry::cess
                                 : index == 120 ? &ChallanEntry::interest
                                                : &ChallanEntry::others;
    entry.*box = typed;
    const auto failure = challanrules::amountLeft(entry, index);
    QCOMPARE(failure ? failure->message.text : QString(), refusal);
    QCOMPARE(entry.*box, shown);

    entry.tds = "1000";
    entry.surcharge = "10.5";
    entry.cess = "20.25";
    entry.interest = "1";
    entry.others = "abc";
    QCOMPARE(challanrules::total(entry), "1031.75");
}

void TestChallanSheet::challanOrVoucherNumber_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("challanNo");
    QTest::addColumn<QString>("voucherNo");
    QTest::addColumn<bool>("challanBox");
    QTest::addColumn<bool>("voucherBox");
    QTest::addColumn<QString>("keptVoucher");
    QTest::newRow("company, voucher dropped") << "O" << "" << "123" << true << false << "";
    QTest::newRow("state, both empty") << "S" << "" << "" << true << true << "";
    QTest::newRow("state, challan typed") << "S" << "11" << "123" << true << false << "";
    QTest::newRow("central, voucher typed") << "A" << "" << "123" << false << true << "123";
}

void TestChallanSheet::challanOrVoucherNumber()
{
    QFETCH(QString, status);
    QFETCH(QString, challanNo);
    QFETCH(QString, voucherNo);
    QFETCH(bool, challanBox);
    QFETCH(bool, voucherBox);
    QFETCH(QString, keptVoucher);
    ChallanEntry entry;
    entry.challanNo = challanNo;
    entry.voucherNo = voucherNo;
    const challanrules::NumberBoxes boxes = challanrules::applyNumberRule(entry, status);
    QCOMPARE(boxes, (challanrules::NumberBoxes{challanBox, voucherBox}));
    QCOMPARE(entry.voucherNo, keptVoucher);
}

QTEST_GUILESS_MAIN(TestChallanSheet)
#include "test_challansheet.moc"
