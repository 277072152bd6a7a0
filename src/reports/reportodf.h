#pragma once

#include <QByteArray>
#include <optional>

class Report;

/// The report as an OpenDocument text, which word processors open: a band of one cell across
/// the page is a paragraph, neighbouring bands with the same cells are one table. Nothing when
/// the document cannot be written.
std::optional<QByteArray> reportOdf(const Report &report);
