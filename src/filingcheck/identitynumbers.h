#pragma once

#include <QString>
#include <QStringList>

/// The shapes of the identity numbers that a return carries, and what a PAN's letters say.
namespace filingcheck::identity {

/// Layouts of letters (A, a capital) and digits (9).
inline constexpr char panShape[] = "AAAAA9999A";
inline constexpr char tanShape[] = "AAAA99999A";
inline constexpr char bsrShape[] = "9999999";
inline constexpr char challanSerialShape[] = "99999";
inline constexpr char pinShape[] = "999999";

/// Whether @p text is exactly the capitals and digits that @p shape lays out.
bool hasShape(const QString &text, const char *shape);

/// What stands in a PAN column for a PAN that the deductee has not got or not given.
const QStringList &panPlaceholders();
bool isPanPlaceholder(const QString &pan);

/// A PAN of the right shape whose digits are all zero, which the authority never allots.
bool hasZeroDigits(const QString &pan);

/// The fourth letters of a PAN that name a kind of holder: person, company, HUF, firm, AOP,
/// trust, BOI, local authority, artificial juridical person, government, and two also seen.
inline constexpr char holderKinds[] = "PCHFATBLJGKE";
inline constexpr char16_t personKind = u'P';
inline constexpr char16_t companyKind = u'C';

/// What a deductor without a PAN of its own gives: a government office.
inline const QString panNotRequired = QStringLiteral("PANNOTREQD");

} // namespace filingcheck::identity
