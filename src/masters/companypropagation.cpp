#include "masters/companypropagation.h"

#include "core/datastore.h"
#include "core/messageboxes.h"
#include "core/records.h"
#include "masters/companyentry.h"
#include "core/formtraits.h"

namespace {

using E = CompanyEntry;

struct Copied
{
    const char *column; ///< column of the basic-information tables
    QString CompanyEntry::*member;
};

// The particulars a Statement copies from its company. The branch and the deductor type stay
// as the Statement has them.
const Copied copiedColumns[] = {
    {"TanNO", &E::tan},           {"PanNo", &E::pan},
    {"CompName", &E::name},       {"Address1", &E::address1},
    {"Address2", &E::address2},   {"Address3", &E::address3},
    {"Address4", &E::address4},   {"Address5", &E::address5},
    {"StateCode", &E::stateCode}, {"Pincode", &E::pincode},
    {"Phone", &E::phone},         {"Std", &E::stdCode},
    {"Email", &E::email},         {"PersonName", &E::personName},
    {"Designation", &E::designation}, {"pAddress1", &E::pAddress1},
    {"pAddress2", &E::pAddress2}, {"pAddress3", &E::pAddress3},
    {"pAddress4", &E::pAddress4}, {"pAddress5", &E::pAddress5},
    {"pStateCode", &E::pStateCode}, {"pPincode", &E::pPincode},
    {"pPhone", &E::pPhone},       {"pStd", &E::pStdCode},
    {"pEmail", &E::pEmail},       {"TDSCircle", &E::tdsCircle},
};

struct BookEntryTable
{
    FormKind form;
    bool annexure; ///< the deductee rows rather than the challans
};

// The rows of Form 27Q keep their book-entry marks.
const BookEntryTable bookEntryTables[] = {
    {FormKind::Form24Q, false},
    {FormKind::Form26Q, false},
    {FormKind::Form26Q, true},
    {FormKind::Form27EQ, false},
};

bool isOthers(const QString &status)
{
    return status == u"O";
}

} // namespace

CompanyPropagation::CompanyPropagation(const DataStore &store) : m_store(store)
{
}

bool CompanyPropagation::hasStatements(int compId) const
{
    QStringList selects;
    QVariantList values;
    for (const FormTraits &form : allForms()) {
        selects << QStringLiteral("SELECT CompID FROM %1 WHERE CompID = ?")
                       .arg(form.basicInfoTable);
        values << compId;
    }
    return m_store.hasRows(selects.join(QStringLiteral(" UNION ")), values);
}

CompanyPropagation::Choice CompanyPropagation::ask(int compId, MessageBoxes &boxes) const
{
    Choice choice;
    if (!hasStatements(compId))
        return choice;
    const auto question = [](const QString &text) {
        return Message{text, appTitle, MessageIcon::Question, MessageButtons::YesNo};
    };
    if (boxes.show(question(updateFormsText)) != Answer::Yes)
        return choice;
    choice.spread = true;
    choice.excludeGenerated = boxes.show(question(excludeGeneratedText)) == Answer::Yes;
    return choice;
}

void CompanyPropagation::apply(const CompanyEntry &entry, int compId, const Choice &choice) const
{
    if (!choice.spread)
        return;

    QStringList assignments;
    QVariantList values;
    for (const Copied &copied : copiedColumns) {
        assignments << QLatin1String(copied.column) + QStringLiteral(" = ?");
        values << records::escapeText(entry.*(copied.member));
    }
    values << compId;
    QString where = QStringLiteral(" WHERE CompID = ?");
    if (choice.excludeGenerated) {
        where += QStringLiteral(
            " AND CompID NOT IN (SELECT CompID FROM FileGenerationLog WHERE CompID = ?)");
        values << compId;
    }
    for (const FormTraits &form : allForms()) {
        m_store.exec(QStringLiteral("UPDATE %1 SET %2").arg(form.basicInfoTable,
                                                            assignments.join(QStringLiteral(", ")))
                         + where,
                     values);
    }

    // Only a government office pays tax by book entry; any other deductor pays by challan, and
    // its challans and deductee rows are marked so.
    if (!isOthers(entry.status))
        return;
    for (const BookEntryTable &table : bookEntryTables) {
        const FormTraits &form = formTraits(table.form);
        m_store.exec(QStringLiteral("UPDATE %1 SET BookEntry = 'C' WHERE CompID = ?")
                         .arg(table.annexure ? form.annexureTable : form.challanTable),
                     {compId});
    }
}
