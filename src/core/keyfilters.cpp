#include "core/keyfilters.h"

#include "core/cannedmessages.h"
#include "core/fieldchecks.h"
#include "core/fieldrules.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace keyfilters {

namespace {

constexpr int passUntouched = -1;
constexpr int tab = 9;
constexpr int enter = 13;
// Stands for text that is not a single character (an input method's composition); every rule
// but upper-casing refuses it, as they refuse any character outside ASCII.
constexpr int otherText = 0x10000;

// The key code of a key press as the rules know it: the character typed, with Backspace, Tab
// and Enter as 8, 9 and 13. Keys that type nothing, and shortcuts, are not the rules' business.
int keyCode(const QKeyEvent *event)
{
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return passUntouched;
    switch (event->key()) {
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Tab:
        return tab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return enter;
    default:
        break;
    }
    const QString text = event->text();
    if (text.isEmpty())
        return passUntouched;
    if (text.size() > 1)
        return otherText;
    const char16_t ch = text.at(0).unicode();
    if (ch < 32 || ch == 127) // Escape, Delete and the like
        return passUntouched;
    return ch;
}

int caretPosition(const QLineEdit *edit)
{
    return edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
}

class KeyFilter : public QObject
{
public:
    KeyFilter(const QList<Rule> &rules, QObject *parent) : QObject(parent), m_rules(rules) {}

    void setNumeric(MessageBoxes &boxes, bool noMinus, bool noPoint)
    {
        m_boxes = &boxes;
        m_noMinus = noMinus;
        m_noPoint = noPoint;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        auto *edit = qobject_cast<QLineEdit *>(watched);
        if (!edit || edit->isReadOnly())
            return false;
        const int key = keyCode(static_cast<QKeyEvent *>(event));
        if (key == passUntouched)
            return false;
        const int result = filterKey(edit, key);
        // Tab and Enter insert nothing in a line edit; refusing them would only stop the focus
        // from moving on and the field from reporting Enter.
        if (result == key || key == tab || key == enter)
            return false;
        if (result != 0)
            edit->insert(QString(QChar(result)));
        return true;
    }

private:
    int filterKey(const QLineEdit *edit, int key) const
    {
        for (const Rule rule : m_rules) {
            switch (rule) {
            case Rule::UpperCase:
                key = fieldrules::toUpperKey(key);
                break;
            case Rule::Alnum:
                key = fieldrules::alnumKeyFilter(key);
                break;
            case Rule::Pan:
                if (!fieldrules::panKeyFilter(caretPosition(edit), key))
                    key = 0;
                break;
            case Rule::Tan:
                if (!fieldrules::tanKeyFilter(caretPosition(edit), key))
                    key = 0;
                break;
            }
            if (key == 0)
                return 0;
        }
        if (m_boxes) {
            const fieldrules::NumericKey numeric =
                fieldrules::numericKeyFilter(edit->text(), key, m_noMinus, m_noPoint);
            if (numeric.onlyNumerics)
                cannedmessages::showMessage(*m_boxes, cannedmessages::OnlyNumerics);
            key = numeric.key;
        }
        return key;
    }

    QList<Rule> m_rules;
    MessageBoxes *m_boxes = nullptr;
    bool m_noMinus = false;
    bool m_noPoint = false;
};

} // namespace

QObject *install(QLineEdit *edit, const QList<Rule> &rules)
{
    auto *filter = new KeyFilter(rules, edit);
    edit->installEventFilter(filter);
    return filter;
}

QObject *installNumeric(QLineEdit *edit, MessageBoxes &boxes, bool noMinus, bool noPoint)
{
    auto *filter = new KeyFilter({}, edit);
    filter->setNumeric(boxes, noMinus, noPoint);
    edit->installEventFilter(filter);
    return filter;
}

void selectAllText(QLineEdit *edit)
{
    edit->selectAll();
    fieldchecks::focusIfPossible(edit);
}

void selectOnEntry(QLineEdit *edit)
{
    class SelectOnEntry : public QObject
    {
    public:
        using QObject::QObject;
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::FocusIn) {
                // After the mouse press has placed the caret, not before.
                auto *edit = static_cast<QLineEdit *>(watched);
                QTimer::singleShot(0, edit, [edit] { edit->selectAll(); });
            }
            return false;
        }
    };
    edit->installEventFilter(new SelectOnEntry(edit));
}

} // namespace keyfilters
