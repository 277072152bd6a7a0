#include "masters/companyfieldspanel.h"

#include "core/fieldchecks.h"
#include "core/keyfilters.h"
#include "core/messageboxes.h"
#include "core/screenroutines.h"
#include "core/storeerror.h"
#include "masters/companyvalidation.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QValidator>

using screenroutines::isEnterKey;

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

void setComboText(QComboBox *combo, const QString &text)
{
    const int index = combo->findText(text.trimmed(), Qt::MatchFixedString);
    if (index >= 0) {
        combo->setCurrentIndex(index);
        return;
    }
    combo->setCurrentIndex(-1);
    combo->setEditText(text);
}

// A typed name in the case of the list's row, when the list has it.
void matchListCase(QComboBox *combo)
{
    const int index = combo->findText(combo->currentText().trimmed(), Qt::MatchFixedString);
    if (index >= 0 && combo->currentText() != combo->itemText(index))
        combo->setCurrentIndex(index);
}

const CompanyMaster::Reference *findByName(const QList<CompanyMaster::Reference> &list,
                                           const QString &name)
{
    if (name.trimmed().isEmpty())
        return nullptr;
    for (const CompanyMaster::Reference &row : list) {
        if (row.name.compare(name.trimmed(), Qt::CaseInsensitive) == 0)
            return &row;
    }
    return nullptr;
}

} // namespace

CompanyFieldsPanel::CompanyFieldsPanel(const CompanyMaster &master, MessageBoxes &boxes,
                                       QWidget *parent)
    : QWidget(parent), m_master(master), m_boxes(boxes), m_statusCaption(new QLabel(this))
{
    setObjectName(QStringLiteral("fraCompany"));
    buildFields();
    layOut();
    fillLists();

    connect(combo(QStringLiteral("cmbGroupName")), &QComboBox::currentTextChanged, this,
            &CompanyFieldsPanel::groupNameChanged);
    for (const QString &name : {QStringLiteral("cmbState"), QStringLiteral("cmbPState"),
                                QStringLiteral("cmbDState")}) {
        connect(combo(name), &QComboBox::currentTextChanged, this,
                [this, name] { stateChanged(name); });
    }
    connect(combo(QStringLiteral("cmbMinistry")), &QComboBox::currentTextChanged, this,
            &CompanyFieldsPanel::ministryChanged);
    connect(combo(QStringLiteral("cmbDeType")), &QComboBox::currentTextChanged, this,
            &CompanyFieldsPanel::deductorTypeChanged);
    connect(combo(QStringLiteral("cmbStatus")), &QComboBox::currentTextChanged, this,
            &CompanyFieldsPanel::statusChanged);
    deductorTypeChanged();
    ministryChanged();
    statusChanged();
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
            setComboText(box, entry.*(field.member));
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

void CompanyFieldsPanel::buildFields()
{
    for (const CompanyEntry::Field &field : CompanyEntry::fields()) {
        const QString name = QLatin1String(field.control);
        QWidget *widget = nullptr;
        if (name.startsWith(u"cmb")) {
            QComboBox *box = newCombo(name, this);
            if (field.maxLength > 0) {
                box->lineEdit()->setMaxLength(field.maxLength);
                box->setValidator(new UpperCaseValidator(box));
            }
            widget = box;
        } else {
            auto *line = new QLineEdit(this);
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
                keyfilters::installNumeric(line, m_boxes, true, true);
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
        widget->installEventFilter(this);
        m_controls.insert(name, widget);
    }
    auto *description = new QLineEdit(this);
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
            setTabOrder(previous, next);
        previous = next;
    }
}

void CompanyFieldsPanel::layOut()
{
    const auto box = [this](const QString &title, std::span<const Line> lines) {
        auto *group = new QGroupBox(title, this);
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
    auto *boxes = new QHBoxLayout(this);
    boxes->setContentsMargins(0, 0, 0, 0);
    boxes->addWidget(box(QStringLiteral("Deductor"), deductorLines));
    boxes->addWidget(box(QStringLiteral("Person Responsible"), personLines));
    boxes->addWidget(box(QStringLiteral("Other Particulars"), otherLines));
}

void CompanyFieldsPanel::fillLists()
{
    try {
        combo(QStringLiteral("cmbGroupName"))->addItems(m_master.groupNames());
        m_states = m_master.states();
        m_ministries = m_master.ministries();
        QStringList stateNames;
        for (const CompanyMaster::Reference &state : std::as_const(m_states))
            stateNames << state.name;
        combo(QStringLiteral("cmbState"))->addItems(stateNames);
        combo(QStringLiteral("cmbPState"))->addItems(stateNames);
        combo(QStringLiteral("cmbDState"))->addItem(QString());
        combo(QStringLiteral("cmbDState"))->addItems(stateNames);
        QComboBox *ministry = combo(QStringLiteral("cmbMinistry"));
        ministry->addItem(QString());
        for (const CompanyMaster::Reference &row : std::as_const(m_ministries))
            ministry->addItem(row.name);
        QComboBox *type = combo(QStringLiteral("cmbDeType"));
        type->addItem(QString());
        type->addItems(m_master.deductorTypes());
        combo(QStringLiteral("cmbStatus"))->addItems({QStringLiteral("C"), QStringLiteral("O")});
    } catch (const StoreError &error) {
        reportStoreError(error.description());
    }
    for (QComboBox *box : findChildren<QComboBox *>()) {
        box->setCurrentIndex(-1);
        box->clearEditText();
    }
    setComboText(combo(QStringLiteral("cmbStatus")), QStringLiteral("O"));
}

void CompanyFieldsPanel::groupNameChanged()
{
    int groupId = 0;
    try {
        groupId = m_master.groupId(combo(QStringLiteral("cmbGroupName"))->currentText());
    } catch (const StoreError &error) {
        reportStoreError(error.description());
    }
    edit(QStringLiteral("txtGrpId"))->setText(QString::number(groupId));
}

void CompanyFieldsPanel::stateChanged(const QString &name)
{
    QString idField = QStringLiteral("txtStID");
    QString codeField = QStringLiteral("txtStateCode");
    if (name == u"cmbPState") {
        idField = QStringLiteral("txtPStId");
        codeField = QStringLiteral("txtPstateCode");
    } else if (name == u"cmbDState") {
        idField = QStringLiteral("txtDStId");
        codeField = QStringLiteral("txtDStateCode");
    }
    const CompanyMaster::Reference *state = findByName(m_states, combo(name)->currentText());
    edit(idField)->setText(state ? QString::number(state->id) : QString());
    edit(codeField)->setText(state ? state->code : QString());
}

void CompanyFieldsPanel::ministryChanged()
{
    const CompanyMaster::Reference *ministry =
        findByName(m_ministries, combo(QStringLiteral("cmbMinistry"))->currentText());
    edit(QStringLiteral("txtMinistryID"))->setText(ministry ? QString::number(ministry->id)
                                                            : QString());
    edit(QStringLiteral("txtMinistryCode"))->setText(ministry ? ministry->code : QString());
    const bool other = ministry && ministry->name == CompanyEntry::otherMinistry;
    QLineEdit *otherName = edit(QStringLiteral("txtMinistryNameOther"));
    otherName->setEnabled(other);
    if (!other)
        otherName->clear();
}

void CompanyFieldsPanel::deductorTypeChanged()
{
    const QString type = combo(QStringLiteral("cmbDeType"))->currentText();
    const CompanyMaster::DeductorTypeFields fields = CompanyMaster::fieldsFor(type);

    QComboBox *state = combo(QStringLiteral("cmbDState"));
    state->setEnabled(fields.deductorState);
    if (!fields.deductorState) {
        setComboText(state, {});
        edit(QStringLiteral("txtDStateCode"))->clear();
    }
    QComboBox *ministry = combo(QStringLiteral("cmbMinistry"));
    ministry->setEnabled(fields.ministry);
    if (!fields.ministry) {
        setComboText(ministry, {});
        edit(QStringLiteral("txtMinistryCode"))->clear();
    }
    for (const QString &name : {QStringLiteral("txtPAOCode"), QStringLiteral("txtDDOCode"),
                               QStringLiteral("txtPAORegNo"), QStringLiteral("txtDDORegNo")}) {
        QLineEdit *line = edit(name);
        line->setEnabled(fields.paoDdo);
        if (!fields.paoDdo)
            line->clear();
    }

    QString description;
    try {
        description = m_master.deductorTypeDescription(type);
    } catch (const StoreError &error) {
        reportStoreError(error.description());
    }
    edit(QStringLiteral("txtDeTypeDesc"))->setText(description);
}

void CompanyFieldsPanel::statusChanged()
{
    const QString status = combo(QStringLiteral("cmbStatus"))->currentText().trimmed();
    if (status == u"C")
        m_statusCaption->setText(QStringLiteral("[Central Govt.]"));
    else if (status == u"O")
        m_statusCaption->setText(QStringLiteral("[Others]"));
    else
        m_statusCaption->clear();
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
                    setComboText(box, current.value(copied));
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
        const CompanyMaster::Reference *state = findByName(m_states, box->currentText());
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

void CompanyFieldsPanel::reportStoreError(const QString &description)
{
    m_boxes.show({description, appTitle, MessageIcon::Critical});
}

QLineEdit *CompanyFieldsPanel::edit(const QString &name) const
{
    return qobject_cast<QLineEdit *>(control(name));
}

QComboBox *CompanyFieldsPanel::combo(const QString &name) const
{
    return qobject_cast<QComboBox *>(control(name));
}
