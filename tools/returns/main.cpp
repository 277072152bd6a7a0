// Generates the return files of saved Statements from the command line, for offices that file
// many deductors' returns each quarter. The command itself is the confirmation.

#include "returnfile/batchgeneration.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kelvora-returns"));

    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h"))) {
        out << BatchGeneration::usage();
        return BatchGeneration::AllWritten;
    }

    QString error;
    const std::optional<BatchGeneration::Options> options =
        BatchGeneration::parse(arguments, error);
    if (!options) {
        err << "kelvora-returns: " << error << '\n' << BatchGeneration::usage();
        return BatchGeneration::UsageError;
    }
    BatchGeneration batch(out, err);
    return batch.run(*options, QDateTime::currentDateTime());
}
