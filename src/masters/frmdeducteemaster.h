#pragma once

#include "masters/deducteemaster.h"
#include "masters/partymasterform.h"

#include <array>

class QLabel;
struct Session;

// "Deductee Master": the payees of a group, for Forms 26Q, 27Q and 27EQ.
class FrmDeducteeMaster : public PartyMasterForm
{
    Q_OBJECT

public:
    FrmDeducteeMaster(Session &session, MessageBoxes &boxes, QWidget *parent = nullptr);

    // UpdateDeducteeInfo: the deductee on the screen into his rows of the three forms. A store
    // failure is shown with its description.
    void updateDeducteeInfo();

protected:
    void readOwnFields() override;
    void showOwnFields() override;
    bool leaveOwnField(QWidget *field) override;

private:
    void stateChosen();

    DeducteeMaster m_deductees;
    QComboBox *m_code;
    QLabel *m_codeCaption;
    std::array<QLineEdit *, 5> m_address;
    QComboBox *m_state = nullptr;
    QLineEdit *m_stateId = nullptr;
    QLineEdit *m_stateCode = nullptr;
    QLineEdit *m_pin = nullptr;
};
