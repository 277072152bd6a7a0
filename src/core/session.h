#pragma once

#include <QDate>
#include <QString>

class DataStore;

/**
 * The values of one run that the menu and the company selection set and every screen reads.
 * The program makes one and hands it, with the data store, to what needs it.
 */
struct Session
{
    explicit Session(DataStore &store) : store(store) {}

    DataStore &store;

    int asstId = 1; ///< one data store holds one assessment period
    QDate asstStartDt;
    QDate asstEndDt;
    QDate asstLastDtOfPayment;
    int asstStartYear = 0;    ///< base year of the quarter dates; 0 when mstAssessment is empty
    QString asstFaYearStart;  ///< first four characters of FAYear

    int curGroupId = 0;
    int curCompId = 0;
    int curBasicInfoId = 0; ///< 0: the Statement does not exist yet
    QString curQuarter;     ///< "Q1" to "Q4"
    QString curFormType;    ///< "24Q", "26Q", "27Q", "27EQ", "Form16A26Q", ...
    QString curReportForm;  ///< "Form24", "Form26", "Form27", "Form27E"
    bool printMode = false; ///< the selection was asked for by a Reports entry
    QString quarterFromDt;  ///< dd/mm/yyyy, as the quarter was chosen
    QString quarterToDt;    ///< dd/mm/yyyy
    QString curDeductorStatus;
};
