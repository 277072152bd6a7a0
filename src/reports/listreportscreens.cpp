#include "reports/listreportscreens.h"

#include "core/messageboxes.h"
#include "core/storeerror.h"
#include "reports/generationlogreport.h"
#include "reports/grouplistreports.h"
#include "reports/reportmessages.h"
#include "reports/reportpreview.h"

#include <functional>

namespace listreportscreens {

namespace {

using Build = std::function<std::optional<Report>(const DataStore &, const QDate &)>;

struct ListReport
{
    const char *name;
    Build build;
    bool saysWhenEmpty; ///< a log without rows is simply not shown
};

const QList<ListReport> &listReports()
{
    using generationlogreport::Order;
    const auto log = [](Order order) {
        return [order](const DataStore &store, const QDate &runDate) {
            return generationlogreport::build(store, order, runDate);
        };
    };
    static const QList<ListReport> reports = {
        {"dRptGroupMaster", grouplistreports::groupMaster, true},
        {"drptGroupwiseCompanyList", grouplistreports::companyList, true},
        {"drptCompanywiseDeducteeList", grouplistreports::deducteeList, true},
        {"drptCompanywiseEmployeeList", grouplistreports::employeeList, true},
        {"drptDatewiseFileGenerationLog", log(Order::ByDate), false},
        {"drptCompanywiseFileGenerationLog", log(Order::ByCompany), false},
    };
    return reports;
}

} // namespace

QStringList names()
{
    QStringList result;
    for (const ListReport &report : listReports())
        result.append(QLatin1String(report.name));
    return result;
}

QWidget *open(const QString &name, const DataStore &store, MessageBoxes &boxes)
{
    for (const ListReport &list : listReports()) {
        if (name != QLatin1String(list.name))
            continue;
        try {
            std::optional<Report> report = list.build(store, QDate::currentDate());
            if (report) {
                return new ReportPreview(std::make_shared<const Report>(std::move(*report)),
                                         boxes, name);
            }
            if (list.saysWhenEmpty)
                boxes.show({reportmessages::noRecord, appTitle, MessageIcon::Information});
        } catch (const StoreError &error) {
            boxes.show({error.description(), appTitle, MessageIcon::Critical});
        }
        return nullptr;
    }
    return nullptr;
}

} // namespace listreportscreens
