#pragma once

#include <QString>
#include <stdexcept>

/// A failure of the data store: the engine's error code and its description, as the user sees it.
class StoreError : public std::runtime_error
{
public:
    StoreError(const QString &code, const QString &description)
        : std::runtime_error(description.toStdString()), m_code(code), m_description(description)
    {
    }

    /// The engine's own error number as text ("14", "26"), or empty when it gave none.
    QString code() const { return m_code; }
    QString description() const { return m_description; }

private:
    QString m_code;
    QString m_description;
};
