// Makes a fresh data store for one financial year, seeded with the authority's reference lists.
// The program's first start brings it up to the current layout.

#include "core/freshstore.h"
#include "core/storeerror.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDate>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextStream>

namespace {

const QString usage =
    QStringLiteral("usage: kelvora-newstore [--year YYYY] [--if-missing] PATH\n");

// A store is made for a financial year of the authority's returns, which began in this century.
constexpr int firstYear = 2000;
constexpr int lastYear = 2099;

enum Status { Made = 0, UsageError = 2, StoreFailure = 3 };

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelvora-newstore"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Creates a fresh Kelvora data store; an existing file is never touched."));
    const QCommandLineOption helpOption = parser.addHelpOption();
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

    QTextStream err(stderr);
    const auto usageError = [&err](const QString &why) {
        err << "kelvora-newstore: " << why << '\n' << usage;
        return UsageError;
    };
    if (!parser.parse(QCoreApplication::arguments()))
        return usageError(parser.errorText());
    if (parser.isSet(helpOption))
        parser.showHelp(Made);
    const QStringList paths = parser.positionalArguments();
    if (paths.size() != 1) {
        return usageError(paths.isEmpty() ? QStringLiteral("the store to create is missing")
                                          : QStringLiteral("one store at a time"));
    }
    const QString path = paths.first();
    if (parser.isSet(ifMissingOption) && QFileInfo::exists(path))
        return Made;

    int year = freshstore::financialYearOf(QDate::currentDate());
    if (parser.isSet(yearOption)) {
        const QString text = parser.value(yearOption);
        static const QRegularExpression fourDigits(QStringLiteral("^[0-9]{4}$"));
        if (!fourDigits.match(text).hasMatch()) {
            return usageError(
                QStringLiteral("the year must be four digits, such as 2026, not \"%1\"")
                    .arg(text));
        }
        year = text.toInt();
        if (year < firstYear || year > lastYear) {
            return usageError(QStringLiteral("the year %1 is out of range: give a year from %2 "
                                             "to %3")
                                  .arg(year)
                                  .arg(firstYear)
                                  .arg(lastYear));
        }
    }
    try {
        freshstore::create(path, year);
    } catch (const StoreError &error) {
        err << "kelvora-newstore: " << error.description() << '\n';
        return StoreFailure;
    }
    QTextStream(stdout) << "Created " << path << " for the financial year " << year << '-'
                        << QString::number(year + 1).right(2) << '\n';
    return Made;
}
