#include "returnfile/returnfilewriter.h"

#include "core/datastore.h"
#include "core/wholefile.h"
#include "returnfile/batchheaderrecord.h"
#include "returnfile/batchtotals.h"
#include "returnfile/challanrecord.h"
#include "returnfile/deducteerecord.h"
#include "returnfile/deductorcodes.h"
#include "returnfile/fileheaderrecord.h"
#include "returnfile/returnfileerror.h"
#include "returnfile/salaryrecord.h"
#include "returnfile/sourcerows.h"
#include "core/formtraits.h"

#include <QList>
#include <QSaveFile>

namespace {

/// The file being written, line by line. It is put in place by commit() only; until then the
/// lines go to a temporary file beside it, which is discarded when the writing stops early, so an
/// existing return of that name stays as it was.
class ReturnFileOutput
{
public:
    explicit ReturnFileOutput(const QString &path) : m_file(path)
    {
        const QString refusal = wholefile::refusal(path);
        if (!refusal.isEmpty())
            throw failure(path, refusal);
        if (!m_file.open(QIODevice::WriteOnly))
            fail();
    }

    int nextLineNumber() const { return m_lines + 1; }

    void write(const RecordLine &line)
    {
        if (m_file.write(line.toLatin1() + "\r\n") < 0)
            fail();
        ++m_lines;
    }

    void commit()
    {
        // Flushed first: the commit's own failure would lose the system's reason (a full disk).
        if (!m_file.flush() || !m_file.commit())
            fail();
    }

private:
    static ReturnFileError failure(const QString &path, const QString &reason)
    {
        return ReturnFileError(QStringLiteral("The return file %1 could not be written: %2.")
                                   .arg(path, reason),
                               ReturnFileError::Cause::FileSystem);
    }

    [[noreturn]] void fail()
    {
        const QString reason = m_file.errorString();
        m_file.cancelWriting();
        throw failure(m_file.fileName(), reason);
    }

    QSaveFile m_file;
    int m_lines = 0;
};

/// The section rows under one salary row, read whole before its SD because the SD carries
/// their count; an employee has a handful of them.
struct SectionLines
{
    QList<QPair<QString, QVariant>> rows;
    qint64 count() const { return rows.size(); }
};

/**
 * The rows of one section table for a whole Statement, in the order of its salary rows, so that
 * one query serves every SD instead of one per employee: each SD takes the rows of its own
 * salary row from the front.
 */
class SectionRowsBySalary
{
public:
    SectionRowsBySalary(const DataStore &store, const FormTraits &form, const QString &table,
                        const QString &amountColumn, const QVariant &basicInfoId)
        : m_amountColumn(amountColumn),
          m_rows(store.exec(QStringLiteral("SELECT s.Secid, s.SalaryId, s.SectionId, s.%1 "
                                           "FROM %2 AS s JOIN %3 AS t ON t.SalaryId = s.SalaryId "
                                           "WHERE t.BasicIfoID = ? "
                                           "ORDER BY t.SrlNo, t.SalaryId, s.Secid")
                                .arg(amountColumn, table, form.salaryTable),
                            {basicInfoId}),
                 table, QStringLiteral("Secid"))
    {
        m_hasRow = m_rows.next();
    }

    SectionLines take(qint64 salaryId)
    {
        SectionLines lines;
        Money sum;
        while (m_hasRow && m_rows.value(QStringLiteral("SalaryId")).toLongLong() == salaryId) {
            const QVariant amount = m_rows.value(m_amountColumn);
            lines.rows.append({m_rows.text(QStringLiteral("SectionId")), amount});
            sum += Money::fromStored(amount);
            m_hasRow = m_rows.next();
        }
        // Rows that add up to nothing are left out together, those of 0 among others are not.
        if (sum == Money())
            lines.rows.clear();
        return lines;
    }

private:
    const QString m_amountColumn;
    SourceRows m_rows;
    bool m_hasRow = false;
};

class ReturnFilePass
{
public:
    ReturnFilePass(const DataStore &store, const FormTraits &form, ReturnFileOutput &output)
        : m_store(store), m_form(form), m_output(output),
          m_annexureColumns(deducteeRecordColumns(form))
    {
    }

    void writeChallans(const QVariant &basicInfoId, const QVariant &companyId, bool nil,
                       const QString &salarySection);
    void writeSalaryDetail(const QVariant &basicInfoId);

    ReturnFileSummary summary;

private:
    void writeAnnexure(const QVariant &challanId, const QVariant &basicInfoId,
                       int challanNumber);

    const DataStore &m_store;
    const FormTraits &m_form;
    ReturnFileOutput &m_output;
    const QString m_annexureColumns;
};

void ReturnFilePass::writeChallans(const QVariant &basicInfoId, const QVariant &companyId,
                                   bool nil, const QString &salarySection)
{
    SourceRows challans(m_store.exec(QStringLiteral("SELECT * FROM %1 WHERE BasicIfoID = ? "
                                                    "AND CompID = ? ORDER BY SlNo, ChallnID")
                                         .arg(m_form.challanTable),
                                     {basicInfoId, companyId}),
                        m_form.challanTable, QStringLiteral("ChallnID"));
    const QString countSql =
        QStringLiteral("SELECT count(*) FROM %1 WHERE ChallanId = ? AND BasicIfoID = ?")
            .arg(m_form.annexureTable);
    int challanNumber = 0;
    while (challans.next()) {
        ++challanNumber;
        const QVariant challanId = challans.value(QStringLiteral("ChallnID"));
        const QVariant rowBasicInfoId = challans.value(QStringLiteral("BasicIfoID"));
        ChallanPlace place;
        place.challanNumber = challanNumber;
        place.annexureRows = m_store.scalar(countSql, {challanId, rowBasicInfoId}).toLongLong();
        place.nilStatement = nil;
        place.salarySection = salarySection;
        m_output.write(challanRecord(m_output.nextLineNumber(), m_form, place, challans));
        writeAnnexure(challanId, rowBasicInfoId, challanNumber);
    }
    summary.challans = challanNumber;
}

void ReturnFilePass::writeAnnexure(const QVariant &challanId, const QVariant &basicInfoId,
                                   int challanNumber)
{
    SourceRows rows(m_store.exec(QStringLiteral("SELECT %1 FROM %2 WHERE ChallanId = ? "
                                                "AND BasicIfoID = ? ORDER BY SrlNo, %3")
                                     .arg(m_annexureColumns, m_form.annexureTable,
                                          m_form.annexureKey),
                                 {challanId, basicInfoId}),
                    m_form.annexureTable, m_form.annexureKey);
    int rowNumber = 0;
    while (rows.next()) {
        ++rowNumber;
        m_output.write(
            deducteeRecord(m_output.nextLineNumber(), m_form, challanNumber, rowNumber, rows));
    }
    summary.annexureRows += rowNumber;
}

void ReturnFilePass::writeSalaryDetail(const QVariant &basicInfoId)
{
    SourceRows salaries(m_store.exec(QStringLiteral("SELECT * FROM %1 WHERE BasicIfoID = ? "
                                                    "ORDER BY SrlNo, SalaryId")
                                         .arg(m_form.salaryTable),
                                     {basicInfoId}),
                        m_form.salaryTable, QStringLiteral("SalaryId"));
    SectionRowsBySalary section16Rows(m_store, m_form, m_form.section16Table,
                                      QStringLiteral("TotalDeduction"), basicInfoId);
    SectionRowsBySalary chapterVIARows(m_store, m_form, m_form.chapterVIATable,
                                       QStringLiteral("GrossAmt"), basicInfoId);
    int salaryNumber = 0;
    while (salaries.next()) {
        ++salaryNumber;
        const qint64 salaryId = salaries.value(QStringLiteral("SalaryId")).toLongLong();
        const SectionLines section16 = section16Rows.take(salaryId);
        const SectionLines chapterVIA = chapterVIARows.take(salaryId);
        m_output.write(salaryRecord(m_output.nextLineNumber(), salaryNumber, section16.count(),
                                    chapterVIA.count(), salaries));
        const auto writeSections = [&](const QString &recordType, const SectionLines &lines) {
            int rowNumber = 0;
            for (const auto &[section, amount] : lines.rows) {
                m_output.write(salarySectionRecord(m_output.nextLineNumber(), recordType,
                                                   salaryNumber, ++rowNumber, section, amount));
            }
        };
        writeSections(QStringLiteral("S16"), section16);
        writeSections(QStringLiteral("C6A"), chapterVIA);
    }
    summary.salaryRows = salaryNumber;
}

} // namespace

ReturnFileSummary writeReturnFile(const DataStore &store, const FormTraits &form, int groupId,
                                  int basicInfoId, const QString &path,
                                  const QDate &creationDate)
{
    SourceRows statement(store.exec(QStringLiteral("SELECT * FROM %1 WHERE BasicIfoID = ?")
                                        .arg(form.basicInfoTable),
                                    {basicInfoId}),
                         form.basicInfoTable, QStringLiteral("BasicIfoID"));
    if (!statement.next())
        throw ReturnFileError(QStringLiteral("The return file was not written: there is no "
                                             "Statement %1 in %2.")
                                  .arg(basicInfoId)
                                  .arg(form.basicInfoTable));
    const QVariant companyId = statement.value(QStringLiteral("CompID"));
    const DeductorCodes deductor = DeductorCodes::read(store, groupId, companyId);
    const BatchTotals totals = BatchTotals::read(store, form, basicInfoId, companyId);
    const QString salarySection =
        form.salaryLayout ? salaryChallanSection(deductor.deductorType) : QString();

    ReturnFileOutput output(path);
    output.write(fileHeaderRecord(output.nextLineNumber(), form,
                                  statement.text(QStringLiteral("TanNO")), creationDate));
    output.write(
        batchHeaderRecord(output.nextLineNumber(), form, statement, deductor, totals));

    ReturnFilePass pass(store, form, output);
    pass.writeChallans(basicInfoId, companyId, totals.isNil(), salarySection);
    if (form.hasSalaryDetail)
        pass.writeSalaryDetail(basicInfoId);
    output.commit();

    pass.summary.deposited = totals.deposited;
    return pass.summary;
}
