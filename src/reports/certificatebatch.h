#pragma once

#include "reports/form16adocument.h"

#include <QStringList>
#include <optional>

class QTextStream;

/**
 * The certificates front end: a company's Form 16A of one quarter as one PDF per deductee,
 * without a screen, for offices that send each deductee its certificate on its own. Each file
 * gives one line of output and a closing line counts them; messages go to standard error.
 */
class CertificateBatch
{
public:
    /// The program's exit status.
    enum Status { Written = 0, NothingToCertify = 1, UsageError = 2, StoreOrFileError = 3 };

    struct Options
    {
        QString storePath;
        QString formType; ///< "26Q", "27Q" or "27EQ"
        QString quarter;  ///< "Q1" to "Q4"
        QString company;  ///< CompID, or the TAN
        QString output;   ///< the folder of the PDFs
        QString deductee; ///< one deductee's name or PAN; empty for all
        Form16AInputs inputs;
        int waitSeconds = 30; ///< how long a store in use by another program is waited for
    };

    /// Reads the arguments (the program's name first); on a usage error returns none and puts
    /// the reason in @p error. --help is the caller's.
    static std::optional<Options> parse(const QStringList &arguments, QString &error);

    /// The usage text, for --help and after a usage error.
    static QString usage();

    CertificateBatch(QTextStream &out, QTextStream &err);

    /// Writes what the options ask for and returns the exit status.
    int run(const Options &options);

private:
    int fail(int status, const QString &message);

    QTextStream &m_out;
    QTextStream &m_err;
};
