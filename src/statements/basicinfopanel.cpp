#include "statements/basicinfopanel.h"

#include "core/fieldpath.h"
#include "core/formtraits.h"
#include "core/keyfilters.h"
#include "core/records.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "statements/statementsheet.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

const char *const addressLabels[5] = {"Flat/Door/Block Number", "Name of the Premises/Building",
                                      "Road/Street/Lane", "Area/Locality",
                                      "Town/City/District"};

QRadioButton *option(const QString &name, const QString &caption, QWidget *parent)
{
    auto *button = new QRadioButton(caption, parent);
    button->setObjectName(name);
    return button;
}

} // namespace

BasicInfoPanel::BasicInfoPanel(StatementSheet &sheet, MessageBoxes &boxes, QWidget *parent)
    : QWidget(parent), m_sheet(sheet)
{
    setObjectName(QStringLiteral("pctBasicInfo"));
    buildFields(boxes);
    layOut();
    setUpPath();
    connectFields();
}

void BasicInfoPanel::buildFields(MessageBoxes &boxes)
{
    using Kind = BasicInfo::Kind;
    for (const BasicInfo::Field &field : BasicInfo::fields()) {
        const QString name = QLatin1String(field.control);
        if (name.startsWith(u"cmb")) {
            auto *box = new QComboBox(this);
            box->setObjectName(name);
            m_fields.insert(name, box);
            continue;
        }
        auto *line = new QLineEdit(this);
        line->setObjectName(name);
        if (field.maxLength > 0)
            line->setMaxLength(field.maxLength);
        switch (field.kind) {
        case Kind::Hidden:
            line->setVisible(false);
            break;
        case Kind::Shown:
            line->setReadOnly(true);
            break;
        case Kind::Editable:
            keyfilters::install(line, {keyfilters::Rule::UpperCase});
            break;
        case Kind::Count:
            line->setAlignment(Qt::AlignRight);
            keyfilters::installNumeric(line, boxes, true, true);
            break;
        case Kind::Receipt:
            keyfilters::installNumeric(line, boxes, true, true);
            break;
        }
        m_fields.insert(name, line);
    }
    // Keys typed into the copies follow their rules, although the copies are read-only here.
    keyfilters::install(edit(QStringLiteral("txtTan")), {keyfilters::Rule::Alnum});
    keyfilters::install(edit(QStringLiteral("txtPAN")), {keyfilters::Rule::Alnum});

    try {
        const QStringList states = records::comboTexts(
            m_sheet.session().store, QStringLiteral("mstState"), QStringLiteral("StateName"),
            true);
        combo(QStringLiteral("cmbState"))->addItems(states);
        combo(QStringLiteral("cmbPState"))->addItems(states);
    } catch (const StoreError &error) {
        m_sheet.reportStoreError(error);
    }

    m_addressChanged[0] = option(QStringLiteral("optEmployerChange(0)"), "Yes", this);
    m_addressChanged[1] = option(QStringLiteral("optEmployerChange(1)"), "No", this);
    m_personAddressChanged[0] = option(QStringLiteral("OptSalary(0)"), "Yes", this);
    m_personAddressChanged[1] = option(QStringLiteral("OptSalary(1)"), "No", this);
    for (QRadioButton **pair : {m_addressChanged, m_personAddressChanged}) {
        auto *group = new QButtonGroup(this);
        group->addButton(pair[0]);
        group->addButton(pair[1]);
    }
    m_revised = new QComboBox(this);
    m_revised->setObjectName(QStringLiteral("cmbYesNo"));
    m_revised->addItems({QStringLiteral("YES"), QStringLiteral("NO")});
    m_revised->setCurrentIndex(1);
    m_fields.insert(m_revised->objectName(), m_revised);
    m_tanReceiptLabel = new QLabel(QStringLiteral("Appl Rect No."), this);
    m_tanReceiptLabel->setObjectName(QStringLiteral("lblHd(9)"));
    m_revisedReceiptLabel = new QLabel(QStringLiteral("Appl Rect No."), this);
    m_revisedReceiptLabel->setObjectName(QStringLiteral("lblHd(11)"));
}

void BasicInfoPanel::layOut()
{
    const FormTraits &form = m_sheet.form();
    const auto label = [this](const QString &text, const QString &buddy) {
        auto *caption = new QLabel(text, this);
        caption->setBuddy(field(buddy));
        return caption;
    };
    const auto pair = [](QWidget *first, QWidget *second) {
        auto *row = new QHBoxLayout;
        row->addWidget(first);
        row->addWidget(second, 1);
        return row;
    };

    auto *returnBox = new QGroupBox(QStringLiteral("Return"), this);
    auto *head = new QGridLayout(returnBox);
    head->addWidget(label(QStringLiteral("Quarter"), "txtQuarter"), 0, 0);
    head->addWidget(field("txtQuarter"), 0, 1);
    head->addWidget(label(QStringLiteral("Asst Year"), "TxtAssesment"), 0, 2);
    head->addWidget(field("TxtAssesment"), 0, 3);
    head->addWidget(label(QStringLiteral("Fin Year"), "txtFAYear"), 0, 4);
    head->addWidget(field("txtFAYear"), 0, 5);
    head->addWidget(label(QStringLiteral("Revised Return"), "cmbYesNo"), 0, 6);
    head->addLayout(pair(m_revised, m_revisedReceiptLabel), 0, 7);
    head->addWidget(field("txtRevisedReceiptNo"), 0, 8);
    head->addWidget(label(QStringLiteral("TDS Account No"), "txtTan"), 1, 0);
    head->addWidget(field("txtTan"), 1, 1);
    head->addWidget(label(QStringLiteral("Permanent Account No"), "txtPAN"), 1, 2);
    head->addWidget(field("txtPAN"), 1, 3);
    head->addWidget(label(QStringLiteral("Branch/Division"), "txtBranch"), 1, 4);
    head->addWidget(field("txtBranch"), 1, 5, 1, 2);
    head->addWidget(m_tanReceiptLabel, 1, 7, Qt::AlignRight);
    head->addWidget(field("txttanReceiptNo"), 1, 8);
    head->addWidget(label(QStringLiteral("Status"), "txtDetype"), 2, 0);
    field("txtDetype")->setMaximumWidth(40);
    head->addLayout(pair(field("txtDetype"), field("txtDeTypeDesc")), 2, 1, 1, 3);
    head->addWidget(label(QStringLiteral("No. Challan Details records"), "txtNoChallan"), 2, 4);
    head->addWidget(field("txtNoChallan"), 2, 5);
    head->addWidget(label(QStringLiteral("No.%1 records").arg(form.partyWord), "txtNoDeductee"),
                    2, 6, 1, 2, Qt::AlignRight);
    head->addWidget(field("txtNoDeductee"), 2, 8);

    const QString who = form.collectsTax ? QStringLiteral("Collector") : QStringLiteral("Deductor");
    const auto block = [&](QGroupBox *box, const QString &prefix, const QString &addressCaption,
                           QRadioButton **changed, const QString &changedCaption) {
        auto *grid = qobject_cast<QGridLayout *>(box->layout());
        int row = grid->rowCount();
        grid->addWidget(new QLabel(addressCaption, box), row++, 0, 1, 2);
        for (int line = 0; line < 5; ++line) {
            const QString name = prefix + QStringLiteral("Address%1").arg(line + 1);
            grid->addWidget(label(QLatin1String(addressLabels[line]), name), row, 0);
            grid->addWidget(field(name), row++, 1, 1, 3);
        }
        const bool person = prefix == u"txtP";
        const QString state = person ? "cmbPState" : "cmbState";
        grid->addWidget(label(QStringLiteral("State"), state), row, 0);
        grid->addWidget(field(state), row, 1);
        const QString pin = person ? "txtPpincode" : "txtPincode";
        grid->addWidget(label(QStringLiteral("PIN"), pin), row, 2, Qt::AlignRight);
        field(pin)->setMinimumWidth(field(pin)->fontMetrics().horizontalAdvance("9999999") + 12);
        grid->addWidget(field(pin), row++, 3);
        const QString std = person ? "txtpStdCode" : "txtstdCode";
        const QString phone = person ? "txtPPhone" : "txtPhone";
        field(std)->setMaximumWidth(60);
        grid->addWidget(label(QStringLiteral("Phone"), phone), row, 0);
        grid->addLayout(pair(field(std), field(phone)), row++, 1, 1, 3);
        const QString mail = person ? "txtPemail" : "txtEmail";
        grid->addWidget(label(QStringLiteral("Email"), mail), row, 0);
        grid->addWidget(field(mail), row++, 1, 1, 3);
        auto *question = new QHBoxLayout;
        question->addWidget(new QLabel(changedCaption, box), 1);
        question->addWidget(changed[0]);
        question->addWidget(changed[1]);
        grid->addLayout(question, row, 0, 1, 4);
        grid->setColumnStretch(1, 1);
        grid->setRowStretch(row + 1, 1);
    };

    auto *deductor = new QGroupBox(this);
    auto *deductorGrid = new QGridLayout(deductor);
    deductorGrid->addWidget(label(QStringLiteral("Name of %1").arg(who), "txtCompName"), 0, 0);
    deductorGrid->addWidget(field("txtCompName"), 0, 1, 1, 3);
    block(deductor, QStringLiteral("txt"), QStringLiteral("Address of the %1").arg(who),
          m_addressChanged,
          QStringLiteral("Has Address changed since filing the last return"));

    auto *person = new QGroupBox(
        QStringLiteral("Name and Designation of the person responsible for paying salary "), this);
    auto *personGrid = new QGridLayout(person);
    personGrid->addWidget(label(QStringLiteral("Name"), "txtPersonName"), 0, 0);
    personGrid->addWidget(field("txtPersonName"), 0, 1, 1, 3);
    personGrid->addWidget(label(QStringLiteral("Designation"), "txtDesignation"), 1, 0);
    personGrid->addWidget(field("txtDesignation"), 1, 1, 1, 3);
    block(person, QStringLiteral("txtP"), QStringLiteral("Address of the person responsible"),
          m_personAddressChanged,
          QStringLiteral("Has Address of the person since filing the last return"));

    auto *blocks = new QHBoxLayout;
    blocks->addWidget(deductor);
    blocks->addWidget(person);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(returnBox);
    layout->addLayout(blocks, 1);
}

void BasicInfoPanel::setUpPath()
{
    m_path = new FieldPath(this);
    QList<QWidget *> order;
    for (const char *name :
         {"txtNoChallan", "txtNoDeductee", "txtAddress1", "txtAddress4", "txtAddress2",
          "txtAddress5", "txtAddress3", "cmbState", "txtPincode", "txtPhone", "txtstdCode",
          "txtEmail"})
        order << field(QLatin1String(name));
    order << m_addressChanged[0] << m_addressChanged[1] << m_personAddressChanged[0]
          << m_personAddressChanged[1] << field("txtPersonName") << field("txtDesignation")
          << m_revised << field("cmbPState") << field("txtBranch") << field("txttanReceiptNo")
          << field("txtRevisedReceiptNo");
    m_path->setOrder(order);
    // Enter on an answer goes on to the next question's chosen answer.
    const auto chosen = [](QRadioButton **pair) {
        return [pair]() -> QWidget * { return pair[0]->isChecked() ? pair[0] : pair[1]; };
    };
    for (QRadioButton *answer : m_addressChanged)
        m_path->setJump(answer, chosen(m_personAddressChanged));
    for (QRadioButton *answer : m_personAddressChanged)
        m_path->setJump(answer, [this] { return field("txtPersonName"); });
    m_path->setAction(m_revised, [this] { emit challansAsked(); });
    m_path->setLeaveCheck([this](QWidget *left) { return leaveField(left); });
}

void BasicInfoPanel::connectFields()
{
    for (const bool person : {false, true}) {
        QComboBox *state = combo(person ? QStringLiteral("cmbPState") : QStringLiteral("cmbState"));
        connect(state, &QComboBox::currentIndexChanged, this, [this, person] {
            if (m_showing)
                return;
            readInfo();
            m_sheet.stateChosen(person);
            showInfo();
        });
    }
    connect(m_revised, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (m_showing)
            return;
        readInfo();
        m_sheet.setRevised(index == 0);
        showInfo();
    });
    for (const char *count : {"txtNoChallan", "txtNoDeductee"})
        keyfilters::selectOnEntry(edit(QLatin1String(count)));
}

bool BasicInfoPanel::leaveField(QWidget *left)
{
    readInfo();
    bool accepted = true;
    if (left == field("txtNoChallan"))
        accepted = m_sheet.challanCountLeft();
    else if (left == field("cmbState"))
        accepted = m_sheet.stateLeft(false);
    else if (left == field("cmbPState"))
        accepted = m_sheet.stateLeft(true);
    showInfo();
    m_sheet.takeFocus();
    return accepted;
}

void BasicInfoPanel::readInfo()
{
    BasicInfo &info = m_sheet.info();
    for (const BasicInfo::Field &entry : BasicInfo::fields()) {
        QWidget *widget = field(QLatin1String(entry.control));
        if (auto *line = qobject_cast<QLineEdit *>(widget))
            info.*(entry.member) = line->text();
        else if (auto *box = qobject_cast<QComboBox *>(widget))
            info.*(entry.member) = box->currentText();
    }
    info.addressChanged = m_addressChanged[0]->isChecked();
    info.personAddressChanged = m_personAddressChanged[0]->isChecked();
}

void BasicInfoPanel::showInfo()
{
    m_showing = true;
    const BasicInfo &info = m_sheet.info();
    for (const BasicInfo::Field &entry : BasicInfo::fields()) {
        QWidget *widget = field(QLatin1String(entry.control));
        const QString &text = info.*(entry.member);
        if (auto *line = qobject_cast<QLineEdit *>(widget); line && line->text() != text)
            line->setText(text);
        else if (auto *box = qobject_cast<QComboBox *>(widget))
            box->setCurrentIndex(box->findText(text, Qt::MatchFixedString));
    }
    m_addressChanged[info.addressChanged ? 0 : 1]->setChecked(true);
    m_personAddressChanged[info.personAddressChanged ? 0 : 1]->setChecked(true);
    m_revised->setCurrentIndex(info.isRevised() ? 0 : 1);
    const bool tanReceipt = m_sheet.tanReceiptShown();
    m_tanReceiptLabel->setVisible(tanReceipt);
    field("txttanReceiptNo")->setVisible(tanReceipt);
    m_revisedReceiptLabel->setVisible(info.isRevised());
    field("txtRevisedReceiptNo")->setVisible(info.isRevised());
    m_showing = false;
}

QLineEdit *BasicInfoPanel::edit(const QString &name) const
{
    return qobject_cast<QLineEdit *>(field(name));
}

QComboBox *BasicInfoPanel::combo(const QString &name) const
{
    return qobject_cast<QComboBox *>(field(name));
}

void BasicInfoPanel::showFocus()
{
    m_path->focus(m_sheet.takeFocus());
}
