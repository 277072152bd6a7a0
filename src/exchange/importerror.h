#pragma once

#include <QString>
#include <stdexcept>

/// Why an import of masters did not happen, in words for the user. The current data store is as
/// it was before: an import is never half done.
class ImportError : public std::runtime_error
{
public:
    /// What the screen shows after the reason.
    static inline const QString nothingImportedText =
        QStringLiteral("Nothing was imported; the current database is as it was.");

    explicit ImportError(const QString &reason)
        : std::runtime_error(reason.toStdString()), m_reason(reason)
    {
    }

    QString reason() const { return m_reason; }

private:
    QString m_reason;
};
