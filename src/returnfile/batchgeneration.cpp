#include "returnfile/batchgeneration.h"

#include "core/datastore.h"
#include "core/messageboxes.h"
#include "core/namedcompany.h"
#include "core/quarter.h"
#include "core/records.h"
#include "core/startup.h"
#include "core/storeaccess.h"
#include "core/storeerror.h"
#include "core/formtraits.h"
#include "filingcheck/filingcheck.h"
#include "returnfile/checklines.h"
#include "returnfile/controltotals.h"
#include "returnfile/generationflow.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QSqlQuery>
#include <QTextStream>

namespace {

// One data store holds one assessment period, always the first row of mstAssessment.
constexpr int asstId = 1;

/// The command line is the confirmation, and failures come back in the result: nothing to show.
class QuietBoxes : public MessageBoxes
{
public:
    Answer show(const Message &) override { return Answer::Ok; }
};

} // namespace

std::optional<BatchGeneration::Options> BatchGeneration::parse(const QStringList &arguments,
                                                               QString &error)
{
    QCommandLineParser parser;
    const QCommandLineOption store(QStringLiteral("store"), {}, QStringLiteral("PATH"));
    const QCommandLineOption form(QStringLiteral("form"), {}, QStringLiteral("FORM"));
    const QCommandLineOption quarter(QStringLiteral("quarter"), {}, QStringLiteral("Q"));
    const QCommandLineOption company(QStringLiteral("company"), {}, QStringLiteral("ID_OR_TAN"));
    const QCommandLineOption output(QStringLiteral("output"), {}, QStringLiteral("FILE"));
    const QCommandLineOption all(QStringLiteral("all"));
    const QCommandLineOption wait(QStringLiteral("wait"), {}, QStringLiteral("SECONDS"));
    const QCommandLineOption check(QStringLiteral("check"));
    const QCommandLineOption strict(QStringLiteral("strict"));
    const QCommandLineOption filedOn(QStringLiteral("filed-on"), {}, QStringLiteral("DATE"));
    parser.addOptions({store, form, quarter, company, output, all, wait, check, strict, filedOn});
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return std::nullopt;
    }
    if (!parser.positionalArguments().isEmpty()) {
        error = QStringLiteral("unexpected argument: %1")
                    .arg(parser.positionalArguments().first());
        return std::nullopt;
    }

    Options options;
    options.storePath = parser.value(store);
    options.formType = parser.value(form).trimmed().toUpper();
    options.quarter = parser.value(quarter).trimmed().toUpper();
    options.company = parser.value(company).trimmed();
    options.output = parser.value(output);
    options.all = parser.isSet(all);
    bool waitRead = true;
    if (parser.isSet(wait))
        options.waitSeconds = parser.value(wait).toInt(&waitRead);
    options.check = parser.isSet(check);
    options.strict = parser.isSet(strict);
    if (parser.isSet(filedOn))
        options.filedOn = QDate::fromString(parser.value(filedOn), QStringLiteral("dd/MM/yyyy"));

    if (options.storePath.isEmpty())
        error = QStringLiteral("--store is required");
    else if (!findForm(options.formType))
        error = QStringLiteral("--form must be 24Q, 26Q, 27Q or 27EQ");
    else if (!quarter::isCode(options.quarter))
        error = QStringLiteral("--quarter must be Q1, Q2, Q3 or Q4");
    else if (options.all == !options.company.isEmpty())
        error = QStringLiteral("give either --company or --all");
    else if (options.all && parser.isSet(output))
        error = QStringLiteral("--output names one file and cannot go with --all");
    else if (parser.isSet(output) && options.output.trimmed().isEmpty())
        error = QStringLiteral("--output needs a file name");
    else if (!waitRead || options.waitSeconds < 0)
        error = QStringLiteral("--wait takes a number of seconds");
    else if (parser.isSet(filedOn) && !options.filedOn.isValid())
        error = QStringLiteral("--filed-on takes a date as DD/MM/YYYY");
    else if (options.check && parser.isSet(output))
        error = QStringLiteral("--check writes no file and cannot go with --output");
    else if (options.check && options.strict)
        error = QStringLiteral("--strict refuses a file and cannot go with --check");
    if (!error.isEmpty())
        return std::nullopt;
    return options;
}

QString BatchGeneration::usage()
{
    return QStringLiteral(
        "usage: kelvora-returns --store PATH --form FORM --quarter Q --company ID_OR_TAN\n"
        "       [--output FILE] [--strict] [--filed-on DATE] [--wait SECONDS]\n"
        "       kelvora-returns --store PATH --form FORM --quarter Q --all [--strict]\n"
        "       [--filed-on DATE] [--wait SECONDS]\n"
        "       kelvora-returns --check --store PATH --form FORM --quarter Q\n"
        "       (--company ID_OR_TAN | --all) [--filed-on DATE] [--wait SECONDS]\n"
        "Writes the return file of each saved Statement asked for and logs the generation.\n"
        "FORM is 24Q, 26Q, 27Q or 27EQ; Q is Q1 to Q4. Files go to eReturns beside the store.\n"
        "The pre-filing check runs first: the number of its errors goes to standard error,\n"
        "and --strict refuses a Statement with errors. --check prints the findings, the\n"
        "interest under section 201(1A) and the late fee under section 234E as of the filing\n"
        "date (DD/MM/YYYY, today unless --filed-on says), and writes nothing.\n"
        "A store in use by another program is waited for, 30 seconds unless --wait says.\n"
        "Exit status: 0 every file written (with --check: no error found), 1 a Statement\n"
        "refused (errors found), 2 usage error, 3 store or file-system failure.\n");
}

BatchGeneration::BatchGeneration(QTextStream &out, QTextStream &err) : m_out(out), m_err(err) {}

int BatchGeneration::run(const Options &options, const QDateTime &now)
{
    const FormTraits *form = findForm(options.formType);
    if (!form) {
        m_err << "kelvora-returns: --form must be 24Q, 26Q, 27Q or 27EQ\n";
        return UsageError;
    }

    OpenedStore opened;
    QList<Target> targets;
    try {
        // Under the store's lock, brought up to date and with its folder of returns, as the
        // program's start leaves it.
        opened = storeaccess::openForBatch(
            options.storePath,
            options.check ? storeaccess::Access::Read : storeaccess::Access::Write,
            std::chrono::seconds(options.waitSeconds));
        const DataStore &store = *opened.store;
        if (!options.check)
            startup::createReturnsFolder(store.folder());

        const QString statements =
            QStringLiteral("SELECT BasicIfoID, CompID FROM %1 WHERE AsstID = ? AND Quarter = ?")
                .arg(form->basicInfoTable);
        QSqlQuery query;
        if (options.all) {
            query = store.exec(statements + QStringLiteral(" ORDER BY BasicIfoID"),
                               {asstId, options.quarter});
        } else {
            QString error;
            const std::optional<int> compId = namedCompany(store, asstId, options.company, error);
            if (!compId) {
                m_err << "kelvora-returns: " << error << '\n';
                return UsageError;
            }
            query = store.exec(statements + QStringLiteral(" AND CompID = ?"),
                               {asstId, options.quarter, *compId});
            if (!query.next())
                return refuse(store, *compId, GenerationFlow::notSavedText);
            targets.append({query.value(0).toInt(), *compId});
        }
        while (options.all && query.next())
            targets.append({query.value(0).toInt(), query.value(1).toInt()});
        query.finish();
    } catch (const StoreError &error) {
        m_err << "kelvora-returns: " << error.description() << '\n';
        return StoreFailure;
    }

    QMap<Status, int> counts;
    for (const Target &target : targets) {
        ++counts[options.check ? checkOne(*opened.store, *form, options, target, now)
                               : generateOne(*opened.store, *form, options, target, now)];
    }
    if (options.all && options.check) {
        m_out << "checked " << counts.value(AllWritten) + counts.value(Refused)
              << ", with errors " << counts.value(Refused) << ", failed "
              << counts.value(StoreFailure) << '\n';
    } else if (options.all) {
        m_out << "generated " << counts.value(AllWritten) << ", refused "
              << counts.value(Refused) << ", failed " << counts.value(StoreFailure) << '\n';
    }
    m_out.flush();
    return counts.value(StoreFailure) > 0 ? StoreFailure
           : counts.value(Refused) > 0    ? Refused
                                          : AllWritten;
}

BatchGeneration::Status BatchGeneration::generateOne(const DataStore &store,
                                                     const FormTraits &form,
                                                     const Options &options,
                                                     const Target &target, const QDateTime &now)
{
    try {
        QSqlQuery statement = store.exec(
            QStringLiteral("SELECT NoDeductee, NoChallan FROM %1 WHERE BasicIfoID = ?")
                .arg(form.basicInfoTable),
            {target.basicInfoId});
        statement.next();

        // The saved Statement stands for the screen: its declared counts, and the table's rows
        // for the lists, none of which is open.
        GenerationRequest request;
        request.groupId = store.scalar(QStringLiteral("SELECT GroupID FROM mstCompany "
                                                      "WHERE CompID = ?"),
                                       {target.compId})
                              .toInt();
        request.compId = target.compId;
        request.quarter = options.quarter;
        request.basicInfoId = QString::number(target.basicInfoId);
        request.declaredDeductees = records::nullToText(statement.value(0));
        request.declaredChallans = records::nullToText(statement.value(1));
        request.listedAnnexureRows = totalDeductee(store, form, target.basicInfoId);
        request.listedChallans = totalChallan(store, form, target.basicInfoId);

        const GenerationFlow flow(store, form);
        GenerationPreparation preparation = flow.prepare(request);
        if (preparation.failure)
            return refuse(store, target.compId, preparation.failure->message.text);
        GenerationPanel &panel = *preparation.panel;
        if (!options.output.isEmpty())
            panel.fileName = QFileInfo(options.output).absoluteFilePath();

        // The authority's rules, as the generation panel runs them first.
        const int errors = filingcheck::FilingCheck(store, form)
                               .run(target.basicInfoId, options.filingDate(now))
                               .errors();
        const QString found = QStringLiteral("The pre-filing check found %1 error(s), which "
                                             "the authority's validation rejects; --check "
                                             "lists them")
                                  .arg(errors);
        if (errors > 0 && options.strict)
            return refuse(store, target.compId, found);
        if (errors > 0)
            m_err << "check\t" << companyText(store, target.compId) << '\t' << found << '\n';

        // Two companies with the same prefix would silently share one file.
        const QString key = QFileInfo(panel.fileName).absoluteFilePath();
        if (m_written.contains(key)) {
            return refuse(store, target.compId,
                          QStringLiteral("%1 has already been written for another company in "
                                         "this run; give the companies different file prefixes")
                              .arg(QDir::toNativeSeparators(key)));
        }

    QuietBoxes boxes;
        const GenerationResult result = flow.generate(panel, 0, boxes, now,
                                                      GenerationFlow::Confirmation::Given);
        if (result.outcome != GenerationOutcome::Generated) {
            return refuse(store, target.compId, result.error,
                          result.outcome == GenerationOutcome::Refused ? Refused : StoreFailure);
        }
        m_written.insert(key);
        m_out << QDir::toNativeSeparators(panel.fileName) << "\tchallans "
              << result.summary.challans << "\tdeductee rows " << result.summary.annexureRows
              << "\tdeposited " << result.summary.deposited.toText() << '\n';
        return AllWritten;
    } catch (const StoreError &error) {
        return refuse(store, target.compId, error.description(), StoreFailure);
    }
}

BatchGeneration::Status BatchGeneration::checkOne(const DataStore &store,
                                                  const FormTraits &form,
                                                  const Options &options, const Target &target,
                                                  const QDateTime &now)
{
    try {
        const filingcheck::CheckResult result =
            filingcheck::FilingCheck(store, form).run(target.basicInfoId, options.filingDate(now));
        // Of several Statements, each one's lines follow the company they are of.
        if (options.all)
            m_out << "company\t" << companyText(store, target.compId) << '\n';
        for (const QString &line : checkLines(result))
            m_out << line << '\n';
        return result.errors() > 0 ? Refused : AllWritten;
    } catch (const StoreError &error) {
        return refuse(store, target.compId, error.description(), StoreFailure);
    }
}

QString BatchGeneration::companyText(const DataStore &store, int compId)
{
    QString name;
    QString tan;
    try {
        QSqlQuery company = store.exec(
            QStringLiteral("SELECT CompName, TanNO FROM mstCompany WHERE CompID = ?"), {compId});
        if (company.next()) {
            name = records::nullToText(company.value(0));
            tan = records::nullToText(company.value(1));
        }
    } catch (const StoreError &) {
        // The company is still told, by its id alone.
    }
    return QStringLiteral("%1 (company %2, TAN %3)").arg(name).arg(compId).arg(tan);
}

BatchGeneration::Status BatchGeneration::refuse(const DataStore &store, int compId,
                                                const QString &message, Status status)
{
    // One line per Statement: the line break of the deductee-count message is folded.
    m_err << (status == Refused ? "refused\t" : "failed\t") << companyText(store, compId)
          << '\t' << message.simplified() << '\n';
    return status;
}
