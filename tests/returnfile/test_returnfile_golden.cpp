#include "returnfile/returnfilewriter.h"
#include "statementfixtures.h"
#include "support/teststore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

/// Lines without their CR LF; a line end of another kind stays visible in the last field.
QList<QByteArray> linesOf(const QByteArray &bytes)
{
    QList<QByteArray> lines = bytes.split('\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    for (QByteArray &line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
        else
            line.append("<no CR>");
    }
    return lines;
}

/// The differing lines, each with the number of its first differing field.
QString differences(const QByteArray &expected, const QByteArray &actual)
{
    const QList<QByteArray> want = linesOf(expected);
    const QList<QByteArray> got = linesOf(actual);
    QString report;
    for (qsizetype i = 0; i < qMax(want.size(), got.size()); ++i) {
        const QByteArray wanted = i < want.size() ? want.at(i) : QByteArray("<none>");
        const QByteArray written = i < got.size() ? got.at(i) : QByteArray("<none>");
        if (wanted == written)
            continue;
        const QList<QByteArray> wantedFields = wanted.split('^');
        const QList<QByteArray> writtenFields = written.split('^');
        qsizetype field = 0;
        while (field < wantedFields.size() && field < writtenFields.size()
               && wantedFields.at(field) == writtenFields.at(field))
            ++field;
        report += QStringLiteral("line %1, field %2 first differs:\n"
                                 "  expected: %3\n  written:  %4\n")
                      .arg(i + 1)
                      .arg(field + 1)
                      .arg(QString::fromLatin1(wanted), QString::fromLatin1(written));
    }
    if (report.isEmpty())
        report = QStringLiteral("the lines agree but the bytes do not (line ends?)\n");
    return report;
}

} // namespace

class TestReturnFileGolden : public QObject
{
    Q_OBJECT

private slots:
    void golden_data();
    void golden();
};

void TestReturnFileGolden::golden_data()
{
    QTest::addColumn<QString>("fixture");
    for (const statementfixtures::Fixture &fixture : statementfixtures::all())
        QTest::newRow(qPrintable(fixture.name)) << fixture.name;
}

void TestReturnFileGolden::golden()
{
    QFETCH(QString, fixture);
    const statementfixtures::Fixture &statement = statementfixtures::named(fixture);
    const QByteArray expected =
        contentsOf(QStringLiteral(KELVORA_GOLDEN_DIR "/%1.txt").arg(fixture));
    QVERIFY2(!expected.isEmpty(), "the golden file is missing");

    TestStore testStore;
    statement.build(testStore.store());
    const QString path = testStore.folder() + QStringLiteral("/return.txt");
    {
        // A file of that name from an earlier generation is replaced.
        QFile earlier(path);
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        earlier.write(QByteArray(100000, 'x'));
    }

    const ReturnFileSummary summary =
        writeReturnFile(testStore.store(), formTraits(statement.form),
                        statementfixtures::basicInfoId, path, QDate(2026, 10, 15));

    const QByteArray written = contentsOf(path);
    if (written != expected)
        QFAIL(qPrintable(QStringLiteral("%1.txt differs from the written file:\n%2")
                             .arg(fixture, differences(expected, written))));
    QCOMPARE(summary.challans, statement.challans);
    QCOMPARE(summary.annexureRows, statement.annexureRows);
    QCOMPARE(summary.salaryRows, statement.salaryRows);
    QCOMPARE(summary.deposited, Money::fromRupees(statement.depositedRupees));
}

QTEST_GUILESS_MAIN(TestReturnFileGolden)
#include "test_returnfile_golden.moc"
