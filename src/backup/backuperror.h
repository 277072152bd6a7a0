#pragma once

#include <QString>
#include <stdexcept>

/// Why a backup or a restore did not happen, and what kind of failure it was: a store or a
/// file that was refused (the user can act on the file), or the file system that failed.
class BackupError : public std::runtime_error
{
public:
    /// The values are the exit status of the command-line form.
    enum Kind { Refused = 1, FileSystem = 3 };

    BackupError(Kind kind, const QString &text)
        : std::runtime_error(text.toStdString()), m_kind(kind), m_text(text)
    {
    }

    Kind kind() const { return m_kind; }
    QString text() const { return m_text; }

private:
    Kind m_kind;
    QString m_text;
};
