#include "returnfile/salaryrecord.h"

#include "core/numbers.h"
#include "returnfile/returnfileerror.h"
#include "returnfile/sourcerows.h"

#include <QVariant>

#include <array>
#include <cmath>
#include <limits>

RecordLine salaryRecord(int lineNumber, int salaryNumber, qint64 section16Lines,
                        qint64 chapterVIALines, const SourceRows &salary)
{
    const auto column = [](const char *name) { return QLatin1String(name); };
    const auto amount = [&salary, &column](const char *name) {
        return salary.value(column(name));
    };

    RecordLine line(lineNumber, QStringLiteral("SD"));
    line.addNumber(1)
        .addNumber(salaryNumber)
        .addText(QStringLiteral("A"))
        .addBlank()
        .addText(salary.text(column("Pan")))
        .addText(salary.text(column("PanRef")))
        .addText(salary.text(column("EmpName")))
        .addText(employeeCategoryCode(salary.value(column("331"))))
        .addDate(salary.date(column("FromDate")))
        .addDate(salary.date(column("ToDate")))
        .addAmount(amount("332"))
        .addBlank()
        .addNumber(section16Lines)
        .addAmount(amount("333"))
        .addAmount(amount("334Sec10Gross"))
        .addAmount(amount("335"))
        .addAmount(amount("336Sec16Gross"))
        .addBlank()
        .addNumber(chapterVIALines)
        .addAmount(amount("339"))
        .addAmount(amount("340SecViaGross"))
        .addAmount(amount("344"))
        .addAmount(amount("345"))
        .addAmount(amount("346Sec88Gross"))
        .addAmount(amount("350"))
        .addAmount(amount("351"))
        .addAmount(amount("352"))
        .addAmount(amount("355"))
        .addBlank(3);
    return line;
}

RecordLine salarySectionRecord(int lineNumber, const QString &recordType, int salaryNumber,
                               int rowNumber, const QString &section, const QVariant &amount)
{
    RecordLine line(lineNumber, recordType);
    line.addNumber(1)
        .addNumber(salaryNumber)
        .addNumber(rowNumber)
        .addText(section)
        .addAmount(amount);
    return line;
}

QString employeeCategoryCode(const QVariant &index)
{
    // Woman, senior citizen, others: the order of the salary screen's list.
    static const std::array<const char *, 3> codes = {"W", "S", "G"};
    if (index.isNull())
        return {};
    bool ok = false;
    const double number = index.toDouble(&ok);
    // The list takes its index as a 16-bit number: one beyond that range stops the generation.
    if (ok && (number < std::numeric_limits<qint16>::min()
               || number > std::numeric_limits<qint16>::max()))
        throw ReturnFileError(QString::fromLatin1(numbers::overflowMessage));
    if (!ok || number != std::trunc(number) || number < 0 || number >= codes.size())
        return {};
    return QLatin1String(codes[static_cast<std::size_t>(number)]);
}
