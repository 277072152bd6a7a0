#include "core/namedcompany.h"

#include "core/datastore.h"

#include <QSqlQuery>
#include <QStringList>

#include <algorithm>

std::optional<int> namedCompany(const DataStore &store, int asstId, const QString &company,
                                QString &error)
{
    const bool byId = !company.isEmpty()
                      && std::all_of(company.begin(), company.end(),
                                     [](QChar ch) { return ch >= u'0' && ch <= u'9'; });
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
    if (ids.size() > 1) {
        error = QStringLiteral("the TAN %1 belongs to the companies %2; give the company's id")
                    .arg(company, ids.join(QStringLiteral(", ")));
        return std::nullopt;
    }
    return ids.first().toInt();
}
