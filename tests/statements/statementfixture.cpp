#include "statementfixture.h"

StatementFixture::StatementFixture(FormKind kind, const QString &quarter)
    : form(formTraits(kind)), session(data.store())
{
    data.insert(QStringLiteral("mstGroup"), {{"GroupID", 1}, {"GroupName", "KAVERI GROUP"}});
    data.insert(QStringLiteral("mstCompany"),
                {{"AsstID", 1}, {"GroupID", 1}, {"CompID", 1}, {"TanNO", "BLRK01234E"},
                 {"PanNo", "AAACK1234F"}, {"CompName", "KAVERI TRADERS"},
                 {"Address1", "12"}, {"Address2", "RAJ BHAVAN"}, {"Address3", "MG ROAD"},
                 {"Address4", "ASHOKNAGAR"}, {"Address5", "BANGALORE"}, {"StateCode", "15"},
                 {"StateID", 15}, {"Pincode", "560001"}, {"Phone", "2345678"},
                 {"STD", "080"}, {"eMail", "accounts@kaveri.in"}, {"PersonName", "R RAO"},
                 {"Designation", "MANAGER"}, {"pAddress1", "12"}, {"pStateCode", "19"},
                 {"PStateID", 19}, {"pPincode", "400001"}, {"FilePrefix", "KAV"},
                 {"TDSCircle", "WARD 1"}, {"DStatus", "O"}});
    session.curGroupId = 1;
    session.curCompId = 1;
    session.curFormType = form.formType;
    session.curQuarter = quarter;
    const int first = QStringList{"Q1", "Q2", "Q3", "Q4"}.indexOf(quarter) * 3;
    const QDate from = QDate(2026, 4, 1).addMonths(first);
    session.quarterFromDt = from.toString(QStringLiteral("dd/MM/yyyy"));
    session.quarterToDt = from.addMonths(3).addDays(-1).toString(QStringLiteral("dd/MM/yyyy"));
}

QString StatementFixture::section() const
{
    const QStringList sections = {"", "94C", "195", "6CA"};
    return sections.at(static_cast<int>(form.kind));
}

void StatementFixture::insertAnnexureRow(int basicInfoId, int challanId, int rowId) const
{
    data.insert(form.annexureTable, {{form.annexureKey, rowId}, {"BasicIfoID", basicInfoId},
                                     {"CompID", 1}, {"AsstID", 1}, {"ChallanId", challanId},
                                     {"SrlNo", rowId}, {"BankBranchCode", "0510001"},
                                     {"BankChallanNo", "00011"}, {"TaxPaidToCGDt", "2026-05-07"}});
}
