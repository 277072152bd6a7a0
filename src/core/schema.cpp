#include "core/schema.h"

#include "core/datastore.h"

#include <QRegularExpression>
#include <stdexcept>

namespace schema {

namespace {

/*
 * Each table as one line of columns "Name:Type". Types: L whole number, D amount (double),
 * T text, T<n> text of at most n characters, Dt date (ISO text), B yes/no stored as 1 or 0.
 * A column written "+Name:Type" is added by the upgrade; "=0" after the type gives it a default
 * of 0. The key gets a unique index (an annexure row's is its number within its Statement and
 * challan); the columns that join rows an ordinary one.
 */
struct TableDefinition
{
    const char *name;
    const char *key;
    const char *columns;
    bool addedByUpgrade = false;
};

#define ADDRESS(p) p "Address1:T25 " p "Address2:T25 " p "Address3:T25 " p "Address4:T25 " \
    p "Address5:T25 "
#define BASIC_INFO "BasicIfoID:L CompID:L AsstID:L TanNO:T10 PanNo:T10 BranchDiv:T " \
    "CompName:T75 " ADDRESS("") "StateCode:T6 Pincode:T6 phone:T20 email:T Std:T " \
    "Employer:B Salary:B Status:B PersonName:T75 Designation:T20 " ADDRESS("p") \
    "pStateCode:T pPincode:T pPhone:T pEmail:T pStd:T NoChallan:L NoDeductee:L AsstYear:T6 " \
    "FAYear:T6 AppRcptNo:T50 RevisedRtn:T1 RevisedRcptNo:T50 TDSCircle:T50 Quarter:T"
#define CHALLAN_HEAD "ChallnID:L BasicIfoID:L CompID:L AsstID:L SlNo:L "
#define CHALLAN_TAIL(a, l) "AmountDeducted:D TrVoucherNo:T50 DtTrVoucher:Dt BankCode:T50 " \
    "Surcharge:" a " EduCess:" a " Interest:" l " Others:" l " Total:" a " ChqDDNo:T15 " \
    "BookEntry:T1 TotTax:" a " TotIncomeTax:" a " TotSurcharge:" a " TotCess:" a \
    " CtrlTot:" a " ExInterest:" l " ExtOthers:" l " Remarks:T50 +TransferVoucherNo:T9"
#define DEDUCTEE_ROW "DeducteeID:L BasicIfoID:L CompID:L AsstID:L ChallanId:L SrlNo:L " \
    "Section:T5 DeducteeNo:L DeducteeCode:T2 PAN:T10 PANRef:T10 DeducteeName:T75 " \
    ADDRESS("") "State:T50 StateCode:T2 PIN:T6 AmtOfPayment:D PaymentDt:Dt Rate:D " \
    "TaxAmount:D TaxDeductDt:Dt TaxPaidToCGDt:Dt BankBranchCode:T7 BankChallanNo:T9 " \
    "NonDeductionflg:T1 BookEntry:T1 Tax:D Surcharge:D Cess:D Total:D"
#define SECTION_ROW "Secid:L SalaryId:L Empid:L SectionId:T50 "

const TableDefinition definitions[] = {
    {"mstGroup", "GroupID", "GroupID:L GroupName:T"},
    {"mstCompany", "CompID",
     "AsstID:L GroupID:L CompID:L TanNO:T10 PanNo:T10 CompName:T75 " ADDRESS("")
     "StateCode:T StateID:L PersonName:T75 Designation:T20 Pincode:T6 " ADDRESS("p")
     "pStateCode:T PStateID:L pPincode:T6 AssessingOfficerCode:T FilePrefix:T Phone:T STD:T "
     "pPhone:T pSTD:T BranchDiv:T eMail:T PeMail:T TDSCircle:T50 Status:T "
     "+DStatus:T1 +DStateID:L=0 +DStateCode:T2 +MinistryID:L=0 +MinistryCode:T3 "
     "+MinistryOther:T150 +PAOCode:T20 +DDOCode:T20 +PAORegNo:T7 +DDORegNo:T10"},
    {"mstAssessment", "AsstID",
     "AsstID:L AsstYear:T6 FAYear:T6 StartDt:Dt EndDt:Dt LastDtOfPayment:Dt"},
    {"mstState", "StateID", "StateID:L StateCode:T2 StateName:T"},
    {"mstEmployee", "EmpID",
     "GroupId:L EmpID:L PAN:T10 PanRef:T10 EmpName:T75 Designation:T15 FromDate:Dt Todate:Dt "
     "category:L"},
    {"mstDeductee", "DeducteeID",
     "GroupId:L DeducteeID:L PAN:T10 PanRef:T10 DeducteeName:T75 " ADDRESS("")
     "DeducteeCode:T2 State:T50 StateCode:T2 PIN:T6 InWords:T200"},
    {"mstCategory", "CategoryID", "CategoryID:L CategoryCode:T2 CategoryDescription:T70", true},
    {"mstMinistry", "MinistryID", "MinistryID:L MinistryCode:T2 MinistryName:T70", true},
    {"mstSections24", nullptr, "SectionType:T SectionName:T Description:T"},
    {"mstSections26", nullptr, "SectionName:T Description:T"},
    {"mstSections27", nullptr, "SectionName:T Description:T"},
    {"mstCollectionCode", nullptr, "CollectionCode:T Description:T"},
    {"TranBasicInfoE24", "BasicIfoID", BASIC_INFO},
    {"TranBasicInfoE26", "BasicIfoID", BASIC_INFO},
    {"TranBasicInfoE27", "BasicIfoID", BASIC_INFO},
    {"TranBasicInfoE27E", "BasicIfoID", BASIC_INFO},
    {"TranChallanE24", "ChallnID", CHALLAN_HEAD CHALLAN_TAIL("L", "L")},
    {"TranChallanE26", "ChallnID", CHALLAN_HEAD "Section:T5 " CHALLAN_TAIL("D", "D")},
    {"TranChallanE27", "ChallnID", CHALLAN_HEAD "Section:T5 " CHALLAN_TAIL("D", "L")},
    {"TranChallanE27E", "ChallnID", CHALLAN_HEAD "Section:T5 " CHALLAN_TAIL("D", "L")},
    {"TranDeducteeE26", "BasicIfoID ChallanId DeducteeID", DEDUCTEE_ROW},
    {"TranDeducteeE27", "BasicIfoID ChallanId DeducteeID", DEDUCTEE_ROW " GrossingUpIndicator:T1"},
    {"TranDeducteeE27E", "BasicIfoID ChallanId DeducteeID", DEDUCTEE_ROW " TotvalPur:D"},
    {"TranEmployeeE24", "BasicIfoID ChallanId EmpID",
     "EmpID:L BasicIfoID:L CompID:L AsstID:L ChallanId:L SrlNo:L EmpNo:L PAN:T10 PANRef:T10 "
     "EmpName:T75 Designation:T15 FromDate:Dt ToDate:Dt AmtOfPayment:D PaymentDt:Dt "
     "TaxAmount:D TaxDeductDt:Dt TaxPaidToCGDt:Dt BankBranchCode:T7 BankChallanNo:T9 "
     "NonDeductionflg:T1 BookEntry:T1 Tax:L Surcharge:L Cess:L Total:L"},
    {"TranSalaryE24", "SalaryId",
     "SalaryId:L EmpID:L BasicIfoID:L SrlNo:L EmpName:T50 PanRef:T50 Pan:T50 Designation:T50 "
     "FromDate:Dt ToDate:Dt 331:L 332:L 333:L 334Sec10Gross:L 335:L 336Sec16Gross:L 337:L "
     "338:L 339:L 340SecViaGross:L 344:L 345:L 346Sec88Gross:L 350:L 351:L 352:L 355:L 356:L "
     "357:L 358:L 359:L 360:L 361:L 362:L 363:L 364:L 365:L 366:L 367:L"},
    {"TranSec10E24", "Secid", SECTION_ROW "TotalDeduction:L"},
    {"TranSec16E24", "Secid", SECTION_ROW "TotalDeduction:L"},
    {"TranSec88E24", "Secid", SECTION_ROW "GrossAmt:L QfAmt:L DedAmt:L"},
    {"TranSecViAE24", "Secid", SECTION_ROW "GrossAmt:L QfAmt:L DedAmt:L"},
    {"TranPrequistiesE24", "PreqID",
     "PreqID:L BasicIfoID:L CompID:L AsstID:L EmpId:L P23624:T75 P23724:T5 P23824:D P23924:D "
     "P24024:D P24124:D P24224:D P24324:D P24424:D P24524:D P24624:D P24724:D P24824:D "
     "P24924:D P25024:D P25124:D"},
    {"FileGenerationLog", "FGId",
     "FGId:L GrpID:L CompID:L FormNo:T FileName:T DateOfCreation:Dt TimeOFCreation:T "
     "Periodicity:T AsstYear:T Media:T TotNoOFMedia:L TotAmtPaid:D TotTDS:D NoOFDeductees:L "
     "ExistingAssessee:T OfficerCode:T CompanyName:T"},
};

#undef ADDRESS
#undef BASIC_INFO
#undef CHALLAN_HEAD
#undef CHALLAN_TAIL
#undef DEDUCTEE_ROW
#undef SECTION_ROW

/// The columns whose rows are joined on, indexed wherever a table has them; the party numbers
/// of the statement rows are searched at every change of an employee or a deductee.
const QStringList joinColumns = {"BasicIfoID", "ChallanId", "CompID", "SalaryId", "GroupID",
                                 "EmpNo", "DeducteeNo"};

struct Column
{
    QString name;
    QString declaration; ///< type, collation and default
    bool addedByUpgrade;
};

QString sqlType(const QString &code)
{
    static const QRegularExpression pattern(QStringLiteral("^(L|D|Dt|B|T)(\\d*)(=0)?$"));
    const QRegularExpressionMatch match = pattern.match(code);
    if (!match.hasMatch())
        throw std::logic_error("bad column type in the table definitions");
    const QString kind = match.captured(1);
    QString type;
    if (kind == u"L" || kind == u"B")
        type = QStringLiteral("INTEGER");
    else if (kind == u"D")
        type = QStringLiteral("REAL");
    else if (kind == u"Dt")
        type = QStringLiteral("DATE");
    else if (match.captured(2).isEmpty())
        type = QStringLiteral("TEXT COLLATE NOCASE");
    else
        type = QStringLiteral("VARCHAR(%1) COLLATE NOCASE").arg(match.captured(2));
    if (!match.captured(3).isEmpty())
        type += QStringLiteral(" DEFAULT 0");
    return type;
}

QList<Column> columnsOf(const TableDefinition &table)
{
    QList<Column> columns;
    const QStringList items =
        QString::fromLatin1(table.columns).split(u' ', Qt::SkipEmptyParts);
    for (QString item : items) {
        const bool added = item.startsWith(u'+');
        if (added)
            item.remove(0, 1);
        const qsizetype colon = item.indexOf(u':');
        columns.append({item.left(colon), sqlType(item.mid(colon + 1)), added});
    }
    return columns;
}

const TableDefinition &definitionOf(const QString &table)
{
    for (const TableDefinition &definition : definitions) {
        if (table.compare(QLatin1String(definition.name), Qt::CaseInsensitive) == 0)
            return definition;
    }
    throw std::logic_error("unknown table in the table definitions");
}

Column columnOf(const QString &table, const QString &column)
{
    for (const Column &candidate : columnsOf(definitionOf(table))) {
        if (candidate.name.compare(column, Qt::CaseInsensitive) == 0)
            return candidate;
    }
    throw std::logic_error("unknown column in the table definitions");
}

QString quoted(const QString &name)
{
    return u'"' + name + u'"';
}

} // namespace

QStringList tableNames(Layout layout)
{
    QStringList names;
    for (const TableDefinition &definition : definitions) {
        if (layout == Layout::Current || !definition.addedByUpgrade)
            names << QLatin1String(definition.name);
    }
    return names;
}

void createTable(const DataStore &store, const QString &table, Layout layout)
{
    const TableDefinition &definition = definitionOf(table);
    QStringList declarations;
    for (const Column &column : columnsOf(definition)) {
        if (!column.addedByUpgrade || layout == Layout::Current)
            declarations << quoted(column.name) + u' ' + column.declaration;
    }
    store.exec(QStringLiteral("CREATE TABLE %1 (%2)")
                   .arg(quoted(QLatin1String(definition.name)), declarations.join(", ")));
    createIndexes(store, table);
}

void createIndexes(const DataStore &store, const QString &table)
{
    const TableDefinition &definition = definitionOf(table);
    const QString name = QLatin1String(definition.name);
    const QStringList key =
        QString::fromLatin1(definition.key ? definition.key : "").split(u' ', Qt::SkipEmptyParts);
    if (key.size() > 1) {
        // An annexure row's number counts within its challan only; a store made before that
        // was known has the number alone as its unique key, which the rows of a second
        // challan would break.
        const QString single = quoted(name + u'_' + key.last());
        if (store.hasRows(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'index' "
                                         "AND name = ?"),
                          {name + u'_' + key.last()}))
            store.exec(QStringLiteral("DROP INDEX %1").arg(single));
    }
    if (!key.isEmpty()) {
        QStringList columns;
        for (const QString &column : key)
            columns << quoted(column);
        store.exec(QStringLiteral("CREATE UNIQUE INDEX IF NOT EXISTS %1 ON %2 (%3)")
                       .arg(quoted(name + u'_' + key.join(u'_')), quoted(name),
                            columns.join(u", ")));
    }
    for (const Column &column : columnsOf(definition)) {
        if (!joinColumns.contains(column.name, Qt::CaseInsensitive)
            || key.contains(column.name, Qt::CaseInsensitive))
            continue;
        store.exec(QStringLiteral("CREATE INDEX IF NOT EXISTS %1 ON %2 (%3)")
                       .arg(quoted(name + u'_' + column.name), quoted(name),
                            quoted(column.name)));
    }
}

void createAll(const DataStore &store, Layout layout)
{
    for (const QString &table : tableNames(layout))
        createTable(store, table, layout);
}

QString columnDefinition(const QString &table, const QString &column)
{
    const Column found = columnOf(table, column);
    return quoted(found.name) + u' ' + found.declaration;
}

bool isWholeNumber(const QString &table, const QString &column)
{
    return columnOf(table, column).declaration.startsWith(u"INTEGER");
}

} // namespace schema
