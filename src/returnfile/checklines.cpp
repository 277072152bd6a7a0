#include "returnfile/checklines.h"

#include "filingcheck/filingcheck.h"

QStringList checkLines(const filingcheck::CheckResult &result)
{
    QStringList lines;
    for (const filingcheck::Finding &finding : result.findings) {
        const bool error = finding.severity == filingcheck::Severity::Error;
        lines << QStringList{error ? QStringLiteral("error") : QStringLiteral("warning"),
                             finding.where(), finding.column, finding.message}
                     .join(u'\t');
    }
    for (const filingcheck::ChallanInterest &interest : result.interest) {
        lines << QStringLiteral("interest 201(1A)\tchallan %1\t%2")
                     .arg(interest.challan)
                     .arg(interest.due.toText());
    }
    lines << QStringLiteral("late fee 234E\t") + result.lateFee.due.toText();
    return lines;
}
