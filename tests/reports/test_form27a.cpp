#include "reportsstore.h"

#include "reports/reportfile.h"
#include "returnfile/form27a.h"
#include "support/testsuite.h"

#include <QDir>
#include <QDirIterator>
#include <QXmlStreamReader>
#include <QtTest>

Q_DECLARE_METATYPE(FormKind)
Q_DECLARE_METATYPE(reportfile::Format)

namespace {

/// The panel of company 1's 26Q screen in the second quarter, every field told apart.
Form27AValues panel(FormKind form = FormKind::Form26Q, const QString &compId = "1")
{
    Form27AValues values;
    values.form = form;
    values.compId = compId;
    values.quarterFrom = "01/07/2026";
    values.quarterTo = "30/09/2026";
    values.tan = "CALZ12345A";
    values.pan = "AAACZ1234A";
    values.financialYear = "202627";
    values.assessmentYear = assessmentYear;
    values.revisedReceiptNo = "0";
    values.compName = trickyName;
    values.branch = "SALT LAKE BRANCH";
    values.deductorType = "COMPANY";
    values.email = "tds@zeta.in";
    values.address = {"1 ZETA HOUSE", "ZETA TOWER", "MG ROAD", "BOWBAZAR", "KOLKATA"};
    values.state = "WEST BENGAL";
    values.pincode = "700001";
    values.phone = "03322223333";
    values.personName = "RAVI KUMAR";
    values.designation = "DIRECTOR";
    values.personEmail = "ravi@zeta.in";
    values.totalAmountPaid = "1234567.5";
    values.totalTds = "12345.75";
    values.totalDeposited = "5";
    values.annexures = "2";
    values.otherInformation = "NIL";
    values.deductees = "14";
    return values;
}

/// The texts of an XML document's elements, one after another.
QString xmlText(const QByteArray &xml)
{
    QString text;
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::Characters)
            text += reader.text().toString() + QLatin1Char('\n');
    }
    return reader.hasError() ? QStringLiteral("unreadable: ") + reader.errorString() : text;
}


} // namespace

class TestForm27A : public QObject
{
    Q_OBJECT

private slots:
    void sheetInOrder_data();
    void sheetInOrder();
    void lastGeneration_data();
    void lastGeneration();
    void previousReceipt_data();
    void previousReceipt();
    void exports_data();
    void exports();
    void unwritablePlaces_data();
    void unwritablePlaces();
};

void TestForm27A::sheetInOrder_data()
{
    QTest::addColumn<FormKind>("form");
    QTest::addColumn<QString>("compId");
    QTest::addColumn<QStringList>("variable"); // heading, form number, the person's address
    QTest::newRow("26Q") << FormKind::Form26Q << "1"
                         << QStringList{"FORM NO. 27A", "26Q", "9 LAKE VIEW", "MAHARASHTRA"};
    QTest::newRow("27EQ is Form 27B")
        << FormKind::Form27EQ << "3"
        << QStringList{"Form No. 27 B", "27EQ", "5 MARINE DRIVE", "RAJASTHAN"};
}

void TestForm27A::sheetInOrder()
{
    QFETCH(FormKind, form);
    QFETCH(QString, compId);
    QFETCH(QStringList, variable);
    const std::optional<Report> sheet = form27a::build(reportsStore().store(), panel(form, compId));
    QVERIFY(sheet);
    QCOMPARE(sheet->caption(), "Form 27A");
    expectInOrder(sheet->text(), {
        variable[0], "[See rule 37B]", "From for furnishing information with the return or "
        "statement of deduction of tax at source filed on computer media", "From :",
        "01/07/2026", "To :", "30/09/2026", "(a) Tax Deduction Account Number\tCALZ12345A",
        "(b) Permanent Account Number\tAAACZ1234A", "(c) Form No.\t" + variable[1],
        "(d) Financial Year\t202627", "(e) Assesment Year\t202728",
        "(e) Previous receipt number", "2.     Particulers of the  deductor/Collector",
        "(a) Name Of Organisation\t" + trickyName, "SALT LAKE BRANCH", "COMPANY", "tds@zeta.in",
        "(d) Address\t1 ZETA HOUSE", "Name of Premises / Building\tZETA TOWER",
        "Road / Street / Lane\tMG ROAD", "Area / Locality\tBOWBAZAR",
        "Town / District / City\tKOLKATA", "State\tWEST BENGAL", "PIN\t700001",
        "Phone\t03322223333", "(a) Name\tRAVI KUMAR", "DIRECTOR", "(d) Address\t" + variable[2],
        "State\t" + variable[3], "PIN\t700016", "Phone\t03344445555", "ravi@zeta.in",
        " 4. Control Totals", "Sr.No.", "Total Amount Paid", "Tax Deducted ", "/collection Rs",
        "Tax Deposited", "(Total challan amount)Rs",
        variable[1] + "\t1234567.50\t12345.75\t05.00",
        " 5. Total Number of Annexures enclosed\t2", "NIL", "14", "Verification",
        "I, ....................................................... certify that all the "
        "particulars furnished above are correct and complete.", "Place :", "Date :",
        "Name and signature of the person responsible", " for deducting  tax at source ",
        "Designation"});
}

void TestForm27A::lastGeneration_data()
{
    QTest::addColumn<FormKind>("form");
    QTest::addColumn<QString>("compId");
    QTest::addColumn<QString>("year");
    QTest::addColumn<bool>("found");
    // The log has 26Q of company 1 and 27EQ of company 3, in 202728.
    QTest::newRow("generated, any quarter") << FormKind::Form26Q << "1" << "202728" << true;
    QTest::newRow("year in blanks") << FormKind::Form26Q << "1" << " 202728 " << true;
    QTest::newRow("id read as a number") << FormKind::Form26Q << "1 " << "202728" << true;
    QTest::newRow("another year") << FormKind::Form26Q << "1" << "202829" << false;
    QTest::newRow("another form") << FormKind::Form24Q << "1" << "202728" << false;
    QTest::newRow("another company") << FormKind::Form26Q << "2" << "202728" << false;
    QTest::newRow("no company") << FormKind::Form26Q << "" << "202728" << false;
}

void TestForm27A::lastGeneration()
{
    QFETCH(FormKind, form);
    QFETCH(QString, compId);
    QFETCH(QString, year);
    QFETCH(bool, found);
    Form27AValues values = panel(form, compId);
    values.assessmentYear = year;
    QCOMPARE(form27a::build(reportsStore().store(), values).has_value(), found);
}

void TestForm27A::previousReceipt_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("zero") << "0" << "";
    QTest::newRow("zeros") << "000" << "";
    QTest::newRow("empty") << "" << "";
    QTest::newRow("a number") << "12345678901234" << "12345678901234";
}

void TestForm27A::previousReceipt()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    Form27AValues values = panel();
    values.revisedReceiptNo = typed;
    const QString text = form27a::sheet(values, {}).text();
    QVERIFY(text.contains("(e) Previous receipt number\t" + shown + "\n"));
}

void TestForm27A::exports_data()
{
    QTest::addColumn<reportfile::Format>("format");
    QTest::addColumn<QString>("member"); // the part of a zip-based file that holds the texts
    QTest::newRow("workbook") << reportfile::Format::Workbook << "xl/sharedStrings.xml";
    QTest::newRow("document") << reportfile::Format::Document << "content.xml";
    QTest::newRow("plain text") << reportfile::Format::PlainText << "";
    QTest::newRow("pdf") << reportfile::Format::Pdf << "";
}

void TestForm27A::exports()
{
    QFETCH(reportfile::Format, format);
    QFETCH(QString, member);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("form27a"));
    QCOMPARE(reportfile::save(form27a::sheet(panel(), {}), format, path), QString());

    QString text;
    if (!member.isEmpty()) {
        text = xmlText(zipMember(path, member));
    } else if (format == reportfile::Format::Pdf) {
        if (!canReadPdf())
            QSKIP("pdftotext (poppler-utils) is not installed");
        text = pdfText(path);
    } else {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        text = QString::fromUtf8(file.readAll());
    }
    expectInOrder(text, {"FORM NO. 27A", "CALZ12345A", trickyName, "WEST BENGAL",
                         "Total Amount Paid"});
    if (format == reportfile::Format::Workbook) {
        // Amounts stay numbers that a spreadsheet can add up.
        QVERIFY(zipMember(path, "xl/worksheets/sheet1.xml").contains("<v>1234567.5</v>"));
    } else {
        expectInOrder(text, {"1234567.50", "12345.75", "05.00"});
    }
}

void TestForm27A::unwritablePlaces_data()
{
    QTest::addColumn<reportfile::Format>("format");
    QTest::addColumn<QString>("place"); // under the test's folder
    QTest::newRow("pdf in a missing folder") << reportfile::Format::Pdf << "missing/f.pdf";
    QTest::newRow("workbook below a file") << reportfile::Format::Workbook << "file/f.xls";
    QTest::newRow("document onto a folder") << reportfile::Format::Document << "folder";
    QTest::newRow("text in a read-only folder") << reportfile::Format::PlainText
                                                << "readonly/f.txt";
}

void TestForm27A::unwritablePlaces()
{
    QFETCH(reportfile::Format, format);
    QFETCH(QString, place);
    QTemporaryDir folder;
    QDir root(folder.path());
    QVERIFY(root.mkdir("folder") && root.mkdir("readonly"));
    QFile blocker(root.filePath("file"));
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    QFile(root.filePath("readonly"))
        .setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    if (place.startsWith("readonly") && QFileInfo(root.filePath("readonly")).isWritable())
        QSKIP("this user writes in read-only folders");
    const auto contents = [&root] {
        QStringList all;
        QDirIterator it(root.path(), QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            all.append(it.next());
        return all;
    };
    const QStringList before = contents();

    const QString message = reportfile::save(form27a::sheet(panel(), {}), format,
                                             root.filePath(place));
    QVERIFY2(message.contains(QDir::toNativeSeparators(root.filePath(place))),
             qPrintable(message));
    QCOMPARE(contents(), before);
}

KELVORA_TEST_OBJECT(TestForm27A);

#include "test_form27a.moc"
