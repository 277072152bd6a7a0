#include "statements/statementsheet.h"

#include "core/cannedmessages.h"
#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/messageboxes.h"
#include "core/numbers.h"
#include "core/records.h"
#include "core/session.h"
#include "core/storeerror.h"
#include "core/transaction.h"
#include "returnfile/controltotals.h"
#include "statements/basicinfocheck.h"

StatementSheet::StatementSheet(Session &session, MessageBoxes &boxes, const FormTraits &form)
    : m_session(session),
      m_boxes(boxes),
      m_form(form),
      m_record(session.store, form, session.asstId),
      m_operation(this)
{
}

int StatementSheet::basicInfoId() const
{
    return int(numbers::val(m_info.basicInfoId));
}

int StatementSheet::compId() const
{
    return int(numbers::val(m_info.compId));
}

void StatementSheet::open()
{
    m_info = BasicInfo();
    m_info.compId = QString::number(m_session.curCompId);
    try {
        if (m_session.curBasicInfoId != 0) {
            m_info.basicInfoId = QString::number(m_session.curBasicInfoId);
            m_info.quarter = m_session.curQuarter;
            m_session.curBasicInfoId = 0;
            m_record.load(m_info);
            m_operation.setOperationMode(ClsOperation::ModifyMode);
            enablePanels(true);
        } else {
            m_operation.addRecord();
        }
    } catch (const StoreError &error) {
        reportStoreError(error);
    }
    showPanel(Panel::BasicInfo);
}

bool StatementSheet::save()
{
    m_operation.saveRecord();
    return !m_operation.actionCancelled();
}

bool StatementSheet::deleteStatement()
{
    m_operation.deleteRecord();
    return !m_operation.actionCancelled();
}

bool StatementSheet::mayClose()
{
    const Message question{closeQuestion, appTitle, MessageIcon::Question,
                           MessageButtons::YesNoCancel};
    switch (m_boxes.show(question)) {
    case Answer::Yes:
        // A save that a check refused keeps the screen open, with what was typed.
        return save();
    case Answer::No:
        return true;
    default:
        return false;
    }
}

void StatementSheet::closed()
{
    m_session.curBasicInfoId = 0;
}

void StatementSheet::showPanel(Panel panel)
{
    if (panel == Panel::Salary && !m_form.hasSalaryDetail)
        return;
    m_panel = panel;
    if (panel != Panel::BasicInfo)
        return;
    try {
        m_info.noChallan = QString::number(storedChallans());
        m_info.noDeductee = QString::number(storedAnnexureRows());
        m_record.readDeductorStatus(m_info);
    } catch (const StoreError &error) {
        reportStoreError(error);
    }
}

bool StatementSheet::panelEnabled(Panel panel) const
{
    switch (panel) {
    case Panel::BasicInfo:
        return true;
    case Panel::Salary:
        // The salary detail is the annual statement, due with the fourth quarter only.
        return m_panelsEnabled && m_form.hasSalaryDetail && m_info.quarter == u"Q4";
    default:
        return m_panelsEnabled;
    }
}

bool StatementSheet::tanReceiptShown() const
{
    return m_info.tan.trimmed() == BasicInfo::tanApplied;
}

void StatementSheet::setRevised(bool revised)
{
    m_info.revisedReturn = revised ? QStringLiteral("C") : QStringLiteral("R");
    if (!revised)
        m_info.revisedReceiptNo = QStringLiteral("0");
}

void StatementSheet::stateChosen(bool personBlock)
{
    const QString &name = personBlock ? m_info.pState : m_info.state;
    QString &id = personBlock ? m_info.pStateId : m_info.stateId;
    QString &code = personBlock ? m_info.pStateCode : m_info.stateCode;
    try {
        const int found = records::lookupId(m_session.store, QStringLiteral("StateID"),
                                            QStringLiteral("mstState"),
                                            QStringLiteral("StateName"), name);
        id = QString::number(found);
        if (found > 0) {
            code = records::lookupText(m_session.store, QStringLiteral("mstState"),
                                       QStringLiteral("StateID"), QStringLiteral("StateCode"),
                                       found);
        }
    } catch (const StoreError &error) {
        reportStoreError(error);
    }
}

bool StatementSheet::stateLeft(bool personBlock)
{
    const QString combo = personBlock ? QStringLiteral("cmbPState") : QStringLiteral("cmbState");
    if ((personBlock ? m_info.pStateCode : m_info.stateCode).trimmed() == u"0") {
        m_boxes.show({basicinfocheck::selectStateText, appTitle, MessageIcon::Information});
        requestFocus(combo);
        return false;
    }
    if (int(numbers::val(personBlock ? m_info.pStateId : m_info.stateId)) == foreignStateId)
        (personBlock ? m_info.pPincode : m_info.pincode) = foreignPincode;
    return true;
}

bool StatementSheet::challanCountLeft()
{
    int stored = 0;
    try {
        stored = storedChallans();
    } catch (const StoreError &error) {
        reportStoreError(error);
        return true;
    }
    if (numbers::val(m_info.noChallan) >= stored)
        return true;
    m_boxes.show({decreaseText, appTitle, MessageIcon::Information});
    m_info.noChallan = QString::number(stored);
    requestFocus(QStringLiteral("txtNoChallan"));
    return false;
}

int StatementSheet::storedChallans() const
{
    return totalChallan(m_session.store, m_form, basicInfoId());
}

int StatementSheet::storedAnnexureRows() const
{
    return totalDeductee(m_session.store, m_form, basicInfoId());
}

bool StatementSheet::acceptDate(const std::optional<fieldrules::DateFailure> &failure,
                                QDate &date)
{
    if (!failure)
        return true;
    m_boxes.show(failure->failure.message);
    date = failure->correctedDate;
    requestFocus(failure->failure.field);
    return false;
}

QString StatementSheet::takeFocus()
{
    return std::exchange(m_focus, QString());
}

void StatementSheet::reportStoreError(const StoreError &error) const
{
    m_boxes.show({error.description(), appTitle, MessageIcon::Critical});
}

void StatementSheet::beforeAdd(bool & /*cancel*/)
{
    try {
        m_info.quarter = m_session.curQuarter;
        m_record.copyCompany(m_info);
    } catch (const StoreError &error) {
        reportStoreError(error);
    }
    m_info.noChallan = QStringLiteral("0");
    m_info.noDeductee = QStringLiteral("0");
    m_panel = Panel::BasicInfo;
    enablePanels(false);
}

void StatementSheet::validateData(bool &cancel)
{
    cancel = true;
    if (const auto failure = basicinfocheck::firstFailure(m_info, tanReceiptShown())) {
        m_boxes.show(failure->message);
        // Every field of the checks stands on the basic information panel.
        m_panel = Panel::BasicInfo;
        requestFocus(failure->field);
        return;
    }
    cancel = false;
}

void StatementSheet::saveProcedure(bool &cancel)
{
    const QString previousId = m_info.basicInfoId;
    try {
        Transaction transaction(m_session.store);
        const int found = m_record.find(compId(), m_session.curQuarter);
        m_operation.setOperationMode(found ? ClsOperation::ModifyMode : ClsOperation::AddMode);
        m_info.basicInfoId = QString::number(
            found ? found
                  : int(records::nextId(m_session.store, m_form.basicInfoTable,
                                        QStringLiteral("BasicIfoID"))));
        m_record.updateCompany(m_info);
        if (found)
            m_record.update(m_info);
        else
            m_record.insert(m_info);
        transaction.commit();
    } catch (const StoreError &error) {
        m_info.basicInfoId = previousId;
        m_boxes.show({unableToSaveText + QStringLiteral(" : :") + error.description(), appTitle,
                      MessageIcon::Critical});
        cancel = true;
        return;
    }
    m_operation.setOperationMode(ClsOperation::ModifyMode);
    enablePanels(true);
    showPanel(Panel::BasicInfo);
    m_boxes.show({savedText, savedTitle, MessageIcon::Information});
}

void StatementSheet::beforeDelete(bool &cancel)
{
    if (cannedmessages::showMessage(m_boxes, cannedmessages::ConfirmDelete) != int(Answer::Yes))
        cancel = true;
}

void StatementSheet::deleteRecord(bool &cancel)
{
    try {
        Transaction transaction(m_session.store);
        m_record.remove(basicInfoId());
        transaction.commit();
    } catch (const StoreError &error) {
        reportStoreError(error);
        cancel = true;
    }
}

void StatementSheet::enablePanels(bool enabled)
{
    m_panelsEnabled = enabled;
    m_deleteEnabled = enabled;
}
