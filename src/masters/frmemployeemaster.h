#pragma once

#include "masters/employeemaster.h"
#include "masters/partymasterform.h"

class DateBox;
struct Session;

// "Employee Master": the employees of a group, for Form 24Q.
class FrmEmployeeMaster : public PartyMasterForm
{
    Q_OBJECT

public:
    FrmEmployeeMaster(Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

    // UpdateEmpInfo: the employee on the screen into his rows of Form 24Q. A store failure is
    // shown with its description.
    void updateEmpInfo();

protected:
    void readOwnFields() override;
    void showOwnFields() override;
    bool leaveOwnField(QWidget *field) override;

private:
    EmployeeMaster m_employees;
    QLineEdit *m_designation;
    DateBox *m_fromDate;
    DateBox *m_toDate;
    QComboBox *m_category;
};
