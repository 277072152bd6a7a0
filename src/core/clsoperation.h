#pragma once

/**
 * The answers of a record screen to the steps of its ClsOperation. The screen's logic class
 * overrides the steps it takes part in; the others do nothing. A step that refuses the action
 * sets @p cancel to true, having shown its message and placed the focus already.
 */
class OperationHandler
{
public:
    virtual ~OperationHandler() = default;

    virtual void beforeAdd(bool & /*cancel*/) {}
    virtual void beforeModify(bool & /*cancel*/) {}
    virtual void beforeDelete(bool & /*cancel*/) {}
    virtual void deleteRecord(bool & /*cancel*/) {}
    virtual void beforePrint(bool & /*cancel*/) {}
    virtual void printRecord(bool & /*cancel*/) {}
    virtual void validateData(bool & /*cancel*/) {}
    virtual void saveProcedure(bool & /*cancel*/) {}
    virtual void afterCancel() {}
};

/**
 * Runs add, modify, delete, print, save and cancel for one record screen. It knows no table:
 * it holds the mode and the cancel flag and calls the screen's handler in a fixed order, and the
 * handler's checks and statements do the work.
 */
class ClsOperation
{
public:
    /// The values of operationMode(); handlers branch on them (1 inserts, 2 updates).
    enum Mode { IdleMode = 0, AddMode = 1, ModifyMode = 2, DeleteMode = 3, PrintMode = 4 };

    /// Starts idle. The handler, usually the screen logic that owns this object, may be null.
    explicit ClsOperation(OperationHandler *handler = nullptr);

    void setHandler(OperationHandler *handler) { m_handler = handler; }

    int operationMode() const { return m_mode; }
    void setOperationMode(int mode) { m_mode = mode; }

    /// Mode 1, then beforeAdd. The flag starts set and is not read afterwards: the screens
    /// have never looked at it after an add, so actionCancelled() stays true unless the
    /// handler clears it.
    void addRecord();
    /// afterCancel while the mode is still the one being abandoned, then mode 0.
    void userCanceled();
    /// Mode 3, then beforeDelete and, unless it cancelled, deleteRecord.
    void deleteRecord();
    /// Mode 2, then beforeModify.
    void modifyRecord();
    /// Mode 4, then beforePrint and, unless it cancelled, printRecord.
    void printRecord();
    /// With the mode as it stands: validateData and, unless it cancelled, saveProcedure.
    void saveRecord();

    /// Whether a handler of the last add, modify, delete, print or save refused it.
    bool actionCancelled() const { return m_cancelFlag; }

private:
    OperationHandler *m_handler = nullptr;
    int m_mode = IdleMode;
    bool m_cancelFlag = false;
};
