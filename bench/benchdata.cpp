#include "benchdata.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/freshstore.h"
#include "core/storeupgrade.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <QTemporaryDir>

#include <algorithm>
#include <stdexcept>

namespace benchdata {

Inserter::Inserter(const DataStore &store, const QString &table, const QStringList &columns)
    : m_query(store.database())
{
    QStringList quoted;
    for (const QString &column : columns)
        quoted << u'"' + column + u'"';
    const QString marks = QStringList(columns.size(), QStringLiteral("?")).join(u',');
    if (!m_query.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                             .arg(table, quoted.join(u','), marks)))
        throw std::runtime_error(m_query.lastError().text().toStdString());
}

void Inserter::row(const QVariantList &values)
{
    for (int i = 0; i < values.size(); ++i)
        m_query.bindValue(i, values.at(i));
    if (!m_query.exec())
        throw std::runtime_error(m_query.lastError().text().toStdString());
}

std::unique_ptr<DataStore> freshStore(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(DataStore::fileName);
    freshstore::create(path, 2026);
    auto store = std::make_unique<DataStore>(path);
    storeupgrade::run(*store);
    return store;
}

QString pan(int serial, char status)
{
    return QStringLiteral("AB%1%2%3%4F")
        .arg(QChar(u'A' + serial % 26))
        .arg(QChar::fromLatin1(status))
        .arg(QChar(u'A' + serial / 26 % 26))
        .arg(serial % 9999 + 1, 4, 10, QLatin1Char('0'));
}

Money amountFor(int serial)
{
    return Money::fromPaise(1000000 + static_cast<qint64>(serial % 9973) * 1337);
}

void addCompany(const DataStore &store, int compId, const QString &name, const QString &prefix)
{
    store.exec(QStringLiteral("INSERT INTO mstCompany (AsstID, GroupID, CompID, TanNO, PanNo, "
                              "CompName, Address1, Address2, Address5, StateCode, Pincode, "
                              "PersonName, Designation, FilePrefix, Phone, STD, DStatus) "
                              "VALUES (1, 1, ?, ?, 'AAACK1234F', ?, '12', 'MG ROAD', "
                              "'BENGALURU', '15', '560001', 'R NAIR', 'CFO', ?, '25550000', "
                              "'080', 'K')"),
               {compId, QStringLiteral("BLRK%1E").arg(compId, 5, 10, QLatin1Char('0')), name,
                prefix});
}

void addStatement(const DataStore &store, const FormTraits &form, int id, int compId,
                  int challans, int rows)
{
    store.exec(QStringLiteral("INSERT INTO %1 (BasicIfoID, CompID, AsstID, TanNO, PanNo, "
                              "BranchDiv, CompName, Address1, Address2, Address5, StateCode, "
                              "Pincode, phone, email, Std, Employer, Salary, Status, PersonName, "
                              "Designation, pAddress1, pStateCode, pPincode, NoChallan, "
                              "NoDeductee, AsstYear, FAYear, AppRcptNo, RevisedRtn, "
                              "RevisedRcptNo, Quarter) "
                              "VALUES (?, ?, 1, ?, 'AAACK1234F', 'HEAD OFFICE', ?, '12', "
                              "'MG ROAD', 'BENGALURU', '15', '560001', '25550000', "
                              "'tds@example.in', '080', 0, 0, 0, 'R NAIR', 'CFO', '12', '15', "
                              "'560001', ?, ?, '202728', '202627', '0', 'R', '0', ?)")
                   .arg(form.basicInfoTable),
               {id, compId, QStringLiteral("BLRK%1E").arg(compId, 5, 10, QLatin1Char('0')),
                QStringLiteral("BENCH DEDUCTOR %1 LTD").arg(compId), challans, rows,
                form.kind == FormKind::Form24Q ? "Q4" : "Q2"});
}

const QStringList challanColumns = {
    "ChallnID", "BasicIfoID", "CompID", "AsstID", "SlNo", "AmountDeducted", "TrVoucherNo",
    "DtTrVoucher", "BankCode", "Surcharge", "EduCess", "Interest", "Others", "Total", "ChqDDNo",
    "BookEntry", "TotTax", "TotIncomeTax", "TotSurcharge", "TotCess", "CtrlTot", "ExInterest",
    "ExtOthers", "Remarks", "TransferVoucherNo"};

QVariantList challanValues(int challanId, int statement, int compId, int slNo, Money total)
{
    const double amount = total.toDouble();
    return {challanId, statement, compId, 1, slNo, amount,
            QStringLiteral("%1").arg(slNo % 100000, 5, 10, QLatin1Char('0')),
            QStringLiteral("2026-%1-07").arg(7 + slNo % 3, 2, 10, QLatin1Char('0')),
            QStringLiteral("0510308"), 0, 0, 0, 0, amount,
            QString::number(400000 + slNo), QStringLiteral("N"), amount, amount, 0, 0, amount,
            0, 0, QString(), QString()};
}

void build26Q(const DataStore &store, int statement, int compId, int challans,
              int rowsPerChallan, int &nextRowId)
{
    const FormTraits &form = formTraits(FormKind::Form26Q);
    addCompany(store, compId, QStringLiteral("BENCH DEDUCTOR %1 LTD").arg(compId),
               QStringLiteral("B%1").arg(compId));
    addStatement(store, form, statement, compId, challans, challans * rowsPerChallan);

    QStringList columns = challanColumns;
    columns.insert(5, QStringLiteral("Section"));
    Inserter challan(store, form.challanTable, columns);
    Inserter row(store, form.annexureTable,
                 {"DeducteeID", "BasicIfoID", "CompID", "AsstID", "ChallanId", "SrlNo",
                  "Section", "DeducteeNo", "DeducteeCode", "PAN", "PANRef", "DeducteeName",
                  "Address1", "Address2", "Address3", "Address4", "Address5", "State",
                  "StateCode", "PIN", "AmtOfPayment", "PaymentDt", "Rate", "TaxAmount",
                  "TaxDeductDt", "TaxPaidToCGDt", "BankBranchCode", "BankChallanNo",
                  "NonDeductionflg", "BookEntry", "Tax", "Surcharge", "Cess", "Total"});
    for (int c = 1; c <= challans; ++c) {
        const int challanId = statement * 10000 + c;
        const QString section = c % 2 ? QStringLiteral("94C") : QStringLiteral("94J");
        const int ratePercent = c % 2 ? 2 : 10;
        Money challanTotal;
        for (int r = 1; r <= rowsPerChallan; ++r) {
            const int serial = nextRowId++;
            const Money paid = amountFor(serial);
            const Money tax = Money::fromPaise(paid.paise() * ratePercent / 100);
            challanTotal += tax;
            const QString date = QStringLiteral("2026-0%1-%2").arg(7 + c % 3).arg(
                1 + r % 28, 2, 10, QLatin1Char('0'));
            row.row({serial, statement, compId, 1, challanId, r, section, serial % 5000 + 1,
                     serial % 3 ? "02" : "01", pan(serial, serial % 3 ? 'P' : 'C'),
                     QString(), QStringLiteral("DEDUCTEE %1 ENTERPRISES").arg(serial),
                     QStringLiteral("SHOP %1").arg(serial % 500), "INDUSTRIAL ESTATE",
                     "HOSUR ROAD", "ELECTRONIC CITY", "BENGALURU", "KARNATAKA", "15", "560100",
                     paid.toDouble(), date, static_cast<double>(ratePercent), tax.toDouble(),
                     date, QStringLiteral("2026-%1-07").arg(7 + c % 3, 2, 10, QLatin1Char('0')),
                     "0510308", QString::number(10000 + c), "", "N", tax.toDouble(), 0, 0,
                     tax.toDouble()});
        }
        QVariantList values = challanValues(challanId, statement, compId, c, challanTotal);
        values.insert(5, section);
        challan.row(values);
    }
}


double timed(const std::function<void()> &step)
{
    QElapsedTimer timer;
    timer.start();
    step();
    return timer.nsecsElapsed() / 1e6;
}

QString figures(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return QStringLiteral("best %1 ms, median %2 ms")
        .arg(times.front(), 0, 'f', 2)
        .arg(times[times.size() / 2], 0, 'f', 2);
}

} // namespace benchdata
