#include "core/clsoperation.h"
#include "support/scriptedmessageboxes.h"

#include <QHash>
#include <QTest>

namespace {

// Writes down each step as "step@mode" and, for the steps it is told, writes the given value
// into the cancel flag it was handed.
class RecordingHandler : public OperationHandler
{
public:
    explicit RecordingHandler(const ClsOperation &operation) : m_operation(operation) {}

    QStringList steps;
    QHash<QString, bool> cancelWrites;

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

// A screen whose save check fails until the field is filled in, as the masters' checks do.
class CheckingHandler : public OperationHandler
{
public:
    explicit CheckingHandler(MessageBoxes &boxes) : m_boxes(boxes) {}

    bool nameFilled = false;
    int saves = 0;

    void validateData(bool &cancel) override
    {
        if (!nameFilled) {
            m_boxes.show(Message{QStringLiteral("Enter the Name"), appTitle});
            cancel = true;
        }
    }
    void saveProcedure(bool &) override { ++saves; }

private:
    MessageBoxes &m_boxes;
};

enum class Call { Add, Modify, Delete, Print, Save, Cancel };

void run(ClsOperation &operation, Call call)
{
    switch (call) {
    case Call::Add: operation.addRecord(); break;
    case Call::Modify: operation.modifyRecord(); break;
    case Call::Delete: operation.deleteRecord(); break;
    case Call::Print: operation.printRecord(); break;
    case Call::Save: operation.saveRecord(); break;
    case Call::Cancel: operation.userCanceled(); break;
    }
}

using CancelWrites = QHash<QString, bool>;

} // namespace

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(CancelWrites)

class TestClsOperation : public QObject
{
    Q_OBJECT

private slots:
    void stepsInOrder_data();
    void stepsInOrder();
    void cancelledFlagIsResetByTheNextOperation();
    void failingSaveTwiceThenPassing();
};

void TestClsOperation::stepsInOrder_data()
{
    QTest::addColumn<int>("startMode");
    QTest::addColumn<Call>("call");
    QTest::addColumn<CancelWrites>("cancelWrites");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("cancelled");

    const CancelWrites none;
    // Add starts with the flag set; the handler sees it set and nobody clears it.
    QTest::newRow("add") << 0 << Call::Add << none << QStringList{"beforeAdd@1"} << 1 << true;
    QTest::newRow("add, handler clears the flag")
        << 0 << Call::Add << CancelWrites{{"beforeAdd", false}} << QStringList{"beforeAdd@1"}
        << 1 << false;
    QTest::newRow("modify") << 0 << Call::Modify << none << QStringList{"beforeModify@2"} << 2
                            << false;
    QTest::newRow("delete") << 0 << Call::Delete << none
                            << QStringList{"beforeDelete@3", "deleteRecord@3"} << 3 << false;
    QTest::newRow("delete answered No") << 0 << Call::Delete
                                        << CancelWrites{{"beforeDelete", true}}
                                        << QStringList{"beforeDelete@3"} << 3 << true;
    QTest::newRow("delete fails in deleteRecord")
        << 0 << Call::Delete << CancelWrites{{"deleteRecord", true}}
        << QStringList{"beforeDelete@3", "deleteRecord@3"} << 3 << true;
    QTest::newRow("print from editing") << 2 << Call::Print << none
                                        << QStringList{"beforePrint@4", "printRecord@4"} << 4
                                        << false;
    QTest::newRow("print with no data") << 0 << Call::Print
                                        << CancelWrites{{"beforePrint", true}}
                                        << QStringList{"beforePrint@4"} << 4 << true;
    QTest::newRow("save of an added record")
        << 1 << Call::Save << none << QStringList{"validateData@1", "saveProcedure@1"} << 1
        << false;
    QTest::newRow("save refused by a check") << 1 << Call::Save
                                             << CancelWrites{{"validateData", true}}
                                             << QStringList{"validateData@1"} << 1 << true;
    QTest::newRow("save fails in the procedure")
        << 2 << Call::Save << CancelWrites{{"saveProcedure", true}}
        << QStringList{"validateData@2", "saveProcedure@2"} << 2 << true;
    // Nothing was added or modified, yet both steps run; their mode tests match nothing.
    QTest::newRow("save on a new, idle object")
        << -1 << Call::Save << none << QStringList{"validateData@0", "saveProcedure@0"} << 0
        << false;
    // The handler undoes what was being edited, so it must still see that mode.
    QTest::newRow("cancel an add") << 1 << Call::Cancel << none << QStringList{"afterCancel@1"}
                                   << 0 << false;
}

void TestClsOperation::stepsInOrder()
{
    QFETCH(int, startMode);
    QFETCH(Call, call);
    QFETCH(CancelWrites, cancelWrites);
    QFETCH(QStringList, steps);
    QFETCH(int, mode);
    QFETCH(bool, cancelled);

    ClsOperation operation;
    RecordingHandler handler(operation);
    operation.setHandler(&handler);
    handler.cancelWrites = cancelWrites;
    if (startMode >= 0)
        operation.setOperationMode(startMode);

    run(operation, call);

    QCOMPARE(handler.steps, steps);
    QCOMPARE(operation.operationMode(), mode);
    QCOMPARE(operation.actionCancelled(), cancelled);
}

void TestClsOperation::cancelledFlagIsResetByTheNextOperation()
{
    const QList<Call> calls = {Call::Modify, Call::Delete, Call::Print, Call::Save};
    for (Call call : calls) {
        ClsOperation operation;
        RecordingHandler handler(operation);
        operation.setHandler(&handler);
        handler.cancelWrites = {{"beforeDelete", true}};
        operation.deleteRecord();
        QVERIFY(operation.actionCancelled());

        handler.cancelWrites.clear();
        run(operation, call);
        QVERIFY2(!operation.actionCancelled(), qPrintable(handler.steps.last()));
    }
}

void TestClsOperation::failingSaveTwiceThenPassing()
{
    ScriptedMessageBoxes boxes;
    CheckingHandler handler(boxes);
    ClsOperation operation(&handler);
    operation.addRecord();

    operation.saveRecord();
    operation.saveRecord();

    QCOMPARE(boxes.texts(), QStringList({"Enter the Name", "Enter the Name"}));
    QCOMPARE(handler.saves, 0);
    QCOMPARE(operation.operationMode(), int(ClsOperation::AddMode));
    QVERIFY(operation.actionCancelled());

    handler.nameFilled = true;
    operation.saveRecord();

    QCOMPARE(boxes.shown.size(), 2);
    QCOMPARE(handler.saves, 1);
    QVERIFY(!operation.actionCancelled());
}

QTEST_APPLESS_MAIN(TestClsOperation)

#include "test_clsoperation.moc"
