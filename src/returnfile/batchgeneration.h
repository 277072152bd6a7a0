#pragma once

#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

class DataStore;
class QTextStream;
struct FormTraits;

/**
 * The batch front end: the return files of saved Statements, without a screen. The command line
 * is the user's confirmation; each Statement goes through the same checks, log row and writer as
 * on its statement screen, and each gives one line: a written file on the output stream, a
 * refusal or a failure on the error stream. The pre-filing check runs before each file, and on
 * its own with --check, which writes nothing. The store is used under its lock, as the program
 * uses it.
 */
class BatchGeneration
{
public:
    /// The program's exit status; of several Statements, the highest. With --check, 0 is a
    /// Statement without errors and 1 one with errors.
    enum Status { AllWritten = 0, Refused = 1, UsageError = 2, StoreFailure = 3 };

    /// How long a run waits for a store that another program holds, unless told.
    static constexpr int defaultWaitSeconds = 30;

    struct Options
    {
        QString storePath;
        QString formType; ///< "24Q", "26Q", "27Q" or "27EQ"
        QString quarter;  ///< "Q1" to "Q4"
        QString company;  ///< CompID, or the TAN
        QString output;   ///< the file to write instead of the usual name; one Statement only
        bool all = false;
        int waitSeconds = defaultWaitSeconds;
        bool check = false;  ///< check only: print the findings, write no file and no log
        bool strict = false; ///< refuse a Statement in which the check finds errors
        QDate filedOn{};     ///< the check's filing date; today when invalid

        QDate filingDate(const QDateTime &now) const
        {
            return filedOn.isValid() ? filedOn : now.date();
        }
    };

    /// Reads the arguments (the program's name first); on a usage error returns none and puts
    /// the reason in @p error. --help is the caller's.
    static std::optional<Options> parse(const QStringList &arguments, QString &error);

    /// The usage text, for --help and after a usage error.
    static QString usage();

    BatchGeneration(QTextStream &out, QTextStream &err);

    /// Generates what the options ask and returns the exit status.
    int run(const Options &options, const QDateTime &now);

private:
    struct Target
    {
        int basicInfoId = 0;
        int compId = 0;
    };

    Status generateOne(const DataStore &store, const FormTraits &form, const Options &options,
                       const Target &target, const QDateTime &now);
    Status checkOne(const DataStore &store, const FormTraits &form, const Options &options,
                    const Target &target, const QDateTime &now);
    /// "NAME (company N, TAN T)", as far as the store tells.
    static QString companyText(const DataStore &store, int compId);
    /// Tells why a Statement gave no file, on the error stream; returns @p status.
    Status refuse(const DataStore &store, int compId, const QString &message,
                  Status status = Refused);

    QTextStream &m_out;
    QTextStream &m_err;
    QSet<QString> m_written; ///< files of this run, so that two companies never share one
};
