#include "statements/sectionrecords.h"

#include "core/datastore.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/records.h"
#include "core/schema.h"

#include <QSqlQuery>

namespace {

const QStringList singleAmount = {QStringLiteral("TotalDeduction")};
const QStringList threeAmounts = {QStringLiteral("GrossAmt"), QStringLiteral("QfAmt"),
                                  QStringLiteral("DedAmt")};

const QStringList &amountColumns(SectionKind kind)
{
    return SectionGrid::traits(kind).amountColumns == 1 ? singleAmount : threeAmounts;
}

QString shown(const QVariant &value)
{
    return value.isNull() ? QString() : Money::fromStored(value).toText();
}

/// The master's sections of the grid's type, as a condition on M.SectionName.
QString listCondition(const SectionGrid::Traits &traits)
{
    QString condition = QStringLiteral("SectionType = ?");
    if (traits.excluded)
        condition += QStringLiteral(" AND SectionName <> ?");
    return condition;
}

QVariantList listValues(const SectionGrid::Traits &traits)
{
    QVariantList values = {QLatin1String(traits.sectionType)};
    if (traits.excluded)
        values << QLatin1String(traits.excluded);
    return values;
}

} // namespace

SectionRecords::SectionRecords(const DataStore &store, const FormTraits &form)
    : m_store(store), m_form(form)
{
}

QString SectionRecords::table(SectionKind kind) const
{
    return m_form.*(SectionGrid::traits(kind).table);
}

QList<SectionRow> SectionRecords::load(SectionKind kind, int salaryId) const
{
    const SectionGrid::Traits &traits = SectionGrid::traits(kind);
    const QStringList &amounts = amountColumns(kind);
    const QString nAmounts = QStringLiteral("N.") + amounts.join(QStringLiteral(", N."));
    QList<SectionRow> rows;
    const auto read = [&rows, &amounts](QSqlQuery &query) {
        while (query.next()) {
            SectionRow row;
            row.section = records::nullToText(query.value(0));
            for (int column = 0; column < amounts.size(); ++column)
                row.amounts[column] = shown(query.value(column + 1));
            rows.append(row);
        }
    };
    QSqlQuery listed = m_store.exec(
        QStringLiteral("SELECT M.SectionName, %1 FROM mstSections24 M LEFT JOIN %2 N "
                       "ON N.SectionId = M.SectionName AND N.SalaryId = ? WHERE M.%3 "
                       "ORDER BY M.rowid, N.Secid")
            .arg(nAmounts, table(kind), listCondition(traits)),
        QVariantList{salaryId} + listValues(traits));
    read(listed);
    QSqlQuery others = m_store.exec(
        QStringLiteral("SELECT N.SectionId, %1 FROM %2 N WHERE N.SalaryId = ? AND "
                       "N.SectionId NOT IN (SELECT SectionName FROM mstSections24 WHERE %3) "
                       "ORDER BY N.Secid")
            .arg(nAmounts, table(kind), listCondition(traits)),
        QVariantList{salaryId} + listValues(traits));
    read(others);
    return rows;
}

QStringList SectionRecords::offered(SectionKind kind) const
{
    const SectionGrid::Traits &traits = SectionGrid::traits(kind);
    if (traits.offered[0]) {
        return {QLatin1String(traits.offered[0]), QLatin1String(traits.offered[1])};
    }
    return records::comboTexts(
        m_store, {}, {}, false,
        QStringLiteral("SELECT SectionName FROM mstSections24 WHERE SectionType = ? "
                       "ORDER BY rowid"),
        false, {QLatin1String(traits.sectionType)});
}

std::optional<QString> SectionRecords::masterName(const QString &section) const
{
    if (section.trimmed().isEmpty())
        return std::nullopt;
    const QVariant name =
        m_store.scalar(QStringLiteral("SELECT SectionName FROM mstSections24 "
                                      "WHERE SectionName = ?"),
                       {records::escapeText(section)});
    if (!name.isValid())
        return std::nullopt;
    return records::nullToText(name);
}

void SectionRecords::rewrite(SectionKind kind, int salaryId, int employeeId,
                             const QList<SectionRow> &rows) const
{
    const QString name = table(kind);
    m_store.exec(QStringLiteral("DELETE FROM %1 WHERE SalaryId = ?").arg(name), {salaryId});
    if (rows.isEmpty())
        return;
    const QStringList &amounts = amountColumns(kind);
    const QString insert =
        QStringLiteral("INSERT INTO %1 (Secid, SalaryId, Empid, SectionId, %2) VALUES "
                       "(?, ?, ?, ?%3)")
            .arg(name, amounts.join(u", "), QStringLiteral(", ?").repeated(amounts.size()));
    qint64 secId = qint64(records::nextId(m_store, name, QStringLiteral("Secid")));
    for (const SectionRow &row : rows) {
        QVariantList values = {secId++, salaryId, employeeId, records::escapeText(row.section)};
        for (int column = 0; column < amounts.size(); ++column) {
            const Money amount = Money::fromText(row.amounts.at(column));
            // The tables keep whole rupees, rounded as the store always converted amounts.
            if (schema::isWholeNumber(name, amounts.at(column)))
                values << amount.roundedToRupees().paise() / 100;
            else
                values << amount.toDouble();
        }
        m_store.exec(insert, values);
    }
}

void SectionRecords::remove(int salaryId) const
{
    for (const QString &name : m_form.salarySectionTables())
        m_store.exec(QStringLiteral("DELETE FROM %1 WHERE SalaryId = ?").arg(name), {salaryId});
}
