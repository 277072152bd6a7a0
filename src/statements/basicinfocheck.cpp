#include "statements/basicinfocheck.h"

#include "core/fieldrules.h"
#include "core/numbers.h"
#include "statements/basicinfo.h"

namespace basicinfocheck {

namespace {

FieldFailure refusal(const QString &text, const QString &field)
{
    return {{text, appTitle, MessageIcon::Information}, field};
}

std::optional<FieldFailure> checkEmail(const QString &address, const QString &field)
{
    QString emailError;
    if (address.trimmed().isEmpty() || fieldrules::isValidEmail(address.trimmed(), emailError))
        return std::nullopt;
    return refusal(emailError, field);
}

std::optional<FieldFailure> checkState(const QString &code, const QString &combo)
{
    if (code.trimmed().isEmpty())
        return refusal(selectStateText, combo);
    return std::nullopt;
}

struct Required
{
    QString BasicInfo::*member;
    const char *message;
    const char *field;
};

} // namespace

std::optional<FieldFailure> firstFailure(const BasicInfo &info, bool tanReceiptShown)
{
    using fieldrules::isBlank;
    if (auto failure = isBlank(info.noChallan, challanCountText, "txtNoChallan"))
        return failure;
    if (auto failure = isBlank(info.noDeductee, deducteeCountText, "txtNoDeductee"))
        return failure;
    if (tanReceiptShown && numbers::val(info.tanReceiptNo) < 14)
        return refusal(tanReceiptText, QStringLiteral("txttanReceiptNo"));
    if (auto failure = checkEmail(info.email, QStringLiteral("txtEmail")))
        return failure;
    if (auto failure = checkEmail(info.pEmail, QStringLiteral("txtPemail")))
        return failure;

    static const Required header[] = {
        {&BasicInfo::tan, "Please enter TAN", "txtTan"},
        {&BasicInfo::pan, "Please enter PAN", "txtPAN"},
        {&BasicInfo::asstYear, "Please enter Assesment Year", "TxtAssesment"},
        {&BasicInfo::faYear, "Please enter FA Year", "txtFAYear"},
        {&BasicInfo::compName, "Please enter Name Of the Company", "txtCompName"},
    };
    for (const Required &required : header) {
        if (auto failure = isBlank(info.*required.member, QLatin1String(required.message),
                                   QLatin1String(required.field)))
            return failure;
    }
    if (auto failure = checkState(info.stateCode, QStringLiteral("cmbState")))
        return failure;

    static const Required person[] = {
        {&BasicInfo::pincode, "Please enter PIN", "txtPincode"},
        {&BasicInfo::personName, "Please enter resposible person name", "txtPersonName"},
        {&BasicInfo::designation, "Please enter Designation", "txtDesignation"},
    };
    for (const Required &required : person) {
        if (auto failure = isBlank(info.*required.member, QLatin1String(required.message),
                                   QLatin1String(required.field)))
            return failure;
    }
    if (auto failure = checkState(info.pStateCode, QStringLiteral("cmbPState")))
        return failure;
    if (info.pincode.trimmed().size() < 6)
        return refusal(pincodeText, QStringLiteral("txtPincode"));
    if (info.isRevised() && numbers::val(info.revisedReceiptNo) < 14)
        return refusal(revisedReceiptText, QStringLiteral("txtRevisedReceiptNo"));
    return std::nullopt;
}

} // namespace basicinfocheck
