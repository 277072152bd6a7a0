#include "returnfile/batchheaderrecord.h"

#include "returnfile/batchtotals.h"
#include "returnfile/deductorcodes.h"
#include "returnfile/sourcerows.h"
#include "core/formtraits.h"

namespace {

void addAddress(RecordLine &line, const SourceRows &statement, const QString &prefix)
{
    for (int i = 1; i <= 5; ++i)
        line.addText(statement.text(prefix + QStringLiteral("Address%1").arg(i)));
}

} // namespace

RecordLine batchHeaderRecord(int lineNumber, const FormTraits &form, const SourceRows &statement,
                             const DeductorCodes &deductor, const BatchTotals &totals)
{
    const auto text = [&statement](const char *column) {
        return statement.text(QLatin1String(column));
    };

    RecordLine line(lineNumber, QStringLiteral("BH"));
    line.addNumber(1)
        .addText(statement.number(QStringLiteral("NoChallan"))) // as declared, not counted
        .addText(form.formType)
        .addBlank(7)
        .addText(text("TanNO"))
        .addBlank()
        .addText(text("PanNo"))
        .addText(text("AsstYear"))
        .addText(text("FAYear"))
        .addText(text("Quarter"))
        .addText(text("CompName"))
        .addText(text("BranchDiv"));
    addAddress(line, statement, QString());
    line.addText(text("StateCode"))
        .addText(text("Pincode"))
        .addText(text("email"))
        .addText(text("Std"))
        .addText(text("phone"))
        .addFlag(statement.flag(QStringLiteral("Employer")))
        .addText(deductor.deductorType)
        .addText(text("PersonName"))
        .addText(text("Designation"));
    addAddress(line, statement, QStringLiteral("p"));
    line.addText(text("pStateCode"))
        .addText(text("pPincode"))
        .addText(text("pEmail"))
        .addText(QStringLiteral("Remark"))
        .addText(text("pStd"))
        .addText(text("pPhone"))
        .addFlag(statement.flag(QStringLiteral("Salary")))
        .addMoney(totals.deposited)
        .addBlank();
    if (form.hasSalaryDetail)
        line.addNumber(totals.salaryRows).addMoney(totals.salaryGross);
    else
        line.addBlank(2);
    // The government deductor's codes go out for every deductor type, as the company holds them.
    line.addText(QStringLiteral("N"))
        .addBlank(2)
        .addText(deductor.stateCode)
        .addText(deductor.paoCode)
        .addText(deductor.ddoCode)
        .addText(deductor.ministryCode)
        .addText(deductor.ministryOther)
        .addBlank()
        .addText(deductor.paoRegNo)
        .addText(deductor.ddoRegNo);
    return line;
}
