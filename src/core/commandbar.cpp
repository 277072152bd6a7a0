#include "core/commandbar.h"

#include "core/clsoperation.h"

#include <QAbstractButton>
#include <QRegularExpression>
#include <QWidget>

namespace commandbar {

namespace {

void setEnabled(QWidget *form, int index, bool enabled)
{
    if (QAbstractButton *cmd = button(form, index))
        cmd->setEnabled(enabled);
}

} // namespace

QAbstractButton *button(QWidget *form, int index)
{
    return form->findChild<QAbstractButton *>(QStringLiteral("cmd(%1)").arg(index));
}

void enableCommands(QWidget *form, const QString &action, ClsOperation *operation)
{
    static const QRegularExpression cmdName(QStringLiteral("^cmd\\(\\d+\\)$"));
    const auto buttons = form->findChildren<QAbstractButton *>(cmdName);
    for (QAbstractButton *cmd : buttons)
        cmd->setEnabled(true);

    if (action == QLatin1String("Load") || action == QLatin1String("Cancel")) {
        setEnabled(form, 1, false);
        setEnabled(form, 3, false);
    } else if (action == QLatin1String("Add")) {
        setEnabled(form, 0, false);
        setEnabled(form, 3, false);
    } else if (action == QLatin1String("Edit")) {
        if (operation)
            operation->modifyRecord();
    }
}

void setCommandButtons(QWidget *form, bool browse)
{
    setEnabled(form, 0, browse);
    setEnabled(form, 1, browse);
    setEnabled(form, 4, browse);
    setEnabled(form, 2, !browse);
    setEnabled(form, 3, !browse);
}

} // namespace commandbar
