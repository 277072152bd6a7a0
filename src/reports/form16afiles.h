#pragma once

#include "reports/form16adocument.h"

#include <QSet>
#include <functional>

class Form16AWorkTables;

/**
 * Form 16A as one PDF per deductee master, for certificates that are sent out one by one: each
 * file holds the rows of that master alone, each once, read by the master's id rather than by
 * its name, so that two deductees of one name never share a file.
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
     * the folder, made for the first file when missing, from the filled rows table. An earlier
     * plain file of the same name is replaced; a failure leaves it as it was, and any other
     * kind of file of that name (a pipe, a link) is refused. Throws StoreError.
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
