#include "returnfile/batchgeneration.h"

#include "core/datastore.h"
#include "core/messageboxes.h"
#include "core/records.h"
#include "core/storeerror.h"
#include "core/startup.h"
#include "core/storeupgrade.h"
#include "returnfile/controltotals.h"
#include "returnfile/generationflow.h"
#include "core/formtraits.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTextStream>
#include <memory>

namespace {

// One data store holds one assessment period, always the first row of mstAssessment.
constexpr int asstId = 1;

const QStringList quarters = {"Q1", "Q2", "Q3", "Q4"};

/// The command line is the confirmation, and failures come back in the result: nothing to show.
class QuietBoxes : public MessageBoxes
{
public:
    Answer show(const Message &) override { return Answer::Ok; }
};

bool isWholeNumber(const QString &text)
{
    if (text.isEmpty())
        return false;
    for (const QChar ch : text) {
        if (ch < u'0' || ch > u'9')
            return false;
    }
    return true;
}

/// The company named by its id or its TAN; none, with the reason, when it names no single one.
std::optional<int> findCompany(const DataStore &store, const QString &company, QString &error)
{
    const bool byId = isWholeNumber(company);
    QSqlQuery query = store.exec(
        QStringLiteral("SELECT CompID FROM mstCompany WHERE AsstID = ? AND %1 = ? ORDER BY CompID")
            .arg(byId ? QStringLiteral("CompID") : QStringLiteral("TanNO")),
        {asstId, byId ? QVariant(company.toLongLong()) : QVariant(company)});
    QStringList ids;
    while (query.next())
        ids << query.value(0).toString();
    if (ids.isEmpty()) {
        error = byId ? QStringLiteral("there is no company with the id %1").arg(company)
                     : QStringLiteral("there is no company with the TAN %1").arg(company);
        return std::nullopt;
    }
    // Placeholders such as TANAPPLIED can stand for several deductors.
    if (ids.size() > 1) {
        error = QStringLiteral("the TAN %1 belongs to the companies %2; give the company's id")
                    .arg(company, ids.join(QStringLiteral(", ")));
        return std::nullopt;
    }
    return ids.first().toInt();
}

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
    parser.addOptions({store, form, quarter, company, output, all});
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

    if (options.storePath.isEmpty())
        error = QStringLiteral("--store is required");
    else if (!findForm(options.formType))
        error = QStringLiteral("--form must be 24Q, 26Q, 27Q or 27EQ");
    else if (!quarters.contains(options.quarter))
        error = QStringLiteral("--quarter must be Q1, Q2, Q3 or Q4");
    else if (options.all == !options.company.isEmpty())
        error = QStringLiteral("give either --company or --all");
    else if (options.all && parser.isSet(output))
        error = QStringLiteral("--output names one file and cannot go with --all");
    else if (parser.isSet(output) && options.output.trimmed().isEmpty())
        error = QStringLiteral("--output needs a file name");
    if (!error.isEmpty())
        return std::nullopt;
    return options;
}

QString BatchGeneration::usage()
{
    return QStringLiteral(
        "usage: kelvora-returns --store PATH --form FORM --quarter Q --company ID_OR_TAN "
        "[--output FILE]\n"
        "       kelvora-returns --store PATH --form FORM --quarter Q --all\n"
        "Writes the return file of each saved Statement asked for and logs the generation.\n"
        "FORM is 24Q, 26Q, 27Q or 27EQ; Q is Q1 to Q4. Files go to eReturns beside the store.\n"
        "Exit status: 0 every file written, 1 a Statement refused, 2 usage or store error.\n");
}

BatchGeneration::BatchGeneration(QTextStream &out, QTextStream &err) : m_out(out), m_err(err) {}

int BatchGeneration::run(const Options &options, const QDateTime &now)
{
    const FormTraits *form = findForm(options.formType);
    if (!form) {
        m_err << "kelvora-returns: --form must be 24Q, 26Q, 27Q or 27EQ\n";
        return UsageError;
    }

    std::unique_ptr<DataStore> store;
    QList<Target> targets;
    try {
        store = std::make_unique<DataStore>(options.storePath);
        // A store of an older layout is brought up to date, and the folder of return files
        // made, as the program's start would.
        storeupgrade::run(*store);
        startup::createReturnsFolder(store->folder());

        const QString statements =
            QStringLiteral("SELECT BasicIfoID, CompID FROM %1 WHERE AsstID = ? AND Quarter = ?")
                .arg(form->basicInfoTable);
        QSqlQuery query;
        if (options.all) {
            query = store->exec(statements + QStringLiteral(" ORDER BY BasicIfoID"),
                                {asstId, options.quarter});
        } else {
            QString error;
            const std::optional<int> compId = findCompany(*store, options.company, error);
            if (!compId) {
                m_err << "kelvora-returns: " << error << '\n';
                return UsageError;
            }
            query = store->exec(statements + QStringLiteral(" AND CompID = ?"),
                                {asstId, options.quarter, *compId});
            if (!query.next()) {
                refuse(*store, *compId, GenerationFlow::notSavedText);
                return Refused;
            }
            targets.append({query.value(0).toInt(), *compId});
        }
        while (options.all && query.next())
            targets.append({query.value(0).toInt(), query.value(1).toInt()});
        query.finish();
    } catch (const StoreError &error) {
        m_err << "kelvora-returns: the data store " << QDir::toNativeSeparators(options.storePath)
              << " cannot be opened: " << error.description() << '\n';
        return UsageError;
    }

    int generated = 0;
    int refused = 0;
    for (const Target &target : targets) {
        if (generateOne(*store, *form, options.quarter, target, options.output, now))
            ++generated;
        else
            ++refused;
    }
    if (options.all)
        m_out << "generated " << generated << ", refused " << refused << '\n';
    m_out.flush();
    return refused == 0 ? AllWritten : Refused;
}

bool BatchGeneration::generateOne(const DataStore &store, const FormTraits &form,
                                  const QString &quarter, const Target &target,
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
        if (preparation.failure) {
            refuse(store, target.compId, preparation.failure->message.text);
            return false;
        }
        GenerationPanel &panel = *preparation.panel;
        if (!output.isEmpty())
            panel.fileName = QFileInfo(output).absoluteFilePath();

        // Two companies with the same prefix would silently share one file.
        const QString key = QFileInfo(panel.fileName).absoluteFilePath();
        if (m_written.contains(key)) {
            refuse(store, target.compId,
                   QStringLiteral("%1 has already been written for another company in this run;"
                                  " give the companies different file prefixes")
                       .arg(QDir::toNativeSeparators(key)));
            return false;
        }

        QuietBoxes boxes;
        const GenerationResult result = flow.generate(panel, 0, boxes, now,
                                                      GenerationFlow::Confirmation::Given);
        if (result.outcome != GenerationOutcome::Generated) {
            refuse(store, target.compId, result.error);
            return false;
        }
        m_written.insert(key);
        m_out << QDir::toNativeSeparators(panel.fileName) << "\tchallans "
              << result.summary.challans << "\tdeductee rows " << result.summary.annexureRows
              << "\tdeposited " << result.summary.deposited.toText() << '\n';
        return true;
    } catch (const StoreError &error) {
        refuse(store, target.compId, error.description());
        return false;
    }
}

void BatchGeneration::refuse(const DataStore &store, int compId, const QString &message)
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
    m_out << "refused\t" << name << " (company " << compId << ", TAN " << tan << ")\t"
          << message.simplified() << '\n';
}
