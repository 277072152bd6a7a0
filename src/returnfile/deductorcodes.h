#pragma once

#include <QString>
#include <QVariant>

class DataStore;

/// What the return file takes from the company master: the deductor type and the government
/// deductor's codes (BH fields 32 and 54 to 61). The company is looked up by its id within the
/// group chosen for the session; all are empty when that group holds no such company.
struct DeductorCodes
{
    QString deductorType; ///< DStatus, a category code such as "K" or "A"
    QString stateCode;
    QString paoCode;
    QString ddoCode;
    QString ministryCode;
    QString ministryOther;
    QString paoRegNo;
    QString ddoRegNo;

    static DeductorCodes read(const DataStore &store, int groupId, const QVariant &companyId);
};
