#include "statements/annexurerules.h"

#include "core/fieldrules.h"
#include "core/formtraits.h"
#include "core/money.h"
#include "core/numbers.h"
#include "statements/annexureentry.h"

#include <QLocale>

namespace annexurerules {

namespace {

using Wide = __int128;

Wide power(int exponent)
{
    Wide result = 1;
    while (exponent-- > 0)
        result *= 10;
    return result;
}

/// A number read as typed, in units of 10^-decimals, rounded half to even on its decimal text.
Wide scaled(double value, int decimals)
{
    QString text = QString::number(value, 'f', QLocale::FloatingPointShortest);
    const bool negative = text.startsWith(u'-');
    if (negative)
        text.remove(0, 1);
    const qsizetype point = text.indexOf(u'.');
    const QString whole = point < 0 ? text : text.left(point);
    const QString fraction = point < 0 ? QString() : text.mid(point + 1);
    Wide units = whole.toLongLong() * power(decimals)
                 + fraction.left(decimals).leftJustified(decimals, u'0').toLongLong();
    const QString rest = fraction.mid(decimals);
    if (!rest.isEmpty()) {
        const bool half = rest.at(0) == u'5' && rest.mid(1).count(u'0') == rest.size() - 1;
        if (rest.at(0) > u'5' || (rest.at(0) == u'5' && !half) || (half && units % 2 != 0))
            ++units;
    }
    return negative ? -units : units;
}

/// Divides by 10^digits, rounding half to even.
Wide roundedDivision(Wide value, int digits)
{
    const Wide divisor = power(digits);
    Wide quotient = value / divisor;
    const Wide remainder = value % divisor;
    const Wide twice = (remainder < 0 ? -remainder : remainder) * 2;
    if (twice > divisor || (twice == divisor && quotient % 2 != 0))
        quotient += value < 0 ? -1 : 1;
    return quotient;
}

} // namespace

QString taxFromAmount(const QString &amount, const QString &rate)
{
    const double tax = numbers::roundAmount(numbers::val(amount) * numbers::val(rate) / 100);
    return Money::fromPaise(static_cast<qint64>(tax * 100)).toText();
}

QString taxFromRate(const QString &amount, const QString &rate)
{
    // Amount in millionths of a rupee, rate in ten-thousandths of a per cent: the product over
    // 100 is in 10^-12 rupees, rounded once to paise.
    const Wide product = scaled(numbers::val(amount), 6) * scaled(numbers::val(rate), 4);
    return Money::fromPaise(static_cast<qint64>(roundedDivision(product, 10))).toText();
}

QString total(const AnnexureEntry &entry)
{
    return (Money::fromText(entry.tax) + Money::fromText(entry.surcharge)
            + Money::fromText(entry.cess))
        .toText();
}

QString rateText(double rate, bool padded)
{
    const Wide units = scaled(rate, 4);
    const Wide magnitude = units < 0 ? -units : units;
    QString whole = QString::number(static_cast<qint64>(magnitude / 10000));
    if (padded && whole.size() < 2)
        whole.prepend(u'0');
    return (units < 0 ? QStringLiteral("-") : QString()) + whole + u'.'
           + QString::number(static_cast<qint64>(magnitude % 10000)).rightJustified(4, u'0');
}

QList<FieldFailure> boxLeft(AnnexureEntry &entry, Box box, const FormTraits &form)
{
    const auto refusal = [](const QString &text, const char *field) {
        return FieldFailure{{text, appTitle, MessageIcon::Critical}, QLatin1String(field)};
    };
    QList<FieldFailure> shown;
    const auto warnLonger = [&shown](const QString &text, int digits, const char *field) {
        if (auto warning = fieldrules::checkMaxDigits(text, digits, QLatin1String(field)))
            shown.append(*warning);
    };
    switch (box) {
    case Box::Code:
        if (entry.deducteeCode != u"01" && entry.deducteeCode != u"02")
            shown.append(refusal(codeText, "txtDeducteeCode"));
        break;
    case Box::Pan:
        if (entry.pan.trimmed().isEmpty())
            entry.pan = panNotAvailable;
        else if (entry.pan.trimmed().size() < 10)
            shown.append(refusal(panLengthText, "txtPANDeductee"));
        break;
    case Box::Amount:
        entry.amount = Money::fromText(entry.amount).toText();
        warnLonger(entry.amount, 14, "txt104");
        break;
    case Box::Rate: {
        const double rate = numbers::val(entry.rate);
        if (rate == 0)
            entry.tax = QStringLiteral("0.00");
        warnLonger(entry.rate, 6, "txt106");
        if (rate >= 100)
            shown.append(refusal(maximumRateText, "txt106"));
        else
            entry.rate = rateText(rate, false);
        break;
    }
    case Box::Tax:
        entry.tax = Money::fromText(entry.tax).toPaddedText();
        warnLonger(entry.tax, 14, "txtdedTax");
        break;
    case Box::Surcharge:
        entry.surcharge = Money::fromText(entry.surcharge).toPaddedText();
        warnLonger(entry.surcharge, 14, "txtdedSurcharge");
        break;
    case Box::Cess:
        entry.cess = Money::fromText(entry.cess).toPaddedText();
        warnLonger(entry.cess, 14, "txtdedCess");
        break;
    case Box::Deposited:
        entry.deposited = form.annexureZero == u"00.00"
                              ? Money::fromText(entry.deposited).toPaddedText()
                              : Money::fromText(entry.deposited).toText();
        break;
    case Box::Purchase:
        entry.purchaseValue = Money::fromText(entry.purchaseValue).toPaddedText();
        break;
    }
    return shown;
}

} // namespace annexurerules
