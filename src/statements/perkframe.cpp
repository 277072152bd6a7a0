#include "statements/perkframe.h"

#include "core/fieldpath.h"
#include "core/keyfilters.h"
#include "statements/salaryentry.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

PerkFrame::PerkFrame(MessageBoxes &boxes, QWidget *parent)
    : PopupFrame(QStringLiteral("FramPerk"), QStringLiteral("Perk Details"),
                 QStringLiteral("cmdPerkOk"), QStringLiteral("cmdPerkCancel"), parent)
{
    auto *grid = new QGridLayout;
    const auto perks = SalaryEntry::perkBoxes();
    const int half = (int(perks.size()) + 1) / 2;
    for (int index = 0; index < int(perks.size()); ++index) {
        auto *box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("txtPerk(%1)").arg(index));
        box->setMaxLength(15);
        box->setAlignment(Qt::AlignRight);
        box->setReadOnly(perks[index].computed);
        if (perks[index].computed) {
            box->setFocusPolicy(Qt::NoFocus);
        } else {
            keyfilters::installNumeric(box, boxes, true);
            keyfilters::selectOnEntry(box);
        }
        connect(box, &QLineEdit::textEdited, this, &PerkFrame::perkEdited);
        m_perks[index] = box;
        auto *label = new QLabel(QLatin1String(perks[index].label), this);
        label->setBuddy(box);
        const int column = index < half ? 0 : 2;
        grid->addWidget(label, index % half, column);
        grid->addWidget(box, index % half, column + 1);
    }
    grid->setColumnMinimumWidth(2, 220);
    body()->addLayout(grid);
}

void PerkFrame::open()
{
    popUp();
    FieldPath::enter(m_perks[0]);
}

void PerkFrame::readPerks(SalaryEntry &entry) const
{
    for (int index = 0; index < int(m_perks.size()); ++index)
        entry.perk[index] = m_perks[index]->text();
}

void PerkFrame::showPerks(const SalaryEntry &entry)
{
    for (int index = 0; index < int(m_perks.size()); ++index) {
        if (m_perks[index]->text() != entry.perk.at(index))
            m_perks[index]->setText(entry.perk.at(index));
    }
}
