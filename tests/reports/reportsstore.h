#pragma once

#include "support/teststore.h"

#include <QString>
#include <QStringList>

/**
 * The store that the report tests read, built once per program. Groups: 1 ALPHA GROUP with
 * companies 1 ZETA TRADERS and 2 (trickyName), both with a deductor type, deductees and
 * employees, one of each named trickyName; 2 BETA GROUP with company 3 BETA MILLS, whose
 * responsible person lives in another state than the company; 3 EMPTY GROUP, with nothing.
 * The log holds three generations: 26Q of company 1 in Q1 and Q2 and 27EQ of company 3, not in
 * the order of their dates. 26Q Statements: 1 of company 1 in Q1, two challans (94C, 94J),
 * ZUBIN MEHTA under 94C twice and 94J once, trickyName under 94C, a row of a section outside
 * the list; 2 of company 1 in Q2 and 3 of company 3 in Q1, one row each; 4 of company 2 in Q1,
 * a challan without rows.
 */
const TestStore &reportsStore();

/// A name that a document must neither read as markup nor lose: an apostrophe, an ampersand,
/// angle brackets and Devanagari letters.
inline const QString trickyName = QStringLiteral("O'Brien & <Sons> राम कमल");
inline const QString assessmentYear = QStringLiteral("202728");

/// Whether poppler's pdftotext is there to read PDFs back.
bool canReadPdf();
/// The text of a PDF as pdftotext reads it, laid out as on the page.
QString pdfText(const QString &path);
/// The text of one member of a zip-based file (a workbook, an OpenDocument), read by unzip.
QByteArray zipMember(const QString &path, const QString &member);

/// Fails the test on the first text that is not found after the one before it.
void expectInOrder(const QString &text, const QStringList &expected);
