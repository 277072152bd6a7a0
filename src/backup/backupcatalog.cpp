#include "backup/backupcatalog.h"

#include "backup/backupfolder.h"
#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/storecheck.h"
#include "core/storeerror.h"

#include <QFileInfo>

namespace backupcatalog {

namespace {

/// "202627" as the year is written on forms, "2026-27".
QString shownYear(const QString &faYear)
{
    if (faYear.size() != 6)
        return faYear;
    return faYear.left(4) + u'-' + faYear.right(2);
}

void readFigures(BackupEntry &entry)
{
    const DataStore store(entry.path, DataStore::OpenMode::ReadOnly);
    entry.financialYear = shownYear(
        store.scalar(QStringLiteral("SELECT FAYear FROM mstAssessment ORDER BY AsstID"))
            .toString());
    entry.companies = store.scalar(QStringLiteral("SELECT count(*) FROM mstCompany")).toInt();
    for (const FormTraits &form : allForms()) {
        entry.statements +=
            store.scalar(QStringLiteral("SELECT count(*) FROM %1").arg(form.basicInfoTable))
                .toInt();
    }
}

} // namespace

BackupEntry read(const QString &path)
{
    const QFileInfo file(path);
    BackupEntry entry;
    entry.path = path;
    entry.taken = backupfolder::takenOf(file.fileName());
    entry.size = file.size();
    try {
        if (!storecheck::isOwnStore(path)) {
            entry.problem = QStringLiteral("not a Kelvora data store");
            return entry;
        }
        BackupEntry withFigures = entry;
        readFigures(withFigures);
        return withFigures;
    } catch (const StoreError &error) {
        entry.problem = error.description();
    }
    return entry;
}

QList<BackupEntry> list(const QString &folder)
{
    QList<BackupEntry> entries;
    for (const QString &path : backupfolder::backupsIn(folder))
        entries << read(path);
    return entries;
}

} // namespace backupcatalog
