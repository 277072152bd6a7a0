#pragma once

#include "masters/companyfieldlinks.h"
#include "masters/companyfields.h"
#include "masters/companymaster.h"

#include <QWidget>

class MessageBoxes;
class QComboBox;
class QLineEdit;
struct FieldFailure;

/// The fields of the company screen (CompanyFields), with what their combos fill and enable
/// (CompanyFieldLinks): the entry goes in and out here, and leaving a field runs its check while
/// a company is being edited.
class CompanyFieldsPanel : public QWidget
{
    Q_OBJECT

public:
    CompanyFieldsPanel(const CompanyMaster &master, MessageBoxes &boxes,
                       QWidget *parent = nullptr);

    CompanyEntry entry() const;
    /// Fills every field; the deductor type goes first, so that it empties only what the
    /// record does not fill again.
    void setEntry(const CompanyEntry &entry);

    /// Leaving a field is checked only while editing; an edit of a stored company copies no
    /// address into the person's block.
    void setEditing(bool editing, bool isEdit);
    /// Widgets outside the panel whose taking the focus is not leaving a field (Cancel, Close).
    void setLeavingExempt(const QList<QWidget *> &widgets) { m_exempt = widgets; }

    /// A field by its objectName.
    QWidget *control(const QString &name) const { return m_fields.control(name); }

    /// Shows a refusal and puts the focus back on its field, without that counting as leaving
    /// the field that had it.
    void refuse(const FieldFailure &failure);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void enterPressed(QWidget *field);
    void fieldLeft(const QString &name);

    QLineEdit *edit(const QString &name) const;
    QComboBox *combo(const QString &name) const;

    MessageBoxes &m_boxes;
    QList<QWidget *> m_exempt;
    bool m_editing = false;
    bool m_isEdit = false;
    bool m_refocusing = false; // the focus is being put back on a field that refused
    // Made after the state above, which the event filter reads as soon as the fields exist.
    CompanyFields m_fields;
    CompanyFieldLinks m_links;
};
