#include "corestore.h"

namespace {

struct CoreStore : TestStore
{
    CoreStore()
    {
        insert("mstGroup", {"GroupID", "GroupName"},
               {{1, "Alpha Group"}, {2, "Beta Group"}, {41, "O'NEIL AND SONS"},
                {7, "  SHAH TRADERS "}, {9, QVariant()}});
        insert("mstCompany", {"AsstID", "GroupID", "CompID", "CompName", "DStatus"},
               {{1, 1, 11, "Mehta Traders", "K"}, {1, 1, 12, "Anand Mills", QVariant()},
                {1, 1, 13, "Bose Exports", ""}, {2, 1, 14, "Older Year Ltd", "K"},
                {1, 2, 21, "Beta Steel", "A"}});
        const QStringList statement = {"BasicIfoID", "CompID", "AsstID", "Quarter"};
        insert("TranBasicInfoE26", statement,
               {{7, 11, 1, "Q1"}, {8, 11, 1, "Q2"}, {5, 12, 1, "Q2"}});
        insert("TranBasicInfoE24", statement, {{3, 11, 1, "Q1"}});
        // The same company and quarter in another assessment period is not this Statement.
        insert("TranBasicInfoE27", statement, {{9, 11, 2, "Q1"}});
        insert("TranDeducteeE26", {"DeducteeID", "BasicIfoID", "ChallanId"},
               {{1, 1, 1}, {2, 1, 1}, {5, 1, 2}, {9, 2, 1}});
    }
};

} // namespace

const TestStore &coreStore()
{
    static const CoreStore store;
    return store;
}
