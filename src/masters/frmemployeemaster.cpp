#include "masters/frmemployeemaster.h"

#include "core/datebox.h"
#include "core/messageboxes.h"
#include "core/storeerror.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

FrmEmployeeMaster::FrmEmployeeMaster(Session &session, MessageBoxes &boxes, QWidget *parent)
    : PartyMasterForm(m_employees, boxes, parent),
      m_employees(session, boxes),
      m_designation(new QLineEdit(this)),
      m_fromDate(new DateBox(EmployeeMaster::fromDateField, this)),
      m_toDate(new DateBox(EmployeeMaster::toDateField, this)),
      m_category(new QComboBox(this))
{
    setObjectName(QStringLiteral("frmEmployeeMaster"));
    setWindowTitle(QStringLiteral("Employee Master"));
    m_id->setObjectName(EmployeeMaster::idField);
    m_name->setObjectName(EmployeeMaster::nameField);
    m_designation->setObjectName(QStringLiteral("txtDesignation"));
    m_designation->setMaxLength(15);
    m_category->setObjectName(EmployeeMaster::categoryField);
    m_category->addItems(EmployeeMaster::categories);

    auto *grid = new QGridLayout;
    const auto addField = [grid, this](int row, int column, const QString &caption,
                                       QWidget *field) {
        auto *label = new QLabel(caption, this);
        label->setBuddy(field);
        grid->addWidget(label, row, column);
        grid->addWidget(field, row, column + 1);
    };
    addField(0, 0, QStringLiteral("Des&ignation"), m_designation);
    addField(0, 2, QStringLiteral("C&ategory"), m_category);
    addField(1, 0, QStringLiteral("&From Date"), m_fromDate);
    addField(1, 2, QStringLiteral("&To Date"), m_toDate);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    finishSetUp(QStringLiteral("Employee ID"), QStringLiteral("Employee Na&me"), grid,
                {m_designation, m_fromDate, m_toDate, m_category});
    // Tab follows the rows as drawn; Enter keeps its own way through the dates first.
    setTabOrder(m_designation, m_category);
    setTabOrder(m_category, m_fromDate);
    setTabOrder(m_fromDate, m_toDate);
}

void FrmEmployeeMaster::updateEmpInfo()
{
    readFields();
    try {
        m_employees.updateEmpInfo();
    } catch (const StoreError &error) {
        m_boxes.show({error.description(), appTitle, MessageIcon::Critical, MessageButtons::Ok});
    }
}

void FrmEmployeeMaster::readOwnFields()
{
    EmployeeFields &fields = m_employees.fields();
    fields.designation = m_designation->text();
    fields.fromDate = m_fromDate->date();
    fields.toDate = m_toDate->date();
    fields.category = m_category->currentIndex();
}

void FrmEmployeeMaster::showOwnFields()
{
    const EmployeeFields &fields = m_employees.fields();
    setText(m_designation, fields.designation);
    m_fromDate->setDate(fields.fromDate);
    m_toDate->setDate(fields.toDate);
    m_category->setCurrentIndex(fields.category);
}

bool FrmEmployeeMaster::leaveOwnField(QWidget *field)
{
    if (field != m_fromDate && field != m_toDate)
        return true;
    const auto failure = m_employees.dateFailure(field->objectName());
    if (failure)
        m_boxes.show(failure->message);
    return !failure;
}
