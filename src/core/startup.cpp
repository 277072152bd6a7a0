#include "core/startup.h"

#include "core/datastore.h"
#include "core/records.h"
#include "core/session.h"
#include "core/storeupgrade.h"

#include <QDir>
#include <QSqlQuery>

namespace startup {

std::optional<OpenedStore> openStore(const QString &programFolder, MessageBoxes &boxes)
{
    return storeaccess::openForProgram(QDir(programFolder).filePath(DataStore::fileName), boxes);
}

void prepareStore(Session &session)
{
    session.asstId = 1;
    storeupgrade::run(session.store);
    const QVariant faYear =
        session.store.scalar(QStringLiteral("SELECT FAYear FROM mstAssessment"));
    session.asstFaYearStart = records::nullToText(faYear).left(4);
}

void readAssessmentPeriod(Session &session)
{
    QSqlQuery query = session.store.exec(
        QStringLiteral("SELECT StartDt, EndDt, LastDtOfPayment FROM mstAssessment LIMIT 1"));
    if (!query.next())
        return;
    session.asstStartDt = QDate::fromString(query.value(0).toString(), Qt::ISODate);
    session.asstEndDt = QDate::fromString(query.value(1).toString(), Qt::ISODate);
    session.asstLastDtOfPayment = QDate::fromString(query.value(2).toString(), Qt::ISODate);
    session.asstStartYear = session.asstStartDt.year();
}

QString returnsFolder(const QString &storeFolder)
{
    return QDir(storeFolder).filePath(QStringLiteral("eReturns"));
}

bool createReturnsFolder(const QString &storeFolder)
{
    return QDir().mkpath(returnsFolder(storeFolder));
}

bool returnsFolderExists(const QString &storeFolder)
{
    return QDir(returnsFolder(storeFolder)).exists();
}

} // namespace startup
