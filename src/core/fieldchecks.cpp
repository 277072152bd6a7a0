#include "core/fieldchecks.h"

#include "core/fieldrules.h"
#include "core/messageboxes.h"

#include <QComboBox>
#include <QLineEdit>

namespace fieldchecks {

namespace {

bool reportBlank(MessageBoxes &boxes, QWidget *field, const QString &text,
                 const QString &message)
{
    const std::optional<FieldFailure> failure =
        fieldrules::isBlank(text, message, field->objectName());
    if (!failure)
        return false;
    report(boxes, *failure, field);
    return true;
}

} // namespace

void focusIfPossible(QWidget *widget)
{
    if (widget->isEnabled() && widget->isVisible())
        widget->setFocus();
}

void report(MessageBoxes &boxes, const FieldFailure &failure, QWidget *field)
{
    boxes.show(failure.message);
    if (field)
        focusIfPossible(field);
}

bool isBlank(MessageBoxes &boxes, QLineEdit *edit, const QString &message)
{
    return reportBlank(boxes, edit, edit->text(), message);
}

bool isBlank(MessageBoxes &boxes, QComboBox *combo, const QString &message)
{
    return reportBlank(boxes, combo, combo->currentText(), message);
}

bool checkMaxDigits(MessageBoxes &boxes, QLineEdit *edit, int maximum)
{
    if (const auto warning = fieldrules::checkMaxDigits(edit->text(), maximum,
                                                        edit->objectName()))
        report(boxes, *warning, edit);
    return true;
}

} // namespace fieldchecks
