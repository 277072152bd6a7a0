#pragma once

#include "statements/annexuresheet.h"
#include "statements/challansheet.h"
#include "statements/statementsheet.h"

#include <QWidget>

class AnnexurePanel;
class BasicInfoPanel;
class GenerationFrame;
class PanelButtons;
class StatementCheck;
class SalaryPanel;
class ChallanPanel;
class MessageBoxes;
class QLabel;
class QPushButton;
class QStackedWidget;
struct FormTraits;
struct Session;

namespace filingcheck {
struct Finding;
}

/**
 * The statement screen of one form (frmForm24, frmForm26, frmForm27 or frmForm27E): the
 * Statement of the session's company and quarter on stacked panels, the panel buttons on the
 * left and the command buttons below. One class serves the four forms; the form traits say how
 * they differ.
 */
class FrmStatement : public QWidget
{
    Q_OBJECT

public:
    FrmStatement(const FormTraits &form, Session &session, MessageBoxes &boxes,
                 QWidget *parent = nullptr);

    /// The challan or row of a finding of the check on its panel, with its field focused.
    void showFinding(const filingcheck::Finding &finding);

signals:
    /// cmd(2): the employee or deductee master is to open, ready for a new party.
    void partyMasterAsked(const QString &screen);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildButtons();
    void layOut();
    void command(int index);
    void showPanel(StatementSheet::Panel panel);
    void showAll();
    void showFocus();
    void coverForm(bool exportIt);
    void syncBasicInfo();
    void makeFile();
    /// Saves what stands on the screen, as generation does; false when the save refused.
    bool saveForFile();
    void openCheck();
    void showGenerationFrame(bool shown);

    StatementSheet m_sheet;
    ChallanSheet m_challans;
    AnnexureSheet m_annexureRows;
    MessageBoxes &m_boxes;
    BasicInfoPanel *m_basicInfo;
    ChallanPanel *m_challan;
    QStackedWidget *m_panels;
    AnnexurePanel *m_annexure;
    SalaryPanel *m_salary;
    GenerationFrame *m_generation;
    PanelButtons *m_buttons;
    StatementCheck *m_check;
    QLabel *m_formCaption;
    QLabel *m_companyName;
    QLabel *m_headCaption;
    QPushButton *m_cmd[5] = {};
    bool m_opened = false;
    bool m_noPrompt = false; // a finished delete closes without the question
};
