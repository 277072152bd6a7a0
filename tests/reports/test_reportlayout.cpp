#include "core/money.h"
#include "reports/reportbuilder.h"
#include "reports/reportfile.h"
#include "reports/reportformat.h"
#include "reports/reportlayout.h"
#include "support/testsuite.h"

#include <QtTest>

Q_DECLARE_METATYPE(std::optional<reportfile::Format>)

namespace {

constexpr double bodyHeight = 100;

/// A title, column heads and rows of the given height, some starting a new page.
std::vector<ReportBand> table(double titleHeight, int rows, int breakEvery)
{
    std::vector<ReportBand> bands(2);
    bands[0].height = titleHeight;
    bands[1].height = 20;
    bands[1].columnHead = true;
    bands[1].headFirst = 1;
    bands[1].headCount = 1;
    for (int row = 0; row < rows; ++row) {
        ReportBand band;
        band.height = 10;
        band.headFirst = 1;
        band.headCount = 1;
        band.pageBreakBefore = breakEvery > 0 && row > 0 && row % breakEvery == 0;
        bands.push_back(band);
    }
    return bands;
}

} // namespace

class TestReportLayout : public QObject
{
    Q_OBJECT

private slots:
    void pagination_data();
    void pagination();
    void lineBreaking_data();
    void lineBreaking();
    void listColumns_data();
    void listColumns();
    void indianAmount_data();
    void indianAmount();
    void formatForName_data();
    void formatForName();
};

void TestReportLayout::pagination_data()
{
    QTest::addColumn<double>("titleHeight");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("breakEvery");
    QTest::addColumn<int>("pages");
    // A page holds the 20-point heads and 8 rows of 10; the first also the title.
    QTest::newRow("heads without rows") << 30.0 << 0 << 0 << 1;
    QTest::newRow("first page full") << 30.0 << 5 << 0 << 1;
    QTest::newRow("one row over") << 30.0 << 6 << 0 << 2;
    QTest::newRow("many pages") << 30.0 << 45 << 0 << 6;
    QTest::newRow("heads never alone at the foot") << 75.0 << 1 << 0 << 2;
    QTest::newRow("page breaks") << 30.0 << 6 << 2 << 3;
}

void TestReportLayout::pagination()
{
    QFETCH(double, titleHeight);
    QFETCH(int, rows);
    QFETCH(int, breakEvery);
    QFETCH(int, pages);
    const std::vector<ReportBand> bands = table(titleHeight, rows, breakEvery);
    const ReportPages laidOut = reportlayout::paginate(bands, bodyHeight);
    QCOMPARE(int(laidOut.size()), pages);

    int next = 0; // every band once and in order, but the heads repeated on later pages
    for (const auto &page : laidOut) {
        double bottom = 0;
        for (qsizetype at = 0; at < qsizetype(page.size()); ++at) {
            const ReportPlacement placement = page[at];
            QVERIFY(placement.top >= bottom);
            bottom = placement.top + bands[placement.band].height;
            QVERIFY2(bottom <= bodyHeight, "a band runs off the page");
            if (placement.band == next) {
                ++next;
                continue;
            }
            QCOMPARE(placement.band, 1);
            QCOMPARE(at, 0);
            QVERIFY(at + 1 < qsizetype(page.size()) && page[at + 1].band == next);
        }
        if (!page.empty() && page.front().band > 1)
            QFAIL("a page of rows starts without its heads");
    }
    QCOMPARE(next, int(bands.size()));
}

void TestReportLayout::lineBreaking_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("lines"); // 0: more than one
    QTest::newRow("fits") << "AAAPZ1111Z" << 0.2 << 1;
    QTest::newRow("line ends") << "Tax Deducted \n/collection Rs" << 1.0 << 2;
    QTest::newRow("words") << QString("WHOLESALE TRADERS IN GRAIN AND PULSES ").repeated(4)
                           << 0.2 << 0;
    QTest::newRow("one long word") << QString(120, QLatin1Char('W')) << 0.1 << 0;
    QTest::newRow("devanagari") << QString("राम कमल नगर ").repeated(8) << 0.2 << 0;
}

void TestReportLayout::lineBreaking()
{
    QFETCH(QString, text);
    QFETCH(double, width);
    QFETCH(int, lines);
    constexpr double bodyWidth = 500;
    std::vector<ReportBand> bands(1);
    bands[0].cells = {ReportCell(text, 0, width)};
    reportlayout::measure(bands, bodyWidth);
    const ReportCell &cell = bands[0].cells[0];
    if (lines > 0)
        QCOMPARE(cell.lines.size(), lines);
    else
        QVERIFY(cell.lines.size() > 1);
    for (const double lineWidth : cell.lineWidths)
        QVERIFY(lineWidth <= width * bodyWidth - 2 * reportlayout::cellPaddingX + 0.01);
    // Nothing is lost or doubled: only blanks and line ends go at the breaks.
    const auto letters = [](QString value) {
        return value.remove(QLatin1Char(' ')).remove(QLatin1Char('\n'));
    };
    QCOMPARE(letters(cell.lines.join(QString())), letters(text));
    QCOMPARE(bands[0].height, cell.lines.size() * reportlayout::lineHeight(ReportFont::Normal)
                                  + 2 * reportlayout::cellPaddingY);
}

// A list's columns are as wide as their texts: every line whole where the page has the room,
// else every word; the lists under the same heads line up, and each fills the page's width.
void TestReportLayout::listColumns_data()
{
    testsuite::columns<QStringList, QStringList, bool>("first", "second", "linesWhole");
    const QString name = QStringLiteral("WHOLESALE TRADERS IN GRAIN AND PULSES ");
    QTest::newRow("short texts")
        << QStringList{"1", "AABCM7788Q", "KULKARNI BUILDERS", "100000.00", "18/04/2026"}
        << QStringList{"2", "AAAPZ1111Z", "MEHTA ROADWAYS", "123456789.50", "25/04/2026"}
        << true;
    QTest::newRow("a long name")
        << QStringList{"1", "AABCM7788Q", name.repeated(6), "100000.00", "18/04/2026"}
        << QStringList{"2", "WWWWW9999W", "JOSHI", "123456789012.50", "25/04/2026"} << false;
}

void TestReportLayout::listColumns()
{
    QFETCH(QStringList, first);
    QFETCH(QStringList, second);
    QFETCH(bool, linesWhole);
    const QList<ReportColumn> columns = {{"Sr.\nNo.", 0},
                                         {"PAN", 0},
                                         {"Deductee Name", 0},
                                         {"Amount\npaid", 0, Qt::AlignRight},
                                         {"Date of\npayment", 0}};
    ReportBuilder builder;
    builder.setOrientation(QPageLayout::Landscape);
    builder.beginList(columns, true);
    builder.row(first);
    builder.text("Challan Sl. No. : 2");
    builder.beginList(columns, true);
    builder.row(second);
    const Report report = builder.finish();

    QList<double> lefts;
    for (const ReportBand &band : report.bands()) {
        if (band.list < 0)
            continue;
        QList<double> edges;
        for (const ReportCell &cell : band.cells) {
            edges.append(cell.left);
            const QStringList words = QString(cell.text).replace(u'\n', u' ').split(u' ');
            QCOMPARE(cell.lines.join(u' ').split(u' ', Qt::SkipEmptyParts),
                     QStringList(words).filter(QRegularExpression(".")));
            if (linesWhole)
                QCOMPARE(cell.lines.size(), cell.text.count(u'\n') + 1);
        }
        QVERIFY(qAbs(band.cells.last().left + band.cells.last().width - 1) < 1e-9);
        if (lefts.isEmpty())
            lefts = edges;
        QCOMPARE(edges, lefts);
    }
    QCOMPARE(lefts.size(), columns.size());
}

void TestReportLayout::indianAmount_data()
{
    QTest::addColumn<qint64>("paise");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << qint64(0) << "0.00";
    QTest::newRow("paise only") << qint64(5) << "0.05";
    QTest::newRow("hundreds") << qint64(99900) << "999.00";
    QTest::newRow("thousands") << qint64(9999900) << "99,999.00";
    QTest::newRow("lakh") << qint64(10000000) << "1,00,000.00";
    QTest::newRow("lakhs") << qint64(123456700) << "12,34,567.00";
    QTest::newRow("crores") << qint64(12345678950) << "12,34,56,789.50";
    QTest::newRow("below zero") << qint64(-10000050) << "-1,00,000.50";
}

void TestReportLayout::indianAmount()
{
    QFETCH(qint64, paise);
    QFETCH(QString, text);
    QCOMPARE(reportformat::indianAmount(Money::fromPaise(paise)), text);
}

void TestReportLayout::formatForName_data()
{
    using reportfile::Format;
    QTest::addColumn<QString>("name");
    QTest::addColumn<std::optional<Format>>("format");
    QTest::newRow("xls") << "form.xls" << std::optional(Format::Workbook);
    QTest::newRow("doc") << "form.doc" << std::optional(Format::Document);
    QTest::newRow("txt") << "form.txt" << std::optional(Format::PlainText);
    QTest::newRow("pdf") << "form.pdf" << std::optional(Format::Pdf);
    QTest::newRow("capitals are another ending") << "FORM.XLS" << std::optional<Format>();
    QTest::newRow("last three characters only") << "formxls" << std::optional(Format::Workbook);
    QTest::newRow("xlsx") << "form.xlsx" << std::optional(Format::Workbook);
    QTest::newRow("odt") << "form.odt" << std::optional(Format::Document);
    QTest::newRow("capitals of a longer ending") << "FORM.ODT" << std::optional<Format>();
    QTest::newRow("no ending") << "form" << std::optional<Format>();
}

void TestReportLayout::formatForName()
{
    QFETCH(QString, name);
    QFETCH(std::optional<reportfile::Format>, format);
    QCOMPARE(reportfile::formatForName(name), format);
}

KELVORA_TEST_OBJECT(TestReportLayout);

#include "test_reportlayout.moc"
