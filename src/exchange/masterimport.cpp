#include "exchange/masterimport.h"

#include "core/datastore.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "exchange/importerror.h"
#include "exchange/importsource.h"
#include "exchange/tablecopy.h"

#include <algorithm>
#include <vector>

const QStringList MasterImport::tables = {
    QStringLiteral("mstCompany"), QStringLiteral("mstDeductee"), QStringLiteral("mstEmployee"),
    QStringLiteral("mstGroup")};

namespace {

QVariant storedDate(const QDate &date)
{
    return date.isValid() ? QVariant(date.toString(Qt::ISODate)) : QVariant();
}

} // namespace

void MasterImport::run(const QString &sourcePath, const QDate &yearStart, const QDate &yearEnd,
                       const Progress &progress) const
{
    const ImportSource source(m_store, sourcePath, tables);
    try {
        std::vector<TableCopy> copies;
        qint64 total = 0;
        for (const QString &table : tables) {
            copies.emplace_back(m_store, source, table);
            total += copies.back().rowCount();
        }

        Transaction transaction(m_store);
        qint64 before = 0;
        for (const TableCopy &copy : copies) {
            const auto report = [&](qint64 copied) {
                if (progress)
                    progress(copy.table(), before + copied, std::max(total, before + copied));
            };
            report(0);
            before += copy.run(report);
        }
        m_store.exec(QStringLiteral("UPDATE mstEmployee SET FromDate = ?, ToDate = ?"),
                     {storedDate(yearStart), storedDate(yearEnd)});
        transaction.commit();
    } catch (const StoreError &error) {
        throw ImportError(failureText.arg(error.description()));
    }
}
