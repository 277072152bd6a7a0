#include "reports/form16aworktables.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/records.h"
#include "core/schema.h"
#include "core/transaction.h"
#include "reports/inwords.h"

#include <stdexcept>

namespace {

const QString rowsTable = QStringLiteral("Temp_RptQryFormNo16A");
const QString wordsTable = QStringLiteral("Temp_DeducteeSection");

// Columns as "Name:Type": D a double, Dt a date, T<n> a text of n characters.
const char *const rowsColumns =
    "BasicIfoID:D CompanyId:D DeductorName:T75 DeductorFlat:T75 DeductorBuilding:T75 "
    "DeductorRoad:T75 DeductorArea:T75 DeductorTown:T75 DeductorState:T75 DeductorPincode:T20 "
    "DeductorTANNo:T10 DeductorPANNo:T10 Quarter:T10 DeducteeID:D DeducteeName:T75 "
    "DeducteeFlat:T75 DeducteeBuilding:T75 DeducteeRoad:T75 DeducteeArea:T75 DeducteeTown:T75 "
    "DeducteerState:T75 DeducteeSectionNo:T75 DeducteeSectionDesc:T75 DeducteePAN:T10 "
    "AmountPaid:D PaymentDate:Dt TDS:D Surcharge:D Cess:D TotalTaxDeposit:D ChqDDNo:T255 "
    "BSRCode:T255 DateOnWhichTax:Dt VoucherNo:T255";
const char *const wordsColumns = "DeducteeName:T100 DeducteeSectionNo:T50 InWords:T200";

QStringList columnNames(const char *columns)
{
    QStringList names;
    for (const QString &column : QString::fromLatin1(columns).split(QLatin1Char(' ')))
        names << column.section(QLatin1Char(':'), 0, 0);
    return names;
}

QString createStatement(const QString &table, const char *columns)
{
    QStringList declared;
    for (const QString &column : QString::fromLatin1(columns).split(QLatin1Char(' '))) {
        const QString name = column.section(QLatin1Char(':'), 0, 0);
        const QString type = column.section(QLatin1Char(':'), 1);
        if (type == u"D")
            declared << name + QStringLiteral(" REAL");
        else if (type == u"Dt")
            declared << name + QStringLiteral(" DATE");
        else
            declared << QStringLiteral("%1 VARCHAR(%2) COLLATE NOCASE").arg(name, type.mid(1));
    }
    return QStringLiteral("CREATE TABLE IF NOT EXISTS %1 (%2)")
        .arg(table, declared.join(QStringLiteral(", ")));
}

/// Every column of the rows table, as a statement that names it w selects them.
QString rowColumns()
{
    QStringList columns;
    for (const QString &column : columnNames(rowsColumns))
        columns << QStringLiteral("w.") + column;
    return columns.join(QStringLiteral(", "));
}

/// "?, ?, ?" for a list of ids, which are bound one by one.
QString marks(qsizetype count)
{
    return QStringList(count, QStringLiteral("?")).join(QStringLiteral(", "));
}

QVariantList chosen(int companyId, const QString &quarter, const QList<int> &ids)
{
    QVariantList values{companyId, quarter};
    for (const int id : ids)
        values << id;
    return values;
}

/// A statement on the rows table (w) joined to the deductee masters (m): what it selects, its
/// joins, and what follows the condition.
struct ChosenRows
{
    QString select;
    QString joins;
    QString tail;
};

/// The rows of the chosen deductees of a company's quarter whose master is in the group.
QSqlQuery chosenRows(const DataStore &store, const ChosenRows &statement, int companyId,
                     const QString &quarter, const QList<int> &ids, int groupId)
{
    QVariantList values = chosen(companyId, quarter, ids);
    values << groupId;
    return store.exec(QStringLiteral("SELECT %1 FROM %2 AS w %3 WHERE w.CompanyId = ? "
                                     "AND w.Quarter = ? AND w.DeducteeID IN (%4) "
                                     "AND m.GroupId = ? %5")
                          .arg(statement.select, rowsTable, statement.joins,
                               marks(ids.size()), statement.tail),
                      values);
}

} // namespace

Form16AWorkTables::Form16AWorkTables(const DataStore &store) : m_store(store) {}

void Form16AWorkTables::prepare() const
{
    const QString deductees = QStringLiteral("mstDeductee");
    const QString words = QStringLiteral("InWords");
    if (!m_store.columnExists(deductees, words)) {
        m_store.exec(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2")
                         .arg(deductees, schema::columnDefinition(deductees, words)));
    }
    m_store.exec(createStatement(rowsTable, rowsColumns));
    m_store.exec(createStatement(wordsTable, wordsColumns));
}

void Form16AWorkTables::fill(const FormTraits &form) const
{
    if (!form.challanHasSection())
        throw std::logic_error("Form 16A is printed for forms with sections only");
    // The deductor's address lines cross on purpose (flat, building, road, area, town from
    // Address1, 4, 2, 5, 3); the deductee's stay in their stored order.
    const QString insert =
        QStringLiteral(
            "INSERT INTO %1 (%2) "
            "SELECT a.BasicIfoID, a.CompID, a.CompName, a.Address1, a.Address4, a.Address2, "
            "a.Address5, a.Address3, s.StateName, a.Pincode, a.TanNO, a.PanNo, a.Quarter, "
            "d.DeducteeNo, d.DeducteeName, d.Address1, d.Address2, d.Address3, d.Address4, "
            "d.Address5, d.State, d.Section, t.Description, d.PAN, d.AmtOfPayment, d.PaymentDt, "
            "d.Tax, d.Surcharge, d.Cess, d.Total, c.ChqDDNo, c.BankCode, c.DtTrVoucher, "
            "CASE WHEN TRIM(IFNULL(c.TrVoucherNo, '')) = '' THEN c.TransferVoucherNo "
            "ELSE c.TrVoucherNo END "
            "FROM %3 AS a "
            "JOIN %4 AS d ON d.BasicIfoID = a.BasicIfoID "
            "JOIN %5 AS c ON c.BasicIfoID = d.BasicIfoID AND c.ChallnID = d.ChallanId "
            "JOIN mstState AS s ON s.StateCode = a.StateCode "
            "JOIN %6 AS t ON t.%7 = d.Section")
            .arg(rowsTable, columnNames(rowsColumns).join(QStringLiteral(", ")),
                 form.basicInfoTable, form.annexureTable, form.challanTable, form.sectionTable,
                 form.sectionColumn);
    Transaction transaction(m_store);
    m_store.exec(QStringLiteral("DELETE FROM %1").arg(rowsTable));
    m_store.exec(insert);
    transaction.commit();
}

QList<Form16AWorkTables::Deductee> Form16AWorkTables::deductees(int companyId,
                                                                const QString &quarter,
                                                                const QString &nameOrPan) const
{
    QVariantList values{companyId, quarter};
    QString only;
    if (!nameOrPan.isEmpty()) {
        only = QStringLiteral(" AND (DeducteeName = ? OR DeducteePAN = ?)");
        values << nameOrPan << nameOrPan;
    }
    QSqlQuery query = m_store.exec(
        QStringLiteral("SELECT DISTINCT DeducteeID, DeducteeName FROM %1 "
                       "WHERE CompanyId = ? AND Quarter = ?%2 ORDER BY DeducteeName")
            .arg(rowsTable, only),
        values);
    QList<Deductee> result;
    while (query.next())
        result.append({query.value(0).toInt(), records::nullToText(query.value(1))});
    return result;
}

int Form16AWorkTables::fillWords(int companyId, const QString &quarter,
                                 const QList<int> &deducteeIds) const
{
    Transaction transaction(m_store);
    m_store.exec(QStringLiteral("DELETE FROM %1").arg(wordsTable));
    int added = 0;
    if (!deducteeIds.isEmpty()) {
        QSqlQuery rows = m_store.exec(
            QStringLiteral("SELECT DeducteeName, DeducteeSectionNo, TotalTaxDeposit FROM %1 "
                           "WHERE CompanyId = ? AND Quarter = ? AND DeducteeID IN (%2) "
                           "ORDER BY DeducteeName, DeducteeSectionNo")
                .arg(rowsTable, marks(deducteeIds.size())),
            chosen(companyId, quarter, deducteeIds));
        const QString insert =
            QStringLiteral("INSERT INTO %1 (DeducteeName, DeducteeSectionNo, InWords) "
                           "VALUES (?, ?, ?)")
                .arg(wordsTable);
        // Amounts are summed exactly, one deductee and section at a time.
        QString name;
        QString section;
        Money total;
        bool open = false;
        const auto close = [&] {
            if (open) {
                m_store.exec(insert, {records::escapeText(name), records::escapeText(section),
                                      inwords::certificateWords(total)});
                ++added;
            }
        };
        while (rows.next()) {
            const QString rowName = rows.value(0).toString();
            const QString rowSection = rows.value(1).toString();
            if (!open || rowName.compare(name, Qt::CaseInsensitive) != 0
                || rowSection.compare(section, Qt::CaseInsensitive) != 0) {
                close();
                name = rowName;
                section = rowSection;
                total = Money();
                open = true;
            }
            total += Money::fromStored(rows.value(2));
        }
        close();
    }
    transaction.commit();
    return added;
}

QSqlQuery Form16AWorkTables::certificateRows(int companyId, const QString &quarter,
                                             const QList<int> &deducteeIds, int groupId) const
{
    return chosenRows(m_store,
                      {rowColumns() + QStringLiteral(", s.InWords, m.PIN"),
                       QStringLiteral("JOIN %1 AS s ON s.DeducteeName = w.DeducteeName "
                                      "AND s.DeducteeSectionNo = w.DeducteeSectionNo "
                                      "JOIN mstDeductee AS m ON m.DeducteeName = w.DeducteeName")
                           .arg(wordsTable),
                       QStringLiteral("ORDER BY w.DeducteeName, w.DeducteeSectionNo, "
                                      "w.PaymentDate")},
                      companyId, quarter, deducteeIds, groupId);
}

QStringList Form16AWorkTables::sharedNames(int companyId, const QString &quarter,
                                           const QList<int> &deducteeIds, int groupId) const
{
    QSqlQuery query = chosenRows(
        m_store,
        {QStringLiteral("w.DeducteeName"),
         QStringLiteral("JOIN mstDeductee AS m ON m.DeducteeName = w.DeducteeName"),
         QStringLiteral("GROUP BY w.DeducteeName HAVING count(DISTINCT m.DeducteeID) > 1 "
                        "ORDER BY w.DeducteeName")},
        companyId, quarter, deducteeIds, groupId);
    QStringList names;
    while (query.next())
        names << records::nullToText(query.value(0));
    return names;
}

QSqlQuery Form16AWorkTables::masterRows(int companyId, const QString &quarter,
                                        const QList<int> &deducteeIds, int groupId) const
{
    return chosenRows(m_store,
                      {rowColumns() + QStringLiteral(", NULL, m.PIN"),
                       QStringLiteral("JOIN mstDeductee AS m ON m.DeducteeID = w.DeducteeID"),
                       QStringLiteral("ORDER BY m.DeducteeName, m.DeducteeID, "
                                      "w.DeducteeSectionNo, w.PaymentDate")},
                      companyId, quarter, deducteeIds, groupId);
}
