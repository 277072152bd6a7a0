#pragma once

#include <QString>

class DataStore;
class MessageBoxes;
struct CompanyEntry;

/**
 * Carries a changed company into the Statements already entered for it in the four forms: the
 * deductor's and the responsible person's particulars of each Statement, and, for a deductor
 * other than the Central Government, the book-entry marks of its challans and deductee rows.
 */
class CompanyPropagation
{
public:
    /// What the user chose for an edited company.
    struct Choice
    {
        bool spread = false;           ///< carry the change into the Statements
        bool excludeGenerated = false; ///< leave the company alone once a file was generated

        bool operator==(const Choice &) const = default;
    };

    static inline const QString updateFormsText =
        QStringLiteral("Do you want to update in respective forms.");
    static inline const QString excludeGeneratedText =
        QStringLiteral("Exclude the form already generated");

    explicit CompanyPropagation(const DataStore &store);

    /// Whether the company has a Statement in any of the four forms.
    bool hasStatements(int compId) const;

    /// Asks whether to spread the change and whether to leave out a company whose return was
    /// generated; nothing is asked, and nothing spread, when the company has no Statement.
    Choice ask(int compId, MessageBoxes &boxes) const;

    /**
     * Writes the choice into the Statements; runs inside the caller's transaction. The filter
     * of generated returns is per company: one generated file keeps every Statement of the
     * company as it is, while the book entries are reset all the same.
     */
    void apply(const CompanyEntry &entry, int compId, const Choice &choice) const;

private:
    const DataStore &m_store;
};
