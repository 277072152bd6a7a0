#include "statements/annexuretransfer.h"

#include "core/numbers.h"
#include "statements/annexurerecords.h"
#include "statements/challanentry.h"
#include "statements/challanrecords.h"

namespace annexuretransfer {

void makeChallans(const DataStore &store, const FormTraits &form, const AnnexureRecords &rows,
                  const ChallanRowsKey &waiting)
{
    ChallanRecords challans(store, form);
    int serial = 0;
    for (AnnexureEntry row : rows.load(waiting)) {
        ChallanEntry created;
        created.slNo = QString::number(++serial);
        created.tds = row.tax;
        created.total = row.total;
        created.totTax = row.deposited;
        created.cheque = QStringLiteral("0");
        challans.insert(created, waiting.statement);
        // The row now hangs under its own challan, as the first and only row there.
        const ChallanRowsKey target{waiting.statement, int(numbers::val(created.challanId))};
        rows.remove(int(numbers::val(row.rowId)), waiting);
        rows.insert(row, created, target);
        rows.writeControlTotals(target, {AnnexureRecords::controlAmounts(row)});
    }
}

} // namespace annexuretransfer
