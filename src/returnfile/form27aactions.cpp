#include "returnfile/form27aactions.h"

#include "core/messageboxes.h"
#include "core/storeerror.h"
#include "reports/reportpreview.h"
#include "returnfile/form27a.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace form27aactions {

namespace {

struct ExportFilter
{
    const char *filter;
    reportfile::Format format;
};

constexpr ExportFilter exportFilters[] = {
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

bool save(const Report &sheet, MessageBoxes &boxes, const QString &fileName,
          reportfile::Format fallback)
{
    const reportfile::Format format = reportfile::formatForName(fileName).value_or(fallback);
    const QString target = reportfile::nameForFormat(fileName, format);
    // The dialog asked before replacing the name as chosen, never the one written.
    if (target != fileName && QFileInfo::exists(target)
        && boxes.show({replaceQuestion.arg(QDir::toNativeSeparators(target)), appTitle,
                       MessageIcon::Question, MessageButtons::YesNo, true})
               != Answer::Yes)
        return false;
    const QString error = reportfile::save(sheet, format, target);
    if (!error.isEmpty())
        boxes.show({error, appTitle, MessageIcon::Critical});
    return error.isEmpty();
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
    const std::optional<Report> sheet = sheetOrMessage(store, boxes, values);
    if (!sheet)
        return;
    QStringList filters;
    for (const ExportFilter &filter : exportFilters)
        filters.append(QLatin1String(filter.filter));
    QString chosenFilter = filters.first();
    const QString fileName = QFileDialog::getSaveFileName(
        parent, QStringLiteral("Export Form 27A"), QDir::homePath(),
        filters.join(QStringLiteral(";;")), &chosenFilter);
    if (fileName.trimmed().isEmpty())
        return;
    reportfile::Format fallback = exportFilters[0].format;
    for (const ExportFilter &filter : exportFilters) {
        if (chosenFilter == QLatin1String(filter.filter))
            fallback = filter.format;
    }
    save(*sheet, boxes, fileName, fallback);
}

bool exportForm27ATo(const DataStore &store, MessageBoxes &boxes, const Form27AValues &values,
                     const QString &fileName, reportfile::Format fallback)
{
    const std::optional<Report> sheet = sheetOrMessage(store, boxes, values);
    return sheet && save(*sheet, boxes, fileName, fallback);
}

} // namespace form27aactions
