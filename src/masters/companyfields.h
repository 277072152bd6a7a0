#pragma once

#include <QHash>
#include <QList>
#include <QString>

class MessageBoxes;
class QComboBox;
class QLabel;
class QLineEdit;
class QWidget;

/// The company screen's fields: which there are, how each takes keys, and where each sits in
/// the three boxes of the panel. The fields are the panel's children, watched by its event
/// filter, and Tab follows the order of the entry's table of fields.
class CompanyFields
{
public:
    CompanyFields(QWidget *panel, MessageBoxes &boxes);

    /// A field by its objectName; nullptr for an unknown name.
    QWidget *control(const QString &name) const { return m_controls.value(name); }
    QLineEdit *edit(const QString &name) const;
    QComboBox *combo(const QString &name) const;
    QLabel *statusCaption() const { return m_statusCaption; }
    /// Every combo of the panel.
    QList<QComboBox *> combos() const;

    /// Shows a text in a combo: its row when the list holds it (in any case), else as typed.
    static void setComboText(QComboBox *combo, const QString &text);

private:
    void build(MessageBoxes &boxes);
    void layOut();

    QWidget *m_panel;
    QLabel *m_statusCaption;
    QHash<QString, QWidget *> m_controls;
};
