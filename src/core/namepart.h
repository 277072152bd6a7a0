#pragma once

#include <QString>

/**
 * Whether a part of a file name that comes from stored values (a company's file prefix, a TAN,
 * a form's number) holds ASCII letters and digits only. Anything else could climb out of the
 * folder ("../", "/"), hide a control character in the name or break on another system, so
 * every name built from data is refused unless each of its parts passes. An empty part passes.
 */
bool isPlainNamePart(const QString &part);
