#include "returnfile/returnfilewriter.h"
#include "salaryfixture.h"
#include "statements/challansheet.h"
#include "support/testsuite.h"

#include <QFile>
#include <QtTest>

namespace {

QList<QByteArray> linesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<QByteArray> lines = file.readAll().split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

/// The boxes typed one after another, each running the chain as the user's typing does.
void typeAll(SalaryFixture &f, const QList<QPair<int, QString>> &boxes)
{
    for (const auto &[index, text] : boxes)
        f.type(index, text);
}

/// A Chapter VI-A total that stands without rows: entered and confirmed with OK, then the row
/// emptied again and the frame cancelled, which leaves the total as it stood.
void chapterVIATotalWithoutRows(SalaryFixture &f, const QString &total)
{
    QVERIFY(f.enter(SectionKind::ChapterVIA, "OTHERS", {total, total, total}));
    QVERIFY(f.salary.gridOk(SectionKind::ChapterVIA));
    QVERIFY(f.enter(SectionKind::ChapterVIA, "OTHERS", {"", "", ""}));
    f.salary.gridCancelled(SectionKind::ChapterVIA);
}

} // namespace

// A 24Q Statement of the fourth quarter entered as the statement screen's panels enter it
// gives the salary lines that the writer's own fixture gives for the same rows.
class TestSalaryReturn : public QObject
{
    Q_OBJECT

private slots:
    void salaryLinesAsTheWriterExpects();
};

void TestSalaryReturn::salaryLinesAsTheWriterExpects()
{
    SalaryFixture f;
    // An office's own Chapter VI-A sections beside the two of the list.
    f.data.insert("mstSections24", {"SectionType", "SectionName", "Description"},
                  {{"CHAPVIAU", "80C", "LIFE INSURANCE AND SAVINGS"},
                   {"CHAPVIAU", "80D", "MEDICAL INSURANCE"}});
    const int statement = f.sheet.basicInfoId();

    ChallanSheet challans(f.sheet);
    challans.open();
    for (const char *tds : {"25000", "12000"}) {
        challans.entry().date = QDate(2027, 1, 7);
        challans.entry().tds = tds;
        challans.entry().bankCode = "0004329";
        challans.entry().challanNo = "00012";
        challans.boxChanged();
        QVERIFY(challans.save());
    }
    // The employee rows as the annexure panel saves them: two under the first challan.
    f.insertAnnexureRow(statement, 1, 1);
    f.insertAnnexureRow(statement, 1, 2);
    f.insertAnnexureRow(statement, 2, 3);

    f.salary.open();
    f.choose("LATA IYER");
    QVERIFY(f.enter(SectionKind::Section10, "10(13A)", {"20000"}));
    QVERIFY(f.salary.gridOk(SectionKind::Section10));
    f.salary.entry().perk[1] = "33333";
    f.salary.perkChanged();
    f.salary.perkOk();
    // Section 16 rows entered but cancelled: the gross salary keeps no deduction.
    QVERIFY(f.enter(SectionKind::Section16, "16(ii)", {"2500"}));
    QVERIFY(f.enter(SectionKind::Section16, "16(iii)", {"0"}));
    f.salary.gridCancelled(SectionKind::Section16);
    typeAll(f, {{205, "600000"}, {211, "20000"}, {212, "580000"}, {213, "577500"}});
    chapterVIATotalWithoutRows(f, "577500");
    QVERIFY(f.enter(SectionKind::ChapterVIA, "80C", {"150000", "150000", "150000"}));
    QVERIFY(f.enter(SectionKind::ChapterVIA, "80D", {"5000", "5000", "5000"}));
    f.salary.gridCancelled(SectionKind::ChapterVIA);
    typeAll(f, {{337, "11111"}, {338, "22222"}, {218, "155000"}, {219, "422500"},
                {342, "40500"}, {224, "40500"}, {225, "1620"}, {346, "42120"},
                {347, "42120"}});
    QVERIFY(f.salary.save());

    f.salary.open();
    f.choose("MOHAN DAS");
    typeAll(f, {{205, "500000"}, {211, "0"}, {212, "500000"}, {213, "497500"}});
    chapterVIATotalWithoutRows(f, "497500");
    typeAll(f, {{219, "497500"}, {342, "35000"}, {224, "35000"}, {225, "1400"},
                {346, "36400"}, {347, "0"}});
    QVERIFY(f.salary.save());
    QCOMPARE(f.boxes.texts(), QStringList());

    const QString path = f.data.folder() + QStringLiteral("/return.txt");
    const ReturnFileSummary summary =
        writeReturnFile(f.data.store(), f.form, f.session.curGroupId, statement, path,
                        QDate(2027, 4, 20));
    QCOMPARE(summary.salaryRows, 2);
    const QList<QByteArray> written = linesOf(path);
    // The writer's fixture has two more salary rows that no screen can enter: a category
    // outside the list and an amount with paise in a column of whole rupees.
    const QList<QByteArray> golden =
        linesOf(QStringLiteral(KELVORA_GOLDEN_DIR "/24q_salary.txt")).mid(7, 6);
    QCOMPARE(golden.size(), 6);
    QVERIFY(golden.first().startsWith("8^SD^") && golden.last().startsWith("13^SD^"));
    QCOMPARE(written.mid(7), golden);
}

KELVORA_TEST_OBJECT(TestSalaryReturn);
#include "test_salaryreturn.moc"
