#include "returnfile/generationlog.h"

#include "core/datastore.h"
#include "core/records.h"
#include "core/transaction.h"

namespace {

const QString logTable = QStringLiteral("FileGenerationLog");

} // namespace

int insertFileGenerationData(const DataStore &store, const GenerationLogEntry &entry)
{
    // The id is read and used in one transaction, as every key of the store is.
    Transaction transaction(store);
    const int id = static_cast<int>(records::nextId(store, logTable, QStringLiteral("FGId")));
    store.exec(QStringLiteral("INSERT INTO %1 (FGId, GrpID, CompID, FormNo, FileName, "
                              "DateOfCreation, TimeOFCreation, Periodicity, AsstYear, Media, "
                              "TotNoOFMedia, TotAmtPaid, TotTDS, NoOFDeductees, ExistingAssessee, "
                              "OfficerCode, CompanyName) "
                              "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, 'C', 1, ?, ?, ?, 'N', 'NA', ?)")
                   .arg(logTable),
               {id, entry.groupId, entry.compId, QStringLiteral("Form -") + entry.formType,
                entry.fileName.trimmed(), entry.created.date().toString(Qt::ISODate),
                entry.created.time().toString(QStringLiteral("hh:mm:ss")),
                entry.periodicity.trimmed(), entry.asstYear, entry.amountPaid.toDouble(),
                entry.taxDeducted.toDouble(), entry.deductees,
                records::escapeText(entry.companyName)});
    transaction.commit();
    return id;
}
