#include "masters/frmdeducteemaster.h"

#include "core/keyfilters.h"
#include "core/messageboxes.h"
#include "core/storeerror.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

FrmDeducteeMaster::FrmDeducteeMaster(Session &session, MessageBoxes &boxes, QWidget *parent)
    : PartyMasterForm(m_deductees, boxes, parent),
      m_deductees(session, boxes),
      m_code(new QComboBox(this)),
      m_codeCaption(new QLabel(this)),
      m_address{}
{
    setObjectName(QStringLiteral("frmDeducteeMaster"));
    setWindowTitle(QStringLiteral("Deductee Master"));
    m_id->setObjectName(DeducteeMaster::idField);
    m_name->setObjectName(DeducteeMaster::nameField);

    m_code->setObjectName(DeducteeMaster::codeField);
    upperCaseCombo(m_code, 2);
    m_code->addItems({DeducteeMaster::companyCode, DeducteeMaster::nonCompanyCode});
    m_code->setCurrentIndex(-1);
    m_codeCaption->setObjectName(QStringLiteral("lbl0102"));
    m_codeCaption->setProperty("tag", QStringLiteral("CL"));
    connect(m_code, &QComboBox::currentTextChanged, this, [this](const QString &code) {
        m_codeCaption->setText(DeducteeMaster::codeCaption(code.trimmed()));
    });

    for (int line = 0; line < 5; ++line) {
        auto *edit = new QLineEdit(this);
        edit->setObjectName(QStringLiteral("txtAdd%1").arg(line + 1));
        edit->setMaxLength(25);
        keyfilters::install(edit, {keyfilters::Rule::UpperCase});
        m_address[line] = edit;
    }
    // Made in the order of the screen, which Tab follows.
    m_state = new QComboBox(this);
    m_stateId = new QLineEdit(this);
    m_stateCode = new QLineEdit(this);
    m_pin = new QLineEdit(this);

    m_state->setObjectName(DeducteeMaster::stateField);
    upperCaseCombo(m_state, 50);
    for (const DeducteeMaster::State &state : m_deductees.states())
        m_state->addItem(state.name, state.id);
    m_state->setCurrentIndex(-1);
    connect(m_state, &QComboBox::activated, this, &FrmDeducteeMaster::stateChosen);
    m_stateId->setObjectName(QStringLiteral("txtStID"));
    m_stateId->setVisible(false);
    m_stateCode->setObjectName(QStringLiteral("txtStateCode"));
    m_stateCode->setReadOnly(true);
    m_stateCode->setFocusPolicy(Qt::NoFocus);
    m_stateCode->setMaxLength(2);
    m_pin->setObjectName(DeducteeMaster::pinField);
    m_pin->setMaxLength(6);
    fitWidth(m_code, 3);
    fitWidth(m_stateCode, 2);
    fitWidth(m_pin, 6);
    keyfilters::installNumeric(m_pin, boxes, true, true);

    auto *grid = new QGridLayout;
    const auto addLabel = [grid, this](int row, const QString &caption, QWidget *field) {
        auto *label = new QLabel(caption, this);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
    };
    addLabel(0, QStringLiteral("Ded&uctee Code"), m_code);
    grid->addWidget(m_code, 0, 1);
    grid->addWidget(m_codeCaption, 0, 2, 1, 2);
    addLabel(1, QStringLiteral("&Address"), m_address[0]);
    for (int line = 0; line < 5; ++line)
        grid->addWidget(m_address[line], 1 + line, 1, 1, 3);
    addLabel(6, QStringLiteral("S&tate"), m_state);
    grid->addWidget(m_state, 6, 1);
    grid->addWidget(m_stateCode, 6, 2);
    grid->addWidget(m_stateId, 6, 3);
    addLabel(7, QStringLiteral("P&IN"), m_pin);
    grid->addWidget(m_pin, 7, 1);
    grid->setColumnStretch(1, 1);

    QList<QWidget *> order{m_code};
    for (QLineEdit *line : m_address)
        order << line;
    order << m_state << m_pin;
    finishSetUp(QStringLiteral("Deductee ID"), QStringLiteral("Deductee Na&me"), grid, order);
}

void FrmDeducteeMaster::updateDeducteeInfo()
{
    readFields();
    try {
        m_deductees.updateDeducteeInfo();
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical, MessageButtons::Ok});
    }
}

void FrmDeducteeMaster::readOwnFields()
{
    DeducteeFields &fields = m_deductees.fields();
    fields.code = m_code->currentText();
    for (int line = 0; line < 5; ++line)
        fields.address[line] = m_address[line]->text();
    fields.state = m_state->currentText();
    fields.stateId = m_stateId->text().toInt();
    fields.stateCode = m_stateCode->text();
    fields.pin = m_pin->text();
}

void FrmDeducteeMaster::showOwnFields()
{
    const DeducteeFields &fields = m_deductees.fields();
    if (m_code->currentText() != fields.code) {
        const int row = m_code->findText(fields.code);
        m_code->setCurrentIndex(row);
        if (row < 0)
            m_code->setEditText(fields.code);
    }
    m_codeCaption->setText(DeducteeMaster::codeCaption(fields.code.trimmed()));
    for (int line = 0; line < 5; ++line)
        setText(m_address[line], fields.address[line]);
    if (m_state->currentText() != fields.state) {
        const QSignalBlocker blocker(m_state);
        const int row = m_state->findText(fields.state);
        m_state->setCurrentIndex(row);
        if (row < 0)
            m_state->setEditText(fields.state);
    }
    setText(m_stateId, fields.stateId ? QString::number(fields.stateId) : QString());
    setText(m_stateCode, fields.stateCode);
    setText(m_pin, fields.pin);
}

bool FrmDeducteeMaster::leaveOwnField(QWidget *field)
{
    if (field == m_code)
        return m_deductees.codeLeft();
    if (field == m_state)
        return m_deductees.stateLeft();
    return true;
}

void FrmDeducteeMaster::stateChosen()
{
    readFields();
    m_deductees.stateChosen();
    showAll();
}
