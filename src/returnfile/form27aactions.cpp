#include "returnfile/form27aactions.h"

#include "core/messageboxes.h"
#include "core/storeerror.h"
#include "reports/reportexport.h"
#include "reports/reportpreview.h"
#include "returnfile/form27a.h"

namespace form27aactions {

namespace {

constexpr reportexport::Filter exportFilters[] = {
    {"Excel File (*.xlsx)", reportfile::Format::Workbook},
    {"Document File (*.odt)", reportfile::Format::Document},
    {"Text File (*.txt)", reportfile::Format::PlainText},
    {"PDF File (*.pdf)", reportfile::Format::Pdf},
};

std::optional<Report> sheetOrMessage(const DataStore &store, MessageBoxes &boxes,
                                     const Form27AValues &values)
{
    try {
        std::optional<Report> sheet = form27a::build(store, values);
        if (!sheet)
            boxes.show({form27a::notGenerated, appTitle, MessageIcon::Critical});
        return sheet;
    } catch (const StoreError &error) {
        boxes.show({error.description(), appTitle, MessageIcon::Critical});
        return std::nullopt;
    }
}

} // namespace

void printForm27A(QWidget *parent, const DataStore &store, MessageBoxes &boxes,
                  const Form27AValues &values)
{
    if (std::optional<Report> sheet = sheetOrMessage(store, boxes, values)) {
        ReportPreview::open(parent, std::make_shared<const Report>(std::move(*sheet)), boxes,
                            QStringLiteral("drpt27A"));
    }
}

void exportForm27A(QWidget *parent, const DataStore &store, MessageBoxes &boxes,
                   const Form27AValues &values)
{
    if (const std::optional<Report> sheet = sheetOrMessage(store, boxes, values)) {
        reportexport::exportReport(parent, QStringLiteral("Export Form 27A"), *sheet, boxes,
                                   exportFilters);
    }
}

bool exportForm27ATo(const DataStore &store, MessageBoxes &boxes, const Form27AValues &values,
                     const QString &fileName, reportfile::Format fallback)
{
    const std::optional<Report> sheet = sheetOrMessage(store, boxes, values);
    return sheet && reportexport::saveAs(*sheet, boxes, fileName, fallback);
}

} // namespace form27aactions
