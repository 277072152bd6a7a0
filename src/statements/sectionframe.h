#pragma once

#include "statements/popupframe.h"

class MessageBoxes;
class QTableView;
class SectionDelegate;
class SectionGrid;

/// One of the frames Fram1 to Fram4: a section grid with its OK and Cancel.
class SectionFrame : public PopupFrame
{
    Q_OBJECT

public:
    SectionFrame(SectionGrid &grid, MessageBoxes &boxes, QWidget *parent);

    SectionGrid &grid() const { return m_grid; }
    /// The list of sections the grid's first column offers.
    void setOffered(const QStringList &sections);
    /// Pops up with the first section's amount ready for typing.
    void open();
    /// Ends an edit still open in the grid, so that OK and Cancel see what was typed.
    void finishEditing();

private:
    SectionGrid &m_grid;
    QTableView *m_view;
    SectionDelegate *m_delegate;
};
