#include "core/fieldchecks.h"

#include "core/fieldfailure.h"
#include "core/messageboxes.h"

#include <QWidget>

namespace fieldchecks {

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

} // namespace fieldchecks
