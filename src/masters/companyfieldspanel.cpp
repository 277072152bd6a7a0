#include "masters/companyfieldspanel.h"

#include "core/fieldchecks.h"
#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "masters/companyvalidation.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QTimer>

using screenroutines::isEnterKey;

namespace {

// The fields whose leaving is checked or acted on.
const QStringList checkedOnLeaving = {
    QStringLiteral("txtTan"),   QStringLiteral("txtPAN"),    QStringLiteral("txtPersonName"),
    QStringLiteral("cmbDeType"), QStringLiteral("cmbStatus"), QStringLiteral("cmbState"),
    QStringLiteral("cmbPState"),
};

// The person's block as the copy of the deductor's address fills it.
const QStringList personBlock = {
    QStringLiteral("txtPAddress1"), QStringLiteral("txtPAddress2"), QStringLiteral("txtPAddress3"),
    QStringLiteral("txtPAddress4"), QStringLiteral("txtPAddress5"), QStringLiteral("cmbPState"),
    QStringLiteral("txtPstateCode"), QStringLiteral("txtPStId"), QStringLiteral("txtPpincode"),
    QStringLiteral("txtPPhone"), QStringLiteral("txtPemail"), QStringLiteral("txtpStdCode"),
};

// A typed name in the case of the list's row, when the list has it.
void matchListCase(QComboBox *combo)
{
    const int index = combo->findText(combo->currentText().trimmed(), Qt::MatchFixedString);
    if (index >= 0 && combo->currentText() != combo->itemText(index))
        combo->setCurrentIndex(index);
}

} // namespace

CompanyFieldsPanel::CompanyFieldsPanel(const CompanyMaster &master, MessageBoxes &boxes,
                                       QWidget *parent)
    : QWidget(parent), m_boxes(boxes), m_fields(this, boxes), m_links(master, boxes, m_fields)
{
    setObjectName(QStringLiteral("fraCompany"));
}

CompanyEntry CompanyFieldsPanel::entry() const
{
    CompanyEntry entry;
    entry.isEdit = m_isEdit;
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        const QWidget *widget = control(QLatin1String(field.control));
        if (const auto *line = qobject_cast<const QLineEdit *>(widget))
            entry.*(field.member) = line->text();
        else if (const auto *box = qobject_cast<const QComboBox *>(widget))
            entry.*(field.member) = box->currentText();
    }
    return entry;
}

void CompanyFieldsPanel::setEntry(const CompanyEntry &entry)
{
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        QWidget *widget = control(QLatin1String(field.control));
        if (auto *line = qobject_cast<QLineEdit *>(widget))
            line->setText(entry.*(field.member));
        else if (auto *box = qobject_cast<QComboBox *>(widget))
            CompanyFields::setComboText(box, entry.*(field.member));
    }
}

void CompanyFieldsPanel::setEditing(bool editing, bool isEdit)
{
    m_editing = editing;
    m_isEdit = isEdit;
    setEnabled(editing);
}

void CompanyFieldsPanel::refuse(const FieldFailure &failure)
{
    m_boxes.show(failure.message);
    QWidget *field = control(failure.field);
    if (!field)
        return;
    m_refocusing = true;
    fieldchecks::focusIfPossible(field);
    if (auto *line = qobject_cast<QLineEdit *>(field))
        line->selectAll();
    m_refocusing = false;
}

bool CompanyFieldsPanel::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QWidget *>(watched);
    if (!field || control(field->objectName()) != field)
        return QWidget::eventFilter(watched, event);
    if (isEnterKey(event)) {
        enterPressed(field);
        return true;
    }
    if (event->type() == QEvent::FocusOut && m_editing && !m_refocusing
        && checkedOnLeaving.contains(field->objectName())) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        // Opening a list or a box, and leaving for Cancel or Close, is not leaving the field.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason
            && !m_exempt.contains(QApplication::focusWidget())) {
            // Checked once the focus has settled, so that a box never opens amid a focus change.
            const QString name = field->objectName();
            QTimer::singleShot(0, this, [this, name] { fieldLeft(name); });
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CompanyFieldsPanel::enterPressed(QWidget *field)
{
    if (field->objectName() == u"cmbDeType") {
        QWidget *target = control(CompanyMaster::enterTarget(combo(field->objectName())
                                                                 ->currentText()));
        if (target->isEnabled()) {
            target->setFocus(Qt::TabFocusReason);
            return;
        }
    }
    focusNextChild();
}

void CompanyFieldsPanel::fieldLeft(const QString &name)
{
    QWidget *field = control(name);
    if (!m_editing || !field->isEnabled())
        return;
    std::optional<FieldFailure> failure;
    if (name == u"txtTan") {
        failure = CompanyValidation::leavingTan(edit(name)->text());
    } else if (name == u"txtPAN") {
        QLineEdit *pan = edit(name);
        pan->setText(CompanyValidation::panOnLeaving(pan->text()));
        failure = CompanyValidation::leavingPan(pan->text());
    } else if (name == u"txtPersonName") {
        CompanyEntry current = entry();
        if (CompanyMaster::copyAddressToPerson(current)) {
            for (const QString &copied : personBlock) {
                QWidget *widget = control(copied);
                if (auto *line = qobject_cast<QLineEdit *>(widget))
                    line->setText(current.value(copied));
                else if (auto *box = qobject_cast<QComboBox *>(widget))
                    CompanyFields::setComboText(box, current.value(copied));
            }
        }
    } else if (name == u"cmbDeType") {
        matchListCase(combo(name));
        failure = CompanyValidation::leavingDeductorType(combo(name)->currentText());
    } else if (name == u"cmbStatus") {
        failure = CompanyValidation::leavingStatus(combo(name)->currentText());
        if (!failure)
            matchListCase(combo(name));
    } else if (name == u"cmbState" || name == u"cmbPState") {
        QComboBox *box = combo(name);
        matchListCase(box);
        const CompanyMaster::Reference *state = m_links.state(box->currentText());
        if (!state)
            failure = CompanyValidation::stateNotInList(name);
        else if (state->id == CompanyMaster::foreignStateId)
            edit(name == u"cmbState" ? QStringLiteral("txtPincode")
                                     : QStringLiteral("txtPpincode"))
                ->setText(CompanyMaster::foreignPin);
    }
    if (failure)
        refuse(*failure);
}

QLineEdit *CompanyFieldsPanel::edit(const QString &name) const
{
    return m_fields.edit(name);
}

QComboBox *CompanyFieldsPanel::combo(const QString &name) const
{
    return m_fields.combo(name);
}
