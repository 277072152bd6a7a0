#include "returnfile/returnfilewriter.h"
#include "statementfixtures.h"
#include "support/testsuite.h"

#include <QFile>

namespace {

/// The lines that differ, each with the number of its first differing field; a line without
/// its CR shows "<no CR>" at its end.
QString differences(const QByteArray &expected, const QByteArray &actual)
{
    const auto linesOf = [](const QByteArray &bytes) {
        QList<QByteArray> lines = bytes.split('\n');
        if (lines.last().isEmpty())
            lines.removeLast();
        for (QByteArray &line : lines)
            line = line.endsWith('\r') ? line.chopped(1) : line + "<no CR>";
        return lines;
    };
    const QList<QByteArray> want = linesOf(expected);
    const QList<QByteArray> got = linesOf(actual);
    QString report;
    for (qsizetype i = 0; i < qMax(want.size(), got.size()); ++i) {
        const QByteArray wantedLine = want.value(i, "<none>");
        const QByteArray writtenLine = got.value(i, "<none>");
        const QList<QByteArray> wanted = wantedLine.split('^');
        const QList<QByteArray> written = writtenLine.split('^');
        qsizetype field = 0;
        while (field < wanted.size() && field < written.size()
               && wanted.at(field) == written.at(field))
            ++field;
        if (wanted != written) {
            report += QStringLiteral("line %1, field %2 first differs:\n  expected: %3\n"
                                     "  written:  %4\n")
                          .arg(i + 1).arg(field + 1)
                          .arg(QString::fromLatin1(wantedLine), QString::fromLatin1(writtenLine));
        }
    }
    return report.isEmpty() ? QStringLiteral("the lines agree but the bytes do not\n") : report;
}

} // namespace

// One CTest case per fixture: the return file written for it, byte for byte.
class TestReturnFileGolden : public QObject
{
    Q_OBJECT

private slots:
    void golden_data()
    {
        QTest::addColumn<QString>("fixture");
        for (const statementfixtures::Fixture &fixture : statementfixtures::all())
            QTest::newRow(qPrintable(fixture.name)) << fixture.name;
    }
    void golden()
    {
        QFETCH(QString, fixture);
        const statementfixtures::Fixture &statement = statementfixtures::named(fixture);
        const QByteArray expected =
            contentsOf(QStringLiteral(KELVORA_GOLDEN_DIR "/%1.txt").arg(fixture));
        QVERIFY2(!expected.isEmpty(), "the golden file is missing");
        TestStore data;
        statement.build(data);
        // A file of that name from an earlier generation is replaced.
        const QString path = data.folder() + QStringLiteral("/return.txt");
        QFile earlier(path);
        QVERIFY(earlier.open(QIODevice::WriteOnly) && earlier.write(QByteArray(100000, 'x')));
        earlier.close();

        const ReturnFileSummary summary =
            writeReturnFile(data.store(), formTraits(statement.form), statementfixtures::groupId,
                            statementfixtures::basicInfoId, path, QDate(2026, 10, 15));

        const QByteArray written = contentsOf(path);
        if (written != expected)
            QFAIL(qPrintable(fixture + ".txt differs:\n" + differences(expected, written)));
        QCOMPARE(summary.challans, statement.challans);
        QCOMPARE(summary.annexureRows, statement.annexureRows);
        QCOMPARE(summary.salaryRows, statement.salaryRows);
        QCOMPARE(summary.deposited, Money::fromRupees(statement.depositedRupees));
    }
};

KELVORA_TEST_OBJECT(TestReturnFileGolden);
#include "test_returnfile_golden.moc"
