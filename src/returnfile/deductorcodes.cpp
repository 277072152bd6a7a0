#include "returnfile/deductorcodes.h"

#include "core/datastore.h"
#include "returnfile/sourcerows.h"

DeductorCodes DeductorCodes::read(const DataStore &store, int groupId,
                                  const QVariant &companyId)
{
    SourceRows company(store.exec(QStringLiteral(
                                      "SELECT CompID, DStatus, DStateCode, PAOCode, DDOCode, "
                                      "MinistryCode, MinistryOther, PAORegNo, DDORegNo "
                                      "FROM mstCompany WHERE GroupID = ? AND CompID = ?"),
                                  {groupId, companyId}),
                       QStringLiteral("mstCompany"), QStringLiteral("CompID"));
    DeductorCodes codes;
    if (!company.next())
        return codes;
    codes.deductorType = company.text(QStringLiteral("DStatus"));
    codes.stateCode = company.text(QStringLiteral("DStateCode"));
    codes.paoCode = company.text(QStringLiteral("PAOCode"));
    codes.ddoCode = company.text(QStringLiteral("DDOCode"));
    codes.ministryCode = company.text(QStringLiteral("MinistryCode"));
    codes.ministryOther = company.text(QStringLiteral("MinistryOther"));
    codes.paoRegNo = company.text(QStringLiteral("PAORegNo"));
    codes.ddoRegNo = company.text(QStringLiteral("DDORegNo"));
    return codes;
}
