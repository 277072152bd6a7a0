#include "reports/reportexport.h"

#include "core/messageboxes.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace reportexport {

bool exportReport(QWidget *parent, const QString &caption, const Report &report,
                  MessageBoxes &boxes, std::span<const Filter> filters)
{
    QStringList texts;
    for (const Filter &filter : filters)
        texts.append(QLatin1String(filter.text));
    QString chosen = texts.value(0);
    const QString fileName = QFileDialog::getSaveFileName(
        parent, caption, QDir::homePath(), texts.join(QStringLiteral(";;")), &chosen);
    if (fileName.trimmed().isEmpty())
        return false;
    reportfile::Format fallback = filters.front().format;
    for (const Filter &filter : filters) {
        if (chosen == QLatin1String(filter.text))
            fallback = filter.format;
    }
    return saveAs(report, boxes, fileName, fallback);
}

bool saveAs(const Report &report, MessageBoxes &boxes, const QString &fileName,
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
    const QString error = reportfile::save(report, format, target);
    if (!error.isEmpty())
        boxes.show({error, appTitle, MessageIcon::Critical});
    return error.isEmpty();
}

} // namespace reportexport
