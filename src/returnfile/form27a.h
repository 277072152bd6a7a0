#pragma once

#include "reports/report.h"
#include "returnfile/form27avalues.h"

#include <optional>

class DataStore;

/// The particulars of the person responsible that the sheet takes from the company master.
struct Form27APerson
{
    std::array<QString, 5> address; ///< PAddress1 to PAddress5
    QString state;                  ///< the name of the state PStateID
    QString pincode;
    QString phone;
};

/// Form 27A (Form 27B for collectors), the signed cover sheet of a return file.
namespace form27a {

inline const QString notGenerated = QStringLiteral("You need to first generate the Kelvora file");
inline const QString caption = QStringLiteral("Form 27A");

/**
 * The sheet of the values, when a return file has been generated for the company, the form and
 * the assessment year, in any quarter; nothing otherwise. The last generation's company gives
 * the particulars of the person responsible. The log is only read. Throws StoreError.
 */
std::optional<Report> build(const DataStore &store, const Form27AValues &values);

/// The sheet itself: every fixed text and value in the order of the printed form.
Report sheet(const Form27AValues &values, const Form27APerson &person);

} // namespace form27a
