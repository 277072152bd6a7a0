#pragma once

#include "reports/form16adocument.h"

#include <QSet>
#include <functional>

class Form16AWorkTables;

/**
 * Form 16A as one PDF per deductee, for certificates that are sent out one by one: the
 * document that the screen prints when that deductee alone is ticked.
 */
class Form16AFiles
{
public:
    /// A file written: its path, whose certificates it holds, and their total tax.
    struct Written
    {
        QString path;
        QString name;
        QString pan;
        int certificates = 0;
        Money total;
    };

    /// Told after each file; returning false stops before the next one.
    using Progress = std::function<bool(const Written &)>;

    struct Outcome
    {
        int written = 0;
        bool stopped = false;
        QString error; ///< the file that could not be written and why; empty on success
    };

    Form16AFiles(const Form16AWorkTables &tables, const Form16AHeading &heading);

    /**
     * Writes the certificates of the chosen deductees (master ids) of a company's quarter into
     * the folder, made when missing, from the work tables as they were filled for those
     * deductees. An earlier file of the same name is replaced; a failure leaves it as it was.
     * Throws StoreError.
     */
    Outcome write(const QString &folder, int companyId, const QString &quarter,
                  const QList<int> &deducteeIds, int groupId, const Progress &progress);

    /// "AAAPZ1111Z_ZUBIN_MEHTA.pdf": the PAN and the name in letters and digits, every run of
    /// anything else one underscore, so that a name never climbs out of the folder.
    static QString fileName(const QString &pan, const QString &name);

private:
    QString uniqueName(const QString &pan, const QString &name);

    const Form16AWorkTables &m_tables;
    Form16AHeading m_heading;
    QSet<QString> m_used; ///< lower-case names of this run, so two deductees never share one
};
