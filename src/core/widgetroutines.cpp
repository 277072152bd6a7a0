#include "core/widgetroutines.h"

#include "core/records.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace widgetroutines {

namespace {

void fill(QComboBox *combo, const QStringList &texts, bool leadingBlank)
{
    const QSignalBlocker blocker(combo);
    combo->clear();
    if (leadingBlank && !texts.isEmpty())
        combo->addItem(QString());
    combo->addItems(texts);
    combo->setCurrentIndex(-1);
    if (combo->isEditable())
        combo->clearEditText();
}

QString tagOf(const QWidget *widget)
{
    return widget->property("tag").toString().toUpper();
}

// An element of a control array answers to the array's name: "cmbYesNo(2)" is a cmbYesNo.
QString arrayName(const QWidget *widget)
{
    static const QRegularExpression index(QStringLiteral("\\(\\d+\\)$"));
    return widget->objectName().remove(index);
}

// The line edit of a combo or a date box, or an editor in a list, belongs to that control and
// is not a text box of the form.
bool isPartOfAnotherControl(const QWidget *widget, const QWidget *form)
{
    for (const QWidget *parent = widget->parentWidget(); parent && parent != form;
         parent = parent->parentWidget()) {
        if (qobject_cast<const QComboBox *>(parent)
            || qobject_cast<const QAbstractSpinBox *>(parent)
            || qobject_cast<const QAbstractItemView *>(parent))
            return true;
    }
    return false;
}

bool keepsItsDefault(const QComboBox *combo)
{
    static const QStringList names = {QStringLiteral("cmbYesNo"), QStringLiteral("cmbChbookentry"),
                                      QStringLiteral("cmbDedbookentry")};
    return names.contains(arrayName(combo), Qt::CaseInsensitive);
}

} // namespace

void fillCombo(QComboBox *combo, const DataStore &store, const QString &table,
               const QString &column, bool sorted, const QString &statement, bool descending,
               const QVariantList &values)
{
    fill(combo, records::comboTexts(store, table, column, sorted, statement, descending, values),
         false);
}

void fillComboWithBlank(QComboBox *combo, const DataStore &store, const QString &table,
                        const QString &column, bool sorted, const QString &statement,
                        bool descending, const QVariantList &values)
{
    fill(combo, records::comboTexts(store, table, column, sorted, statement, descending, values),
         true);
}

void clearControls(QWidget *form)
{
    const auto widgets = form->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (isPartOfAnotherControl(widget, form))
            continue;
        const QString tag = tagOf(widget);
        if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
            if (tag != QLatin1String("PJ"))
                edit->clear();
        } else if (auto *edit = qobject_cast<QPlainTextEdit *>(widget)) {
            if (tag != QLatin1String("PJ"))
                edit->clear();
        } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
            if (tag == QLatin1String("PJ") || keepsItsDefault(combo))
                continue;
            combo->setCurrentIndex(-1);
            if (combo->isEditable())
                combo->clearEditText();
        } else if (auto *label = qobject_cast<QLabel *>(widget)) {
            if (tag == QLatin1String("CLEAR") || tag == QLatin1String("CL"))
                label->clear();
        }
    }
}

void removeSelectedRows(QTreeWidget *list)
{
    for (int row = list->topLevelItemCount() - 1; row >= 0; --row) {
        if (list->topLevelItem(row)->isSelected())
            delete list->takeTopLevelItem(row);
    }
    // The rows kept have always been copied out and back with one column short of the list,
    // so they come back without their last column's text.
    const int lastColumn = list->columnCount() - 1;
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        QTreeWidgetItem *item = list->topLevelItem(row);
        item->setText(0, item->text(0).trimmed());
        if (lastColumn > 0)
            item->setText(lastColumn, QString());
    }
}

} // namespace widgetroutines
