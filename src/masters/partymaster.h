#pragma once

#include "masters/partyrecordflow.h"

#include <QList>
#include <QString>

#include <optional>

class MessageBoxes;
class StoreError;
struct Session;

/**
 * What the employee and deductee masters share: their record flow (PartyRecordFlow) and their
 * save: the checks in the screen's order, the questions asked before a change is saved, and the
 * writing, which carries a changed party into its statement rows in the same transaction.
 */
class PartyMaster : public PartyRecordFlow
{
public:
    /// A Yes/No question asked before a save; No refuses the save and focuses the field.
    struct Question
    {
        Message message;
        QString field;
        bool operator==(const Question &) const = default;
    };

    static inline const QString noGroupSaveText = QStringLiteral("Please select the Group");
    static inline const QString duplicatePanText =
        QStringLiteral("This  PAN Already exists. Want to Save?");
    static inline const QString duplicateKeyTitle = QStringLiteral("Sorry");
    static inline const QString duplicateKeyText =
        QStringLiteral("Can not enter duplicate Broker Code");
    static inline const QString unableToSaveText =
        QStringLiteral("Unable to Save the Record, Please verfy the data and try again");

    /// The first check of a save that refuses it, in the screen's order.
    std::optional<FieldFailure> firstFailure() const;
    /// The questions a save asks once no check refuses it, in order.
    QList<Question> questions() const;
    /// Whether statement rows of the forms refer to the party being edited.
    bool hasStatementRows() const;

    void validateData(bool &cancel) override;
    void saveProcedure(bool &cancel) override;

protected:
    PartyMaster(Session &session, MessageBoxes &boxes, Traits traits);

    /// The checks of the screen's own fields, between the PAN and the duplicate name.
    virtual std::optional<FieldFailure> checkOwnFields() const = 0;
    virtual void insertRecord() = 0;
    virtual void updateRecord() = 0;
    /// Carries the saved party into its statement rows, inside the save's transaction.
    virtual void updateStatementRows() = 0;

private:
    void showSaveError(const StoreError &error);
};
