#pragma once

#include "core/quarter.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

class MessageBoxes;
struct Session;

/**
 * The choice of group, company and quarter that stands between a menu entry and a statement or
 * printing screen. It writes the session values in the program's order and says which screen
 * follows; the selection screen only collects the user's choice and opens that screen.
 */
class CompanySelection
{
public:
    /// One row of the company list.
    struct Company
    {
        QString name;
        int compId = 0;
        QString status; ///< DStatus as listed, empty for a Null
        bool operator==(const Company &) const = default;
    };

    /// What the user has chosen on the screen.
    struct Choice
    {
        QString groupText;   ///< the group combo's text
        QString groupIdText; ///< the hidden group id
        /// The selected list row (CompID and status as listed); none when no row is selected.
        std::optional<Company> company;
        int quarterIndex = -1;
        QString quarterText; ///< handed on to the Form 16A report screen
    };

    enum class Next { Nothing, Statement, Report, Form16AReport };

    /// The outcome of a selection: the screen to open, the field that takes the focus when the
    /// selection stopped, and whether the selection screen closes.
    struct Outcome
    {
        Next next = Next::Nothing;
        QString screen;       ///< objectName of the screen to open, such as "frmForm26"
        QString focus;        ///< objectName of the field at fault; empty when none
        bool closeSelection = false;
        QString quarterText;  ///< the quarter's text, handed to the Form 16A report screen
    };

    static inline const QString noGroupText = QStringLiteral("Please select Group Name ");
    static inline const QString noDeductorTypeText =
        QStringLiteral("Update Deductor Type in Company Master !!!");
    static inline const QString reportScreen = QStringLiteral("FrmReport");
    static inline const QString form16AReportScreen = QStringLiteral("frmForm16Report");

    CompanySelection(Session &session, MessageBoxes &boxes);

    /// Group names for the group combo, in the order of their ids.
    QStringList groupNames() const;
    /// The id of a group name, 0 for an empty or unknown name.
    int groupId(const QString &groupName) const;
    /// The companies of a group in the session's assessment period, by name.
    QList<Company> companies(int groupId) const;

    /// The place in the group names of the group of the last selection of the run; the first
    /// group before the first selection or when that group is gone.
    int lastGroupIndex(const QStringList &groupNames) const;
    /// The quarter of the last selection of the run; the first quarter before the first one.
    int lastQuarterIndex() const;

    /// Sets the session's quarter dates for the index; an invalid index shows its box and leaves
    /// the dates as they were. Returns the period (invalid for an invalid index).
    quarter::Period applyQuarter(int index);

    /// Runs the selection: writes the session values and says what follows.
    Outcome select(const Choice &choice);

private:
    Outcome selectStatement(const Choice &choice, const QString &table, const QString &screen);
    Outcome selectForm16A(const Choice &choice);

    Session &m_session;
    MessageBoxes &m_boxes;
};
