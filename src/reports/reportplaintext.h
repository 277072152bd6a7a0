#pragma once

#include <QByteArray>

class Report;

/// The report as UTF-8 text with a byte-order mark (so that editors take it as Unicode): one
/// line for each line of a band, the cells in columns of characters where they stand on the
/// page, the heads of a table once.
QByteArray reportPlainText(const Report &report);
