#include "statements/panelbuttons.h"

#include "core/formtraits.h"
#include "core/screenroutines.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QString chosenColour = QStringLiteral("background-color: #CFEBF8;");
const QString otherColour = QStringLiteral("background-color: #D7E0E1;");

int indexOf(PanelButtons::Panel panel)
{
    return static_cast<int>(panel) - 1;
}

} // namespace

PanelButtons::PanelButtons(const FormTraits &form, QWidget *parent) : QWidget(parent)
{
    const QString party = form.hasSalaryDetail ? QStringLiteral("Em&ployee Detail")
                                               : QStringLiteral("D&eductee Detail");
    const QStringList names = {"cmdBasicInfo", "cmdChallan", "cmdDeducteeDetails",
                               "cmdEmplyeeDetails"};
    // Each Alt+letter of the screen does one thing: Salary Detail leaves A to Add.
    const QStringList captions = {"&Basic Information", "C&hallan", party, "Sa&lary Detail"};
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < 4; ++index) {
        m_panels[index] = screenroutines::commandButton(captions.at(index), names.at(index),
                                                        this);
        const auto panel = static_cast<Panel>(index + 1);
        connect(m_panels[index], &QPushButton::clicked, this,
                [this, panel] { emit panelChosen(panel); });
        layout->addWidget(m_panels[index]);
    }
    m_panels[indexOf(Panel::Salary)]->setVisible(form.hasSalaryDetail);

    auto *makeFile = screenroutines::commandButton(QStringLiteral("&Generate File"),
                                                   QStringLiteral("CmdMakeFile"), this);
    connect(makeFile, &QPushButton::clicked, this, &PanelButtons::makeFileAsked);
    auto *check = screenroutines::commandButton(QStringLiteral("Chec&k"),
                                                QStringLiteral("cmdCheck"), this);
    check->setToolTip(QStringLiteral(
        "Checks the saved Statement against the authority's validation rules, with the "
        "interest and late fee due before filing."));
    connect(check, &QPushButton::clicked, this, &PanelButtons::checkAsked);
    layout->addSpacing(16);
    layout->addWidget(makeFile);
    layout->addWidget(check);
    layout->addStretch();
}

void PanelButtons::showPanels(const StatementSheet &sheet)
{
    for (int index = 0; index < 4; ++index) {
        const auto panel = static_cast<Panel>(index + 1);
        m_panels[index]->setEnabled(sheet.panelEnabled(panel));
        m_panels[index]->setStyleSheet(sheet.panel() == panel ? chosenColour : otherColour);
    }
}

void PanelButtons::press(Panel panel)
{
    QPushButton *button = m_panels[indexOf(panel)];
    if (button->isEnabled())
        button->click();
}
