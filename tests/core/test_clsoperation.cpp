#include "core/clsoperation.h"
#include "support/testsuite.h"

#include <QHash>

namespace {

// The operations by their index: Add, Modify, Delete, Print, Save, Cancel.
constexpr void (ClsOperation::*const operations[])() = {
    &ClsOperation::addRecord,   &ClsOperation::modifyRecord, &ClsOperation::deleteRecord,
    &ClsOperation::printRecord, &ClsOperation::saveRecord,   &ClsOperation::userCanceled};
constexpr int Add = 0, Modify = 1, Delete = 2, Print = 3, Save = 4, Cancel = 5;
using CancelWrites = QHash<QString, bool>;

// Writes down each step as "step@mode" and, for the steps it is told, writes the given value
// into the cancel flag it was handed.
class RecordingHandler : public OperationHandler
{
public:
    explicit RecordingHandler(const ClsOperation &operation) : m_operation(operation) {}

    QStringList steps;
    CancelWrites cancelWrites;

    void beforeAdd(bool &cancel) override { step("beforeAdd", cancel); }
    void beforeModify(bool &cancel) override { step("beforeModify", cancel); }
    void beforeDelete(bool &cancel) override { step("beforeDelete", cancel); }
    void deleteRecord(bool &cancel) override { step("deleteRecord", cancel); }
    void beforePrint(bool &cancel) override { step("beforePrint", cancel); }
    void printRecord(bool &cancel) override { step("printRecord", cancel); }
    void validateData(bool &cancel) override { step("validateData", cancel); }
    void saveProcedure(bool &cancel) override { step("saveProcedure", cancel); }
    void afterCancel() override
    {
        bool unused = false;
        step("afterCancel", unused);
    }

private:
    void step(const char *name, bool &cancel)
    {
        steps << QStringLiteral("%1@%2").arg(QLatin1String(name)).arg(m_operation.operationMode());
        cancel = cancelWrites.value(QLatin1String(name), cancel);
    }

    const ClsOperation &m_operation;
};

} // namespace

class TestClsOperation : public QObject
{
    Q_OBJECT

private slots:
    void stepsInOrder_data()
    {
        // startMode: -1: a new object
        testsuite::columns<int, int, CancelWrites, QStringList, int, bool>("startMode", "call",
                                                                           "cancelWrites", "steps",
                                                                           "mode", "cancelled");
        const CancelWrites none;
        // Add starts with the flag set; the handler sees it set and nobody clears it.
        QTest::newRow("add") << 0 << Add << none << QStringList{"beforeAdd@1"} << 1 << true;
        QTest::newRow("add, flag cleared") << 0 << Add << CancelWrites{{"beforeAdd", false}}
                                           << QStringList{"beforeAdd@1"} << 1 << false;
        QTest::newRow("modify") << 0 << Modify << none << QStringList{"beforeModify@2"}
                                << 2 << false;
        QTest::newRow("delete") << 0 << Delete << none
                                << QStringList{"beforeDelete@3", "deleteRecord@3"} << 3 << false;
        QTest::newRow("delete answered No") << 0 << Delete
                                            << CancelWrites{{"beforeDelete", true}}
                                            << QStringList{"beforeDelete@3"} << 3 << true;
        QTest::newRow("delete fails") << 0 << Delete << CancelWrites{{"deleteRecord", true}}
                                      << QStringList{"beforeDelete@3", "deleteRecord@3"} << 3
                                      << true;
        QTest::newRow("print from editing") << 2 << Print << none
                                            << QStringList{"beforePrint@4", "printRecord@4"}
                                            << 4 << false;
        QTest::newRow("print with no data") << 0 << Print
                                            << CancelWrites{{"beforePrint", true}}
                                            << QStringList{"beforePrint@4"} << 4 << true;
        QTest::newRow("save refused by a check") << 1 << Save
                                                 << CancelWrites{{"validateData", true}}
                                                 << QStringList{"validateData@1"} << 1 << true;
        QTest::newRow("save fails") << 2 << Save << CancelWrites{{"saveProcedure", true}}
                                    << QStringList{"validateData@2", "saveProcedure@2"} << 2
                                    << true;
        // Nothing was added or modified, yet both steps run; their mode tests match nothing.
        QTest::newRow("save on a new object")
            << -1 << Save << none << QStringList{"validateData@0", "saveProcedure@0"} << 0
            << false;
        // The handler undoes what was being edited, so it must still see that mode.
        QTest::newRow("cancel an add") << 1 << Cancel << none
                                       << QStringList{"afterCancel@1"} << 0 << false;
    }
    void stepsInOrder()
    {
        QFETCH(int, startMode);
        QFETCH(int, call);
        ClsOperation operation;
        RecordingHandler handler(operation);
        operation.setHandler(&handler);
        QFETCH(CancelWrites, cancelWrites);
        handler.cancelWrites = cancelWrites;
        if (startMode >= 0)
            operation.setOperationMode(startMode);

        (operation.*operations[call])();

        QTEST(handler.steps, "steps");
        QTEST(operation.operationMode(), "mode");
        QTEST(operation.actionCancelled(), "cancelled");
    }

    void cancelledFlagIsResetByTheNextOperation()
    {
        for (int call : {Modify, Delete, Print, Save}) {
            ClsOperation operation;
            RecordingHandler handler(operation);
            operation.setHandler(&handler);
            handler.cancelWrites = {{"beforeDelete", true}};
            operation.deleteRecord();
            QVERIFY(operation.actionCancelled());
            handler.cancelWrites.clear();
            (operation.*operations[call])();
            QVERIFY2(!operation.actionCancelled(), qPrintable(handler.steps.last()));
        }
    }
};

KELVORA_TEST_OBJECT(TestClsOperation);
#include "test_clsoperation.moc"
