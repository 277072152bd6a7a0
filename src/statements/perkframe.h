#pragma once

#include "statements/popupframe.h"

#include <array>

class MessageBoxes;
class QLineEdit;
struct SalaryEntry;

/// FramPerk, "Perk Details": the boxes txtPerk(0) to txtPerk(12), three of them computed.
class PerkFrame : public PopupFrame
{
    Q_OBJECT

public:
    PerkFrame(MessageBoxes &boxes, QWidget *parent);

    /// Pops up with the first perquisite ready for typing.
    void open();
    void readPerks(SalaryEntry &entry) const;
    void showPerks(const SalaryEntry &entry);

signals:
    /// A perquisite typed by the user.
    void perkEdited();

private:
    std::array<QLineEdit *, 13> m_perks{};
};
