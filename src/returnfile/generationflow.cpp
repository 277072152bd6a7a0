#include "returnfile/generationflow.h"

#include "core/datastore.h"
#include "core/exactamount.h"
#include "core/messageboxes.h"
#include "core/namepart.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/startup.h"
#include "core/storeerror.h"
#include "returnfile/controltotals.h"
#include "returnfile/generationlog.h"
#include "returnfile/returnfileerror.h"
#include "core/formtraits.h"

#include <QDir>
#include <QSqlQuery>

namespace {

constexpr int prefixLength = 3;

Message critical(const QString &text, const QString &title = appTitle)
{
    return {text, title, MessageIcon::Critical, MessageButtons::Ok};
}

FieldFailure failure(const QString &text, const QString &field = {},
                     const QString &title = appTitle)
{
    return {critical(text, title), field};
}

/// Amounts are summed here in paise, never as floating sums in the store: one pass over the
/// rows for all the columns asked.
QList<Money> sumsOf(const DataStore &store, const QStringList &columns, const QString &table,
                    int basicInfoId)
{
    QSqlQuery query = store.exec(
        QStringLiteral("SELECT %1 FROM %2 WHERE BasicIfoID = ?").arg(columns.join(u','), table),
        {basicInfoId});
    // The store sums the amounts as they stand; only the panel's figure is rounded to paise.
    QList<ExactAmount> sums(columns.size());
    while (query.next()) {
        for (qsizetype i = 0; i < sums.size(); ++i)
            sums[i] += ExactAmount::fromStored(query.value(static_cast<int>(i)));
    }
    QList<Money> rounded;
    for (const ExactAmount &sum : sums)
        rounded.append(Money::fromText(sum.toText()));
    return rounded;
}

QString textOf(const DataStore &store, const QString &sql, const QVariantList &values)
{
    return records::nullToText(store.scalar(sql, values));
}

} // namespace

GenerationFlow::GenerationFlow(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
}

QString GenerationFlow::deducteeCountText(const QString &declared, int entered)
{
    return QStringLiteral("You have specified to enter ") + declared
           + QStringLiteral(" deductee record(s), but ") + u'\n'
           + QStringLiteral(" have entered only ") + QString::number(entered)
           + QStringLiteral(" record(s).");
}

QString GenerationFlow::filePrefixText(const QString &companyName, const QString &filePrefix)
{
    return QStringLiteral("The File Name Prefix \"%1\" of the company %2 may hold letters and "
                          "digits only: the return file is named by it.")
        .arg(filePrefix, companyName);
}

QString GenerationFlow::fileNameFor(const QString &storeFolder, const QString &filePrefix,
                                    const QString &formType, const QString &quarter)
{
    const QString name =
        filePrefix.left(prefixLength) + formType + quarter + QStringLiteral(".txt");
    const QString folder = startup::returnsFolderExists(storeFolder)
                               ? startup::returnsFolder(storeFolder)
                               : storeFolder;
    return QDir(folder).filePath(name);
}

GenerationPreparation GenerationFlow::prepare(const GenerationRequest &request,
                                              const std::function<bool()> &save) const
{
    const int basicInfoId = static_cast<int>(numbers::val(request.basicInfoId));

    const int entered = totalDeductee(m_store, m_form, basicInfoId);
    if (numbers::val(request.declaredDeductees) != entered) {
        return {failure(deducteeCountText(request.declaredDeductees, entered),
                        QStringLiteral("txtNoDeductee"), pleaseCheckTitle),
                {}};
    }
    // Only the declared number counts here; the challans entered are not compared with it.
    if (numbers::val(request.declaredChallans) == 0)
        return {failure(noChallanText, QStringLiteral("txtNoChallan")), {}};

    QSqlQuery company = m_store.exec(
        QStringLiteral("SELECT FilePrefix, CompName FROM mstCompany WHERE CompID = ?"),
        {request.compId});
    const bool found = company.next();
    const QString filePrefix = found ? records::nullToText(company.value(0)) : QString();
    const QString companyName = found ? records::nullToText(company.value(1)) : QString();
    company.finish();

    if (basicInfoId == 0)
        return {failure(notSavedText), {}};

    // What stands on the screen is saved before the panel shows what will be generated.
    if (save && !save())
        return {};

    // The prefix names a file: "/" or "../" would put it outside the folder of returns.
    if (!isPlainNamePart(filePrefix.left(prefixLength)))
        return {failure(filePrefixText(companyName, filePrefix)), {}};

    GenerationPanel panel;
    panel.groupId = request.groupId;
    panel.compId = request.compId;
    panel.basicInfoId = basicInfoId;
    panel.formType = m_form.formType;
    panel.quarter = request.quarter;
    panel.annexureRows = entered;
    panel.fileName = fileNameFor(m_store.folder(), filePrefix, m_form.formType, request.quarter);
    fillPanel(panel);

    if (request.listedAnnexureRows > 0 && panel.taxDeducted > Money()
        && request.listedChallans == 0)
        return {failure(challansNeededText), {}};
    return {{}, panel};
}

void GenerationFlow::fillPanel(GenerationPanel &panel) const
{
    panel.groupName = records::lookupText(m_store, QStringLiteral("mstGroup"),
                                          QStringLiteral("GroupID"),
                                          QStringLiteral("GroupName"), panel.groupId);

    QSqlQuery statement = m_store.exec(
        QStringLiteral("SELECT CompName, TanNO, PanNo, AsstYear, RevisedRcptNo FROM %1 "
                       "WHERE BasicIfoID = ?")
            .arg(m_form.basicInfoTable),
        {panel.basicInfoId});
    if (statement.next()) {
        panel.companyName = records::nullToText(statement.value(0));
        panel.tan = records::nullToText(statement.value(1));
        panel.pan = records::nullToText(statement.value(2));
        panel.asstYear = records::nullToText(statement.value(3));
        const QString receipt = records::nullToText(statement.value(4));
        panel.previousReceiptNo = numbers::val(receipt) == 0 ? QString() : receipt;
    }

    panel.deductorStatus = textOf(
        m_store, QStringLiteral("SELECT DStatus FROM mstCompany WHERE CompID = ?"),
        {panel.compId});
    panel.deductorType = textOf(
        m_store,
        QStringLiteral("SELECT CategoryDescription FROM mstCategory WHERE CategoryCode = ?"),
        {panel.deductorStatus});

    panel.deposited =
        sumsOf(m_store, {QStringLiteral("Total")}, m_form.challanTable, panel.basicInfoId)
            .first();
    const QList<Money> annexure =
        sumsOf(m_store, {QStringLiteral("AmtOfPayment"), QStringLiteral("TaxAmount")},
               m_form.annexureTable, panel.basicInfoId);
    panel.amountPaid = annexure.at(0);
    panel.taxDeducted = annexure.at(1);
}

GenerationResult GenerationFlow::generate(const GenerationPanel &panel, int openListRows,
                                          MessageBoxes &boxes, const QDateTime &now,
                                          Confirmation confirmation) const
{
    GenerationResult result;
    if (confirmation == Confirmation::Ask) {
        const Message question{confirmationText, confirmationTitle, MessageIcon::Question,
                               MessageButtons::YesNo};
        if (boxes.show(question) != Answer::Yes)
            return result;
    }

    const QString fileName = panel.fileName.trimmed();
    const auto fail = [&](GenerationOutcome outcome, const QString &text) {
        result.outcome = outcome;
        result.error = text;
        boxes.show(critical(text));
        return result;
    };

    GenerationLogEntry entry;
    entry.groupId = panel.groupId;
    entry.compId = panel.compId;
    entry.formType = panel.formType;
    entry.fileName = fileName;
    entry.created = now;
    entry.periodicity = panel.quarter;
    entry.asstYear = panel.asstYear;
    entry.amountPaid = panel.amountPaid;
    entry.taxDeducted = panel.taxDeducted;
    entry.deductees = openListRows;
    entry.companyName = panel.companyName;
    try {
        result.logId = insertFileGenerationData(m_store, entry);
    } catch (const StoreError &error) {
        return fail(GenerationOutcome::LogFailed, error.description());
    }

    // The log row stays when the file fails: it records that a generation was attempted.
    try {
        result.summary =
            writeReturnFile(m_store, m_form, panel.groupId, panel.basicInfoId, fileName,
                            now.date());
    } catch (const ReturnFileError &error) {
        return fail(error.cause() == ReturnFileError::Cause::Value ? GenerationOutcome::Refused
                                                                  : GenerationOutcome::FileFailed,
                    error.message());
    } catch (const StoreError &error) {
        return fail(GenerationOutcome::FileFailed, error.description());
    }

    result.outcome = GenerationOutcome::Generated;
    boxes.show({generatedText, appTitle, MessageIcon::Information, MessageButtons::Ok});
    return result;
}
