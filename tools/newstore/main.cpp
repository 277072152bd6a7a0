// Makes a fresh data store for one financial year, seeded with the authority's reference lists.
// The program's first start brings it up to the current layout.

#include "core/freshstore.h"
#include "core/storeerror.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDate>
#include <QFileInfo>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelvora-newstore"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Creates a fresh Kelvora data store; an existing file is never touched."));
    parser.addHelpOption();
    const QCommandLineOption yearOption(
        QStringLiteral("year"),
        QStringLiteral("First calendar year of the financial year (default: the one of today)."),
        QStringLiteral("YYYY"));
    const QCommandLineOption ifMissingOption(
        QStringLiteral("if-missing"),
        QStringLiteral("Do nothing, successfully, when the file is already there."));
    parser.addOption(yearOption);
    parser.addOption(ifMissingOption);
    parser.addPositionalArgument(QStringLiteral("path"), QStringLiteral("The store to create."));
    parser.process(app);

    QTextStream err(stderr);
    const QStringList paths = parser.positionalArguments();
    if (paths.size() != 1) {
        err << "usage: kelvora-newstore [--year YYYY] [--if-missing] PATH\n";
        return 2;
    }
    const QString path = paths.first();
    if (parser.isSet(ifMissingOption) && QFileInfo::exists(path))
        return 0;

    int year = freshstore::financialYearOf(QDate::currentDate());
    if (parser.isSet(yearOption)) {
        bool ok = false;
        year = parser.value(yearOption).toInt(&ok);
        if (!ok || year < 2000 || year > 2999) {
            err << "kelvora-newstore: the year must be four digits, such as 2026\n";
            return 2;
        }
    }
    try {
        freshstore::create(path, year);
    } catch (const StoreError &error) {
        err << "kelvora-newstore: " << error.description() << '\n';
        return 3;
    }
    QTextStream(stdout) << "Created " << path << " for the financial year " << year << '-'
                        << QString::number(year + 1).right(2) << '\n';
    return 0;
}
