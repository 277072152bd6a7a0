#include "core/numbers.h"
#include "filingcheck/identitynumbers.h"
#include "filingcheck/ratetables.h"
#include "filingcheck/rulechecks.h"
#include "filingcheck/statementreader.h"

#include <cmath>

namespace filingcheck::checks {

namespace {

/// The most that an amount paid or credited can be in a return: 999,999,999.00.
constexpr Money largestPayment = Money::fromRupees(999999999);

struct RowAmount
{
    const char *column;
    const char *label; ///< as the annexure panel labels it
    StoredAmount RowValues::*amount;
};

const RowAmount rowAmounts[] = {
    {"AmtOfPayment", "Amount", &RowValues::paid},
    {"Tax", "Tax", &RowValues::tax},
    {"Surcharge", "Surcharge", &RowValues::surcharge},
    {"Cess", "Cess", &RowValues::cess},
    {"Total", "Total", &RowValues::total},
    {"TaxAmount", "Tax Deposited", &RowValues::taxDeposited},
};

const RowAmount purchase = {nullptr, "Total Value Of Purchase", &RowValues::purchase};

/// The amount columns of the row's form: 27EQ's rows add the value of purchase. A hit names
/// its column by @p column, the purchase column by the form's traits.
template<typename Each>
void forEachAmount(const RowValues &row, const CheckContext &context, Each each)
{
    for (const RowAmount &column : rowAmounts)
        each(column, row.*column.amount);
    if (!context.form.purchaseColumn.isEmpty())
        each(purchase, row.purchase);
}

QString columnOf(const RowAmount &amount, const CheckContext &context)
{
    return amount.column ? QString::fromLatin1(amount.column) : context.form.purchaseColumn;
}

bool isPan(const QString &pan)
{
    return identity::hasShape(pan, identity::panShape);
}

QString fourthLetter(const QString &pan)
{
    return pan.mid(3, 1);
}

/// The deductee code as the file writes it, a number: "01" is 1.
double deducteeCode(const RowValues &row)
{
    return numbers::val(row.deducteeCode);
}

/// What the tax is of the amount, in ten-thousandths of a percent, half up.
qint64 impliedRate(Money tax, Money amount)
{
    const __int128 scaled = __int128(tax.paise()) * 1000000;
    return static_cast<qint64>((scaled + amount.paise() / 2) / amount.paise());
}

bool withLowerOrNoDeduction(const RowValues &row)
{
    return row.flag == u"A" || row.flag == u"B";
}

void dateInFuture(const char *words, QDate date, const CheckContext &context, Hits &hits)
{
    if (date.isValid() && date > context.filedOn)
        hits.append({{QLatin1String(words), dateText(date), dateText(context.filedOn)}});
}

} // namespace

void panShape(const RowValues &row, const CheckContext &context, Hits &hits)
{
    if (!isPan(row.pan) && !identity::isPanPlaceholder(row.pan))
        hits.append({{shown(row.pan), context.form.partyWord.toLower()}});
}

void panDigits(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (identity::hasZeroDigits(row.pan))
        hits.append({{row.pan}});
}

void panHolder(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (isPan(row.pan) && !QLatin1String(identity::holderKinds).contains(row.pan.at(3))) {
        QStringList kinds;
        for (const char kind : QLatin1String(identity::holderKinds))
            kinds << QString(QLatin1Char(kind));
        hits.append({{row.pan, fourthLetter(row.pan), kinds.join(QStringLiteral(", "))}});
    }
}

void employeePan(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (isPan(row.pan) && row.pan.at(3) != identity::personKind)
        hits.append({{row.pan, fourthLetter(row.pan)}});
}

void companyPan(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (deducteeCode(row) == 1 && isPan(row.pan) && row.pan.at(3) != identity::companyKind)
        hits.append({{row.pan, fourthLetter(row.pan)}});
}

void nonCompanyPan(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (deducteeCode(row) == 2 && isPan(row.pan) && row.pan.at(3) == identity::companyKind)
        hits.append({{row.pan}});
}

void panReference(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (identity::isPanPlaceholder(row.pan) && !row.panRefGiven)
        hits.append({{row.pan}});
}

void withoutPanRate(const RowValues &row, const CheckContext &context, Hits &hits)
{
    if (!identity::isPanPlaceholder(row.pan) || row.paid.money <= Money())
        return;
    const int percent = ratetables::withoutPanPercent(context.form.kind, row.section);
    if (__int128(row.total.money.paise()) * 100 < __int128(row.paid.money.paise()) * percent) {
        hits.append({{row.pan, row.total.money.toText(),
                      numbers::rateText(impliedRate(row.total.money, row.paid.money)),
                      row.paid.money.toText(), QString::number(percent)}});
    }
}

void nameLength(const RowValues &row, const CheckContext &context, Hits &hits)
{
    if (row.nameLength > longestName)
        hits.append({{QString::number(row.nameLength)}, context.form.partyNameColumn});
}

void rowAmountText(const RowValues &row, const CheckContext &context, Hits &hits)
{
    forEachAmount(row, context, [&](const RowAmount &column, const StoredAmount &amount) {
        if (amount.isText()) {
            hits.append({{QString::fromLatin1(column.label), amount.shownText(),
                          amount.money.toText()},
                         columnOf(column, context)});
        }
    });
    if (!row.rateStored.isNull() && row.rateStored.typeId() == QMetaType::QString) {
        hits.append({{QStringLiteral("Rate"), shown(row.rateStored.toString()),
                      numbers::rateText(row.rate)},
                     QStringLiteral("Rate")});
    }
}

void rowAmountNegative(const RowValues &row, const CheckContext &context, Hits &hits)
{
    forEachAmount(row, context, [&](const RowAmount &column, const StoredAmount &amount) {
        if (amount.money < Money()) {
            hits.append({{QString::fromLatin1(column.label), amount.money.toText()},
                         columnOf(column, context)});
        }
    });
    if (row.rate < 0) {
        hits.append({{QStringLiteral("Rate"), numbers::rateText(row.rate)},
                     QStringLiteral("Rate")});
    }
}

void paidNotPositive(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (row.paid.money <= Money())
        hits.append({{row.paid.money.toText()}});
}

void paidTooLarge(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (row.paid.money > largestPayment)
        hits.append({{row.paid.money.toText()}});
}

void paidDecimals(const RowValues &row, const CheckContext &, Hits &hits)
{
    const QVariant &stored = row.paid.stored;
    if (stored.isNull() || row.paid.isText())
        return;
    // Most amounts are whole paise, which a hundredfold shows without reading the digits.
    const double hundredfold = stored.toDouble() * 100;
    if (std::abs(hundredfold - std::nearbyint(hundredfold)) < 1e-6)
        return;
    const QString digits = numbers::decimalText(stored);
    const qsizetype point = digits.indexOf(u'.');
    if (point >= 0 && digits.size() - point - 1 > 2)
        hits.append({{digits, row.paid.money.toText()}});
}

void rowTaxSum(const RowValues &row, const CheckContext &, Hits &hits)
{
    const Money sum = row.tax.money + row.surcharge.money + row.cess.money;
    if (sum != row.total.money) {
        hits.append({{row.total.money.toText(), row.tax.money.toText(),
                      row.surcharge.money.toText(), row.cess.money.toText(), sum.toText()}});
    }
}

void rowDeposited(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (row.taxDeposited.money != row.total.money)
        hits.append({{row.taxDeposited.money.toText(), row.total.money.toText()}});
}

void paymentDate(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (!row.paymentDate.date.isValid())
        hits.append({{row.paymentDate.shown()}});
}

void paymentOutsideQuarter(const RowValues &row, const CheckContext &context, Hits &hits)
{
    const QDate date = row.paymentDate.date;
    if (date.isValid() && context.quarterFrom.isValid()
        && (date < context.quarterFrom || date > context.quarterTo)) {
        hits.append({{dateText(date), dateText(context.quarterFrom),
                      dateText(context.quarterTo)}});
    }
}

void paymentInFuture(const RowValues &row, const CheckContext &context, Hits &hits)
{
    dateInFuture("date of payment or credit", row.paymentDate.date, context, hits);
}

void deductionDateMissing(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (row.total.money > Money() && !row.deductionDate.date.isValid())
        hits.append({{row.total.money.toText(), row.deductionDate.shown()}});
}

void deductionDateWithoutTax(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (row.total.money <= Money() && !row.deductionDate.stored.isEmpty())
        hits.append({{row.deductionDate.shown()}});
}

void deductionBeforeQuarter(const RowValues &row, const CheckContext &context, Hits &hits)
{
    const QDate date = row.deductionDate.date;
    if (date.isValid() && context.quarterFrom.isValid() && date < context.quarterFrom)
        hits.append({{dateText(date), dateText(context.quarterFrom)}});
}

void deductionInFuture(const RowValues &row, const CheckContext &context, Hits &hits)
{
    dateInFuture("date of deduction", row.deductionDate.date, context, hits);
}

void rateWithoutTax(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (row.total.money == Money() && row.rate != 0)
        hits.append({{numbers::rateText(row.rate)}});
}

void rateMismatch(const RowValues &row, const CheckContext &, Hits &hits)
{
    const Money tax = row.tax.money;
    const Money paid = row.paid.money;
    if (tax <= Money() || paid <= Money() || paid > largestPayment)
        return;
    // In millionths of a paisa. The screens work the tax out to the paisa from the rate, or
    // to the whole rupee from the amount: both agree with the rate.
    const __int128 worked = __int128(paid.paise()) * row.rate;
    const __int128 held = __int128(tax.paise()) * 1000000;
    const __int128 apart = held > worked ? held - worked : worked - held;
    const bool toThePaisa = apart <= 1000000;
    const bool toTheRupee = tax.paise() % 100 == 0 && apart < 100000000;
    if (!toThePaisa && !toTheRupee) {
        hits.append({{numbers::rateText(row.rate), tax.toText(),
                      numbers::rateText(impliedRate(tax, paid)), paid.toText()}});
    }
}

void rateBelowSection(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (withLowerOrNoDeduction(row) || identity::isPanPlaceholder(row.pan)
        || !row.paymentDate.date.isValid())
        return;
    const std::optional<qint64> floor =
        ratetables::sectionFloor(row.section, row.paymentDate.date);
    if (floor && row.rate < *floor) {
        hits.append({{numbers::rateText(row.rate), numbers::rateText(*floor), row.section,
                      dateText(row.paymentDate.date)}});
    }
}

void noDeductionWithTax(const RowValues &row, const CheckContext &, Hits &hits)
{
    if (row.flag == u"B" && row.total.money != Money())
        hits.append({{row.total.money.toText()}});
}

} // namespace filingcheck::checks
