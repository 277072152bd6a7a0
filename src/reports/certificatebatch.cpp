#include "reports/certificatebatch.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/namedcompany.h"
#include "core/quarter.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/storeaccess.h"
#include "core/storeerror.h"
#include "reports/form16afiles.h"
#include "reports/form16aworktables.h"
#include "reports/reportformat.h"

#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>

namespace {

const QString program = QStringLiteral("kelvora-certificates: ");

} // namespace

std::optional<CertificateBatch::Options> CertificateBatch::parse(const QStringList &arguments,
                                                                 QString &error)
{
    QCommandLineParser parser;
    const auto option = [](const char *name, const char *value) {
        return QCommandLineOption(QLatin1String(name), {}, QLatin1String(value));
    };
    const QList<QCommandLineOption> options = {
        option("store", "PATH"),        option("form", "FORM"),
        option("quarter", "Q"),         option("company", "ID_OR_TAN"),
        option("output", "DIR"),        option("deductee", "NAME_OR_PAN"),
        option("acknowledgement", "NO"), option("place", "TEXT"),
        option("date", "TEXT"),         option("name", "TEXT"),
        option("designation", "TEXT"),  option("remarks", "TEXT"),
        option("wait", "SECONDS"),
    };
    parser.addOptions(options);
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return std::nullopt;
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = QStringLiteral("unexpected argument: %1")
                    .arg(parser.positionalArguments().first());
        return std::nullopt;
    }
    const auto value = [&](int index) { return parser.value(options[index]).trimmed(); };
    Options result;
    result.storePath = parser.value(options[0]);
    result.formType = value(1).toUpper();
    result.quarter = value(2).toUpper();
    result.company = value(3);
    result.output = parser.value(options[4]);
    result.deductee = value(5);
    result.inputs = {value(6), value(7), value(8), value(9), value(10), value(11)};
    bool waitRead = true;
    if (parser.isSet(options[12]))
        result.waitSeconds = value(12).toInt(&waitRead);

    const FormTraits *form = findForm(result.formType);
    if (result.storePath.isEmpty())
        error = QStringLiteral("--store is required");
    else if (!form || !form->challanHasSection())
        error = QStringLiteral("--form must be 26Q, 27Q or 27EQ");
    else if (!quarter::isCode(result.quarter))
        error = QStringLiteral("--quarter must be Q1, Q2, Q3 or Q4");
    else if (result.company.isEmpty())
        error = QStringLiteral("--company is required");
    else if (result.output.trimmed().isEmpty())
        error = QStringLiteral("--output is required");
    else if (parser.isSet(options[5]) && result.deductee.isEmpty())
        error = QStringLiteral("--deductee needs a name or a PAN");
    else if (!waitRead || result.waitSeconds < 0)
        error = QStringLiteral("--wait takes a number of seconds");
    if (!error.isEmpty())
        return std::nullopt;
    return result;
}

QString CertificateBatch::usage()
{
    return QStringLiteral(
        "usage: kelvora-certificates --store PATH --form FORM --quarter Q --company ID_OR_TAN\n"
        "           --output DIR [--deductee NAME_OR_PAN] [--acknowledgement NO] [--place TEXT]\n"
        "           [--date TEXT] [--name TEXT] [--designation TEXT] [--remarks TEXT]\n"
        "           [--wait SECONDS]\n"
        "Writes the Form 16A certificates of a company's quarter, one PDF per deductee.\n"
        "FORM is 26Q, 27Q or 27EQ; Q is Q1 to Q4. The optional texts are printed on every\n"
        "certificate as the screen prints its six boxes. A store in use by another program is\n"
        "waited for, 30 seconds unless --wait says.\n"
        "Exit status: 0 written, 1 nothing to certify or no such company, 2 usage,\n"
        "3 the data store or the output folder failed.\n");
}

CertificateBatch::CertificateBatch(QTextStream &out, QTextStream &err) : m_out(out), m_err(err)
{
}

int CertificateBatch::run(const Options &options)
{
    const FormTraits *form = findForm(options.formType);
    if (!form || !form->challanHasSection())
        return fail(UsageError, QStringLiteral("--form must be 26Q, 27Q or 27EQ"));
    try {
        // Under the store's lock, brought up to date as the program's start would: the work
        // tables of the certificates are written.
        const OpenedStore opened =
            storeaccess::openForBatch(options.storePath, storeaccess::Access::Write,
                                      std::chrono::seconds(options.waitSeconds));
        const DataStore &store = *opened.store;
        Session session(*opened.store);
        startup::prepareStore(session);
        QString error;
        const std::optional<int> compId =
            namedCompany(store, session.asstId, options.company, error);
        if (!compId)
            return fail(NothingToCertify, error);
        const int groupId =
            store.scalar(QStringLiteral("SELECT GroupID FROM mstCompany WHERE CompID = ?"),
                         {*compId})
                .toInt();

        const Form16AWorkTables tables(store);
        tables.prepare();
        tables.fill(*form);
        QList<int> ids;
        for (const Form16AWorkTables::Deductee &deductee :
             tables.deductees(*compId, options.quarter, options.deductee))
            ids << deductee.id;
        Form16AHeading heading{form16APeriod(options.quarter, session.asstFaYearStart),
                               options.inputs, form->collectsTax};
        Form16AFiles files(tables, heading);
        const Form16AFiles::Outcome outcome = files.write(
            options.output, *compId, options.quarter, ids, groupId,
            [this](const Form16AFiles::Written &written) {
                m_out << QDir::toNativeSeparators(written.path) << '\t' << written.certificates
                      << (written.certificates == 1 ? " certificate\t" : " certificates\t")
                      << reportformat::indianAmount(written.total) << '\n';
                return true;
            });
        if (!outcome.error.isEmpty())
            return fail(StoreOrFileError, outcome.error);
        if (outcome.written == 0) {
            return fail(NothingToCertify,
                        options.deductee.isEmpty()
                            ? QStringLiteral("nothing to certify for company %1 in %2 of %3")
                                  .arg(options.company, options.quarter, options.formType)
                            : QStringLiteral("nothing to certify for %1 in %2 of %3")
                                  .arg(options.deductee, options.quarter, options.formType));
        }
        m_out << outcome.written << (outcome.written == 1 ? " file" : " files") << " written\n";
        m_out.flush();
        return Written;
    } catch (const StoreError &error) {
        return fail(StoreOrFileError, error.description());
    }
}

int CertificateBatch::fail(int status, const QString &message)
{
    m_out.flush();
    m_err << program << message << '\n';
    m_err.flush();
    return status;
}
