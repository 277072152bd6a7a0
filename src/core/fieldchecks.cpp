#include "core/fieldchecks.h"

#include "core/fieldrules.h"
#include "core/session.h"

#include <QComboBox>
#include <QDateEdit>
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

bool reportDate(MessageBoxes &boxes, QDateEdit *date,
                const std::optional<fieldrules::DateFailure> &failure)
{
    if (!failure)
        return true;
    boxes.show(failure->failure.message);
    date->setDate(failure->correctedDate);
    focusIfPossible(date);
    return false;
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

bool checkNotBeforeQuarter(MessageBoxes &boxes, QDateEdit *date, const Session &session)
{
    return reportDate(boxes, date,
                      fieldrules::checkNotBeforeQuarter(
                          date->date(), fieldrules::sessionDate(session.quarterFromDt),
                          date->objectName()));
}

bool checkDepositDate(MessageBoxes &boxes, QDateEdit *date, const QDateEdit *challanDate,
                      const Session &session)
{
    return reportDate(boxes, date,
                      fieldrules::checkDepositDate(
                          date->date(), challanDate->date(),
                          fieldrules::sessionDate(session.quarterFromDt),
                          fieldrules::sessionDate(session.quarterToDt), date->objectName()));
}

} // namespace fieldchecks
