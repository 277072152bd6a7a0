#pragma once

#include <QString>
#include <stdexcept>

/// Why a return file was not written: a value the file cannot carry, or a file that cannot be
/// put in place. Nothing is left at the file's path when this is thrown.
class ReturnFileError : public std::runtime_error
{
public:
    /// A value refuses the Statement; the file system fails the generation.
    enum class Cause { Value, FileSystem };

    explicit ReturnFileError(const QString &message, Cause cause = Cause::Value)
        : std::runtime_error(message.toStdString()), m_message(message), m_cause(cause)
    {
    }

    QString message() const { return m_message; }
    Cause cause() const { return m_cause; }

private:
    QString m_message;
    Cause m_cause;
};
