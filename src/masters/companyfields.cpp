#include "masters/companyfields.h"

#include "core/keyfilters.h"
#include "masters/companyentry.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QValidator>

#include <span>

namespace {

enum class Keys { Plain, Upper, Alnum, Tan, Pan, Digits, Shown, Hidden };

struct FieldKeys
{
    const char *control;
    Keys keys;
};

// How each field takes keys; a field not listed takes them as typed. Names, addresses and codes
// arrive in capitals, as the returns carry them.
const FieldKeys fieldKeys[] = {
    {"txtGrpId", Keys::Hidden},          {"txtCompId", Keys::Shown},
    {"txtTan", Keys::Tan},               {"txtPAN", Keys::Pan},
    {"txtCompName", Keys::Upper},        {"txtBranch", Keys::Upper},
    {"txtAddress1", Keys::Upper},        {"txtAddress2", Keys::Upper},
    {"txtAddress3", Keys::Upper},        {"txtAddress4", Keys::Upper},
    {"txtAddress5", Keys::Upper},        {"txtStID", Keys::Hidden},
    {"txtStateCode", Keys::Shown},       {"txtPincode", Keys::Digits},
    {"txtstdCode", Keys::Digits},        {"txtPhone", Keys::Digits},
    {"txtPersonName", Keys::Upper},      {"txtDesignation", Keys::Upper},
    {"txtPAddress1", Keys::Upper},       {"txtPAddress2", Keys::Upper},
    {"txtPAddress3", Keys::Upper},       {"txtPAddress4", Keys::Upper},
    {"txtPAddress5", Keys::Upper},       {"txtPStId", Keys::Hidden},
    {"txtPstateCode", Keys::Shown},      {"txtPpincode", Keys::Digits},
    {"txtpStdCode", Keys::Digits},       {"txtPPhone", Keys::Digits},
    {"txtAssOfficerCode", Keys::Upper},  {"txtTdsCircle", Keys::Upper},
    {"txtPrefix", Keys::Alnum},          {"txtDStId", Keys::Hidden},
    {"txtDStateCode", Keys::Shown},      {"txtMinistryID", Keys::Hidden},
    {"txtMinistryCode", Keys::Shown},    {"txtMinistryNameOther", Keys::Upper},
    {"txtPAOCode", Keys::Upper},         {"txtPAORegNo", Keys::Digits},
    {"txtDDOCode", Keys::Upper},         {"txtDDORegNo", Keys::Upper},
};

Keys keysOf(const char *control)
{
    for (const FieldKeys &field : fieldKeys) {
        if (qstrcmp(field.control, control) == 0)
            return field.keys;
    }
    return Keys::Plain;
}

// One line of a box: a caption, a field, and a field shown beside it (a code or a caption).
struct Line
{
    const char *caption;
    const char *control;
    const char *beside;
};

const Line deductorLines[] = {
    {"Group", "cmbGroupName", nullptr}, {"Company ID", "txtCompId", nullptr},
    {"TAN", "txtTan", nullptr},          {"PAN", "txtPAN", nullptr},
    {"Name", "txtCompName", nullptr},    {"Branch / Division", "txtBranch", nullptr},
    {"Address", "txtAddress1", nullptr}, {"", "txtAddress2", nullptr},
    {"", "txtAddress3", nullptr},        {"", "txtAddress4", nullptr},
    {"", "txtAddress5", nullptr},        {"State", "cmbState", "txtStateCode"},
    {"PIN", "txtPincode", nullptr},      {"STD Code", "txtstdCode", nullptr},
    {"Phone", "txtPhone", nullptr},      {"E-mail", "txtEmail", nullptr},
};

const Line personLines[] = {
    {"Name", "txtPersonName", nullptr},   {"Designation", "txtDesignation", nullptr},
    {"Address", "txtPAddress1", nullptr}, {"", "txtPAddress2", nullptr},
    {"", "txtPAddress3", nullptr},        {"", "txtPAddress4", nullptr},
    {"", "txtPAddress5", nullptr},        {"State", "cmbPState", "txtPstateCode"},
    {"PIN", "txtPpincode", nullptr},      {"STD Code", "txtpStdCode", nullptr},
    {"Phone", "txtPPhone", nullptr},      {"E-mail", "txtPemail", nullptr},
};

const Line otherLines[] = {
    {"Assessing Officer Code", "txtAssOfficerCode", nullptr},
    {"TDS Circle", "txtTdsCircle", nullptr},
    {"File Name Prefix", "txtPrefix", nullptr},
    {"Status", "cmbStatus", "lblStatusCaption"},
    {"Deductor Type", "cmbDeType", "txtDeTypeDesc"},
    {"State of Deductor", "cmbDState", "txtDStateCode"},
    {"Ministry", "cmbMinistry", "txtMinistryCode"},
    {"Ministry Name (Others)", "txtMinistryNameOther", nullptr},
    {"PAO Code", "txtPAOCode", nullptr},
    {"PAO Reg. No.", "txtPAORegNo", nullptr},
    {"DDO Code", "txtDDOCode", nullptr},
    {"DDO Reg. No.", "txtDDORegNo", nullptr},
};

/// Codes typed into a combo arrive in capitals.
class UpperCaseValidator : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &input, int &) const override
    {
        input = input.toUpper();
        return Acceptable;
    }
};

QComboBox *newCombo(const QString &name, QWidget *parent)
{
    auto *combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setMaxVisibleItems(15);
    // Long ministry names would otherwise widen the whole screen.
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(8);
    return combo;
}

} // namespace

CompanyFields::CompanyFields(QWidget *panel, MessageBoxes &boxes)
    : m_panel(panel), m_statusCaption(new QLabel(panel))
{
    build(boxes);
    layOut();
}

QLineEdit *CompanyFields::edit(const QString &name) const
{
    return qobject_cast<QLineEdit *>(control(name));
}

QComboBox *CompanyFields::combo(const QString &name) const
{
    return qobject_cast<QComboBox *>(control(name));
}

QList<QComboBox *> CompanyFields::combos() const
{
    return m_panel->findChildren<QComboBox *>();
}

void CompanyFields::setComboText(QComboBox *combo, const QString &text)
{
    const int index = combo->findText(text.trimmed(), Qt::MatchFixedString);
    if (index >= 0) {
        combo->setCurrentIndex(index);
        return;
    }
    combo->setCurrentIndex(-1);
    combo->setEditText(text);
}

void CompanyFields::build(MessageBoxes &boxes)
{
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        const QString name = QLatin1String(field.control);
        QWidget *widget = nullptr;
        if (name.startsWith(u"cmb")) {
            QComboBox *box = newCombo(name, m_panel);
            if (field.maxLength > 0) {
                box->lineEdit()->setMaxLength(field.maxLength);
                box->setValidator(new UpperCaseValidator(box));
            }
            widget = box;
        } else {
            auto *line = new QLineEdit(m_panel);
            line->setObjectName(name);
            if (field.maxLength > 0)
                line->setMaxLength(field.maxLength);
            switch (keysOf(field.control)) {
            case Keys::Plain:
                break;
            case Keys::Upper:
                keyfilters::install(line, {keyfilters::Rule::UpperCase});
                break;
            case Keys::Alnum:
                keyfilters::install(line, {keyfilters::Rule::Alnum});
                break;
            case Keys::Tan:
                keyfilters::install(line, {keyfilters::Rule::Alnum, keyfilters::Rule::Tan});
                break;
            case Keys::Pan:
                keyfilters::install(line, {keyfilters::Rule::Alnum, keyfilters::Rule::Pan});
                break;
            case Keys::Digits:
                keyfilters::installNumeric(line, boxes, true, true);
                break;
            case Keys::Shown:
                line->setReadOnly(true);
                line->setFocusPolicy(Qt::NoFocus);
                break;
            case Keys::Hidden:
                line->setReadOnly(true);
                line->setVisible(false);
                break;
            }
            widget = line;
        }
        widget->installEventFilter(m_panel);
        m_controls.insert(name, widget);
    }
    auto *description = new QLineEdit(m_panel);
    description->setObjectName(QStringLiteral("txtDeTypeDesc"));
    description->setReadOnly(true);
    description->setFocusPolicy(Qt::NoFocus);
    m_controls.insert(description->objectName(), description);
    m_statusCaption->setObjectName(QStringLiteral("lblStatusCaption"));
    m_controls.insert(m_statusCaption->objectName(), m_statusCaption);

    // The tab order is the order of the fields.
    QWidget *previous = nullptr;
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        QWidget *next = control(QLatin1String(field.control));
        if (next->focusPolicy() == Qt::NoFocus || next->isHidden())
            continue;
        if (previous)
            QWidget::setTabOrder(previous, next);
        previous = next;
    }
}

void CompanyFields::layOut()
{
    const auto box = [this](const QString &title, std::span<const Line> lines) {
        auto *group = new QGroupBox(title, m_panel);
        auto *grid = new QGridLayout(group);
        int row = 0;
        for (const Line &line : lines) {
            QWidget *field = control(QLatin1String(line.control));
            grid->addWidget(new QLabel(QLatin1String(line.caption), group), row, 0);
            if (!line.beside) {
                grid->addWidget(field, row, 1, 1, 2);
            } else if (QLatin1String(line.beside).endsWith(u"Code")) {
                // A code beside its combo is short; a description takes the room it needs.
                QWidget *code = control(QLatin1String(line.beside));
                code->setFixedWidth(40);
                grid->addWidget(field, row, 1);
                grid->addWidget(code, row, 2);
            } else {
                field->setFixedWidth(70);
                auto *pair = new QHBoxLayout;
                pair->addWidget(field);
                pair->addWidget(control(QLatin1String(line.beside)), 1);
                grid->addLayout(pair, row, 1, 1, 2);
            }
            ++row;
        }
        grid->setColumnStretch(1, 1);
        grid->setRowStretch(row, 1);
        return group;
    };
    auto *boxes = new QHBoxLayout(m_panel);
    boxes->setContentsMargins(0, 0, 0, 0);
    boxes->addWidget(box(QStringLiteral("Deductor"), deductorLines));
    boxes->addWidget(box(QStringLiteral("Person Responsible"), personLines));
    boxes->addWidget(box(QStringLiteral("Other Particulars"), otherLines));
}
