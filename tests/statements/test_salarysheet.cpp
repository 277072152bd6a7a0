#include "salaryfixture.h"
#include "statements/salarycheck.h"
#include "support/testsuite.h"

#include <QtTest>
#include <functional>

namespace {

using Change = std::function<void(SalaryFixture &)>;

/// "205=600000;212=-5000" as the boxes and their texts, in order.
QList<QPair<int, QString>> boxTexts(const QString &text)
{
    QList<QPair<int, QString>> pairs;
    for (const QString &pair : text.split(u';', Qt::SkipEmptyParts))
        pairs.append({pair.section(u'=', 0, 0).toInt(), pair.section(u'=', 1)});
    return pairs;
}

/// LATA IYER with figures that pass every check.
void enterValidRow(SalaryFixture &f)
{
    f.choose("LATA IYER");
    f.type(205, "600000");
    f.type(212, "-5000");
    f.type(219, "40000");
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(SectionKind)
Q_DECLARE_METATYPE(Answer)

class TestSalarySheet : public QObject
{
    Q_OBJECT

private slots:
    void computation_data();
    void computation();
    void perquisites_data();
    void perquisites();
    void saveChecksInOrder_data();
    void saveChecksInOrder();
    void gridSections_data();
    void gridSections();
    void gridOk_data();
    void gridOk();
    void savedLoadedAndChanged();
    void deleteRenumbers_data();
    void deleteRenumbers();
    void failureKeepsPreviousDetail_data();
    void failureKeepsPreviousDetail();
};

void TestSalarySheet::computation_data()
{
    testsuite::columns<QString, QString, QString>("typed", "expected", "flag");
    QTest::newRow("salary runs down to taxable income")
        << "205=500000" << "209=500000.00;211=500000.00;213=500000.00;218=500000.00" << "N";
    QTest::newRow("negative other income lowers the total")
        << "205=300000;212=-50000.5" << "211=300000.00;213=249999.50;218=249999.50" << "N";
    QTest::newRow("positive other income is flagged")
        << "205=1000;212=250" << "213=1250.00" << "P";
    QTest::newRow("a figure typed over a result runs on from it")
        << "205=600000;211=20000;212=580000;213=577500"
        << "209=600000.00;211=20000;213=577500;218=577500.00" << "P";
    QTest::newRow("tax, relief and deducted down to the shortfall")
        << "219=40000;342=100;343=1200;224=500;346=40000.25"
        << "225=40800.00;347=799.75;218=0.00" << "N";
    QTest::newRow("an excess deduction is negative")
        << "219=1000;346=1500" << "225=1000.00;347=-500.00" << "N";
    QTest::newRow("amounts are read as the program reads them")
        << "205=12abc;212= 1 000" << "209=12.00;213=1012.00" << "P";
}

void TestSalarySheet::computation()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    QFETCH(QString, flag);
    SalaryFixture f;
    for (const auto &[index, text] : boxTexts(typed))
        f.type(index, text);
    for (const auto &[index, text] : boxTexts(expected))
        QCOMPARE(f.salary.entry().box(index), text);
    QCOMPARE(f.salary.entry().flag212, flag);
}

void TestSalarySheet::perquisites_data()
{
    // txtPerk(0) to txtPerk(12), then txtPerk(3), (4), (6) and the total of OK in txt(207).
    testsuite::columns<QStringList, QString, QString>("perks", "computed", "total");
    QTest::newRow("furniture at ten percent of its cost")
        << QStringList{"", "5000", "20000"} << "2000.00/7000.00/7000.00" << "7000.00";
    QTest::newRow("unfurnished added, rent taken off")
        << QStringList{"1000", "5000", "1005", "", "", "300"} << "100.50/5100.50/5800.50"
        << "5800.50";
    QTest::newRow("a tenth of a paisa rounds away from zero")
        << QStringList{"", "", "0.05"} << "0.01/0.01/0.01" << "0.01";
    QTest::newRow("only 361 to 367 make the total")
        << QStringList{"100", "", "", "", "", "100", "", "1", "2", "3", "4", "5", "6"}
        << "0.00/0.00/0.00" << "21.00";
}

void TestSalarySheet::perquisites()
{
    QFETCH(QStringList, perks);
    QFETCH(QString, computed);
    QFETCH(QString, total);
    SalaryFixture f;
    f.type(205, "1000");
    for (int index = 0; index < perks.size(); ++index) {
        f.salary.entry().perk[index] = perks.at(index);
        f.salary.perkChanged();
    }
    const SalaryEntry &entry = f.salary.entry();
    QCOMPARE(QStringList({entry.perk[3], entry.perk[4], entry.perk[6]}).join(u'/'), computed);
    f.salary.perkCancelled();
    QCOMPARE(entry.box(207), "0.00");
    f.salary.perkOk();
    QCOMPARE(entry.box(207), total);
    QCOMPARE(entry.amount(209), Money::fromText("1000") + Money::fromText(total));
}

void TestSalarySheet::saveChecksInOrder_data()
{
    testsuite::columns<Change, QString, QString>("change", "text", "field");
    using namespace salarycheck;
    QTest::newRow("serial before name") << Change([](SalaryFixture &f) {
        f.salary.entry().txt[201] = " ";
        f.salary.entry().empName.clear();
    }) << serialText << "txt(201)";
    QTest::newRow("name before PAN") << Change([](SalaryFixture &f) {
        f.salary.entry().empName.clear();
        f.salary.entry().txt[202].clear();
    }) << nameText << "cmbEmpname";
    QTest::newRow("PAN") << Change([](SalaryFixture &f) { f.salary.entry().txt[202].clear(); })
                         << panText << "txt(202)";
    QTest::newRow("designation before Section 16") << Change([](SalaryFixture &f) {
        f.salary.entry().txt[3].clear();
        f.salary.entry().txt[210] = "700000";
    }) << designationText << "txt(3)";
    QTest::newRow("Section 16 above gross, before the category") << Change([](SalaryFixture &f) {
        f.salary.entry().txt[210] = "600000.01";
        f.salary.entry().category = -1;
    }) << section16Text << "txt(210)";
    QTest::newRow("category") << Change([](SalaryFixture &f) { f.salary.entry().category = -1; })
                              << categoryText << "cmbCat";
    QTest::newRow("other income below the salary's loss") << Change([](SalaryFixture &f) {
        f.type(211, "1000");
        f.type(212, "-1000.01");
    }) << incomeText << "txt(212)";
    QTest::newRow("deductible above total income") << Change([](SalaryFixture &f) {
        f.salary.entry().txt[217] = "595000.01";
    }) << deductibleText << "txt(213)";
    QTest::newRow("other income as low as the salary's loss") << Change([](SalaryFixture &f) {
        f.type(211, "1000");
        f.type(212, "-1000");
        f.salary.entry().txt[217] = "0";
    }) << QString() << QString();
    QTest::newRow("deductible equal to total income") << Change([](SalaryFixture &f) {
        f.salary.entry().txt[217] = "595000";
    }) << QString() << QString();
}

void TestSalarySheet::saveChecksInOrder()
{
    QFETCH(Change, change);
    QFETCH(QString, text);
    QFETCH(QString, field);
    SalaryFixture f;
    enterValidRow(f);
    change(f);
    QCOMPARE(f.salary.save(), text.isEmpty());
    QCOMPARE(f.boxes.texts(), text.isEmpty() ? QStringList() : QStringList{text});
    QCOMPARE(f.sheet.takeFocus(), text.isEmpty() ? "cmbEmpname" : field);
    QCOMPARE(f.data.count("TranSalaryE24"), text.isEmpty() ? 1 : 0);
    if (text == salarycheck::categoryText)
        QCOMPARE(f.boxes.shown.last().title, "Kelvora");
}

void TestSalarySheet::gridSections_data()
{
    testsuite::columns<SectionKind, QString, QString, QString>("kind", "section", "message",
                                                               "shown");
    QTest::newRow("every Section 10 of the master, with none entered")
        << SectionKind::Section10 << "" << ""
        << "10(5)/10(10)/10(10A)/10(10AA)/10(13A)/10(14)/";
    QTest::newRow("Section 16 without the standard deduction")
        << SectionKind::Section16 << "" << "" << "16(ii)/16(iii)/";
    QTest::newRow("a section of the master, spelled as the master spells it")
        << SectionKind::ChapterVIA << "10(13a)" << "" << "80CCE/OTHERS/10(13A)/";
    QTest::newRow("unknown section") << SectionKind::Section88 << "80Z"
                                     << SectionGrid::invalidSectionText
                                     << "LIC/PPF/NSC/ULIP/HOUSING LOAN/TUITION FEES/";
    QTest::newRow("duplicate, whatever its case")
        << SectionKind::ChapterVIA << "others" << SectionGrid::duplicateSectionText
        << "80CCE/OTHERS/";
}

void TestSalarySheet::gridSections()
{
    QFETCH(SectionKind, kind);
    QFETCH(QString, section);
    QFETCH(QString, message);
    QFETCH(QString, shown);
    SalaryFixture f;
    SectionGrid &grid = f.salary.grid(kind);
    if (!section.isEmpty())
        QCOMPARE(grid.setData(grid.index(grid.rowCount() - 1, 0), section), message.isEmpty());
    QCOMPARE(f.boxes.texts(), message.isEmpty() ? QStringList() : QStringList{message});
    QStringList sections;
    for (int row = 0; row < grid.rowCount(); ++row)
        sections << grid.index(row, 0).data().toString();
    QCOMPARE(sections.join(u'/'), shown);
}

void TestSalarySheet::gridOk_data()
{
    // Rows as "section=amount,amount,amount;..."; the boxes afterwards as in computation.
    testsuite::columns<SectionKind, QString, QString, QString>("kind", "rows", "message",
                                                               "boxes");
    QTest::newRow("Section 10 total, blanks as nothing")
        << SectionKind::Section10 << "10(13A)=20000;10(5)=1500.5;10(14)=" << ""
        << "206=21500.50;209=121500.50;211=121500.50";
    QTest::newRow("Section 16 total takes off the gross")
        << SectionKind::Section16 << "16(ii)=2500;16(iii)=0" << "" << "210=2500.00;211=97500.00";
    QTest::newRow("Chapter VI-A deductions, 80CCE and Others apart")
        << SectionKind::ChapterVIA << "80CCE=100000,100000,100000;OTHERS=5000,5000,4000" << ""
        << "217=104000.00;337=100000.00;338=4000.00;218=-4000.00";
    QTest::newRow("qualifying above gross")
        << SectionKind::ChapterVIA << "80CCE=100,100,50;OTHERS=100,100.01,0"
        << SectionGrid::qualifyingText << "217=0.00;337=0.00";
    QTest::newRow("deduction above qualifying")
        << SectionKind::Section88 << "LIC=100,80,80.01" << SectionGrid::deductionText
        << "220=0.00";
    QTest::newRow("Section 88 rebate")
        << SectionKind::Section88 << "LIC=100,80,80;PPF=70000,70000,70000" << ""
        << "220=70080.00;225=0.00";
}

void TestSalarySheet::gridOk()
{
    QFETCH(SectionKind, kind);
    QFETCH(QString, rows);
    QFETCH(QString, message);
    QFETCH(QString, boxes);
    SalaryFixture f;
    f.type(205, "100000");
    for (const QString &row : rows.split(u';'))
        QVERIFY(f.enter(kind, row.section(u'=', 0, 0), row.section(u'=', 1).split(u',')));
    QCOMPARE(f.salary.gridOk(kind), message.isEmpty());
    QCOMPARE(f.boxes.texts(), message.isEmpty() ? QStringList() : QStringList{message});
    for (const auto &[index, text] : boxTexts(boxes))
        QCOMPARE(f.salary.entry().box(index), text);

    // Cancel only formats the total as it stood; what was typed in the grid stays there.
    const int total = SectionGrid::traits(kind).totalBox;
    const QString before = f.salary.entry().box(total);
    QVERIFY(f.enter(kind, rows.section(u'=', 0, 0), {"1", "1", "1"}));
    f.salary.gridCancelled(kind);
    QCOMPARE(f.salary.entry().box(total), before);
    QCOMPARE(f.salary.grid(kind).deductionOf(rows.section(u'=', 0, 0)), Money::fromRupees(1));
}

void TestSalarySheet::savedLoadedAndChanged()
{
    SalaryFixture f;
    f.choose("NEHA SHAH");
    QCOMPARE(f.salary.entry().box(202) + "/" + f.salary.entry().box(2), "PANAPPLIED/APP0001");
    QCOMPARE(f.salary.entry().category, 2);
    f.type(205, "300000.50");
    f.type(212, "-1000");
    QVERIFY(f.enter(SectionKind::Section10, "10(13A)", {"12000"}));
    QVERIFY(f.salary.gridOk(SectionKind::Section10));
    QVERIFY(f.enter(SectionKind::Section16, "16(iii)", {"2500"}));
    QVERIFY(f.salary.gridOk(SectionKind::Section16));
    QVERIFY(f.enter(SectionKind::Section88, "PPF", {"1000", "1000", "800"}));
    QVERIFY(f.salary.gridOk(SectionKind::Section88));
    // Unfurnished 4,000 and furniture costing 20,000 (worth 2,000) with 5,000, less a rent
    // of 3,000: a perquisite of 8,000.
    SalaryEntry &perks = f.salary.entry();
    for (const auto &[index, text] : boxTexts("0=4000;1=5000;2=20000;5=3000;7=1500"))
        perks.perk[index] = text;
    f.salary.perkChanged();
    f.salary.perkOk();
    QVERIFY(f.salary.save());
    // Whole rupees in the store, half to even; the unstored boxes stay out.
    QCOMPARE(f.stored("SrlNo, EmpID, EmpName, \"331\", \"332\", \"333\", \"335\", "
                      "\"336Sec16Gross\", \"360\", \"361\", \"362\", FromDate"),
             QStringList{"1/103/NEHA SHAH/2/300000/2500/-1000/318000/3000/8000/1500/2026-06-01"});
    QCOMPARE(f.data.text("SELECT group_concat(SectionId || '=' || TotalDeduction) "
                         "FROM TranSec16E24 WHERE SalaryId = 1 AND Empid = 103"),
             "16(iii)=2500");
    QCOMPARE(f.salary.list().rowCount(), 1);
    QCOMPARE(f.salary.entry().salaryId, "2");
    QCOMPARE(f.salary.entry().box(201), "2");
    // The next employee inherits nothing: not a figure, not a row of a section's grid.
    const SalaryEntry &next = f.salary.entry();
    QCOMPARE(next.empName + "/" + next.box(205) + "/" + next.box(210) + "/" + next.box(220),
             "/0.00/0.00/0.00");
    for (SectionKind kind : SectionGrid::kinds)
        QVERIFY(f.salary.grid(kind).enteredRows().isEmpty());

    // A click loads the row with its grids; the unstored totals come back from them.
    f.salary.open();
    f.salary.loadRow(0);
    const SalaryEntry &loaded = f.salary.entry();
    QCOMPARE(loaded.box(206) + "/" + loaded.box(207) + "/" + loaded.box(209) + "/"
                 + loaded.box(220) + "/" + loaded.box(213),
             "12000.00/9500.00/321500.00/800.00/318000.00");
    // The unfurnished perquisite, never stored, comes back from the value with the rent.
    QCOMPARE(QStringList(loaded.perk.begin(), loaded.perk.begin() + 7).join(u'/'),
             "4000.00/5000.00/20000.00/2000.00/7000.00/3000.00/8000.00");
    QCOMPARE(f.salary.grid(SectionKind::Section88).deductionOf("PPF"), Money::fromRupees(800));

    // Saved again, the row is updated and its sections rewritten from the grids.
    f.enter(SectionKind::Section16, "16(iii)", {""});
    QVERIFY(f.enter(SectionKind::Section16, "16(ii)", {"100"}));
    f.type(212, "0");
    QVERIFY(f.salary.save());
    QCOMPARE(f.stored("SalaryId, \"335\""), QStringList{"1/0"});
    QCOMPARE(f.data.text("SELECT group_concat(SectionId) FROM TranSec16E24"), "16(ii)");
    QCOMPARE(f.data.count("TranSec10E24"), 1);
    QCOMPARE(f.salary.list().row(0).box(212), "0.00");
}

void TestSalarySheet::deleteRenumbers_data()
{
    testsuite::columns<int, Answer, QString>("row", "answer", "left");
    QTest::newRow("first") << 0 << Answer::Yes << "1/MOHAN DAS;2/NEHA SHAH";
    QTest::newRow("second of three") << 1 << Answer::Yes << "1/LATA IYER;2/NEHA SHAH";
    QTest::newRow("last") << 2 << Answer::Yes << "1/LATA IYER;2/MOHAN DAS";
    QTest::newRow("answered No") << 1 << Answer::No
                                 << "1/LATA IYER;2/MOHAN DAS;3/NEHA SHAH";
}

void TestSalarySheet::deleteRenumbers()
{
    QFETCH(int, row);
    QFETCH(Answer, answer);
    QFETCH(QString, left);
    SalaryFixture f;
    for (const char *name : {"LATA IYER", "MOHAN DAS", "NEHA SHAH"}) {
        f.choose(name);
        QVERIFY(f.enter(SectionKind::Section16, "16(ii)", {"100"}));
        QVERIFY(f.salary.save());
    }
    f.boxes.answerNext(answer);
    f.salary.deleteRow(row);
    QCOMPARE(f.stored("SrlNo, EmpName").join(u';'), left);
    const int rows = int(left.count(u';')) + 1;
    QCOMPARE(f.data.count("TranSec16E24"), rows);
    QCOMPARE(f.salary.list().rowCount(), rows);
    QCOMPARE(f.salary.entry().box(201), QString::number(rows + 1));
}

void TestSalarySheet::failureKeepsPreviousDetail_data()
{
    testsuite::columns<QString, QString>("trigger", "action");
    for (const char *table : {"TranSec10E24", "TranSec16E24", "TranSecViAE24", "TranSec88E24"}) {
        QTest::addRow("update, %s failing", table)
            << QStringLiteral("BEFORE INSERT ON %1").arg(table) << "update";
        QTest::addRow("insert, %s failing", table)
            << QStringLiteral("BEFORE INSERT ON %1").arg(table) << "insert";
        QTest::addRow("delete, %s failing", table)
            << QStringLiteral("BEFORE DELETE ON %1").arg(table) << "delete";
    }
    QTest::newRow("delete, renumbering failing") << "BEFORE UPDATE ON TranSalaryE24" << "delete";
}

void TestSalarySheet::failureKeepsPreviousDetail()
{
    QFETCH(QString, trigger);
    QFETCH(QString, action);
    SalaryFixture f;
    const auto enterEmployee = [&f](const QString &name) {
        f.choose(name);
        f.type(205, "500000");
        for (SectionKind kind : SectionGrid::kinds) {
            QVERIFY(f.enter(kind, f.salary.offered(kind).first(), {"10", "10", "10"}));
            QVERIFY(f.salary.gridOk(kind));
        }
    };
    for (const char *name : {"LATA IYER", "MOHAN DAS"}) {
        enterEmployee(name);
        QVERIFY(f.salary.save());
    }
    const auto snapshot = [&f] {
        QStringList tables = f.stored("SalaryId, SrlNo, EmpName, \"332\"");
        for (const QString &table : f.form.salarySectionTables())
            tables << f.data.text("SELECT group_concat(SalaryId || SectionId) FROM " + table);
        return tables;
    };
    const QStringList before = snapshot();
    f.data.store().exec(QStringLiteral("CREATE TRIGGER failing %1 BEGIN "
                                       "SELECT RAISE(ABORT, 'disk I/O error'); END")
                            .arg(trigger));

    f.boxes.shown.clear();
    if (action == u"delete") {
        f.boxes.answerNext(Answer::Yes);
        f.salary.deleteRow(0);
    } else {
        if (action == u"update")
            f.salary.loadRow(0);
        else
            enterEmployee("NEHA SHAH");
        f.type(205, "999999");
        QVERIFY(!f.salary.save());
    }
    QCOMPARE(f.boxes.shown.last().icon, MessageIcon::Critical);
    QVERIFY(f.boxes.shown.last().text.contains("disk I/O error"));
    QCOMPARE(snapshot(), before);
    QCOMPARE(f.salary.list().rowCount(), 2);
}

KELVORA_TEST_OBJECT(TestSalarySheet);
#include "test_salarysheet.moc"
