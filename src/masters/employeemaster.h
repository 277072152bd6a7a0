#pragma once

#include "masters/partymaster.h"

#include <QDate>

/// The fields of the employee screen.
struct EmployeeFields : PartyFields
{
    QString designation;
    QDate fromDate;
    QDate toDate;
    int category = -1; ///< row of the category list; -1 when none is chosen
};

/**
 * The employee master (frmEmployeeMaster): the employees of a group for Form 24Q. A change to an
 * employee who already has rows in Form 24Q is carried into those rows in the same transaction.
 */
class EmployeeMaster : public PartyMaster
{
public:
    /// The rows of the category combo; the stored category is the row's number.
    static const QStringList categories;
    static constexpr int generalCategory = 2;

    static inline const QString idField = QStringLiteral("txtEmpID");
    static inline const QString nameField = QStringLiteral("txtEmpName");
    static inline const QString categoryField = QStringLiteral("cmbCat");
    static inline const QString fromDateField = QStringLiteral("dtpFromDate");
    static inline const QString toDateField = QStringLiteral("DtpToDate");
    static inline const QString blankNameText = QStringLiteral("Please Enter Employee Name");
    static inline const QString noCategoryText = QStringLiteral("Please enter employee category.");
    static inline const QString noCategoryTitle = QStringLiteral("Alert Message");

    EmployeeMaster(Session &session, MessageBoxes &boxes);

    EmployeeFields &fields() override { return m_fields; }
    const EmployeeFields &fields() const override { return m_fields; }

    /// The refusal of the From or To Date box (by its name) when it holds no date.
    std::optional<FieldFailure> dateFailure(const QString &field) const;

    /// UpdateEmpInfo: the employee's name, designation, dates and PAN into his Form 24Q rows.
    void updateEmpInfo();

protected:
    std::optional<FieldFailure> checkOwnFields() const override;
    void clearOwnFields() override;
    void loadOwnFields(int id) override;
    void insertRecord() override;
    void updateRecord() override;
    void updateStatementRows() override { updateEmpInfo(); }
    void readDefaults() override;
    void commandTail() override;

private:
    EmployeeFields m_fields;
};
