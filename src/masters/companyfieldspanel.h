#pragma once

#include "masters/companymaster.h"

#include <QHash>
#include <QWidget>

class MessageBoxes;
class QComboBox;
class QLabel;
class QLineEdit;
struct FieldFailure;

/// The fields of the company screen, built from the entry's table of fields with their key
/// rules: the combos fill their ids and codes, the deductor type enables and empties what it
/// asks for, and leaving a field runs its check while a company is being edited.
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
    QWidget *control(const QString &name) const { return m_controls.value(name); }

    /// Shows a refusal and puts the focus back on its field, without that counting as leaving
    /// the field that had it.
    void refuse(const FieldFailure &failure);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildFields();
    void layOut();
    void fillLists();

    void groupNameChanged();
    void stateChanged(const QString &combo);
    void ministryChanged();
    void deductorTypeChanged();
    void statusChanged();

    void enterPressed(QWidget *field);
    void fieldLeft(const QString &name);
    void reportStoreError(const QString &description);

    QLineEdit *edit(const QString &name) const;
    QComboBox *combo(const QString &name) const;

    const CompanyMaster &m_master;
    MessageBoxes &m_boxes;
    QList<CompanyMaster::Reference> m_states;
    QList<CompanyMaster::Reference> m_ministries;
    QHash<QString, QWidget *> m_controls;
    QList<QWidget *> m_exempt;
    QLabel *m_statusCaption;
    bool m_editing = false;
    bool m_isEdit = false;
    bool m_refocusing = false; // the focus is being put back on a field that refused
};
