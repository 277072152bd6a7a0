#pragma once

#include <QString>
#include <stdexcept>

/// A failure of the data store: the engine's error code and its description, as the user sees it.
class StoreError : public std::runtime_error
{
public:
    /// The engine's primary result codes that the programs tell apart.
    static constexpr int busyCode = 5;
    static constexpr int corruptCode = 11;
    static constexpr int diskFullCode = 13;
    static constexpr int cannotOpenCode = 14;
    static constexpr int constraintCode = 19;
    static constexpr int notADatabaseCode = 26;

    StoreError(const QString &code, const QString &description)
        : std::runtime_error(description.toStdString()), m_code(code), m_description(description)
    {
    }

    /// The engine's own error number as text ("14", "26"), or empty when it gave none.
    QString code() const { return m_code; }
    /// The primary result code of that number (its low byte), 0 when there is none.
    int primaryCode() const { return m_code.toInt() & 0xff; }
    QString description() const { return m_description; }
    /// The engine's failure in words that follow "The data store ... cannot be opened: ", or
    /// the description itself when the engine gave no code.
    QString reason() const;

private:
    QString m_code;
    QString m_description;
};
