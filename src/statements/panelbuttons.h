#pragma once

#include "statements/statementsheet.h"

#include <QWidget>

class QPushButton;

/**
 * The statement screen's left column: a button for each panel (the one in front coloured),
 * then "Generate File" and "Check". The screen says which panels may be reached.
 */
class PanelButtons : public QWidget
{
    Q_OBJECT

public:
    using Panel = StatementSheet::Panel;

    explicit PanelButtons(const FormTraits &form, QWidget *parent = nullptr);

    /// Which panels may be reached and which one is in front, as the sheet has it.
    void showPanels(const StatementSheet &sheet);
    /// The panel's button pressed, when it may be.
    void press(Panel panel);

signals:
    void panelChosen(StatementSheet::Panel panel);
    void makeFileAsked();
    void checkAsked();

private:
    QPushButton *m_panels[4] = {};
};
