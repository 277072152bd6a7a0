#include "returnfile/form27a.h"

#include "core/datastore.h"
#include "core/numbers.h"
#include "core/records.h"

#include <QSqlQuery>

namespace form27a {

std::optional<Report> build(const DataStore &store, const Form27AValues &values)
{
    const QVariant last = store.scalar(
        QStringLiteral("SELECT MAX(FGId) FROM FileGenerationLog "
                       "WHERE CompID = ? AND FormNo = ? AND AsstYear = ?"),
        {qint64(numbers::val(values.compId)),
         QStringLiteral("Form -") + formTraits(values.form).formType,
         values.assessmentYear.trimmed()});
    if (last.isNull())
        return std::nullopt;

    // The company is the one the log row names, which is the screen's own.
    const QVariant compId = store.scalar(
        QStringLiteral("SELECT CompID FROM FileGenerationLog WHERE FGId = ?"), {last});
    Form27APerson person;
    QSqlQuery company = store.exec(
        QStringLiteral("SELECT PAddress1, PAddress2, PAddress3, PAddress4, PAddress5, PStateID, "
                       "PPincode, pPhone FROM mstCompany WHERE CompID = ?"),
        {compId});
    if (company.next()) {
        for (int line = 0; line < 5; ++line)
            person.address[line] = records::nullToText(company.value(line));
        person.state = records::lookupText(store, QStringLiteral("mstState"),
                                           QStringLiteral("StateID"),
                                           QStringLiteral("StateName"), company.value(5).toInt());
        person.pincode = records::nullToText(company.value(6));
        person.phone = records::nullToText(company.value(7));
    }
    return sheet(values, person);
}

} // namespace form27a
