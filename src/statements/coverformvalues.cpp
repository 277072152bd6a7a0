#include "statements/coverformvalues.h"

#include "core/session.h"
#include "statements/basicinfo.h"
#include "statements/generationframe.h"

Form27AValues coverFormValues(FormKind form, const BasicInfo &info, const Session &session,
                              const GenerationFrame &generation)
{
    Form27AValues values;
    values.form = form;
    values.compId = info.compId;
    values.quarterFrom = session.quarterFromDt;
    values.quarterTo = session.quarterToDt;
    values.tan = info.tan;
    values.pan = info.pan;
    values.financialYear = info.faYear;
    values.assessmentYear = info.asstYear;
    values.revisedReceiptNo = info.revisedReceiptNo;
    values.compName = info.compName;
    values.branch = info.branch;
    values.email = info.email;
    values.address = {info.address1, info.address2, info.address3, info.address4, info.address5};
    values.state = info.state;
    values.pincode = info.pincode;
    values.phone = info.phone;
    values.personName = info.personName;
    values.designation = info.designation;
    values.personEmail = info.pEmail;
    values.deductees = info.noDeductee;
    values.deductorType = generation.text(QStringLiteral("txtDType"));
    values.totalAmountPaid = generation.text(QStringLiteral("txtTotAmountPaidFG"));
    values.totalTds = generation.text(QStringLiteral("txtTotTDSFG"));
    values.totalDeposited = generation.text(QStringLiteral("txtTotTaxDepositedFg"));
    values.annexures = generation.text(QStringLiteral("txtAnnexures"));
    values.otherInformation = generation.text(QStringLiteral("txtOtherInf"));
    return values;
}
