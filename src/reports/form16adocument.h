#pragma once

#include "reports/form16acertificate.h"
#include "reports/report.h"

/// What the person who signs the certificates types on the screen; printed as typed, trimmed.
struct Form16AInputs
{
    QString acknowledgementNo;
    QString place;
    QString date;
    QString fullName;
    QString designation;
    QString remarks;
};

/// What every certificate of one print shares.
struct Form16AHeading
{
    QString period;         ///< form16APeriod(); empty leaves the period out
    Form16AInputs inputs;
    bool collected = false; ///< tax collected at source (27EQ) rather than deducted
};

/// The Form 16A document: one certificate a page, each deductee's sections in turn.
namespace form16adocument {

inline const QString caption = QStringLiteral("Form - 16 A");

/// The certificates in the order given, each on a page of its own.
Report build(const QList<Form16ACertificate> &certificates, const Form16AHeading &heading);

} // namespace form16adocument
