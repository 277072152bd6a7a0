#include "masters/companyfieldlinks.h"

#include "core/messageboxes.h"
#include "core/recordsetfailure.h"
#include "core/storeerror.h"
#include "masters/companyfields.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace {

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

CompanyFieldLinks::CompanyFieldLinks(const CompanyMaster &master, MessageBoxes &boxes,
                                     const CompanyFields &fields)
    : m_master(master), m_boxes(boxes), m_fields(fields)
{
    fillLists();

    connect(combo(QStringLiteral("cmbGroupName")), &QComboBox::currentTextChanged, this,
            &CompanyFieldLinks::groupNameChanged);
    for (const QString &name : {QStringLiteral("cmbState"), QStringLiteral("cmbPState"),
                                QStringLiteral("cmbDState")}) {
        connect(combo(name), &QComboBox::currentTextChanged, this,
                [this, name] { stateChanged(name); });
    }
    connect(combo(QStringLiteral("cmbMinistry")), &QComboBox::currentTextChanged, this,
            &CompanyFieldLinks::ministryChanged);
    connect(combo(QStringLiteral("cmbDeType")), &QComboBox::currentTextChanged, this,
            &CompanyFieldLinks::deductorTypeChanged);
    connect(combo(QStringLiteral("cmbStatus")), &QComboBox::currentTextChanged, this,
            &CompanyFieldLinks::statusChanged);
    deductorTypeChanged();
    ministryChanged();
    statusChanged();
}

const CompanyMaster::Reference *CompanyFieldLinks::state(const QString &name) const
{
    return findByName(m_states, name);
}

void CompanyFieldLinks::fillLists()
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
    for (QComboBox *box : m_fields.combos()) {
        box->setCurrentIndex(-1);
        box->clearEditText();
    }
    CompanyFields::setComboText(combo(QStringLiteral("cmbStatus")), QStringLiteral("O"));
}

void CompanyFieldLinks::groupNameChanged()
{
    int groupId = 0;
    try {
        groupId = m_master.groupId(combo(QStringLiteral("cmbGroupName"))->currentText());
    } catch (const StoreError &error) {
        reportStoreError(error.description());
    }
    edit(QStringLiteral("txtGrpId"))->setText(QString::number(groupId));
}

void CompanyFieldLinks::stateChanged(const QString &name)
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

void CompanyFieldLinks::ministryChanged()
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

void CompanyFieldLinks::deductorTypeChanged()
{
    const QString type = combo(QStringLiteral("cmbDeType"))->currentText();
    const CompanyMaster::DeductorTypeFields fields = CompanyMaster::fieldsFor(type);

    QComboBox *state = combo(QStringLiteral("cmbDState"));
    state->setEnabled(fields.deductorState);
    if (!fields.deductorState) {
        CompanyFields::setComboText(state, {});
        edit(QStringLiteral("txtDStateCode"))->clear();
    }
    QComboBox *ministry = combo(QStringLiteral("cmbMinistry"));
    ministry->setEnabled(fields.ministry);
    if (!fields.ministry) {
        CompanyFields::setComboText(ministry, {});
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
        m_boxes.show(recordsetFailure(error));
    }
    edit(QStringLiteral("txtDeTypeDesc"))->setText(description);
}

void CompanyFieldLinks::statusChanged()
{
    const QString status = combo(QStringLiteral("cmbStatus"))->currentText().trimmed();
    QLabel *caption = m_fields.statusCaption();
    if (status == u"C")
        caption->setText(QStringLiteral("[Central Govt.]"));
    else if (status == u"O")
        caption->setText(QStringLiteral("[Others]"));
    else
        caption->clear();
}

void CompanyFieldLinks::reportStoreError(const QString &description)
{
    m_boxes.show({description, appTitle, MessageIcon::Critical});
}

QLineEdit *CompanyFieldLinks::edit(const QString &name) const
{
    return m_fields.edit(name);
}

QComboBox *CompanyFieldLinks::combo(const QString &name) const
{
    return m_fields.combo(name);
}
