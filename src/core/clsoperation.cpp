#include "core/clsoperation.h"

ClsOperation::ClsOperation(OperationHandler *handler)
    : m_handler(handler)
{
}

void ClsOperation::addRecord()
{
    m_cancelFlag = true;
    m_mode = AddMode;
    if (m_handler)
        m_handler->beforeAdd(m_cancelFlag);
}

void ClsOperation::userCanceled()
{
    // The handler still sees what was abandoned, so it can undo exactly that.
    if (m_handler)
        m_handler->afterCancel();
    m_mode = IdleMode;
}

void ClsOperation::deleteRecord()
{
    m_mode = DeleteMode;
    m_cancelFlag = false;
    if (!m_handler)
        return;
    m_handler->beforeDelete(m_cancelFlag);
    if (!m_cancelFlag)
        m_handler->deleteRecord(m_cancelFlag);
}

void ClsOperation::modifyRecord()
{
    m_cancelFlag = false;
    m_mode = ModifyMode;
    if (m_handler)
        m_handler->beforeModify(m_cancelFlag);
}

void ClsOperation::printRecord()
{
    m_cancelFlag = false;
    m_mode = PrintMode;
    if (!m_handler)
        return;
    m_handler->beforePrint(m_cancelFlag);
    if (!m_cancelFlag)
        m_handler->printRecord(m_cancelFlag);
}

void ClsOperation::saveRecord()
{
    m_cancelFlag = false;
    if (!m_handler)
        return;
    m_handler->validateData(m_cancelFlag);
    if (!m_cancelFlag)
        m_handler->saveProcedure(m_cancelFlag);
}
