#include "reports/certificate16a.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/records.h"
#include "reports/reportbuilder.h"
#include "reports/reportformat.h"

#include <array>
#include <span>

namespace {

const FormTraits &form26()
{
    return formTraits(FormKind::Form26Q);
}

/// The stored columns of a certificate, Statement (a.) and row (b.), and what each is called.
struct Field
{
    const char *column;
    const char *label;
    bool amount = false;
    bool date = false;
};

constexpr Field deductorFields[] = {
    {"a.CompName", "Name of the deductor"}, {"a.Address1", "Address"}, {"a.Address2", ""},
    {"a.Address3", ""}, {"a.Address4", ""}, {"a.Address5", ""}, {"a.Pincode", "PIN"},
    {"a.TanNO", "TAN of the deductor"}, {"a.PanNo", "PAN of the deductor"},
};
constexpr Field deducteeFields[] = {
    {"b.DeducteeName", "Name of the deductee"}, {"b.Address1", "Address"}, {"b.Address2", ""},
    {"b.Address3", ""}, {"b.Address4", ""}, {"b.Address5", ""}, {"b.State", "State"},
    {"b.PIN", "PIN"}, {"b.PAN", "PAN of the deductee"},
};
constexpr Field paymentFields[] = {
    {"b.Section", "Section"},
    {"b.AmtOfPayment", "Amount paid / credited", true},
    {"b.PaymentDt", "Date of payment / credit", false, true},
    {"b.Tax", "TDS", true},
    {"b.Surcharge", "Surcharge", true},
    {"b.Cess", "Education cess", true},
    {"b.Total", "Total tax deducted", true},
    {"b.TaxDeductDt", "Date of deduction", false, true},
    {"b.TaxPaidToCGDt", "Date of deposit", false, true},
    {"b.BankBranchCode", "BSR code of bank branch"},
    {"b.BankChallanNo", "Challan No."},
};

QString valueText(const Field &field, const QVariant &value)
{
    if (field.amount)
        return reportformat::indianAmount(Money::fromStored(value));
    const QString text = records::nullToText(value);
    return field.date ? reportformat::storedDateText(text) : text;
}

} // namespace

Certificate16A::Certificate16A(const DataStore &store) : m_store(store) {}

QStringList Certificate16A::companyNames() const
{
    QStringList names;
    QSqlQuery query = m_store.exec(QStringLiteral("SELECT CompName FROM %1 ORDER BY BasicIfoID")
                                       .arg(form26().basicInfoTable));
    while (query.next())
        names << records::nullToText(query.value(0));
    return names;
}

QList<Certificate16A::Row> Certificate16A::deductees(const QString &companyName) const
{
    const QVariant statement = m_store.scalar(
        QStringLiteral("SELECT BasicIfoID FROM %1 WHERE CompName = ? ORDER BY BasicIfoID")
            .arg(form26().basicInfoTable),
        {companyName});
    QList<Row> rows;
    if (!statement.isValid())
        return rows;
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT DeducteeID, DeducteeName FROM %1 WHERE BasicIfoID = ? "
                       "ORDER BY ChallanId, DeducteeID")
            .arg(form26().annexureTable),
        {statement});
    while (query.next())
        rows.append({query.value(0).toInt(), records::nullToText(query.value(1))});
    return rows;
}

std::optional<Report> Certificate16A::report(const QList<int> &rowKeys, bool pageBreak,
                                             const QDate &from, const QDate &to) const
{
    const std::array<std::span<const Field>, 3> blocks = {deductorFields, deducteeFields,
                                                          paymentFields};
    QStringList columns;
    for (const std::span<const Field> fields : blocks) {
        for (const Field &field : fields)
            columns << QLatin1String(field.column);
    }
    QVariantList keys;
    for (const int key : rowKeys)
        keys << key;
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT %1 FROM %2 AS a, %3 AS b WHERE a.BasicIfoID = b.BasicIfoID "
                       "AND b.DeducteeID IN (%4) ORDER BY a.BasicIfoID, b.ChallanId, "
                       "b.DeducteeID")
            .arg(columns.join(QStringLiteral(", ")), form26().basicInfoTable,
                 form26().annexureTable, QStringList(keys.size(), QStringLiteral("?"))
                                             .join(QStringLiteral(", "))),
        keys);
    if (!query.next())
        return std::nullopt;

    const QString period = QStringLiteral("FOR THE PERIOD : \n") + reportformat::dateText(from)
                           + QStringLiteral(" To ") + reportformat::dateText(to);
    ReportBuilder report(QStringLiteral("Form - 16 A"));
    bool first = true;
    do {
        if (!first) {
            if (pageBreak)
                report.pageBreak();
            else
                report.space(18);
        }
        first = false;
        report.title(QStringLiteral("FORM NO. 16A"));
        report.text(QStringLiteral("Certificate of deduction of tax at source under section 203 "
                                   "of the Income-tax Act, 1961"),
                    ReportFont::Bold, Qt::AlignHCenter);
        report.text(period, ReportFont::Normal, Qt::AlignHCenter);
        report.keepWithNext();
        int at = 0;
        for (const std::span<const Field> fields : blocks) {
            report.space(6);
            for (const Field &field : fields)
                report.field(QLatin1String(field.label), valueText(field, query.value(at++)),
                             0.35);
        }
        report.rule();
    } while (query.next());
    return report.finish();
}
