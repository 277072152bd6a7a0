// Writes Form 16A certificates from the command line, one PDF per deductee, for offices that
// send each deductee its own certificate. Renders offscreen; no display is needed.

#include "reports/certificatebatch.h"

#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    // Laying out the certificates needs fonts, which a graphical application provides.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("kelvora-certificates"));

    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h"))) {
        out << CertificateBatch::usage();
        return CertificateBatch::Written;
    }

    QString error;
    const std::optional<CertificateBatch::Options> options =
        CertificateBatch::parse(arguments, error);
    if (!options) {
        err << "kelvora-certificates: " << error << '\n' << CertificateBatch::usage();
        return CertificateBatch::UsageError;
    }
    CertificateBatch batch(out, err);
    return batch.run(*options);
}
