#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <optional>

class Report;

/// Many reports, each as a PDF of its own, drawn in one go.
namespace pdfbatch {

/**
 * The reports drawn one after another into one PDF, then cut into one PDF per report, in their
 * order. Drawing the fonts into a PDF costs far more than drawing a page, so a run of small
 * reports is much quicker this way than one PDF at a time; each file still holds everything
 * it needs and reads as the report alone. None, with the reason in @p error, on a failure.
 */
std::optional<QList<QByteArray>> separatePdfs(
    const QList<std::shared_ptr<const Report>> &reports, QString *error);

} // namespace pdfbatch
