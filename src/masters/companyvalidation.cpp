#include "masters/companyvalidation.h"

#include "core/datastore.h"
#include "core/fieldrules.h"
#include "core/messageboxes.h"
#include "core/numbers.h"
#include "core/records.h"
#include "masters/groupmaster.h"

namespace {

using E = CompanyEntry;

struct Required
{
    const char *field;
    QString CompanyEntry::*member;
    const QString &text;
};

// The fields that may not be blank, in the order the save looks at them.
const Required requiredFields[] = {
    {"txtTan", &E::tan, CompanyValidation::enterTanText},
    {"cmbGroupName", &E::groupName, GroupMaster::enterGroupText},
    {"txtCompName", &E::name, CompanyValidation::enterCompanyNameText},
    {"cmbDeType", &E::deductorType, CompanyValidation::enterDeductorTypeText},
    {"txtAddress1", &E::address1, CompanyValidation::enterAddressText},
    {"cmbState", &E::state, CompanyValidation::enterStateText},
    {"txtPincode", &E::pincode, CompanyValidation::enterPinText},
    {"txtPersonName", &E::personName, CompanyValidation::enterPersonNameText},
    {"txtDesignation", &E::designation, CompanyValidation::enterDesignationText},
    {"txtPAddress1", &E::pAddress1, CompanyValidation::enterAddressText},
    {"cmbPState", &E::pState, CompanyValidation::enterStateText},
    {"txtPpincode", &E::pPincode, CompanyValidation::enterPinText},
    {"txtPrefix", &E::filePrefix, CompanyValidation::enterPrefixText},
};

FieldFailure refusal(const QString &text, const char *field,
                     MessageIcon icon = MessageIcon::Information)
{
    return {{text, appTitle, icon}, QLatin1String(field)};
}

bool noId(const QString &idText)
{
    return numbers::val(idText) == 0;
}

int idOf(const CompanyEntry &entry)
{
    return int(numbers::val(entry.compId));
}

std::optional<FieldFailure> checkEmail(const QString &address, const char *field)
{
    if (address.trimmed().isEmpty())
        return std::nullopt;
    // Checked as typed: a blank before or after the address is one of the blanks it refuses.
    QString emailError;
    if (fieldrules::isValidEmail(address, emailError))
        return std::nullopt;
    return refusal(emailError, field);
}

} // namespace

CompanyValidation::CompanyValidation(const DataStore &store) : m_store(store)
{
}

CompanyValidation::Verdict CompanyValidation::validate(const CompanyEntry &entry,
                                                       MessageBoxes &boxes) const
{
    Verdict verdict;
    verdict.refusal = checkFields(entry);
    if (!verdict.refusal)
        verdict.refusal = checkTan(entry);
    if (verdict.refusal)
        return verdict;
    if (const std::optional<Message> warning = nameAndPanWarning(entry)) {
        if (boxes.show(*warning) == Answer::No) {
            verdict.declined = true;
            return verdict;
        }
    }
    verdict.refusal = checkPrefix(entry);
    return verdict;
}

std::optional<FieldFailure> CompanyValidation::checkFields(const CompanyEntry &entry)
{
    for (const Required &required : requiredFields) {
        if (auto failure = fieldrules::isBlank(entry.*(required.member), required.text,
                                               QLatin1String(required.field)))
            return failure;
    }
    if (auto failure = checkEmail(entry.email, "txtEmail"))
        return failure;
    if (auto failure = checkEmail(entry.pEmail, "txtPemail"))
        return failure;
    if (noId(entry.groupId))
        return refusal(properGroupText, "cmbGroupName");
    if (noId(entry.stateId))
        return refusal(stateFromListText, "cmbState");

    const QString type = entry.deductorType.trimmed().toUpper();
    const auto typeIn = [&type](const char *types) {
        return type.size() == 1 && QLatin1String(types).contains(type);
    };
    if (typeIn("SEHN") && noId(entry.dStateId))
        return refusal(deductorStateText, "cmbDState");
    if (typeIn("ADG") && noId(entry.ministryId))
        return refusal(ministryText, "cmbMinistry");
    if (type == u"A" && entry.paoCode.trimmed().isEmpty())
        return refusal(paoCodeText, "txtPAOCode");
    if (type == u"A" && entry.ddoCode.trimmed().isEmpty())
        return refusal(ddoCodeText, "txtDDOCode");
    if (entry.ministry.trimmed().compare(CompanyEntry::otherMinistry, Qt::CaseInsensitive) == 0
        && entry.ministryOther.trimmed().isEmpty())
        return refusal(otherMinistryText, "txtMinistryNameOther");
    if (noId(entry.pStateId))
        return refusal(stateFromListText, "cmbPState");
    return std::nullopt;
}

std::optional<FieldFailure> CompanyValidation::checkTan(const CompanyEntry &entry) const
{
    // Any number of companies may wait for their TAN.
    QString sql = QStringLiteral("SELECT TanNO FROM mstCompany WHERE TanNO = ? AND TanNO <> ?");
    QVariantList values{records::escapeText(entry.tan), CompanyEntry::tanApplied};
    if (entry.isEdit) {
        sql += QStringLiteral(" AND CompID <> ?");
        values << idOf(entry);
    }
    if (m_store.hasRows(sql, values))
        return refusal(tanExistsText, "txtTan");
    return std::nullopt;
}

std::optional<Message> CompanyValidation::nameAndPanWarning(const CompanyEntry &entry) const
{
    QString sql = QStringLiteral("SELECT CompID FROM mstCompany WHERE CompName = ? AND PanNo = ?");
    QVariantList values{records::escapeText(entry.name), records::escapeText(entry.pan)};
    if (entry.isEdit) {
        sql += QStringLiteral(" AND CompID <> ?");
        values << idOf(entry);
    }
    if (!m_store.hasRows(sql, values))
        return std::nullopt;
    return Message{nameAndPanExistText, appTitle, MessageIcon::Question, MessageButtons::YesNo};
}

std::optional<FieldFailure> CompanyValidation::checkPrefix(const CompanyEntry &entry) const
{
    // The prefix names the company's return files, so two companies cannot share one.
    QString sql = QStringLiteral("SELECT FilePrefix FROM mstCompany WHERE FilePrefix = ?");
    QVariantList values{records::escapeText(entry.filePrefix)};
    if (entry.isEdit) {
        sql += QStringLiteral(" AND CompID <> ?");
        values << idOf(entry);
    }
    if (m_store.hasRows(sql, values))
        return refusal(prefixExistsText, "txtPrefix");
    return std::nullopt;
}

std::optional<FieldFailure> CompanyValidation::leavingTan(const QString &text)
{
    const QString tan = text.trimmed();
    if (!tan.isEmpty() && tan.size() < 10)
        return refusal(shortTanText, "txtTan", MessageIcon::Critical);
    return std::nullopt;
}

QString CompanyValidation::panOnLeaving(const QString &text)
{
    return text.trimmed().isEmpty() ? CompanyEntry::panNotRequired : text;
}

std::optional<FieldFailure> CompanyValidation::leavingPan(const QString &text)
{
    if (text.trimmed().size() < 10)
        return refusal(shortPanText, "txtPAN", MessageIcon::Critical);
    return std::nullopt;
}

std::optional<FieldFailure> CompanyValidation::leavingDeductorType(const QString &text)
{
    if (text.trimmed().isEmpty())
        return refusal(deductorTypeFromListText, "cmbDeType");
    return std::nullopt;
}

std::optional<FieldFailure> CompanyValidation::leavingStatus(const QString &text)
{
    // Compared as typed: the combo's own keys give capitals.
    if (text != u"C" && text != u"O")
        return refusal(statusText, "cmbStatus");
    return std::nullopt;
}

FieldFailure CompanyValidation::stateNotInList(const QString &field)
{
    return {{stateFromListText, appTitle, MessageIcon::Information}, field};
}
