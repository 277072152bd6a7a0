#include "statements/annexurerowlayout.h"

#include "core/datebox.h"
#include "core/formtraits.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

/// A label's text with the form's item number, or as it is where the form has none.
QString label(const QString &text, int item)
{
    return item ? text.arg(item) : text;
}

} // namespace

QGridLayout *layOutAnnexureRow(QWidget *panel, const FormTraits &form,
                               const AnnexureRowBoxes &row)
{
    const bool employees = form.salaryLayout;
    const auto item = [&form](AnnexureItem which) { return form.annexureItem(which); };
    auto *grid = new QGridLayout;
    const auto place = [panel, grid](const QString &caption, QWidget *field, int line,
                                     int column) {
        auto *text = new QLabel(caption, panel);
        text->setBuddy(field);
        grid->addWidget(text, line, column * 2);
        grid->addWidget(field, line, column * 2 + 1);
    };
    const QString party = form.partyWord;
    place(party + QStringLiteral(" Srl No"), row.box("txtDeducteeSrlNo"), 0, 0);
    place(label(party + QStringLiteral(" Name [%1]"), item(AnnexureItem::Name)), row.party, 1,
          0);
    place(label(QStringLiteral("PAN  [%1]"), item(AnnexureItem::Pan)), row.box("txtPANDeductee"),
          2, 0);
    place(QStringLiteral("PAN  REF."), row.box("txtPanRefDeductee"), 3, 0);
    if (employees) {
        place(QStringLiteral("Designation"), row.box("txtEmpDesignation"), 4, 0);
        place(QStringLiteral("From Date"), row.fromDate, 0, 1);
        place(QStringLiteral("To Date"), row.toDate, 1, 1);
    } else {
        place(label(QStringLiteral("Deductee Code [%1]"), item(AnnexureItem::Code)),
              row.box("txtDeducteeCode"), 4, 0);
        const char *addresses[] = {"txtAdd1", "txtAdd2", "txtAdd3", "txtAdd4", "txtAdd5"};
        for (int line = 0; line < 5; ++line)
            place(line == 0 ? QStringLiteral("Address ") : QString(), row.box(addresses[line]),
                  line, 1);
        auto *state = new QHBoxLayout;
        state->addWidget(row.state, 1);
        state->addWidget(row.box("txtDStateCode"));
        row.box("txtDStateCode")->setMaximumWidth(36);
        auto *stateLabel = new QLabel(QStringLiteral("State"), panel);
        stateLabel->setBuddy(row.state);
        grid->addWidget(stateLabel, 5, 2);
        grid->addLayout(state, 5, 3);
        place(QStringLiteral("PIN"), row.box("txtDPin"), 6, 1);
    }
    place(label(QStringLiteral(" Date [%1]"), item(AnnexureItem::Date)), row.date, 0, 2);
    place(label(QStringLiteral("Amount [%1]"), item(AnnexureItem::Amount)), row.box("txt104"), 1,
          2);
    int line = 2;
    if (!employees)
        place(label(QStringLiteral("Rate[%1]"), item(AnnexureItem::Rate)), row.box("txt106"),
              line++, 2);
    place(label(QStringLiteral("Tax[%1]"), item(AnnexureItem::Tax)), row.box("txtdedTax"), line++,
          2);
    place(label(QStringLiteral("Surcharge[%1]"), item(AnnexureItem::Surcharge)),
          row.box("txtdedSurcharge"), line++, 2);
    place(label(QStringLiteral("Cess[%1]"), item(AnnexureItem::Cess)), row.box("txtdedCess"),
          line++, 2);
    place(label(QStringLiteral("Total[%1]"), item(AnnexureItem::Total)), row.box("txtdedTotal"),
          line++, 2);
    place(label(QStringLiteral("Tax Deposited [%1]"), item(AnnexureItem::Deposited)),
          row.box("txt107"), line++, 2);
    if (!form.purchaseColumn.isEmpty())
        place(label(QStringLiteral("Total Value Of Purchase [%1]"), item(AnnexureItem::Extra)),
              row.box("txtValOfPurchase"), line++, 2);
    if (!form.grossingUpColumn.isEmpty())
        place(label(QStringLiteral("Grossing Up Indicator[%1] :"), item(AnnexureItem::Extra)),
              row.grossingUp, line++, 2);
    for (int column : {1, 3, 5})
        grid->setColumnStretch(column, 1);
    for (const char *only : {"txtDeducteeCode", "txtAdd1", "txtAdd2", "txtAdd3", "txtAdd4",
                             "txtAdd5", "txtDStateCode", "txtDPin", "txt106"})
        row.box(only)->setVisible(!employees);
    row.state->setVisible(!employees);
    row.box("txtEmpDesignation")->setVisible(employees);
    row.box("txtValOfPurchase")->setVisible(!form.purchaseColumn.isEmpty());
    row.grossingUp->setVisible(!form.grossingUpColumn.isEmpty());
    row.fromDate->setVisible(employees);
    row.toDate->setVisible(employees);
    return grid;
}
