#pragma once

#include "core/money.h"

#include <QList>
#include <QSqlQuery>
#include <QString>
#include <array>

/// One payment on a certificate, with the challan that carried its tax.
struct Form16APayment
{
    Money amountPaid;
    QString paymentDate; ///< dd/mm/yyyy
    Money tds;
    Money surcharge;
    Money cess;
    Money total;
    QString chequeNo;
    QString bsrCode;
    QString depositDate; ///< dd/mm/yyyy
    QString voucherNo;
};

/// What the certificate of one deductee under one section prints.
struct Form16ACertificate
{
    QString deductorName;
    std::array<QString, 5> deductorAddress; ///< flat, building, road, area, town
    QString deductorState;
    QString deductorPincode;
    QString deductorTan;
    QString deductorPan;
    int deducteeId = 0;
    QString deducteeName;
    std::array<QString, 5> deducteeAddress; ///< as the deductee row keeps them
    QString deducteeState;
    QString deducteePin; ///< the master's PIN
    QString deducteePan;
    QString sectionNo;
    QString sectionDescription;
    QString words; ///< the total of the section in words
    QList<Form16APayment> payments;

    Money totalPaid() const;
    Money totalTax() const;
};

/**
 * Reads the rows of the work tables' certificate queries, deductee by deductee: each deductee's
 * certificates, one for each section, rows in the order read. A deductee's rows stand together
 * in that order, so it is complete when its name (the print's join) or its master (the files
 * of each deductee) changes. Throws StoreError.
 */
class Form16ACertificateReader
{
public:
    enum class Deductee {
        ByName,   ///< Form16AWorkTables::certificateRows, the words in the rows
        ByMaster, ///< Form16AWorkTables::masterRows, the words spelled from each total
    };

    Form16ACertificateReader(QSqlQuery rows, Deductee deductee);

    /// The next deductee's certificates; empty when every row has been read.
    QList<Form16ACertificate> nextDeductee();

private:
    bool advance();

    bool sameDeductee(const Form16ACertificate &current) const;

    QSqlQuery m_rows;
    Deductee m_deductee;
    bool m_pending = false; ///< a row read that belongs to the next deductee
};

/// The period of a quarter of the financial year that starts in @p year (the text of its first
/// four digits), as a certificate states it: "From 01/04/2026 To 30/06/2026"; empty for a quarter
/// other than Q1 to Q4.
QString form16APeriod(const QString &quarter, const QString &year);
