#pragma once

#include <QString>
#include <stdexcept>

/// Why a return file was not written: a value the file cannot carry, or a file that cannot be
/// put in place. Nothing is left at the file's path when this is thrown.
class ReturnFileError : public std::runtime_error
{
public:
    explicit ReturnFileError(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message)
    {
    }

    QString message() const { return m_message; }

private:
    QString m_message;
};
