#include "returnfile/batchgeneration.h"

#include "core/datastore.h"
#include "core/messageboxes.h"
#include "core/namedcompany.h"
#include "core/quarter.h"
#include "core/records.h"
#include "core/startup.h"
#include "core/storeaccess.h"
#include "core/storeerror.h"
#include "returnfile/controltotals.h"
#include "returnfile/generationflow.h"
#include "core/formtraits.h"

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
    parser.addOptions({store, form, quarter, company, output, all, wait});
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
    if (!error.isEmpty())
        return std::nullopt;
    return options;
}

QString BatchGeneration::usage()
{
    return QStringLiteral(
        "usage: kelvora-returns --store PATH --form FORM --quarter Q --company ID_OR_TAN "
        "[--output FILE] [--wait SECONDS]\n"
        "       kelvora-returns --store PATH --form FORM --quarter Q --all [--wait SECONDS]\n"
        "Writes the return file of each saved Statement asked for and logs the generation.\n"
        "FORM is 24Q, 26Q, 27Q or 27EQ; Q is Q1 to Q4. Files go to eReturns beside the store.\n"
        "A store in use by another program is waited for, 30 seconds unless --wait says.\n"
        "Exit status: 0 every file written, 1 a Statement refused, 2 usage error, 3 store or\n"
        "file-system failure.\n");
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
        opened = storeaccess::openForBatch(options.storePath, storeaccess::Access::Write,
                                           std::chrono::seconds(options.waitSeconds));
        const DataStore &store = *opened.store;
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
    for (const Target &target : targets)
        ++counts[generateOne(*opened.store, *form, options.quarter, target, options.output, now)];
    if (options.all) {
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
                                                     const QString &quarter,
                                                     const Target &target,
                                                     const QString &output, const QDateTime &now)
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
        request.quarter = quarter;
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
        if (!output.isEmpty())
            panel.fileName = QFileInfo(output).absoluteFilePath();

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

BatchGeneration::Status BatchGeneration::refuse(const DataStore &store, int compId,
                                                const QString &message, Status status)
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
        // The refusal is still told, with the company's id alone.
    }
    // One line per Statement: the line break of the deductee-count message is folded.
    m_err << (status == Refused ? "refused\t" : "failed\t") << name << " (company " << compId
          << ", TAN " << tan << ")\t" << message.simplified() << '\n';
    return status;
}
